// Every tab by the Tab key alone: each control once, each with a name, no text cut off.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <set>

#include "shell/screen.h"

namespace ovl::testing {
namespace {

bool TakesFocus(const QWidget& widget) {
  return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

// What a person takes for one control: the elements of an option array are moved through by the arrows.
std::string ControlOf(const QWidget& widget) {
  const auto name = widget.objectName().toStdString();
  return qobject_cast<const QRadioButton*>(&widget) == nullptr ? name : name.substr(0, name.find('('));
}

std::multiset<std::string> Controls(const QWidget& page) {
  std::multiset<std::string> controls;
  for (const auto* widget : page.findChildren<QWidget*>()) {
    const bool acts = qobject_cast<const QAbstractButton*>(widget) ||
                      qobject_cast<const QComboBox*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
                      qobject_cast<const QAbstractItemView*>(widget);
    const bool inner = widget->objectName().startsWith(QLatin1String("qt_")) ||
                       qobject_cast<const QHeaderView*>(widget) != nullptr ||
                       qobject_cast<const QComboBox*>(widget->parentWidget()) != nullptr;
    if (!acts || inner || !widget->isVisible() || !widget->isEnabled()) continue;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
    const auto control = ControlOf(*widget);
    if (qobject_cast<const QRadioButton*>(widget) == nullptr || controls.count(control) == 0) {
      controls.insert(control);
    }
  }
  return controls;
}

std::multiset<std::string> Visited(QWidget& window, const QWidget& page) {
  std::multiset<std::string> visited;
  std::set<const QWidget*> seen;
  for (auto* widget : page.findChildren<QWidget*>()) {
    if (!TakesFocus(*widget)) continue;
    widget->setFocus();
    break;
  }
  // Around the window once: what is left by the Tab key comes again at the end of the round.
  while (seen.insert(window.focusWidget()).second) {
    auto* at = window.focusWidget();
    if (page.isAncestorOf(at)) visited.insert(ControlOf(*at));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(at, &press);
  }
  return visited;
}

void ExpectRoom(const QWidget& page) {
  for (const auto* widget : page.findChildren<QWidget*>()) {
    const bool text = qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget) ||
                      qobject_cast<const QComboBox*>(widget);
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (!text || !widget->isVisible() || (label != nullptr && label->wordWrap())) continue;
    EXPECT_GE(widget->width(), widget->sizeHint().width())
        << widget->objectName().toStdString() << " " << widget->accessibleName().toStdString();
    EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << widget->objectName().toStdString();
  }
}

TEST(KeyboardWalk, ReachesEveryControlOfATabOnceByItsNameAndFindsNoTextCut) {
  for (const auto& firmware :
       {FirmwareId{"V1400", "R12"}, {"V1400", "R1"}, {"V1300", "R14"}, {"V1324", "R26"}, {"V1334", "R1"}}) {
    Screen screen(firmware);
    screen.Select("TCPIP");
    auto& tabs = screen.Main().Tabs();
    for (int tab = 0; tab < tabs.count(); ++tab) {
      SCOPED_TRACE(firmware.Joined() + " tab " + std::to_string(tab));
      tabs.setCurrentIndex(tab);
      screen.Show();
      const auto& page = *tabs.currentWidget();
      const auto controls = Controls(page);
      EXPECT_FALSE(controls.empty());
      EXPECT_EQ(Visited(screen.Main(), page), controls);
      ExpectRoom(page);
    }
  }
}

TEST(LatePages, StandWhenLookedAtWithTheStatusBarAsTheLastStop) {
  Screen screen({"V1400", "R12"}, Pages::kFirst);
  EXPECT_EQ(screen.Main().findChild<QComboBox*>("ComboTD(2)"), nullptr);
  screen.Main().Tabs().setCurrentIndex(5);
  const auto& list = screen.Find<QComboBox>("ComboTD(2)");
  EXPECT_TRUE(list.isVisible());
  EXPECT_GT(list.count(), 1);
  screen.Pick("ComboTD(2)", list.currentIndex() == 0 ? 1 : 0);
  screen.Find<QComboBox>("ComboLang").setFocus();
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
  QCoreApplication::sendEvent(screen.Main().focusWidget(), &press);
  EXPECT_EQ(screen.Main().focusWidget()->objectName(), "StatusChanges");
}

}  // namespace
}  // namespace ovl::testing
