// Any text, or a changed stream of the firmware, is loaded as a record stream. The first byte chooses the
// firmware, the second one the kind of test.
#include "bytes.h"
#include "core/configuration.h"
#include "core/gate.h"
#include "firmware/firmware_table.h"
#include "image/record_stream.h"
#include "support/firmware_facts.h"
#include "support/harness.h"

namespace {

using ovl::fuzz::Bytes;
using ovl::fuzz::Require;

constexpr unsigned kPanelsReady = 1, kChanges = 2;

struct Served {
  ovl::firmware::FirmwareId firmware;
  std::string stream;
};

// The text of a file without its line ends. An LF alone is no line end.
std::string Joined(std::string_view stream) {
  std::string joined;
  for (std::size_t at = 0; at < stream.size(); ++at) {
    const bool of_end = stream[at] == '\r' || (at > 0 && stream.substr(at - 1, 2) == "\r\n");
    if (!of_end) joined += stream[at];
  }
  return joined;
}

std::vector<Served> AllServed() {
  std::vector<Served> all;
  for (const auto& entry : ovl::firmware::FirmwareTable()) {
    if (!entry.in_menu) continue;
    const ovl::firmware::FirmwareId firmware{std::string(entry.version), std::string(entry.release)};
    all.push_back({firmware, Joined(ovl::testing::RawPatternStream(firmware))});
  }
  return all;
}

// Every four bytes replace a part of the stream: place, length, character.
std::string Changed(std::string text, Bytes input) {
  while (!input.Empty()) {
    const std::size_t place = (input.Next() * 256U + input.Next()) % (text.size() + 1);
    const std::size_t length = input.Next();
    text.replace(place, length, 1, static_cast<char>(input.Next()));
  }
  return text;
}

// The default image of a register does not change the other fields.
void CheckKept(const ovl::image::ConfigImage& before, const ovl::image::ConfigImage& after) {
  for (const auto& row : ovl::image::FieldTable()) {
    const bool taken = row.is_default || !row.sentinel.empty() || row.id == ovl::image::FieldId::BLNKRTS_BAK;
    for (int entry = 1; entry <= ovl::image::EntryCount(row.id) && !taken; ++entry)
      Require(before.at(row.id, entry) == after.at(row.id, entry), "a field of no default stays");
  }
}

// A complete image is written and read back unchanged.
void CheckRoundTrip(ovl::core::Application& app) {
  std::string digits;
  ovl::image::ParseRecords(app.StreamText, ovl::image::ReadRegion(app.firmware), digits);
  if (digits.size() != ovl::testing::FactsOf(app.firmware).stream.digits) return;
  const auto sent = ovl::core::SectionsToStream(app);
  Require(ovl::core::LoadStream(app, Joined(sent)), "what was composed loads");
  Require(ovl::core::SectionsToStream(app) == sent, "what was loaded composes to the same");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto all = AllServed();
  static const ovl::image::ConfigImage before;
  static ovl::core::Application app;
  app.platform.show_message = [](const ovl::core::MessageBox&) {};

  Bytes input(data, size);
  const auto& served = all[input.Next() % all.size()];
  const unsigned choice = input.Next();
  app.firmware = served.firmware;
  app.StreamText = Joined((choice & kChanges) != 0 ? Changed(served.stream, input) : input.Rest());
  app.PanelsReady = (choice & kPanelsReady) != 0;
  if (app.ImageTouched) app.image = before;
  app.ImageTouched = app.ended = false;
  ovl::core::PrepareCapabilities(app);
  ovl::core::DispatchStart(
      app, [](ovl::core::Application& at) { at.ImageTouched = ovl::core::LoadStream(at, at.StreamText); });
  if (!app.ImageTouched) {
    Require(app.image == before, "a stream that is not taken leaves the image alone");
  } else if (app.PanelsReady) {
    CheckKept(before, app.image);
  } else {
    CheckRoundTrip(app);
  }
  return 0;
}
