// The windows for texts and values, and open lists, used only with the keyboard.
#include <QMouseEvent>
#include <QTreeWidget>

#include "core/actions.h"
#include "screen.h"

namespace ovl::testing {
namespace {

TEST_F(ScreenTest, EachOfTheThreeTextsCanBeTypedInTheTextWindow) {
  auto& form = App().frmMain;
  const std::tuple<const char*, int, std::string*> rows[] = {
      {"cmdSetTrigger", kAlarmTab, &form.TextTrigger.text},
      {"cmdSetExcpstr", kExceptionTab, &form.TextException.text},
      {"cmdTitle", kTitleTab, &form.Title_Text.text}};
  for (const auto& [button, tab, text] : rows) {
    SCOPED_TRACE(button);
    const auto before = *text;
    FocusOn(button, tab);
    Keys({Qt::Key_Return});
    EXPECT_EQ(NamesOfRound(), "Text1 frmSetEXCPSTR.cmdClr frmSetEXCPSTR.cmdSET ");
    const auto& line = Find<QLineEdit>("Text1");
    EXPECT_EQ(line.selectedText(), line.text()) << "typing replaces the whole text";
    Type("LOST");
    Keys({Qt::Key_Escape});
    EXPECT_EQ(*text, before);
    Keys({Qt::Key_Space, Qt::Key_Tab, Qt::Key_Space, Qt::Key_Backtab});
    Type("Kept");
    Keys({Qt::Key_Return});
    EXPECT_EQ(*text, "Kept");
    EXPECT_EQ(Focus(), button);
    Keys({Qt::Key_Return, Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return});
    EXPECT_EQ(text->find_first_not_of(' '), std::string::npos) << "Enter sets, on Clear too";
    EXPECT_EQ(Focus(), button);
  }
}

void ClickOn(QWidget& widget) {
  const QPointF place(4, 4);
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
  }
}

TEST_F(ScreenTest, AClickOrEnterInAShownValueOpensItsWindow) {
  auto& app = App();
  const std::tuple<const char*, int, const controls::Form*> rows[] = {
      {"TextTrigger", kAlarmTab, &app.frmSetEXCPSTR.form},
      {"TextException", kExceptionTab, &app.frmSetEXCPSTR.form},
      {"TextRANGE(1)", kExceptionTab, &app.frmSetRange.form},
      {"Title_Text", kTitleTab, &app.frmSetEXCPSTR.form}};
  for (const auto& [name, tab, form] : rows) {
    SCOPED_TRACE(name);
    FocusOn(name, tab);
    Show();
    ClickOn(Find(name));
    Show();
    EXPECT_TRUE(form->visible);
    Keys({Qt::Key_Escape});
    EXPECT_FALSE(form->visible);
    if (Find(name).focusPolicy() == Qt::NoFocus) continue;
    EXPECT_EQ(Focus(), name);
    Keys({Qt::Key_Return});
    EXPECT_TRUE(form->visible);
    Keys({Qt::Key_Escape});
  }
  app.frmMain.cmdSetExcpstr.enabled = false;
  ClickOn(Find("TextException"));
  EXPECT_FALSE(app.frmSetEXCPSTR.form.visible) << "its button could not be pressed either";
}

TEST_F(ScreenTest, TypingReplacesFillingBlanksAndTooLongATextIsRefusedWithAReason) {
  auto& app = App();
  const auto padded = [](std::string seen) { return seen.append(40 - seen.size(), ' '); };
  AssignText(app, app.frmMain.TextException, padded("CASH"));
  FocusOn("cmdSetExcpstr", kExceptionTab);
  Keys({Qt::Key_Return});
  EXPECT_EQ(Find<QLineEdit>("Text1").selectedText(), QString::fromStdString(padded("CASH")));
  Keys({Qt::Key_End});
  Type(" \u20ACN");
  Keys({Qt::Key_Home});
  Type("X ");
  EXPECT_EQ(app.frmSetEXCPSTR.Text1.text, padded("X CASH \x80N"));
  EXPECT_EQ(Note(), "");
  Type("\u0416");
  EXPECT_NE(Note().find("Windows-1252"), std::string::npos);
  Keys({Qt::Key_End});
  Type(QString(31, 'y') + "z ");
  EXPECT_NE(Note().find("40"), std::string::npos);
  Keys({Qt::Key_Return});
  EXPECT_EQ(app.frmMain.TextException.text, "X CASH \x80N" + std::string(31, 'y'));
}

TEST(RangeWindow, ItsValuesCanBeTyped) {
  Screen screen({"V1300", "R14"});
  auto& values = screen.App().frmMain.TextRANGE;
  const auto before = values[0].caption;
  screen.FocusOn("cmdSetRange", kExceptionTab);
  screen.Keys({Qt::Key_Return});
  EXPECT_EQ(
      screen.NamesOfRound(),
      "Range_Hi SubRange_Hi Range_Low SubRange_Low ComboDec frmSetRange.cmdClr frmSetRange.cmdSetRange ");
  const auto& hint = screen.Find<QLabel>("RangeHint");
  const auto usual = hint.text();
  EXPECT_TRUE(usual.contains("4 digits") && usual.contains("2 after")) << usual.toStdString();
  screen.Type("7x");
  EXPECT_EQ(hint.text(), "You can type only digits here.");
  screen.Type("890");
  EXPECT_EQ(hint.text(), usual);
  screen.Type("1");
  EXPECT_EQ(hint.text(), "No more than 4 digits fit here.");
  EXPECT_EQ(screen.App().frmSetRange.Range_Hi.text, "7890");
  screen.Keys({Qt::Key_Escape});
  EXPECT_EQ(values[0].caption, before);
  screen.Keys({Qt::Key_Return});
  for (const char* typed : {"123456", "5", "8", "9"}) {
    screen.Type(typed);
    screen.Keys({Qt::Key_Tab});
  }
  const auto& fields = screen.App().frmSetRange;
  EXPECT_EQ(fields.SubRange_Hi.text + " " + fields.Range_Low.text, "05 0008")
      << "filled when the focus leaves";
  screen.Keys({Qt::Key_Up, Qt::Key_Down, Qt::Key_Return});
  EXPECT_EQ(values[0].caption + values[1].caption, "1234,050008,09");
  EXPECT_EQ(screen.Focus(), "cmdSetRange");
  const auto& overview = screen.Find<QTreeWidget>("ExceptionOverview");
  for (const auto& [entry, range] : {std::pair(0, ""), {1, "IN 1234,05 - 8,09"}, {2, "OUT 1234,05 - 8,09"}}) {
    screen.Pick("ComboExcp(5)", entry);
    EXPECT_EQ(overview.topLevelItem(0)->text(2).toStdString(), range);
  }
}

TEST_F(ScreenTest, AnOpenListIsUsedWithArrowsLettersAndEnter) {
  auto& form = App().frmMain;
  const std::tuple<const char*, int, controls::List*, const char*, int> rows[] = {
      {"ComboReg", kRegisterTab, &form.ComboReg, "ib", 38},
      {"AlarmOverview", kAlarmTab, &form.ComboALM[0], "7", 6},
      {"ExceptionOverview", kExceptionTab, &form.ComboExcp[0], "7", 6}};
  for (const auto& [list, tab, shown, typed, picked] : rows) {
    SCOPED_TRACE(list);
    FocusOn(list, tab);
    Keys({Qt::Key_Down, Qt::Key_Down});
    Type(typed);
    EXPECT_EQ(shown->position, 0);
    Keys({Qt::Key_Return, Qt::Key_End, Qt::Key_Escape, Qt::Key_Up});
    EXPECT_EQ(shown->position, picked);
    Keys({Qt::Key_Return, Qt::Key_Tab});
    EXPECT_EQ(shown->position, picked - 1);
    EXPECT_NE(Focus(), list);
  }
}

TEST_F(ScreenTest, TheViewerLeavesTheMainWindowUsableAndEscapeClosesIt) {
  auto& viewer = App().frmView.form;
  ShowForm(App(), viewer);
  Show();
  Main().activateWindow();
  Show();
  EXPECT_EQ(OnScreen().Front(), &Main());
  Window(viewer).activateWindow();
  Show();
  Keys({Qt::Key_Escape});
  EXPECT_FALSE(viewer.visible);
}

}  // namespace
}  // namespace ovl::testing
