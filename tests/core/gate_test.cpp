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
  const auto refused = [&](const Event& event) {
    Dispatch(app, event);
    return app.image == image && window.Text1.text == text && !window.form.loaded && app.frmMain.form.enabled;
  };
  EXPECT_TRUE(refused(KeyEvent{&window.form, Key::kEnter}));
  EXPECT_TRUE(refused(TypeEvent{&window.Text1, "X"}));
  EXPECT_TRUE(refused(ClickEvent{&window.cmdSET}));
  EXPECT_TRUE(refused(PickEvent{&app.frmMain.ComboKLM4011[0], 3})) << "held back";
  EXPECT_TRUE(refused(PickEvent{&app.frmMain.ComboXML, 0})) << "hidden";
  EXPECT_TRUE(refused(PickEvent{&app.frmMain.ComboTD[1], 99})) << "no such entry";
  EXPECT_TRUE(refused(PickEvent{&app.frmMain.ComboTD[1], -1}));

  program.Click("cmdSetExcpstr");
  ASSERT_TRUE(window.form.loaded);
  EXPECT_FALSE(app.frmMain.form.enabled);
  program.Pick("ComboTD(1)", app.frmMain.ComboTD[1].position == 0 ? 1 : 0);
  EXPECT_TRUE(app.image == image) << "a window holds the main form back";
  Dispatch(app, TypeEvent{&window.Text1, std::string(window.Text1.max_length + 1, 'X')});
  EXPECT_LT(window.Text1.text.size(), window.Text1.max_length + 1);
  Dispatch(app, TypeEvent{&window.Text1, "TILL"});
  Dispatch(app, KeyEvent{&window.form, Key::kEnter});
  EXPECT_FALSE(window.form.loaded);
  EXPECT_EQ(app.frmMain.TextException.text.substr(0, 4), "TILL");
}

}  // namespace
}  // namespace ovl::testing
