#include "ui/window/main_window.h"

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
#include <utility>

#include "host/text_codec.h"
#include "ui/acts/checks_window.h"
#include "ui/acts/copy_slot_window.h"
#include "ui/dialogs/changes_window.h"
#include "ui/kit/box_layouts.h"
#include "ui/kit/theme.h"
#include "ui/language/model_texts.h"
#include "ui/pages/pages.h"
#include "ui/window/advice_bar.h"
#include "ui/window/status_strip.h"
#include "ui/window/view_menu.h"
#include "ui/window/window_icon.h"

namespace ovl::ui {
namespace {

constexpr Em kStartWidth(86.67), kStartHeight(58.33);
constexpr Em kLeastWidth(40), kLeastHeight(24);  // smaller pages scroll
constexpr Em kFrameHeight(3);                    // of the title that a window manager adds

// What the screen has for a window without its frame.
QSize RoomOn(const QScreen& screen) {
  return screen.availableSize() - QSize(0, kFrameHeight);
}

bool IsUsable(const QWidget* widget) {
  return widget != nullptr && widget->isVisible() && widget->isEnabled();
}

// Sets the focus to the first usable widget from here on: the widget that had the focus may be hidden now.
void FocusFirstUsable(QWidget& start) {
  auto* widget = &start;
  do {
    if (IsUsable(widget) && (widget->focusPolicy() & Qt::TabFocus) != 0)
      return widget->setFocus(Qt::OtherFocusReason);
    widget = widget->nextInFocusChain();
  } while (widget != &start);
}

}  // namespace

MainWindow::MainWindow(Bindings& bindings, OwnActs own_acts)
    : bindings_(bindings),
      own_acts_(std::move(own_acts)),
      tabs_(new QTabWidget),
      status_(new StatusStrip(bindings)),
      changes_(new ChangesWindow(bindings, this)),
      checks_(new ChecksWindow(bindings, this)) {
  const auto& form = bindings_.Model().frmMain.form;
  bindings_.OnRefresh([this] {
    focus_before_ = focusWidget();
    return false;
  });
  setObjectName(host::FromWindows1252(form.name));
  setMinimumSize(QSize(kLeastWidth, kLeastHeight).boundedTo(RoomOn(*screen())));
  resize(StartSize().boundedTo(RoomOn(*screen())));
  BuildTabs();
  BuildMenus();
  BindTitle();
  statusBar()->setSizeGripEnabled(false);
  statusBar()->addWidget(status_, 1);
  changes_->open_tab = checks_->open_tab = [this](int tab) { tabs_->setCurrentIndex(tab); };
  AddStatusButton(BuildChangesButton(bindings, *changes_));
  AddStatusButton(&checks_->Button());
}

void MainWindow::AddStatusButton(QPushButton* button) {
  button->setFixedHeight(StatusStrip::LineHeight(*button));
  status_->AddButton(button);
  status_buttons_.push_back(button);
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
    tabs_->addTab(new QWidget, FormText(caption));
    const auto keys = QStringLiteral("Alt+%1").arg(tab + 1);
    tabs_->setTabToolTip(tab, keys);
    auto* shortcut = new QShortcut(QKeySequence(keys), this);
    connect(shortcut, &QShortcut::activated, this, [this, tab] { tabs_->setCurrentIndex(tab); });
    ++tab;
  }
  auto* content = new QWidget;
  auto* down = LayOutDown(*content);
  // The advice comes and goes below the pages, so that the tabs and their controls keep their place. It is
  // added first, so that the Tab key reaches it before the tabs.
  down->addWidget(new AdviceBar(bindings_, own_acts_));
  down->insertWidget(0, tabs_, 1);
  setCentralWidget(content);
  BuildPage(model.current);
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int current) {
    // The letters go to what the refreshed page shows.
    if (BuildPage(current) && page_built) page_built();
    status_->ShowTab(current);
    RenewMnemonics();
    if (tab_shown) tab_shown();
  });
  // Pages and menus give the focus back to the widget that had it before, which can be in another window. It
  // may be hidden since. The focus is nowhere if a refresh disables all controls from its widget on.
  connect(
      qApp, &QApplication::focusChanged, this,
      [this] {
        const auto* receiver = QApplication::focusWidget();
        auto* focus = focusWidget();
        if (IsUsable(receiver) || (receiver == nullptr && IsUsable(focus))) return;
        if (focus == nullptr) focus = focus_before_;
        FocusFirstUsable(focus == nullptr ? *tabs_ : *focus);
      },
      Qt::QueuedConnection);
  BindTabs();
}

bool MainWindow::BuildPage(int tab) {
  auto* holder = tabs_->widget(tab);
  if (holder->layout() != nullptr) return false;
  auto* down = LayOutDown(*holder);
  auto* page = kPages.at(static_cast<std::size_t>(tab))(bindings_);
  down->addWidget(page);
  page->show();
  // New widgets are added at the end of the focus chain. The buttons of the status bar must stay the last
  // ones.
  const auto is_button = [this](const QWidget* widget) {
    return std::find(status_buttons_.begin(), status_buttons_.end(), widget) != status_buttons_.end();
  };
  auto* last = previousInFocusChain();
  while (last != this && (is_button(last) || (last->focusPolicy() & Qt::TabFocus) == 0))
    last = last->previousInFocusChain();
  for (auto* button : status_buttons_) {
    setTabOrder(last, button);
    last = button;
  }
  return true;
}

void MainWindow::GoTo(const controls::ControlState& control) {
  auto* widget = bindings_.WidgetOf(control);
  for (int tab = 0; widget == nullptr && tab < tabs_->count(); ++tab) {
    BuildPage(tab);
    widget = bindings_.WidgetOf(control);
  }
  for (int tab = 0; widget != nullptr && tab < tabs_->count(); ++tab) {
    if (tabs_->widget(tab)->isAncestorOf(widget)) tabs_->setCurrentIndex(tab);
  }
  if (widget != nullptr) widget->setFocus(Qt::ShortcutFocusReason);
}

void MainWindow::OpenVersionMenu() {
  menuBar()->setActiveAction(version_menu_->menuAction());
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
      const auto caption = FormText(model.captions.at(static_cast<std::size_t>(at)));
      tabs_->setTabText(at, caption);
      tabs_->tabBar()->setAccessibleTabName(at, caption.trimmed());
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
  auto* changes =
      file->addAction(QCoreApplication::translate("FileMenu", "Changes"), changes_, &ChangesWindow::Open);
  keys(changes, QKeySequence(Qt::CTRL | Qt::Key_D));
  keys(file->addAction(QCoreApplication::translate("FileMenu", "Checks"), checks_, &ChecksWindow::Open),
       QKeySequence(Qt::CTRL | Qt::Key_K));
  file->addSeparator();
  keys(bindings_.Item(*file, form.menuExit), QKeySequence(Qt::CTRL | Qt::Key_Q));
  auto* edit = BuildEditMenu(*menuBar(), bindings_, own_acts_);
  edit->addSeparator();
  AddCopySlotItems(bindings_, *edit, *this);
  BuildViewMenu(*menuBar(), QFile::decodeName(bindings_.Model().platform.program_folder.c_str()),
                [this](const QString& problem) { status_->ShowHint(problem); });
  BuildVersionMenu();
  help_menu_ = bindings_.SubMenu(*menuBar(), form.HelpMenu);
}

// Where the image comes from, with an asterisk when it differs from what was loaded or sent: "shop12.bin* -
// OVL Software".
void MainWindow::BindTitle() {
  bindings_.OnRefresh([this, origin = ChangeDetector<phrases::Words>()]() mutable {
    const auto& app = bindings_.Model();
    if (origin.Update(own_acts_.history->Origin()))
      setWindowTitle(Shown(own_acts_.history->Origin(), host::FromSystem) + QStringLiteral("[*] - ") +
                     host::FromWindows1252(app.frmMain.form.caption));
    setWindowModified(app.image != app.known_image);
    return false;
  });
}

void MainWindow::BuildVersionMenu() {
  auto& form = bindings_.Model().frmMain;
  auto* version = version_menu_ = bindings_.SubMenu(*menuBar(), form.VersionMenu);
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
  for (auto* button : status_buttons_) button->setEnabled(form.enabled);
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
  checks_->Begin();
  // The window is on the screen before its icon is drawn.
  QTimer::singleShot(0, this, [] { QApplication::setWindowIcon(WindowIcon()); });
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
