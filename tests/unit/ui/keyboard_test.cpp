// The Tab key reaches each control of every tab once. Each control has a name and an access key of its own,
// and its text is not cut off.
#include <QAbstractItemView>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QTreeView>
#include <QTreeWidget>
#include <array>
#include <ostream>
#include <set>
#include <tuple>

#include "longer_texts.h"
#include "screen.h"
#include "ui/acts/checks_window.h"
#include "ui/dialogs/changes_window.h"
#include "ui/language/language.h"

namespace ovl::testing {
namespace {

// An option array is one control, because the arrow keys move through its elements.
std::string ControlOf(const QWidget& widget) {
  const auto name = widget.objectName().toStdString();
  return IsOne<QRadioButton>(&widget) ? name.substr(0, name.find('(')) : name;
}

// Whether the whole widget is on the page or in its scroll area.
bool Reachable(const QWidget* widget, const QWidget* page) {
  const auto* ground = widget;
  const auto area = [&] { return ground->parentWidget()->parentWidget(); };
  while (ground != page && !IsOne<QScrollArea>(area())) ground = ground->parentWidget();
  const QRect place(widget->mapTo(ground, QPoint()), widget->size());
  const bool inside = !place.isEmpty() && ground->rect().contains(place);
  return inside && (ground == page || Reachable(area(), page));
}

std::multiset<std::string> Controls(const QWidget& page, const controls::Registry& registry) {
  std::multiset<std::string> controls;
  for (const auto* widget : VisibleIn<QAbstractButton, QComboBox, QLineEdit, QAbstractItemView>(page)) {
    if (IsOne<QHeaderView>(widget)) continue;
    const auto name = widget->objectName().toStdString();
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << name;
    const bool own = IsOne<QTreeView>(widget) || name == "RegisterFilter" || name.rfind("Copy", 0) == 0;
    EXPECT_TRUE(own || registry.Find(name) != nullptr) << name;
    EXPECT_TRUE(Reachable(widget, &page)) << name;
    const auto control = ControlOf(*widget);
    const bool again = IsOne<QRadioButton>(widget) && controls.contains(control);
    if (widget->isEnabled() && !again) controls.insert(control);
  }
  return controls;
}

void ExpectLettersOfTheirOwn(const QList<QAction*>& menus, const QWidget& page) {
  QStringList texts;
  for (const auto* action : menus) texts.append(action->isVisible() ? action->text() : "");
  for (const auto* widget : VisibleIn<QAbstractButton, QLabel>(page)) {
    const auto* label = qobject_cast<const QLabel*>(widget);
    const bool taken = label == nullptr ? !IsOne<QRadioButton>(widget) : label->buddy() != nullptr;
    if (widget->property(ui::kReachedByMenu).toBool()) continue;
    const auto text = widget->property("text").toString();
    if (ui::IsDangerous(widget)) {
      EXPECT_FALSE(text.contains('&')) << "one key is too easily pressed";
    } else if (taken) {
      texts.append(text);
    }
  }
  QSet<QString> letters;
  for (const auto& text : texts) {
    if (text.isEmpty()) continue;
    const auto letter = QKeySequence::mnemonic(text).toString();
    EXPECT_FALSE(letter.isEmpty() || letters.contains(letter)) << text.toStdString();
    letters.insert(letter);
  }
}

// The same within each menu, as it opens. A release such as "R12" can find all of its letters taken.
void ExpectLettersOfTheirOwn(const QList<QAction*>& items) {
  QSet<QString> letters;
  QString without;
  for (const auto* item : items) {
    if (!item->isVisible() || item->isSeparator()) continue;
    const auto letter = QKeySequence::mnemonic(item->text()).toString();
    EXPECT_FALSE(letters.contains(letter)) << item->text().toStdString();
    if (letter.isEmpty()) without += item->text();
    if (!letter.isEmpty()) letters.insert(letter);
    if (item->menu() == nullptr) continue;
    emit item->menu()->aboutToShow();
    ExpectLettersOfTheirOwn(item->menu()->actions());
  }
  for (const auto letter : without) {
    const bool fits = letter.isLetterOrNumber();
    EXPECT_FALSE(fits && !letters.contains(QString("Alt+") + letter.toUpper())) << without.toStdString();
  }
}

enum class Texts { kEnglish, kGerman, kLonger };

// The size of the font in points, and the language.
struct Look {
  int points;
  Texts texts;

  friend std::ostream& operator<<(std::ostream& out, const Look& look) {
    constexpr std::array kNames = {"", "german", "longer"};
    return out << look.points << kNames.at(static_cast<std::size_t>(look.texts));
  }
};

class Keyboard : public ::testing::TestWithParam<Look> {
 protected:
  Keyboard() {
    auto font = usual_;
    font.setPointSize(GetParam().points);
    QApplication::setFont(font);
    if (GetParam().texts == Texts::kGerman) ui::UseLanguage("de");
    if (GetParam().texts == Texts::kLonger) QCoreApplication::installTranslator(&longer_);
  }
  ~Keyboard() override {
    QApplication::setFont(usual_);
    QCoreApplication::removeTranslator(&longer_);
    ui::UseLanguage("en");
  }

  // A page that does not fit into the window scrolls.
  std::vector<QSize> Sizes() const {
    const bool small_font = GetParam().points == kUsualPoints;
    return small_font ? std::vector{QSize(1040, 700), QSize(683, 384), QSize(960, 565)}
                      : std::vector{QSize(1040, 700), QSize(960, 565)};
  }

  static constexpr int kUsualPoints = 9;
  const QFont usual_ = QApplication::font();
  LongerTexts longer_;
};

INSTANTIATE_TEST_SUITE_P(Looks, Keyboard,
                         ::testing::Values(Look{9, Texts::kEnglish}, Look{12, Texts::kEnglish},
                                           Look{16, Texts::kEnglish}, Look{9, Texts::kGerman},
                                           Look{9, Texts::kLonger}),
                         ::testing::PrintToStringParamName());

TEST_P(Keyboard, EveryControlOfATabIsReachedOnceAndNoTextIsCut) {
  for (const auto& firmware : {firmware::FirmwareId{"V1400", "R12"},
                               {"V1400", "R1"},
                               {"V1300", "R14"},
                               {"V1324", "R26"},
                               {"V1334", "R1"}}) {
    Screen screen(firmware);
    auto& window = screen.Main();
    screen.App().frmMain.CmdUpDow[controls::kMasterReset].visible = true;
    screen.App().frmMain.Timer.enabled = false;  // its first tick could show another list of days
    screen.Select("TCPIP");
    screen.Pick("ComboALM(1)", 9);
    screen.Pick("ComboTD(5)", 1);
    screen.Main().Checks().CheckNow();
    const auto& changes = screen.Find("StatusChanges");
    const auto& checks = screen.Find("StatusChecks");
    EXPECT_TRUE(changes.isVisible() && checks.isVisible());
    if (GetParam().points == kUsualPoints) ExpectLettersOfTheirOwn(window.menuBar()->actions());
    for (int tab = 0; tab < window.Tabs().count(); ++tab) {
      SCOPED_TRACE(firmware.Joined() + " tab " + std::to_string(tab));
      window.Tabs().setCurrentIndex(tab);
      const auto& page = *window.Tabs().currentWidget();
      for (const QSize size : Sizes()) {
        window.resize(size);
        screen.Show();
        EXPECT_EQ(window.size(), size);
        ExpectRoom(page);
        EXPECT_GE(changes.width(), changes.sizeHint().width());
        EXPECT_GE(checks.width(), checks.sizeHint().width());
        Controls(page, screen.App().registry);
      }
      if (GetParam().points != kUsualPoints) continue;  // the font changes neither letters nor order
      ExpectLettersOfTheirOwn(window.menuBar()->actions(), page);
      std::multiset<std::string> visited;
      window.Tabs().setFocus();
      for (const auto* stop : screen.Round()) {
        if (page.isAncestorOf(stop)) visited.insert(ControlOf(*stop));
      }
      EXPECT_EQ(visited, Controls(page, screen.App().registry));
      EXPECT_FALSE(visited.empty());
    }
  }
}

TEST(Tabs, HaveEveryListOfTheirArrays) {
  const std::set<std::string> arrays{"ComboALM", "ComboDIP", "ComboExcp", "ComboTD"};
  for (const auto& firmware : {firmware::FirmwareId{"V1400", "R12"}, {"V1300", "R14"}, {"V1334", "R1"}}) {
    Screen screen(firmware);
    auto& tabs = screen.Main().Tabs();
    std::set<std::string> shown, found;
    for (int tab = 0; tab < tabs.count(); ++tab) {
      tabs.setCurrentIndex(tab);
      screen.Show();
      for (const auto* widget : VisibleIn<QComboBox>(*tabs.currentWidget()))
        shown.insert(widget->objectName().toStdString());
    }
    for (const auto& control : screen.App().registry.All()) {
      const auto array = control.name.substr(0, control.name.find('('));
      if (!arrays.contains(array) || !controls::StateOf(control.control).visible) continue;
      found.insert(array);
      EXPECT_TRUE(shown.contains(control.name)) << firmware.Joined() << " " << control.name;
    }
    EXPECT_EQ(found, arrays);
  }
}

TEST_P(Keyboard, EverySmallWindowHasNamesAccessKeysAndRoomForItsTexts) {
  Screen screen;
  auto& app = screen.App();
  const auto look = [&](const controls::Form& form) {
    SCOPED_TRACE(form.name);
    screen.Show();
    auto& window = screen.Window(form);
    ASSERT_TRUE(window.isVisible());
    ExpectRoom(window);
    ExpectLettersOfTheirOwn({}, window);
    Controls(window, app.registry);
  };
  for (auto* form : {&app.frmSettSR.form, &app.frmScanBProgress.form, &app.frmOK_buttom.form,
                     &app.frmSetEXCPSTR.form, &app.frmSetRange.form, &app.frmView.form, &app.frmAbout.form}) {
    form->loaded = form->visible = true;
    look(*form);
    form->loaded = form->visible = false;
  }
  const std::tuple<const char*, const char*, const controls::Form*> options[] = {
      {"MICROS", "OpMicros(1)", &app.frmMicros.form}, {"MICROS", "OpMicros(2)", &app.frmMicros.form},
      {"MICROS", "OpMicros(3)", &app.frmMicros.form}, {"CASIO", "CASIOOP(18)", &app.FrmSubMenu.form},
      {"SHARP", "SharpOP(12)", &app.FrmSubMenu.form}, {"SHARP", "SharpOP(22)", &app.FrmSubMenu.form}};
  for (const auto& [name, option, form] : options) {
    screen.Select(name);
    screen.Click(option);
    look(*form);
  }
  screen.Main().Tabs().setCurrentIndex(kExceptionTab);
  screen.Click("CopyExceptionTo");
  screen.Main().Changes().Open();
  screen.Main().Checks().Open();
  screen.Show();
  for (const auto* name : {"CopyException", "Changes", "Checks"}) {
    SCOPED_TRACE(name);
    EXPECT_FALSE(screen.Find(name).windowTitle().isEmpty());
    ExpectRoom(screen.Find(name));
    ExpectLettersOfTheirOwn({}, screen.Find(name));
  }
}

TEST(LatePages, AreBuiltWhenTheyAreShownAndTheStatusBarIsTheLastStop) {
  Screen screen({"V1400", "R12"}, Pages::kFirst);
  EXPECT_EQ(screen.Main().findChild<QComboBox*>("ComboTD(2)"), nullptr);
  screen.Main().Tabs().setCurrentIndex(kTitleTab);
  const auto& list = screen.Find<QComboBox>("ComboTD(2)");
  EXPECT_TRUE(list.isVisible());
  EXPECT_GT(list.count(), 1);
  screen.Pick("ComboTD(2)", list.currentIndex() == 0 ? 1 : 0);
  screen.Pick("ComboTD(5)", 1);
  screen.Main().Checks().CheckNow();
  screen.Find("ComboLang").setFocus();
  Screen::Press(*screen.Main().focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(screen.Focus(), "StatusChanges");
  Screen::Press(*screen.Main().focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(screen.Focus(), "StatusChecks");
  EXPECT_LT(screen.Find("StatusChanges").x(), screen.Find("StatusChecks").x());
}

TEST(LatePages, GiveTheFocusToAControlThatIsShown) {
  Screen screen;
  screen.Main().activateWindow();
  screen.Select("CLARITY EPOS");
  screen.Find("ComboCLARITYEPOS").setFocus();
  screen.Main().Tabs().setCurrentIndex(kLineTab);
  screen.Select("GENERIC");
  screen.Main().Tabs().setCurrentIndex(kRegisterTab);
  screen.Show();
  EXPECT_TRUE(screen.Main().focusWidget()->isVisible()) << screen.Focus();
  // The menu bar gives the focus back in this way.
  screen.Find("ComboCLARITYEPOS").setFocus(Qt::MenuBarFocusReason);
  screen.Show();
  EXPECT_TRUE(screen.Main().focusWidget()->isVisible()) << screen.Focus();
  // The lists of the clock are disabled one after the other.
  screen.Click("CheckTD");
  screen.FocusOn("ComboDay(0)", kRemoteTab);
  screen.Click("CheckTD");
  EXPECT_NE(screen.Main().focusWidget(), nullptr);
}

TEST_F(ScreenTest, AKeyScrollsToTheListThatItOpens) {
  Main().resize(400, 300);
  FocusOn("ComboCOMM(0)", kLineTab);
  Show();
  for (auto* bar : Main().Tabs().currentWidget()->findChildren<QScrollBar*>()) bar->setValue(bar->maximum());
  auto& list = Find<QComboBox>("ComboCOMM(0)");
  ASSERT_TRUE(list.visibleRegion().isEmpty());
  Press(list, Qt::Key_Space, " ");
  EXPECT_TRUE(list.view()->isVisible());
  EXPECT_EQ(list.visibleRegion().boundingRect(), list.rect());
  list.hidePopup();
}

TEST_F(ScreenTest, AnOpenListHasTenEntriesAsTallAsItsField) {
  Click("CheckTD");
  Main().Tabs().setCurrentIndex(kRemoteTab);
  auto& list = Find<QComboBox>("ComboMin");
  list.showPopup();
  Show();
  const auto& view = *list.view();
  EXPECT_GE(view.sizeHintForRow(0), list.height());
  EXPECT_EQ(view.viewport()->height() / view.sizeHintForRow(0), 10);
  list.hidePopup();
}

TEST_F(ScreenTest, TheCursorOfAnOverviewReturnsToTheLineOfTheTab) {
  Main().activateWindow();
  auto& overview = Find<QTreeWidget>("ExceptionOverview");
  for (const int chosen : {3, 0}) {
    Main().Tabs().setCurrentIndex(kExceptionTab);
    Pick("ComboExcp(0)", chosen);
    overview.setFocus();
    for (int step = 0; step < 2; ++step) Press(overview, Qt::Key_Down);
    EXPECT_EQ(overview.indexOfTopLevelItem(overview.currentItem()), chosen + 2);
    Press(overview, Qt::Key_Plus, "+");
    EXPECT_FALSE(overview.currentItem()->isExpanded()) << "a screen reader would say so";
    Find("ComboExcp(0)").setFocus();
    EXPECT_EQ(overview.indexOfTopLevelItem(overview.currentItem()), chosen);
  }
}

}  // namespace
}  // namespace ovl::testing
