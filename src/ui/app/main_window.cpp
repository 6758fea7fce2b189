#include "ui/app/main_window.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>

#include "host/text_codec.h"
#include "ui/app/launch.h"
#include "ui/app/status_strip.h"
#include "ui/dialogs/changes_window.h"
#include "ui/kit/box_layouts.h"
#include "ui/kit/theme.h"
#include "ui/pages/pages.h"

namespace ovl::ui {
namespace {

constexpr Em kStartWidth(86.67), kStartHeight(58.33);
constexpr Em kLeastWidth(40), kLeastHeight(24);  // smaller pages scroll
constexpr Em kFrameHeight(3);                    // of the title that a window manager adds

// What the screen has for a window without its frame.
QSize RoomOn(const QScreen& screen) {
  return screen.availableSize() - QSize(0, kFrameHeight);
}

struct ThemeItem {
  Theme theme;
  const char* text;
  const char* name;
};
constexpr std::array kThemes = {ThemeItem{Theme::kLight, "Light", "menuLight"},
                                ThemeItem{Theme::kDark, "Dark", "menuDark"},
                                ThemeItem{Theme::kDesktop, "As the system", "menuAsSystem"}};

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 32, 48, 128}) icon.addFile(QStringLiteral(":/icons/%1.png").arg(size));
  return icon;
}

// Sets the focus to the first usable widget from here on: the widget that had the focus may be hidden now.
void FocusFirstUsable(QWidget& start) {
  auto* widget = &start;
  do {
    if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0)
      return widget->setFocus(Qt::OtherFocusReason);
    widget = widget->nextInFocusChain();
  } while (widget != &start);
}

}  // namespace

MainWindow::MainWindow(Bindings& bindings)
    : bindings_(bindings),
      tabs_(new QTabWidget),
      status_(new StatusStrip(bindings)),
      changes_(new ChangesWindow(bindings.Model(), this)) {
  const auto& form = bindings_.Model().frmMain.form;
  bindings_.OnRefresh([this] {
    focus_before_ = focusWidget();
    return false;
  });
  setObjectName(host::FromWindows1252(form.name));
  setWindowTitle(host::FromWindows1252(form.caption));
  setMinimumSize(QSize(kLeastWidth, kLeastHeight).boundedTo(RoomOn(*screen())));
  resize(StartSize().boundedTo(RoomOn(*screen())));
  BuildTabs();
  BuildMenus();
  statusBar()->setSizeGripEnabled(false);
  statusBar()->addWidget(status_, 1);
  changes_button_ = BuildChangesButton(bindings, *changes_);
  changes_button_->setFixedHeight(StatusStrip::LineHeight(*changes_button_));
  status_->AddButton(changes_button_);
}

QSize MainWindow::StartSize() {
  return {kStartWidth, kStartHeight};
}

void MainWindow::BuildTabs() {
  tabs_->setDocumentMode(true);
  tabs_->setObjectName(QStringLiteral("SSTab1"));
  tabs_->tabBar()->setExpanding(false);
  tabs_->tabBar()->setElideMode(Qt::ElideNone);
  const auto& model = bindings_.Model().frmMain.SSTab1;
  int tab = 0;
  for (const auto& caption : model.captions) {
    tabs_->addTab(new QWidget, host::FromWindows1252(caption));
    const auto keys = QStringLiteral("Alt+%1").arg(tab + 1);
    tabs_->setTabToolTip(tab, keys);
    auto* shortcut = new QShortcut(QKeySequence(keys), this);
    connect(shortcut, &QShortcut::activated, this, [this, tab] { tabs_->setCurrentIndex(tab); });
    ++tab;
  }
  setCentralWidget(tabs_);
  BuildPage(model.current);
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int current) {
    if (BuildPage(current) && page_built) page_built();
    status_->ShowTab(current);
    RenewMnemonics();
  });
  BindTabs();
}

bool MainWindow::BuildPage(int tab) {
  auto* holder = tabs_->widget(tab);
  if (holder->layout() != nullptr) return false;
  auto* down = LayOutDown(*holder);
  auto* page = kPages.at(static_cast<std::size_t>(tab))(bindings_);
  down->addWidget(page);
  page->show();
  // New widgets are added at the end of the focus chain. The button of the status bar must stay the last one.
  if (changes_button_ == nullptr) return true;
  auto* last = previousInFocusChain();
  while (last != changes_button_ && (last->focusPolicy() & Qt::TabFocus) == 0)
    last = last->previousInFocusChain();
  setTabOrder(last, changes_button_);
  return true;
}

bool MainWindow::BuildNextPage() {
  for (int tab = 0; tab < tabs_->count(); ++tab) {
    if (BuildPage(tab)) return true;
  }
  return false;
}

void MainWindow::BindTabs() {
  const auto& model = bindings_.Model().frmMain.SSTab1;
  bindings_.OnRefresh([this, &model, captions = ChangeDetector<std::vector<std::string>>()]() mutable {
    if (!captions.Update(model.captions)) return false;
    for (int at = 0; at < tabs_->count(); ++at) {
      const auto caption = host::FromWindows1252(model.captions.at(static_cast<std::size_t>(at)));
      tabs_->setTabText(at, caption);
      tabs_->widget(at)->setAccessibleName(caption.trimmed());
    }
    return true;
  });
  bindings_.OnRefresh([this, &model, current = ChangeDetector<int>()]() mutable {
    if (current.Update(model.current)) tabs_->setCurrentIndex(model.current);
    return false;
  });
}

void MainWindow::BuildMenus() {
  auto& form = bindings_.Model().frmMain;
  auto* file = bindings_.SubMenu(*menuBar(), form.FileMenu);
  const auto keys = [](QAction* action, const QKeySequence& sequence) { action->setShortcut(sequence); };
  keys(bindings_.Item(*file, form.OpenMenu), QKeySequence::Open);
  keys(bindings_.Item(*file, form.menuSave), QKeySequence::Save);
  bindings_.Item(*file, form.OpenHistory_menu);
  file->addSeparator();
  auto* changes = file->addAction(QStringLiteral("Changes"), changes_, &ChangesWindow::Open);
  keys(changes, QKeySequence(Qt::CTRL | Qt::Key_D));
  file->addSeparator();
  keys(bindings_.Item(*file, form.menuExit), QKeySequence(Qt::CTRL | Qt::Key_Q));
  BuildViewMenu();
  BuildVersionMenu();
  help_menu_ = bindings_.SubMenu(*menuBar(), form.HelpMenu);
}

void MainWindow::BuildViewMenu() {
  auto* view = menuBar()->addMenu(QStringLiteral("View"));
  view->setObjectName(QStringLiteral("ViewMenu"));
  auto* themes = new QActionGroup(view);
  for (const auto& item : kThemes) {
    auto* action = view->addAction(QString::fromLatin1(item.text));
    action->setObjectName(QString::fromLatin1(item.name));
    action->setCheckable(true);
    themes->addAction(action);
    connect(action, &QAction::triggered, this, [this, theme = item.theme] { ChooseTheme(theme); });
    connect(view, &QMenu::aboutToShow, action, [this, action, theme = item.theme] {
      action->setChecked(ChosenTheme(ProgramFolder()) == theme);
    });
  }
}

QString MainWindow::ProgramFolder() const {
  return QFile::decodeName(bindings_.Model().platform.program_folder.c_str());
}

// Switches at once and keeps the choice for the next start.
void MainWindow::ChooseTheme(Theme theme) {
  ApplyTheme(theme);
  const auto kept = KeepTheme(ProgramFolder(), theme);
  if (!kept.Ok())
    status_->ShowHint(QStringLiteral("The choice is not kept. ") + host::FromSystem(kept.Problem().Text()));
}

void MainWindow::BuildVersionMenu() {
  auto& form = bindings_.Model().frmMain;
  auto* version = bindings_.SubMenu(*menuBar(), form.VersionMenu);
  for (auto& family : form.version_families) {
    auto* menu = bindings_.SubMenu(*version, family.parent);
    for (const auto item : family.items) bindings_.Item(*menu, form.version_items.at(item));
    // The family of the current firmware is checked too, so that the user finds it without opening every
    // family.
    bindings_.OnRefresh([menu, &form, &family, marked = ChangeDetector<bool>()]() mutable {
      const bool runs = std::any_of(family.items.begin(), family.items.end(), [&form](std::size_t item) {
        return form.version_items.at(item).checked;
      });
      if (!marked.Update(runs)) return false;
      menu->menuAction()->setCheckable(runs);
      menu->menuAction()->setChecked(runs);
      return false;
    });
  }
}

bool MainWindow::ShowAsModelSays() {
  const auto& form = bindings_.Model().frmMain.form;
  EnableAsModelSays();
  const bool on_screen = form.loaded && form.visible;
  if (on_screen == isVisible()) return false;
  setVisible(on_screen);
  if (auto* first = bindings_.WidgetOf(bindings_.Model().frmMain.ComboReg)) first->setFocus();
  return true;
}

void MainWindow::EnableAsModelSays() {
  const auto& form = bindings_.Model().frmMain.form;
  if (!enabled_.Update(form.enabled)) return;
  if (!form.enabled) last_focus_ = focus_before_;
  // The window itself stays enabled: otherwise its child windows would be disabled too.
  menuBar()->setEnabled(form.enabled);
  tabs_->setEnabled(form.enabled);
  changes_button_->setEnabled(form.enabled);
  if (form.enabled && last_focus_ != nullptr) FocusFirstUsable(*last_focus_);
}

void MainWindow::RenewMnemonics() {
  menu_letters_ = AssignMenuMnemonics(*menuBar());
  if (auto* page = tabs_->currentWidget()) AssignPageMnemonics(*page, menu_letters_);
}

void MainWindow::paintEvent(QPaintEvent* event) {
  QMainWindow::paintEvent(event);
  if (!first_painted) return;
  std::exchange(first_painted, nullptr)();
  // The window is on the screen before its icon is read.
  QTimer::singleShot(0, this, [] { QApplication::setWindowIcon(ProgramIcon()); });
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  bindings_.Act(core::CloseEvent{&bindings_.Model().frmMain.form});
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  const bool activated = event->type() == QEvent::ActivationChange && isActiveWindow();
  if (activated && !bindings_.Model().frmMain.form.enabled && activated_while_blocked)
    activated_while_blocked();
}

}  // namespace ovl::ui
