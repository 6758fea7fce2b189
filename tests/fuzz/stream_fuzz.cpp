// Any text as a record stream, under the layout that its first byte chooses. What was loaded must compose.
#include <cstdint>
#include <cstdlib>

#include "catalogue/firmware.h"
#include "core/gate.h"
#include "image/record_stream.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const auto table = ovl::FirmwareTable();
  const auto& entry = table[data[0] % table.size()];
  ovl::Application app;
  app.firmware = {std::string(entry.version), std::string(entry.release)};
  app.platform.show_message = [](const ovl::MessageBox&) {};
  app.StreamText.assign(reinterpret_cast<const char*>(data) + 1, size - 1);
  app.PanelsReady = (data[0] & 0x80) != 0;
  const auto before = app.image;
  ovl::PrepareCapabilities(app);
  ovl::DispatchStart(app, [](ovl::Application& inside) {
    if (ovl::LoadStream(inside, inside.StreamText)) inside.StreamBuffer = ovl::SectionsToStream(inside);
  });
  if (app.ended && !(app.image == before)) std::abort();
  if (!app.StreamBuffer.empty() && app.StreamBuffer.back() != '#') std::abort();
  return 0;
}
