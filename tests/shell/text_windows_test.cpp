// The windows for texts, values and options, driven from the keyboard alone.
#include <QKeyEvent>

#include "screen.h"
#include "shell/status_strip.h"

namespace ovl::testing {
namespace {

using enum FieldId;

// Keys go to the window in front.
class Keyboard : public Screen {
 public:
  using Screen::Screen;

  void Keys(std::initializer_list<int> keys) {
    for (const int key : keys) Press(key, key == Qt::Key_Space ? QStringLiteral(" ") : QString());
  }
  void Type(const QString& text) {
    for (const QChar letter : text) Press(letter.toUpper().unicode(), letter);
  }
  std::string Focus() { return FocusWidget().objectName().toStdString(); }
  // Where the Tab key leads, up to the place where it began.
  std::string Round() {
    const auto first = Focus();
    auto round = first;
    for (Keys({Qt::Key_Tab}); Focus() != first && round.size() < 400; Keys({Qt::Key_Tab}))
      round += " " + Focus();
    return round;
  }
  void Stand(const std::string& name, int tab) {
    Main().Tabs().setCurrentIndex(tab);
    Find<QWidget>(name).setFocus();
  }
  bool Noted(const char* word) { return Find<CutLabel>("StatusNote").Text().contains(QLatin1String(word)); }

 private:
  QWidget& FocusWidget() {
    auto* window = OnScreen().Front();
    return window->focusWidget() == nullptr ? *window : *window->focusWidget();
  }
  void Press(int key, const QString& text) {
    OnScreen().Front()->activateWindow();
    Show();
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, Qt::NoModifier, text);
      QCoreApplication::sendEvent(&FocusWidget(), &event);
    }
    Show();
  }
};

TEST(TextWindow, TakesEachOfItsThreeTextsFromTheKeyboard) {
  Keyboard screen({"V1400", "R12"});
  auto& form = screen.App().frmMain;
  const std::tuple<const char*, int, TextBox*> rows[] = {{"cmdSetTrigger", 2, &form.TextTrigger},
                                                         {"cmdSetExcpstr", 4, &form.TextException},
                                                         {"cmdTitle", 5, &form.Title_Text}};
  for (const auto& [button, tab, target] : rows) {
    SCOPED_TRACE(button);
    const auto before = target->text;
    screen.Stand(button, tab);
    screen.Keys({Qt::Key_Return});
    EXPECT_EQ(screen.Round(), "Text1 frmSetEXCPSTR.cmdClr frmSetEXCPSTR.cmdSET");
    screen.Type("LOST");
    screen.Keys({Qt::Key_Escape});
    EXPECT_EQ(target->text, before);
    screen.Keys({Qt::Key_Space, Qt::Key_Tab, Qt::Key_Space, Qt::Key_Backtab});
    screen.Type("Kept");
    screen.Keys({Qt::Key_Return});
    EXPECT_EQ(target->text, "Kept");
    EXPECT_EQ(screen.Focus(), button);
    screen.Keys({Qt::Key_Return, Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return});
    EXPECT_EQ(target->text.find_first_not_of(' '), std::string::npos) << "Enter sets, on Clear too";
    EXPECT_EQ(screen.Focus(), button);
  }
}

TEST(TextWindow, BlanksThatFillATextUpGiveWayAndTheRestIsRefusedWithItsReason) {
  Keyboard screen({"V1400", "R12"});
  auto& text = screen.App().frmSetEXCPSTR.Text1.text;
  const auto padded = [](std::string seen) { return seen.append(40 - seen.size(), ' '); };
  AssignText(screen.App(), screen.App().frmMain.TextException, padded("CASH"));
  screen.Stand("cmdSetExcpstr", 4);
  screen.Keys({Qt::Key_Return, Qt::Key_End});
  screen.Type(" IN");
  screen.Keys({Qt::Key_Home});
  screen.Type("X ");
  EXPECT_EQ(text, padded("X CASH IN"));
  screen.Type(QString(QChar(0x0416)));
  EXPECT_TRUE(screen.Noted("Windows-1252"));
  screen.Keys({Qt::Key_End});
  screen.Type(QString(31, 'y') + "z ");
  EXPECT_TRUE(screen.Noted("40"));
  screen.Keys({Qt::Key_Return});
  EXPECT_EQ(screen.App().frmMain.TextException.text, "X CASH IN" + std::string(31, 'y'));
}

TEST(RangeWindow, TakesItsValuesFromTheKeyboard) {
  Keyboard screen({"V1300", "R14"});
  auto& values = screen.App().frmMain.TextRANGE;
  const auto before = values[0].caption;
  screen.Stand("cmdSetRange", 4);
  screen.Keys({Qt::Key_Return});
  EXPECT_EQ(
      screen.Round(),
      "Range_Hi SubRange_Hi Range_Low SubRange_Low ComboDec frmSetRange.cmdClr frmSetRange.cmdSetRange");
  screen.Type("7");
  screen.Keys({Qt::Key_Escape});
  EXPECT_EQ(values[0].caption, before);
  screen.Keys({Qt::Key_Return});
  for (const char* typed : {"123456", "5", "8", "9"}) {
    screen.Type(typed);
    screen.Keys({Qt::Key_Tab});
  }
  screen.Keys({Qt::Key_Up, Qt::Key_Down, Qt::Key_Return});
  EXPECT_EQ(values[0].caption + values[1].caption, "1234,050008,09");
  EXPECT_EQ(screen.Focus(), "cmdSetRange");
}

TEST(RegisterWindows, OpenFromTheirOptionsAndAreWorkedInFromTheKeyboard) {
  Keyboard screen({"V1400", "R12"});
  auto& app = screen.App();
  screen.Select("MICROS");
  screen.Stand("OpMicros(1)", 0);
  screen.Keys({Qt::Key_Down});
  EXPECT_EQ(screen.Focus(), "ComboISN(0)");
  const auto stored = app.image;
  screen.Keys({Qt::Key_Home, Qt::Key_Down, Qt::Key_Escape});
  EXPECT_EQ(screen.Focus(), "OpMicros(2)");
  EXPECT_TRUE(app.image == stored);
  screen.Stand("cmdMicros", 0);
  screen.Keys({Qt::Key_Return, Qt::Key_Home, Qt::Key_Down, Qt::Key_Return});
  EXPECT_FALSE(app.frmMicros.form.visible);
  EXPECT_FALSE(app.image == stored);

  screen.Select("CASIO");
  screen.Stand("CASIOOP(17)", 0);
  screen.Keys({Qt::Key_Down});
  const auto chosen = app.FrmSubMenu.F1OP.chosen;
  screen.Keys({Qt::Key_Down, Qt::Key_Escape});
  EXPECT_NE(app.FrmSubMenu.F1OP.chosen, chosen);
  EXPECT_FALSE(app.FrmSubMenu.form.visible);
  screen.Stand("Command1", 0);
  screen.Keys({Qt::Key_Return});
  EXPECT_TRUE(app.FrmSubMenu.form.visible);
}

TEST(OverviewLists, MoveByArrowsAndNumbersAndPickByEnter) {
  Keyboard screen({"V1400", "R12"});
  auto& form = screen.App().frmMain;
  const std::tuple<const char*, int, List*> rows[] = {{"AlarmOverview", 2, &form.ComboALM[0]},
                                                      {"ExceptionOverview", 4, &form.ComboExcp[0]}};
  for (const auto& [list, tab, shown] : rows) {
    SCOPED_TRACE(list);
    screen.Stand(list, tab);
    screen.Keys({Qt::Key_Down, Qt::Key_Down});
    EXPECT_EQ(shown->position, 0);
    screen.Type("7");
    screen.Keys({Qt::Key_Return, Qt::Key_End, Qt::Key_Escape, Qt::Key_Up});
    EXPECT_EQ(shown->position, 6);
    screen.Keys({Qt::Key_Return, Qt::Key_Tab});
    EXPECT_EQ(shown->position, 5);
    EXPECT_NE(screen.Focus(), list);
  }
}

TEST(Viewer, StandsBesideTheMainWindowAndEscapeClosesIt) {
  Keyboard screen({"V1400", "R12"});
  auto& viewer = screen.App().frmView.form;
  ShowForm(screen.App(), viewer);
  screen.Show();
  screen.Main().activateWindow();
  screen.Show();
  EXPECT_EQ(screen.OnScreen().Front(), &screen.Main());
  screen.Window(viewer).activateWindow();
  screen.Show();
  screen.Keys({Qt::Key_Escape});
  EXPECT_FALSE(viewer.visible);
}

}  // namespace
}  // namespace ovl::testing
