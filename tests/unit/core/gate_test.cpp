// What a person could not have done changes nothing.
#include "core/gate.h"

#include <gtest/gtest.h>

#include "support/harness.h"

namespace ovl::testing {
namespace {

TEST(Gate, LetsInOnlyWhatAPersonCanReach) {
  Harness program({"V1400", "R12"});
  ASSERT_EQ(program.Start(), Outcome::kDone);
  auto& app = program.app;
  auto& window = app.frmSetEXCPSTR;
  program.Click("cmdSetExcpstr");
  Dispatch(app, CloseEvent{&window.form});
  ASSERT_FALSE(window.form.loaded);
  window.Text1.text = "NEVER STORED";
  const auto image = app.image;
  const auto text = window.Text1.text;
  auto& main = app.frmMain;
  // In a window that is gone, on controls held back or hidden, for no entry, by a timer or port that is idle.
  const Event refused[] = {KeyEvent{&window.form, Key::kEnter},
                           TypeEvent{&window.Text1, "X"},
                           ClickEvent{&window.cmdSET},
                           LeaveEvent{&window.Text1},
                           PointEvent{&window.Text1},
                           CloseEvent{&window.form},
                           PickEvent{&main.ComboKLM4011[0], 3},
                           PickEvent{&main.ComboXML, 0},
                           PickEvent{&main.ComboTD[1], 99},
                           PickEvent{&main.ComboTD[1], -1},
                           TickEvent{&main.General_timer},
                           ReceivedEvent{},
                           DrainedEvent{}};
  for (const auto& event : refused) {
    SCOPED_TRACE(&event - refused);
    EXPECT_EQ(Dispatch(app, event), Outcome::kRefused);
    EXPECT_TRUE(app.image == image && window.Text1.text == text && main.form.enabled);
  }
  auto meanwhile = Outcome::kDone;
  app.platform.show_message = [&](const MessageBox&) { meanwhile = program.Click("menuAbout"); };
  program.Click("menuSave");
  EXPECT_EQ(meanwhile, Outcome::kBusy);
  EXPECT_FALSE(app.frmAbout.form.loaded);

  program.Click("cmdSetExcpstr");
  ASSERT_TRUE(window.form.loaded);
  EXPECT_FALSE(main.form.enabled);
  program.Pick("ComboTD(1)", main.ComboTD[1].position == 0 ? 1 : 0);
  EXPECT_EQ(Dispatch(app, CloseEvent{&main.form}), Outcome::kRefused);
  EXPECT_TRUE(app.image == image) << "a window holds the main form back";
  Dispatch(app, TypeEvent{&window.Text1, std::string(window.Text1.max_length + 1, 'X')});
  EXPECT_LT(window.Text1.text.size(), window.Text1.max_length + 1);
  Dispatch(app, TypeEvent{&window.Text1, "TILL"});
  Dispatch(app, KeyEvent{&window.form, Key::kEnter});
  EXPECT_FALSE(window.form.loaded);
  EXPECT_EQ(main.TextException.text.substr(0, 4), "TILL");
}

}  // namespace
}  // namespace ovl::testing
