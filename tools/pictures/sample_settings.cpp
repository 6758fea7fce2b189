#include "pictures/sample_settings.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <array>

#include "ui/app/program.h"

namespace ovl::pictures {
namespace {

// The positions of the lists DISPLAY to OPERATOR, and the two values; they fit firmware with short numbers
// too.
struct SampleException {
  const char* text;
  std::array<int, 5> acts;
  const char* first;
  const char* second;
};
constexpr std::array kExceptionSamples = {
    SampleException{"VOID", {1, 1, 1, 0, 0}, "", ""},
    SampleException{"NO SALE", {1, 1, 0, 0, 0}, "", ""},
    SampleException{"REFUND", {1, 0, 1, 0, 1}, "10", "250"},
    SampleException{"T?TAL", {0, 1, 0, 0, 2}, "0", "99"},
    SampleException{"DISCOUNT", {0, 0, 0, 1, 0}, "", ""},
};
constexpr int kShownException = 2;

// The positions of the lists ALARM TRIGGER, NORMAL STATE and ALARM DURATION.
struct SampleAlarm {
  std::array<int, 3> lists;
  const char* text;
};
constexpr std::array kAlarmSamples = {
    SampleAlarm{{3, 0, 2}, "REFUND AT THE TILL"},
    SampleAlarm{{27, 1, 7}, "ANY EXCEPTION"},
    SampleAlarm{{28, 0, 11}, "DOOR"},
};

class Installer {
 public:
  explicit Installer(ui::Program& program) : program_(program), app_(program.Model()) {}

  void SetExceptions() {
    int number = 0;
    for (const auto& sample : kExceptionSamples) {
      auto& lists = app_.frmMain.ComboExcp;
      Pick(lists[0], number++);
      SetText(app_.frmMain.cmdSetExcpstr, sample.text);
      for (std::size_t list = 0; list < sample.acts.size(); ++list) Pick(lists[1 + list], sample.acts[list]);
      if (*sample.second != '\0') SetRange(sample);
    }
    Pick(app_.frmMain.ComboExcp[0], kShownException);
  }

  void SetAlarms() {
    int number = 0;
    for (const auto& sample : kAlarmSamples) {
      auto& lists = app_.frmMain.ComboALM;
      Pick(lists[0], number++);
      for (std::size_t list = 0; list < sample.lists.size(); ++list)
        Pick(lists[1 + list], sample.lists[list]);
      SetText(app_.frmMain.cmdSetTrigger, sample.text);
    }
    Pick(app_.frmMain.ComboALM[0], 0);
  }

  void SetTitleAndDemo() {
    SetText(app_.frmMain.cmdTitle, "CORNER SHOP");
    const auto& form = app_.frmMain;
    if (form.FrameDemo.visible && !form.DemoMode.checked)
      program_.Act(core::ClickEvent{&app_.frmMain.DemoMode});
  }

 private:
  void Pick(controls::List& list, int position) { program_.Act(core::PickEvent{&list, position}); }

  void SetText(controls::Button& button, const char* text) {
    if (program_.Act(core::ClickEvent{&button}) != core::Outcome::kDone) return;
    program_.Act(core::TypeEvent{&app_.frmSetEXCPSTR.Text1, text});
    program_.Act(core::ClickEvent{&app_.frmSetEXCPSTR.cmdSET});
  }

  void SetRange(const SampleException& sample) {
    auto& dialog = app_.frmSetRange;
    program_.Act(core::ClickEvent{&app_.frmMain.cmdSetRange});
    program_.Act(core::TypeEvent{&dialog.Range_Hi, sample.first});
    program_.Act(core::TypeEvent{&dialog.SubRange_Hi, "00"});
    program_.Act(core::TypeEvent{&dialog.Range_Low, sample.second});
    program_.Act(core::TypeEvent{&dialog.SubRange_Low, "00"});
    program_.Act(core::ClickEvent{&dialog.cmdSetRange});
  }

  ui::Program& program_;
  core::Application& app_;
};

}  // namespace

void MakeSampleSettings(ui::Program& program) {
  Installer installer(program);
  installer.SetExceptions();
  installer.SetAlarms();
  installer.SetTitleAndDemo();
}

bool PickRegister(ui::Program& program, std::string_view name) {
  auto& app = program.Model();
  auto& list = app.frmMain.ComboReg;
  const auto found = std::find(list.items.begin(), list.items.end(), name);
  const QDir images(QFile::decodeName(app.platform.program_folder.c_str()));
  const auto image =
      QStringLiteral("%1/%2/%3.bin")
          .arg(QString::fromStdString(app.firmware.version), QString::fromStdString(app.firmware.release),
               QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
  if (found == list.items.end() || !images.exists(image)) return false;
  program.Act(core::PickEvent{&list, static_cast<int>(found - list.items.begin())});
  return true;
}

void ShowSampleHistory(ui::Program& program) {
  const QTemporaryDir folder;
  const auto path = folder.filePath(QStringLiteral("History.txt"));
  std::string text = "OVLH\r\n";
  for (int hour = 9; hour < 21; ++hour) {
    auto time = std::to_string(hour);
    if (time.size() < 2) time.insert(time.begin(), '0');
    text += "11/24/26 " + time + ":04:17  NO SALE\r\n";
    text += "11/24/26 " + time + ":31:50  REFUND                 12.40\r\n";
  }
  program.Model().platform.files.replace(QFile::encodeName(path).toStdString(), text);
  auto& ask = program.Model().platform.ask_file;
  const auto usual = ask;
  ask = [&](const core::FileDialog&) { return core::FileAnswer{QFile::encodeName(path).toStdString()}; };
  program.Act(core::ClickEvent{&program.Model().frmMain.OpenHistory_menu});
  program.Model().platform.ask_file = usual;
  // The caption must be the same in every run.
  program.Model().frmView.form.caption = "History.txt";
}

}  // namespace ovl::pictures
