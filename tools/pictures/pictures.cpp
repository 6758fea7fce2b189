#include "pictures/pictures.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QIcon>
#include <QMenu>
#include <QMenuBar>
#include <QSaveFile>
#include <QTabWidget>
#include <algorithm>
#include <array>
#include <filesystem>

#include "host/text_codec.h"
#include "pictures/advice_pictures.h"
#include "pictures/sample_settings.h"
#include "pictures/simulated_port.h"
#include "pictures/spoken_text.h"
#include "pictures/step_marks.h"
#include "ui/acts/checks_window.h"
#include "ui/acts/copy_slot_window.h"
#include "ui/app/program.h"
#include "ui/dialogs/changes_window.h"
#include "ui/kit/theme.h"
#include "ui/window/window_icon.h"

namespace ovl::pictures {
namespace {

constexpr core::ClockTime kPictureTime{2026, 11, 24, 14, 7, 9};
constexpr std::size_t kPartOfUpload = 2870;
constexpr int kRegisterTab = 0;
constexpr int kCommunicationTab = 3;
constexpr int kExceptionTab = 4;
constexpr int kTimeTab = 5;
constexpr int kRemoteTab = 6;
constexpr int kIconSize = 256;
constexpr int kClockTicks = 10;  // until the clock lists are set

// Takes away the events of timers, so that no picture depends on the time that the machine needs for it.
class NoTimers : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::Timer; }
};

class Photographer {
 public:
  Photographer(ui::Program& program, SimulatedPort& port, QDir folder)
      : program_(program), port_(port), folder_(std::move(folder)) {}

  // The last picture that could not be written.
  const core::Result& Saved() const { return saved_; }

  void TakeAdviceLines(QSize size) {
    Main().resize(size);
    TakeAdvice(program_, port_, [this](const QString& name) { Take(Main(), name); });
  }

  void TakeAll(QSize size) {
    Main().resize(size);
    for (int tick = 0; tick <= kClockTicks; ++tick) program_.Act(core::TickEvent{&App().frmMain.Timer});
    MakeSampleSettings(program_);
    TakeTabs();
    TakeChanges();
    TakeChecks();
    TakeCopyWindow();
    TakeTextWindows();
    TakeRegisters();
    TakePortSettings();
    TakeLink();
    TakeScan();
    TakeHelp();
    TakeFocus();
    TakeMenus();
    SavePicture(QStringLiteral("icon"), ui::WindowIcon().pixmap(kIconSize));
  }

 private:
  core::Application& App() { return program_.Model(); }
  ui::MainWindow& Main() { return program_.OnScreen().Main(); }

  void Take(QWidget& window, const QString& name) {
    program_.RefreshNow();
    Main().Checks().CheckNow();  // its timer does not run here
    window.activateWindow();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    // The second round is for layouts that the first one has changed, such as a text that wraps.
    for (int round = 0; round < 2; ++round) QCoreApplication::sendPostedEvents();
    const auto picture = window.grab();
    SavePicture(name, picture);
    const auto marked = WithStepMarks(name, picture, window);
    if (!marked.isNull()) SavePicture(name + QStringLiteral("_steps"), marked);
    Save(name + QStringLiteral(".txt"),
         [&](QIODevice& file) { return file.write(SpokenText(window).toUtf8()) >= 0; });
  }

  void SavePicture(const QString& name, const QPixmap& picture) {
    Save(name + QStringLiteral(".png"), [&](QIODevice& file) { return picture.save(&file, "PNG"); });
  }

  template <class Write>
  void Save(const QString& name, const Write& write) {
    QSaveFile file(folder_.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || !write(file) || !file.commit())
      saved_ = host::FailureOf(file.fileName(), file.errorString());
  }

  void TakeForm(const controls::Form& form, const QString& name) {
    program_.RefreshNow();
    if (auto* window = program_.OnScreen().WindowOf(form)) Take(*window, name);
  }

  void TakeMenus() {
    int number = 0;
    for (const auto* action : Main().menuBar()->actions()) {
      auto& menu = *action->menu();
      emit menu.aboutToShow();
      menu.adjustSize();
      Take(menu, QStringLiteral("menu_%1").arg(++number));
    }
  }

  void TakeTabs() {
    auto& tabs = Main().Tabs();
    for (int tab = 0; tab < tabs.count(); ++tab) {
      tabs.setCurrentIndex(tab);
      auto name = tabs.tabText(tab).trimmed().toLower();
      name.remove(QLatin1Char('/'));
      Take(Main(),
           QStringLiteral("tab%1_").arg(tab) + name.simplified().replace(QLatin1Char(' '), QLatin1Char('_')));
    }
    tabs.setCurrentIndex(kRemoteTab);
  }

  void TakeChanges() {
    Main().Changes().Open();
    Take(Main().Changes(), QStringLiteral("changes"));
    auto* bytes = Main().Changes().findChild<QCheckBox*>(QStringLiteral("ChangesBytes"));
    bytes->click();
    Take(Main().Changes(), QStringLiteral("changes_bytes"));
    bytes->click();
    Main().Changes().OpenComparison(QStringLiteral("kitchen.bin"), App().known_image);
    Take(Main().Changes(), QStringLiteral("changes_compared"));
    Main().Changes().close();
  }

  void TakeChecks() {
    Main().Checks().Open();
    Take(Main().Checks(), QStringLiteral("checks"));
    Main().Checks().close();
  }

  void TakeCopyWindow() {
    ui::OpenCopySlotWindow(program_.OnScreen().Controls(), acts::SlotKind::kException, Main());
    auto* window = Main().findChild<QDialog*>(QStringLiteral("CopyException"));
    Take(*window, QStringLiteral("copy_exception"));
    window->close();
  }

  void TakeTextWindows() {
    Click(App().frmMain.cmdSetExcpstr);
    TakeForm(App().frmSetEXCPSTR.form, QStringLiteral("text_entry"));
    program_.Act(core::CloseEvent{&App().frmSetEXCPSTR.form});
    Click(App().frmMain.cmdSetRange);
    TakeForm(App().frmSetRange.form, QStringLiteral("range"));
    program_.Act(core::CloseEvent{&App().frmSetRange.form});
    ShowSampleHistory(program_);
    TakeForm(App().frmView.form, QStringLiteral("viewer"));
    program_.Act(core::CloseEvent{&App().frmView.form});
  }

  // False for an option that this firmware does not offer.
  bool Choose(controls::OptionArray& array, int element) {
    program_.RefreshNow();
    const auto& state = array.elements.at(static_cast<std::size_t>(element));
    const auto* button = program_.OnScreen().Controls().WidgetOf(state);
    if (button == nullptr || !button->isVisible()) return false;
    program_.Act(core::ClickEvent{controls::OptionElement{&array, element}});
    return true;
  }

  void TakeRegisters() {
    auto& form = App().frmMain;
    auto& tabs = Main().Tabs();
    tabs.setCurrentIndex(kRegisterTab);
    for (const std::string_view name : {"IBM", "NCR", "TCPIP", "UNIWELL", "GILBARCO"}) {
      if (!PickRegister(program_, name)) continue;
      if (name == "IBM") Choose(form.IBMOP, 0);
      if (name == "NCR") Choose(form.NCROP, 1);
      if (name == "UNIWELL") Choose(form.UNIWOP, 1);
      if (name == "GILBARCO") Choose(form.OpGilbraco, 5);
      Take(Main(), QStringLiteral("register_") + QString::fromLatin1(name.data()).toLower());
    }
    if (PickRegister(program_, "DRESSER WAYNE")) {
      Choose(form.POSOP, 0);
      Choose(form.TEROP, 2);
      Choose(form.OpDYWAYE, 2);
      Take(Main(), QStringLiteral("register_dresser_wayne"));
      tabs.setCurrentIndex(kCommunicationTab);
      Take(Main(), QStringLiteral("communication_forced"));
      tabs.setCurrentIndex(kRegisterTab);
    }
    TakeMicros();
    TakeSubMenus();
    PickRegister(program_, "GENERIC");
  }

  void TakeMicros() {
    constexpr std::array kPanels = {"", "micros_idn", "micros_isn", "micros_3700"};
    if (!PickRegister(program_, "MICROS")) return;
    for (int mode = 0; mode < static_cast<int>(kPanels.size()); ++mode) {
      if (!Choose(App().frmMain.OpMicros, mode)) continue;
      const auto name = QString::fromLatin1(kPanels.at(static_cast<std::size_t>(mode)));
      if (!name.isEmpty()) TakeForm(App().frmMicros.form, name);
    }
    Take(Main(), QStringLiteral("register_micros"));
    program_.Act(core::CloseEvent{&App().frmMicros.form});
  }

  void TakeSubMenus() {
    constexpr int kWithPort = 18, kFourWays = 12, kTerminal = 22;
    auto& form = App().frmMain;
    if (PickRegister(program_, "CASIO") && Choose(form.CASIOOP, kWithPort)) {
      Take(Main(), QStringLiteral("register_casio"));
      TakeForm(App().FrmSubMenu.form, QStringLiteral("sub_menu_casio"));
    }
    if (PickRegister(program_, "SHARP") && Choose(form.SharpOP, kFourWays)) {
      TakeForm(App().FrmSubMenu.form, QStringLiteral("sub_menu_sharp"));
      Choose(form.SharpOP, kTerminal);
      TakeForm(App().FrmSubMenu.form, QStringLiteral("sub_menu_terminal"));
      Take(Main(), QStringLiteral("register_sharp"));
    }
    program_.Act(core::CloseEvent{&App().FrmSubMenu.form});
  }

  void TakePortSettings() {
    Main().Tabs().setCurrentIndex(kRemoteTab);
    Click(App().frmMain.cmdConnect);
    TakeForm(App().frmSettSR.form, QStringLiteral("port_settings"));
    Take(Main(), QStringLiteral("held_back"));
    Click(App().frmSettSR.cmdSET);
  }

  void TakeLink() {
    Take(Main(), QStringLiteral("remote_open"));
    Click(App().frmMain.CmdUpDow[controls::kRemote]);
    Take(Main(), QStringLiteral("remote_asked"));
    Grant();
    Take(Main(), QStringLiteral("remote_access"));
    program_.Act(core::PointEvent{&App().frmMain.CmdUpDow[controls::kDownload]});
    Take(Main(), QStringLiteral("remote_hint"));
    program_.Act(core::PointEvent{&App().frmMain.Frame11});
    TakeUpload();
    TakeDownload();
  }

  void Grant() {
    port_.ReceiveFromUnit(kAck);
    program_.Act(core::TickEvent{&App().frmMain.General_timer});
  }

  void TakeUpload() {
    const auto stream = StreamOfUnit(App());
    const auto part = std::min(kPartOfUpload, stream.size() / 2);
    Click(App().frmMain.CmdUpDow[controls::kUpload]);
    port_.SendCharacters(static_cast<int>(App().UploadCommandText.size()));
    port_.ReceiveFromUnit(std::string_view(stream).substr(0, part));
    Take(Main(), QStringLiteral("remote_uploading"));
    port_.ReceiveFromUnit(std::string_view(stream).substr(part));
    TakeForm(App().frmOK_buttom.form, QStringLiteral("transfer_end"));
    Click(App().frmOK_buttom.Command1);
  }

  void TakeDownload() {
    Click(App().frmMain.CmdUpDow[controls::kRemote]);
    Grant();
    Click(App().frmMain.CmdUpDow[controls::kDownload]);
    port_.SendCharacters(static_cast<int>(App().DownloadCommandText.size()));
    port_.ReceiveFromUnit(kAck);
    port_.SendCharacters(static_cast<int>(kPartOfUpload / 2));
    Take(Main(), QStringLiteral("remote_downloading"));
    Click(App().frmMain.cmdDisConnect);
  }

  void TakeScan() {
    Click(App().frmMain.cmdConnect);
    Click(App().frmSettSR.BaudrateCMD);
    for (int step = 0; step < 4; ++step) program_.Act(core::TickEvent{&App().frmSettSR.BaudRateScan});
    TakeForm(App().frmScanBProgress.form, QStringLiteral("scan_progress"));
    Take(Main(), QStringLiteral("remote_scanning"));
    Click(App().frmScanBProgress.Command1);
  }

  void TakeHelp() {
    program_.Act(core::ClickEvent{&App().frmMain.menuAbout});
    TakeForm(App().frmAbout.form, QStringLiteral("about"));
    Click(App().frmAbout.Command1);
    auto& help = program_.OnScreen().Help();
    help.OpenPageInFront();
    Take(*help.Window(), QStringLiteral("help"));
    help.Window()->close();
  }

  // The focus, on each kind of control.
  void TakeFocus() {
    const auto& form = App().frmMain;
    struct Row {
      int tab;
      const controls::ControlState* control;
      const char* name;
    };
    const Row rows[] = {{kCommunicationTab, &form.ComboCOMM[3], "focus_list"},
                        {kTimeTab, &form.Title_Text, "focus_text"},
                        {kRemoteTab, &form.cmdConnect, "focus_button"},
                        {kRemoteTab, &form.CheckTD, "focus_check"},
                        {kExceptionTab, &form.OpDVR.elements[0], "focus_option"},
                        {kRegisterTab, &form.ComboReg, "focus_registers"}};
    for (const auto& row : rows) {
      Main().Tabs().setCurrentIndex(row.tab);
      program_.RefreshNow();
      if (auto* widget = program_.OnScreen().Controls().WidgetOf(*row.control))
        widget->setFocus(Qt::TabFocusReason);
      Take(Main(), QString::fromLatin1(row.name));
    }
    Main().Tabs().setFocus(Qt::TabFocusReason);
    Take(Main(), QStringLiteral("focus_tabs"));
  }

  void Click(controls::Button& button) { program_.Act(core::ClickEvent{&button}); }

  ui::Program& program_;
  SimulatedPort& port_;
  QDir folder_;
  core::Result saved_;
};

// Each series gets a program of its own, so that the state of the link in one does not show in the next.
core::Result SaveSeries(const QString& program_folder, const QString& store, const QString& folder,
                        void (Photographer::*take)(QSize), QSize size) {
  ui::Program program(program_folder, store);
  auto& platform = program.Model().platform;
  platform.ask_file = [](const core::FileDialog&) { return std::optional<core::FileAnswer>(); };
  platform.clock = [] { return kPictureTime; };
  SimulatedPort port(program);
  QString why;
  platform.show_message = [&why](const core::MessageBox& box) { why = host::FromWindows1252(box.text); };
  if (program.Start() == core::Outcome::kEnded) return host::FailureOf(program_folder, why);
  platform.show_message = [](const core::MessageBox&) {};
  Photographer photographer(program, port, QDir(folder));
  (photographer.*take)(size);
  return photographer.Saved();
}

}  // namespace

core::Result SavePictures(const QString& program_folder, const QString& store, const QString& folder,
                          QSize size) {
  NoTimers no_timers;
  QCoreApplication::instance()->installEventFilter(&no_timers);
  for (const auto& [theme, name] :
       {std::pair(ui::Theme::kLight, "light"), std::pair(ui::Theme::kDark, "dark")}) {
    const auto below = QDir(folder).filePath(QString::fromLatin1(name));
    std::error_code error;
    std::filesystem::create_directories(below.toStdU16String(), error);
    if (error) return core::Failure(QFile::encodeName(below).toStdString(), error);
    ui::ApplyTheme(theme);
    for (const auto series : {&Photographer::TakeAll, &Photographer::TakeAdviceLines}) {
      auto saved = SaveSeries(program_folder, store, below, series, size);
      if (!saved.Ok()) return saved;
    }
  }
  return {};
}

}  // namespace ovl::pictures
