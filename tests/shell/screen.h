// A program with windows, for tests of what they show and of what a person does in them.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <stdexcept>

#include "core/actions.h"
#include "image/files.h"
#include "registers/selection_driver.h"
#include "shell/program.h"
#include "shell/theme.h"
#include "support/harness.h"

namespace ovl::testing {

enum class Pages { kAll, kFirst };

// A program with windows whose registers are selected without their default images.
class Screen {
 public:
  explicit Screen(const FirmwareId& firmware, Pages pages = Pages::kAll) {
    ApplyTheme(Theme::kLight);
    const auto images = folder_.Path() / firmware.version / firmware.release;
    std::filesystem::create_directories(images);
    WriteWhole((images / "GENERIC.bin").string(), PatternStream(firmware, 1, 0) + "\r\n");
    program_ = std::make_unique<Program>(QString::fromStdString(folder_.Path().string()), QString());
    auto& platform = App().platform;
    platform.read_setting = [firmware](std::string_view, std::string_view value) {
      return std::optional<SettingValue>(value == "Version" ? firmware.version : firmware.release);
    };
    platform.write_setting = [](std::string_view, std::string_view, std::string_view) { return true; };
    platform.show_message = [](const MessageBox&) {};
    if (program_->Start() != Outcome::kDone) throw std::runtime_error("no start");
    if (pages == Pages::kAll) OnScreen().BuildAll();
    Main().resize(960, 600);
  }

  Application& App() { return program_->Model(); }
  MainWindow& Main() { return program_->OnScreen().Main(); }
  Windows& OnScreen() { return program_->OnScreen(); }
  FormWindow& Window(const Form& form) { return *OnScreen().WindowOf(form); }

  void Select(int register_code) {
    auto& app = App();
    using enum FieldId;
    for (const auto field : {REGTYPE_MINOR, REGTYPE_EXT1, REGTYPE_EXT2, UNITADDR, GTITLE_NF_BAK,
                             DV_ADDRIND_BAK, TCIADDBAK_1, TCIADDBAK_2, TCIADDBAK_3}) {
      app.image[field] = "00";
    }
    app.image[COMMCFG_BAK] = app.image[DSPCFG_BAK] = app.image[RX_BAUDRATE] = app.image[TX_BAUDRATE] = "00";
    app.UploadApplying = true;
    AssignPosition(app, app.frmMain.ComboReg, register_code, Raise::kAlways);
    app.UploadApplying = false;
    ShowRegisterOptions(app);
    Show();
  }

  void Select(std::string_view name) {
    const auto& names = App().frmMain.ComboReg.items;
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) throw std::runtime_error("no register " + std::string(name));
    Select(static_cast<int>(found - names.begin()));
  }

  void Show() {
    program_->RefreshNow();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }

  template <class Kind>
  Kind& Find(const std::string& name) {
    auto* found = Main().findChild<Kind*>(QString::fromStdString(name));
    if (found == nullptr) throw std::runtime_error("no widget " + name);
    return *found;
  }

  void Click(const std::string& name) {
    Find<QAbstractButton>(name).click();
    Show();
  }

  void Pick(const std::string& name, int position) {
    emit Find<QComboBox>(name).activated(position);
    Show();
  }

  std::string QuietLine() {
    const auto* line = Main().Tabs().currentWidget()->findChild<QLabel*>(QStringLiteral("QuietLine"));
    return line->isVisible() ? line->text().toStdString() : std::string();
  }

 private:
  TemporaryFolder folder_;
  std::unique_ptr<Program> program_;
};

}  // namespace ovl::testing
