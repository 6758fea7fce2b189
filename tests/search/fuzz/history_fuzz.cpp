// Any bytes are a history file that the viewer opens. The same text is also a history of the unit that is
// saved and opened again.
#include "bytes.h"
#include "core/actions.h"
#include "files/history.h"
#include "host/files.h"
#include "support/harness.h"

namespace {

using ovl::fuzz::Require;

// The lines of a history, read without the code of the program: CR LF or CR ends a line.
std::string Shown(std::string_view bytes) {
  std::string text;
  for (std::size_t place = 0; place < bytes.size(); ++place) {
    if (bytes[place] == '\n' && place > 0 && bytes[place - 1] == '\r') continue;
    text += bytes[place] == '\r' ? "\r\n" : std::string(1, bytes[place]);
  }
  return text.empty() || text.ends_with("\r\n") ? text : text + "\r\n";
}

struct Viewer {
  Viewer() : path(folder.File("History.txt")) {
    app.platform.program_folder = folder.Path().string();
    app.platform.show_message = [this](const ovl::core::MessageBox&) { ++boxes; };
    app.platform.files = ovl::host::DiskFiles(ovl::host::Flush::kNo);
    app.platform.ask_file = [this](const ovl::core::FileDialog&) { return ovl::core::FileAnswer{path}; };
  }

  void Open() {
    boxes = 0;
    ovl::core::UnloadForm(app, app.frmView.form);
    app.frmView.Text.text.clear();
    ovl::files::OpenHistory_menu_Click(app, 0);
  }

  ovl::testing::TemporaryFolder folder;
  std::string path;
  ovl::core::Application app;
  int boxes = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Viewer viewer;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto& text = viewer.app.frmView.Text.text;

  ovl::testing::WriteFile(viewer.path, bytes);
  viewer.Open();
  const bool tagged = bytes.substr(0, bytes.find('\r')) == "OVLH";
  Require(viewer.boxes == (tagged ? 0 : 1), "only a tagged file opens");
  if (tagged) Require(text == Shown(bytes).substr(6), "the viewer shows all lines behind the tag");
  if (!tagged) return 0;

  viewer.app.HistoryText = text;
  ovl::files::SaveHistory(viewer.app);
  const auto before = text;
  viewer.Open();
  Require(text == before + "\r\n", "a saved history opens as it was");
  return 0;
}
