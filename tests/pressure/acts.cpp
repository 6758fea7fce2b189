#include "acts.h"

#include <QFile>
#include <fstream>
#include <memory>
#include <sstream>

#include "core/settings.h"
#include "image/files.h"
#include "parser.h"
#include "runner.h"
#include "shell/platform/settings_store.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

const FirmwareId kFirmware{"V1400", "R12"};
constexpr const char* kOld = "what was there before\r\n";

std::shared_ptr<Harness> Started() {
  auto program = std::make_shared<Harness>(kFirmware);
  program->Start();
  return program;
}

Act Save() {
  return {"Save", "kept.bin", true, kOld, [program = Started()](const std::string&, const std::string& path) {
            program->file_answers.emplace_back(path);
            program->Click("menuSave");
            const auto text = program->TakeBox().text;
            const bool done = text == "Save Completed.        ";
            return Told{done, text, done || text == "NoFile Save. !!!        "};
          }};
}

// Nothing is told but in the status bar.
Act History() {
  return {"history", "History.txt", true, kOld,
          [program = Started()](const std::string&, const std::string& path) {
            program->OpenAndHold();
            program->file_answers.emplace_back(path);
            program->Click("CmdUpDow(3)");
            program->DrainAll();
            program->Unit("00001 NO SALE\r\n\x06");
            const auto& note = program->app.StatusNote;
            const bool named = note.starts_with(path + ": ");
            return Told{note.empty(), note, (note.empty() || named) && program->NoBoxLeft()};
          }};
}

// An upload that cannot be kept is not taken in.
Act Upload() {
  return {"upload.bin", "V1400/upload.bin", false, kOld,
          [program = Started()](const std::string& folder, const std::string&) {
            auto& app = program->app;
            app.platform.program_folder = folder;
            app.frmOK_buttom.Label1.caption.clear();
            const auto image = app.image;
            program->OpenAndHold();
            program->Click("CmdUpDow(0)");
            program->DrainAll();
            program->Unit(PatternStream(kFirmware, 5));
            const bool done = app.frmOK_buttom.Label1.caption == "Upload Completed.";
            const bool right = done ? app.image != image
                                    : app.image == image && app.frmMain.ComboReg.position <= 1 &&
                                          !app.StatusNote.empty() && !app.frmOK_buttom.form.visible;
            return Told{done, done ? app.frmOK_buttom.Label1.caption : app.StatusNote, right};
          }};
}

std::string Conf(const char* version, const char* release) {
  return std::string("[General]\nRelease=").append(release).append("\nVersion=").append(version) + "\n";
}

// A failed write is silent; the box comes either way, and the program ends.
Act Settings() {
  return {"settings",
          "ORB/OVL Software.conf",
          false,
          Conf("V1400", "R12"),
          [program = Started()](const std::string& folder, const std::string&) {
            const SettingsStore store(QFile::decodeName(folder.c_str()));
            bool done = true;
            program->app.platform.write_setting = [&](auto key, auto value, auto text) {
              return done = store.Write(key, value, text) && done;
            };
            const bool ended = program->Click("V1300R14mnu") == Outcome::kEnded;
            const auto text = program->TakeBox().text;
            return Told{done, text, ended && text.find("V1300R14") != std::string::npos};
          },
          true,
          // The two values are written one after the other, and the file can be gone in between.
          {Conf("V1300", "R12"), "[General]\nVersion=V1300\n", "[General]\nRelease=R14\n"}};
}

// Its exit status and its reason.
Told RunStatement(const std::string& folder, const std::string& statement, std::ostream& output) {
  std::ostringstream errors;
  script::Session session(output, errors);
  std::istringstream text("folder " + script::Quoted(folder) +
                          "\nsetting Version V1400\nsetting Release R12\nstart\n" + statement + "\n");
  const auto status = RunScript(session, text, "script", errors);
  const bool done = status == script::ExitStatus::kDone;
  auto words = errors.str();
  if (!words.empty()) words.pop_back();
  return {done, words, done || (status == script::ExitStatus::kWrongStatement && !words.empty())};
}

// A row's process may have become an ordinary user.
void ReadableForAll(const fs::path& folder) {
  constexpr auto kReadable = fs::perms::others_read | fs::perms::others_exec;
  fs::permissions(folder, kReadable, fs::perm_options::add);
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    fs::permissions(entry.path(), kReadable, fs::perm_options::add);
  }
}

Act Script(const std::string& word) {
  const auto site = Started();
  ReadableForAll(site->folder.Path());
  return {"script " + word, "output.txt", true, kOld,
          [word, site](const std::string&, const std::string& path) {
            std::ostringstream output;
            return RunStatement(site->folder.Path().string(), word + " " + script::Quoted(path), output);
          }};
}

}  // namespace

std::vector<Act> AllActs() {
  return {Save(), History(), Upload(), Settings(), Script("stream"), Script("dump")};
}

Told PrintTo(const std::string& device) {
  const Harness site(kFirmware);
  std::ofstream output(device);
  return RunStatement(site.folder.Path().string(), "echo text", output);
}

}  // namespace ovl::testing
