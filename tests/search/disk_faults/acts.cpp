#include <QFile>
#include <fstream>
#include <memory>
#include <sstream>

#include "core/settings.h"
#include "host/files.h"
#include "host/settings_store.h"
#include "obstacles.h"
#include "script/parser.h"
#include "script/runner.h"
#include "support/control_characters.h"

namespace ovl::testing {
namespace {

const firmware::FirmwareId kFirmware{"V1400", "R12"};
constexpr const char* kOld = "what was there before\r\n";

std::shared_ptr<Harness> Started() {
  auto program = std::make_shared<Harness>(kFirmware);
  program->app.platform.files = host::DiskFiles();
  program->Start();
  return program;
}

Act Save() {
  const auto run = [program = Started()](const std::string&, const std::string& path) {
    program->file_answers.emplace_back(path);
    program->Click("menuSave");
    const auto text = program->TakeBox().text;
    const bool done = text == "Save Completed.        ";
    return Result{done, text, done || text == "NoFile Save. !!!        "};
  };
  return {"Save", "kept.bin", true, kOld, run};
}

// Only the status bar reports the result.
Act History() {
  const auto run = [program = Started()](const std::string&, const std::string& path) {
    program->OpenAndHold();
    program->file_answers.emplace_back(path);
    program->Click("CmdUpDow(3)");
    program->DrainAll();
    program->Unit("00001 NO SALE\r\n" + std::string(kAck));
    const auto& note = program->app.StatusNote;
    return Result{note.empty(), note,
                  (note.empty() || note.starts_with(path + ": ")) && program->NoBoxLeft()};
  };
  return {"history", "History.txt", true, kOld, run};
}

// An upload that cannot be stored is not loaded.
Act Upload() {
  const auto run = [program = Started()](const std::string& folder, const std::string&) {
    auto& app = program->app;
    auto& end = app.frmOK_buttom;
    app.platform.program_folder = folder;
    end.Label1.caption.clear();
    const auto image = app.image;
    program->OpenAndHold();
    program->Click("CmdUpDow(0)");
    program->DrainAll();
    program->Unit(PatternStream(kFirmware, 5));
    const bool done = end.Label1.caption == "Upload Completed.";
    const bool kept = app.image == image && app.frmMain.ComboReg.position <= 1 && !app.StatusNote.empty() &&
                      !end.form.visible;
    return Result{done, done ? end.Label1.caption : app.StatusNote, done ? app.image != image : kept};
  };
  return {"upload.bin", "V1400/upload.bin", false, kOld, run};
}

// The message box comes in any case, and the program ends. The windows add why a write failed.
Act Settings() {
  const auto run = [program = Started()](const std::string& folder, const std::string&) {
    const host::SettingsStore store(QFile::decodeName(folder.c_str()));
    std::string problem;
    program->app.platform.write_setting = [&](auto key, auto value, auto text) {
      const auto written = store.Write(key, value, text);
      if (!written.Ok()) problem = written.Problem().Text();
      return written.Ok();
    };
    const bool ended = program->Click("V1300R14mnu") == core::Outcome::kEnded;
    const auto text = program->TakeBox().text;
    const bool told = ended && text.find("V1300R14") != std::string::npos;
    const bool vague = problem.ends_with("it cannot be written");
    return Result{problem.empty(), problem.empty() ? text : problem, told && !vague};
  };
  // The two values are written one after the other, and the file may be removed in between. Qt opens the file
  // to see whether it can be written; a file that is removed at this moment comes back empty.
  const std::string head = "[General]\n", release = "Release=R12\n", version = "Version=V1300\n";
  return {"settings", "ORB/OVL Software.conf",
          false,      head + release + "Version=V1400\n",
          run,        {head + release + version, head + version, head + "Release=R14\n", ""}};
}

// Runs the statement in a program of its own and reports its exit status.
Result RunStatement(const Harness& site, const std::string& statement, std::ostream& output) {
  std::ostringstream errors;
  script::Session session(output, errors);
  std::istringstream text("folder " + script::Quoted(site.folder.Path().string()) +
                          "\nsetting Version V1400\nsetting Release R12\nstart\n" + statement + "\n");
  const auto status = RunScript(session, text, "script", errors);
  const bool done = status == script::ExitStatus::kDone;
  auto report = errors.str();
  if (!report.empty()) report.pop_back();
  return {done, report, done || (status == script::ExitStatus::kWrongStatement && !report.empty())};
}

Act Script(const std::string& word) {
  using enum std::filesystem::perms;
  const auto site = Started();
  // A row's process may have become an ordinary user.
  std::filesystem::permissions(site->folder.Path(), others_read | others_exec,
                               std::filesystem::perm_options::add);
  const auto run = [word, site](const std::string&, const std::string& path) {
    std::ostringstream output;
    return RunStatement(*site, word + " " + script::Quoted(path), output);
  };
  return {"script " + word, "output.txt", true, kOld, run};
}

}  // namespace

std::vector<Act> AllActs() {
  return {Save(), History(), Upload(), Settings(), Script("stream"), Script("dump")};
}

Result PrintTo(const std::string& device) {
  std::ofstream output(device);
  return RunStatement(Harness(kFirmware), "echo text", output);
}

}  // namespace ovl::testing
