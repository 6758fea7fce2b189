// Any bytes as a history file: what the viewer shows of it, and what a history that holds the same text looks
// like when it was saved and opened again.
#include "bytes.h"
#include "core/actions.h"
#include "image/files.h"
#include "image/history.h"
#include "support/harness.h"

namespace {

using ovl::fuzz::Require;

// The lines of a history, told apart from the program's own reader: CR LF or CR ends one.
std::string Shown(std::string_view bytes) {
  std::string text;
  bool begun = false;
  for (std::size_t place = 0; place < bytes.size(); ++place) {
    const bool ends = bytes[place] == '\r';
    if (ends && place + 1 < bytes.size() && bytes[place + 1] == '\n') ++place;
    text += ends ? "\r\n" : std::string(1, bytes[place]);
    begun = !ends;
  }
  return begun ? text + "\r\n" : text;
}

struct Viewer {
  Viewer() : path(folder.File("History.txt")) {
    app.platform.program_folder = folder.Path().string();
    app.platform.show_message = [this](const ovl::MessageBox&) { ++boxes; };
    app.platform.ask_file = [this](const ovl::FileDialog&) { return ovl::FileAnswer{path}; };
  }

  void Open() {
    boxes = 0;
    ovl::UnloadForm(app, app.frmView.form);
    app.frmView.Text.text.clear();
    ovl::OpenHistory_menu_Click(app, 0);
  }

  ovl::testing::TemporaryFolder folder;
  std::string path;
  ovl::Application app;
  int boxes = 0;
};

void Put(const std::string& path, std::string_view bytes) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  Require(file != nullptr, "the file can be written");
  std::fwrite(bytes.data(), 1, bytes.size(), file);
  std::fclose(file);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Viewer viewer;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto& text = viewer.app.frmView.Text.text;

  Put(viewer.path, bytes);
  viewer.Open();
  const bool tagged = bytes.substr(0, bytes.find('\r')) == "OVLH";
  Require(viewer.boxes == (tagged ? 0 : 1), "only a tagged file opens");
  if (tagged) Require(text == Shown(bytes).substr(6), "the viewer shows all lines behind the tag");
  if (!tagged) return 0;

  viewer.app.HistoryText = text;
  ovl::SaveHistory(viewer.app);
  const auto before = text;
  viewer.Open();
  Require(text == before + "\r\n", "a saved history opens as it was");
  return 0;
}
