// An event that a user could not cause changes nothing.
#include "core/gate.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/harness.h"

namespace ovl::testing {
namespace {

TEST(Gate, RefusesEventsThatAUserCannotCause) {
  Harness program({"V1400", "R12"});
  ASSERT_EQ(program.Start(), core::Outcome::kDone);
  auto& app = program.app;
  auto& window = app.frmSetEXCPSTR;
  program.Click("cmdSetExcpstr");
  Dispatch(app, core::CloseEvent{&window.form});
  ASSERT_FALSE(window.form.loaded);
  window.Text1.text = "NEVER STORED";
  const auto image = app.image;
  const auto text = window.Text1.text;
  auto& main = app.frmMain;
  // For a closed window, a disabled or hidden control, no entry, a stopped timer, a closed port.
  const core::Event refused[] = {core::KeyEvent{&window.form, core::Key::kEnter},
                                 core::TypeEvent{&window.Text1, "X"},
                                 core::ClickEvent{&window.cmdSET},
                                 core::LeaveEvent{&window.Text1},
                                 core::PointEvent{&window.Text1},
                                 core::CloseEvent{&window.form},
                                 core::PickEvent{&main.ComboKLM4011[0], 3},
                                 core::PickEvent{&main.ComboXML, 0},
                                 core::PickEvent{&main.ComboTD[1], 99},
                                 core::PickEvent{&main.ComboTD[1], -1},
                                 core::TickEvent{&main.General_timer},
                                 core::ReceivedEvent{},
                                 core::DrainedEvent{}};
  for (const auto& event : refused) {
    SCOPED_TRACE(&event - refused);
    EXPECT_EQ(Dispatch(app, event), core::Outcome::kRefused);
    EXPECT_TRUE(app.image == image && window.Text1.text == text && main.form.enabled);
  }
  auto meanwhile = core::Outcome::kDone;
  app.platform.show_message = [&](const core::MessageBox&) { meanwhile = program.Click("menuAbout"); };
  program.Click("menuSave");
  EXPECT_EQ(meanwhile, core::Outcome::kBusy);
  EXPECT_FALSE(app.frmAbout.form.loaded);

  program.Click("cmdSetExcpstr");
  ASSERT_TRUE(window.form.loaded);
  EXPECT_FALSE(main.form.enabled);
  program.Pick("ComboTD(1)", main.ComboTD[1].position == 0 ? 1 : 0);
  EXPECT_EQ(Dispatch(app, core::CloseEvent{&main.form}), core::Outcome::kRefused);
  EXPECT_TRUE(app.image == image) << "an open window disables the main form";
  Dispatch(app, core::TypeEvent{&window.Text1, std::string(window.Text1.max_length + 1, 'X')});
  EXPECT_LT(window.Text1.text.size(), window.Text1.max_length + 1);
  Dispatch(app, core::TypeEvent{&window.Text1, "TILL"});
  Dispatch(app, core::KeyEvent{&window.form, core::Key::kEnter});
  EXPECT_FALSE(window.form.loaded);
  EXPECT_EQ(main.TextException.text.substr(0, 4), "TILL");
}

// Without this the gate would stay closed and answer every later event with kBusy.
TEST(Gate, OpensAgainAfterAHandlerThrewSomethingUnexpected) {
  Harness program({"V1400", "R12"});
  ASSERT_EQ(program.Start(), core::Outcome::kDone);
  auto& app = program.app;
  app.frmMain.menuAbout.handler = [](core::Application&, int) { throw std::out_of_range("no fifth entry"); };
  EXPECT_EQ(program.Click("menuAbout"), core::Outcome::kDone);
  EXPECT_NE(app.StatusNote.find("no fifth entry"), std::string::npos) << app.StatusNote;
  app.frmMain.menuAbout.handler = [](core::Application&, int) { throw 5; };
  EXPECT_THROW(program.Click("menuAbout"), int);
  EXPECT_EQ(program.Pick("ComboTD(1)", app.frmMain.ComboTD[1].position == 0 ? 1 : 0), core::Outcome::kDone);
}

}  // namespace
}  // namespace ovl::testing
