#include "acts.h"

#include <QDialog>
#include <QDropEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QRegularExpression>
#include <QScreen>
#include <QTimer>
#include <QUrl>
#include <QWheelEvent>

namespace ovl::testing {
namespace {

std::string NameOf(const QWidget& widget) {
  if (!widget.objectName().isEmpty()) return widget.objectName().toStdString();
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  const bool has_words = button != nullptr && !button->text().isEmpty();
  return has_words ? button->text().toStdString() : std::string(widget.metaObject()->className());
}

// Qt has the windows in a hash table, so their order differs from start to start.
std::vector<QWidget*> VisibleWindows() {
  std::vector<QWidget*> windows;
  for (auto* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() != Qt::ToolTip) windows.push_back(window);
  }
  std::ranges::sort(windows, {},
                    [](const QWidget* window) { return std::pair(NameOf(*window), window->windowTitle()); });
  return windows;
}

// Those with a frame. Nobody can pull at a popup.
QWidget* AnyFramedWindow(Random& random) {
  auto windows = VisibleWindows();
  std::erase_if(windows, [](const QWidget* window) { return window->windowType() == Qt::Popup; });
  return windows.empty() ? nullptr : random.Any(windows);
}

// A popup takes all input while it is open.
QWidget* AnyWindow(Random& random) {
  if (auto* popup = QApplication::activePopupWidget()) return popup;
  auto windows = VisibleWindows();
  return windows.empty() ? nullptr : random.Any(windows);
}

QWidget* AnyWidget(Random& random) {
  auto* window = AnyWindow(random);
  if (window == nullptr) return nullptr;
  std::vector<QWidget*> widgets{window};
  for (auto* widget : window->findChildren<QWidget*>()) {
    if (widget->isVisible() && widget->isEnabled() && !widget->visibleRegion().isEmpty())
      widgets.push_back(widget);
  }
  return random.Any(widgets);
}

QPoint AnyPoint(Random& random, const QWidget* widget) {
  if (widget == nullptr) return {};
  return {random.Below(std::max(widget->width(), 1)), random.Below(std::max(widget->height(), 1))};
}

// Only a press of the system itself activates the window and gives the focus. If the window were not active,
// Qt would all the same give the focus to its widget. Returns false if the widget cannot be pressed any more.
bool GiveFocus(const QPointer<QWidget>& widget) {
  if (QApplication::activePopupWidget() == nullptr) {
    widget->window()->activateWindow();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
  if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) return false;
  if (widget->focusPolicy() & Qt::ClickFocus) widget->setFocus(Qt::MouseFocusReason);
  return true;
}

// Does nothing if an earlier event has deleted the widget.
void SendMouse(const QPointer<QWidget>& widget, QEvent::Type type, QPoint at, Qt::MouseButton button,
               Qt::MouseButtons held) {
  if (widget == nullptr) return;
  QMouseEvent event(type, at, widget->mapToGlobal(at), button, held, Qt::NoModifier);
  QApplication::sendEvent(widget, &event);
}

std::string ClickSomewhere(Site&, Random& random) {
  const QPointer<QWidget> widget = AnyWidget(random);
  if (widget == nullptr) return {};
  const auto at = AnyPoint(random, widget);
  const auto words =
      "click " + NameOf(*widget) + " at " + std::to_string(at.x()) + "," + std::to_string(at.y());
  const auto press = random.OneOf(8) ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress;
  if (!GiveFocus(widget)) return words;
  SendMouse(widget, press, at, Qt::LeftButton, Qt::LeftButton);
  SendMouse(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
  return words;
}

std::string Drag(Site&, Random& random) {
  const QPointer<QWidget> widget = AnyWidget(random);
  if (widget == nullptr) return {};
  const auto words = "drag in " + NameOf(*widget);
  if (!GiveFocus(widget)) return words;
  SendMouse(widget, QEvent::MouseButtonPress, AnyPoint(random, widget), Qt::LeftButton, Qt::LeftButton);
  for (int move = 0; move < 3; ++move)
    SendMouse(widget, QEvent::MouseMove, AnyPoint(random, widget), Qt::NoButton, Qt::LeftButton);
  SendMouse(widget, QEvent::MouseButtonRelease, AnyPoint(random, widget), Qt::LeftButton, Qt::NoButton);
  return words;
}

std::string PressKey(Site&, Random& random) {
  struct Stroke {
    int key;
    Qt::KeyboardModifiers with;
  };
  constexpr std::array kStrokes = {
      Stroke{Qt::Key_Tab, Qt::NoModifier},    Stroke{Qt::Key_Backtab, Qt::ShiftModifier},
      Stroke{Qt::Key_Space, Qt::NoModifier},  Stroke{Qt::Key_Return, Qt::NoModifier},
      Stroke{Qt::Key_Escape, Qt::NoModifier}, Stroke{Qt::Key_Down, Qt::NoModifier},
      Stroke{Qt::Key_Up, Qt::NoModifier},     Stroke{Qt::Key_Left, Qt::NoModifier},
      Stroke{Qt::Key_Right, Qt::NoModifier},  Stroke{Qt::Key_Home, Qt::NoModifier},
      Stroke{Qt::Key_End, Qt::NoModifier},    Stroke{Qt::Key_PageDown, Qt::NoModifier},
      Stroke{Qt::Key_Delete, Qt::NoModifier}, Stroke{Qt::Key_Backspace, Qt::NoModifier},
      Stroke{Qt::Key_Z, Qt::ControlModifier}, Stroke{Qt::Key_A, Qt::ControlModifier},
      Stroke{Qt::Key_V, Qt::ControlModifier}, Stroke{Qt::Key_X, Qt::ControlModifier},
      Stroke{Qt::Key_Down, Qt::AltModifier},  Stroke{Qt::Key_F1, Qt::NoModifier},
      Stroke{Qt::Key_1, Qt::NoModifier},      Stroke{Qt::Key_E, Qt::NoModifier}};
  QWidget* target = QApplication::activePopupWidget();
  if (target == nullptr) target = QApplication::focusWidget();
  if (target == nullptr) return {};
  const QPointer<QWidget> widget = target;
  const auto& stroke = random.Any(kStrokes);
  const auto words =
      "key " + QKeySequence(stroke.key | static_cast<int>(stroke.with.toInt())).toString().toStdString() +
      " in " + NameOf(*widget);
  const auto text =
      stroke.with == Qt::NoModifier && stroke.key < 0x80 ? QString(QChar(stroke.key).toLower()) : QString();
  for (const auto way : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(way, stroke.key, stroke.with, text);
    if (widget != nullptr) QApplication::sendEvent(widget, &event);
  }
  return words;
}

std::string Wheel(Site&, Random& random) {
  auto* widget = AnyWidget(random);
  if (widget == nullptr) return {};
  const auto at = AnyPoint(random, widget);
  QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, random.OneOf(2) ? 120 : -120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  const auto words = "wheel over " + NameOf(*widget);
  QApplication::sendEvent(widget, &event);
  return words;
}

// A popup takes the mouse, so nobody can pull at a window below it.
std::string Resize(Site&, Random& random) {
  if (QApplication::activePopupWidget() != nullptr) return {};
  auto* window = AnyFramedWindow(random);
  if (window == nullptr) return {};
  const auto room = window->screen()->availableGeometry().bottomRight() - window->frameGeometry().topLeft();
  window->resize(random.From(200, std::max(room.x(), 200)), random.From(150, std::max(room.y(), 150)));
  return "resize " + NameOf(*window);
}

std::string MoveFocus(Site&, Random& random) {
  auto* window = AnyFramedWindow(random);
  if (window == nullptr) return {};
  window->activateWindow();
  return "activate " + NameOf(*window);
}

std::string ChooseTab(Site& site, Random& random) {
  auto& tabs = site.screen.Main().Tabs();
  if (!tabs.isEnabled() || !site.screen.Main().isEnabled()) return {};
  tabs.setCurrentIndex(random.Below(tabs.count()));
  return "tab " + std::to_string(tabs.currentIndex());
}

void Collect(const QList<QAction*>& from, std::vector<QAction*>& actions) {
  for (auto* action : from) {
    if (!action->isVisible() || !action->isEnabled() || action->isSeparator()) continue;
    if (action->menu() != nullptr) {
      emit action->menu()->aboutToShow();
      Collect(action->menu()->actions(), actions);
    } else {
      actions.push_back(action);
    }
  }
}

// What opens other programs is left out.
bool StaysInside(const QAction* action) {
  return !action->text().contains(QLatin1String("anual")) && !action->text().contains(QLatin1String("Print"));
}

// More than half of the items. What happens late in a run would never be tried.
bool EndsProgram(const QAction& action) {
  static const QRegularExpression name(QStringLiteral("^(Exit|R[0-9]+)$"));
  return action.text().remove(QLatin1Char('&')).contains(name);
}

std::string ChooseMenuItem(Site& site, Random& random) {
  if (!site.screen.Main().isEnabled()) return {};
  std::vector<QAction*> actions;
  Collect(site.screen.Main().menuBar()->actions(), actions);
  std::erase_if(actions, [](const QAction* action) { return !StaysInside(action); });
  if (actions.empty()) return {};
  auto* action = random.Any(actions);
  if (EndsProgram(*action) && !random.OneOf(10)) return {};
  const auto words = "menu " + action->text().toStdString();
  action->trigger();
  return words;
}

std::string CloseWindow(Site& site, Random& random) {
  auto* window = AnyFramedWindow(random);
  if (window == nullptr) return {};
  if (window == &site.screen.Main() && !random.OneOf(10)) return {};
  const auto words = "close " + NameOf(*window);
  window->close();
  return words;
}

std::string DropFile(Site& site, Random& random) {
  constexpr std::array kFiles = {"V1400/R12/GENERIC.bin", "kept", "nothing here", "ORB/OVL Software.conf"};
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QString::fromStdString(site.screen.folder.File(random.Any(kFiles))))});
  QDropEvent event(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  if (!site.screen.Main().isEnabled()) return {};
  QApplication::sendEvent(&site.screen.Main(), &event);
  return "drop a file";
}

std::string CarryCharacters(Site& site, Random& random) {
  const int count = random.OneOf(3) ? random.From(1000, 9000) : random.From(1, 60);
  site.line.Carry(count);
  return "the line carries " + std::to_string(count);
}

std::string TickTimer(Site& site, Random& random) {
  std::vector<controls::Timer*> timers;
  for (const auto& control : site.screen.App().registry.All()) {
    auto* const* timer = std::get_if<controls::Timer*>(&control.control);
    if (timer != nullptr && (*timer)->enabled) timers.push_back(*timer);
  }
  if (timers.empty()) return {};
  auto* timer = random.Any(timers);
  site.screen.program->Act(core::TickEvent{timer});
  return "tick " + site.screen.App().registry.NameOf(timer);
}

// Not by its widget, so that the widget shows it only if it is refreshed. By clicks alone, settings seldom
// differ from those of the start.
std::string PickInModel(Site& site, Random& random) {
  std::vector<controls::List*> lists;
  for (const auto& control : site.screen.App().registry.All()) {
    auto* const* list = std::get_if<controls::List*>(&control.control);
    if (list != nullptr && (*list)->enabled && !(*list)->items.empty()) lists.push_back(*list);
  }
  auto* list = random.Any(lists);
  const int position = random.Below(static_cast<int>(list->items.size()));
  site.screen.program->Act(core::PickEvent{list, position});
  return "pick " + std::to_string(position) + " in " + site.screen.App().registry.NameOf(list);
}

std::string ChangeLine(Site& site, Random& random) {
  if (random.OneOf(4)) return site.line.Lose(), "the device goes";
  return site.line.Mend(random), "the device comes";
}

std::string ChangeFont(Site&, Random& random) {
  if (!random.OneOf(5)) return {};
  auto font = QApplication::font();
  font.setPointSize(random.From(8, 14));
  QApplication::setFont(font);
  return "font of " + std::to_string(font.pointSize());
}

struct Weighted {
  int weight;
  std::string (*act)(Site&, Random&);
};
constexpr std::array kActs = {
    Weighted{30, ClickSomewhere}, Weighted{30, PressKey},        Weighted{4, Drag},
    Weighted{4, Wheel},           Weighted{3, Resize},           Weighted{3, MoveFocus},
    Weighted{6, ChooseTab},       Weighted{6, ChooseMenuItem},   Weighted{3, CloseWindow},
    Weighted{1, DropFile},        Weighted{12, CarryCharacters}, Weighted{8, TickTimer},
    Weighted{12, PickInModel},    Weighted{1, ChangeLine},       Weighted{1, ChangeFont}};

// Files that the program asks for.
std::optional<core::FileAnswer> AnyFile(const TemporaryFolder& folder, Random& random) {
  constexpr std::array kNames = {"kept", "new.bin", "V1400/R12/GENERIC.bin", "V1400", "no folder/kept"};
  if (random.OneOf(4)) return std::nullopt;
  return core::FileAnswer{folder.File(random.Any(kNames)), 0};
}

class Answers : public QObject {
 public:
  explicit Answers(Random& random) : QObject(qApp) {
    timer_.setInterval(0);
    timer_.callOnTimeout([this, &random] { Answer(random); });
    timer_.start();
    qApp->installEventFilter(this);
  }

  // Nothing else happens by itself, so that a seed always gives the same run.
  bool eventFilter(QObject* receiver, QEvent* event) override {
    return event->type() == QEvent::Timer && receiver != &timer_ &&
           qobject_cast<QTimer*>(receiver) != nullptr;
  }

 private:
  static void Answer(Random& random) {
    auto* window = QApplication::activeModalWidget();
    if (window == nullptr || !window->isVisible()) return;
    std::vector<QAbstractButton*> buttons;
    for (auto* button : window->findChildren<QAbstractButton*>()) {
      if (button->isVisible() && button->isEnabled()) buttons.push_back(button);
    }
    if (buttons.empty() || random.OneOf(3)) {
      window->close();
    } else {
      // Not from here: the timer is silent until this function returns, and the click can open another
      // dialog.
      QMetaObject::invokeMethod(random.Any(buttons), &QAbstractButton::click, Qt::QueuedConnection);
    }
  }

  QTimer timer_;
};

}  // namespace

Site::Site(const firmware::FirmwareId& firmware) : screen(firmware), line(*screen.program, firmware) {
  auto& platform = screen.App().platform;
  platform.clock = [] { return core::ClockTime{2026, 3, 5, 14, 7, 9}; };
  screen.program->start_again = [](const QStringList&) { return false; };
}

std::string DoAtRandom(Site& site, std::uint32_t seed) {
  Random random(seed);
  site.screen.App().platform.ask_file = [&](const core::FileDialog&) {
    return AnyFile(site.screen.folder, random);
  };
  int place = random.Below([] {
    int all = 0;
    for (const auto& act : kActs) all += act.weight;
    return all;
  }());
  for (const auto& act : kActs) {
    if (place < act.weight) return act.act(site, random);
    place -= act.weight;
  }
  return {};
}

void AnswerAtRandom(Random& random) {
  new Answers(random);
}

}  // namespace ovl::testing
