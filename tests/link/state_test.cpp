#include <gtest/gtest.h>

#include "link/states.h"

namespace ovl::testing {
namespace {

TEST(LinkState, EveryStateShowsItsRow) {
  for (const auto state : kStates) {
    const InState program(state);
    const auto& app = program.app;
    ExpectState(app, state);
    SCOPED_TRACE(NameOf(state));

    const bool uploading = state == State::kUploading;
    const bool downloading = state == State::kDownloadCommand || state == State::kDownloadStream;
    EXPECT_EQ(app.frmMain.Label64[0].visible, downloading);
    EXPECT_EQ(app.frmMain.Label64[1].visible, uploading);
    EXPECT_EQ(app.frmMain.vbalProgressBar1.visible, uploading || downloading);
    EXPECT_EQ(app.frmMain.vbalProgressBar1.value, 0);

    const bool scanning = state == State::kScanning;
    EXPECT_EQ(app.frmOK_buttom.form.visible, state == State::kTransferDone);
    EXPECT_EQ(app.frmScanBProgress.form.visible, scanning);
    EXPECT_EQ(app.frmSettSR.form.loaded, scanning);
    EXPECT_FALSE(app.frmSettSR.form.visible);
    EXPECT_EQ(app.frmMain.form.enabled, !scanning && state != State::kTransferDone);
  }
}

TEST(LinkState, TheModeStaysWhereTheLastOperationLeftIt) {
  const std::vector<std::pair<State, int>> modes = {
      {State::kClosed, 255}, {State::kOpen, 255}, {State::kScanning, 0}};
  for (const auto& [state, mode] : modes) EXPECT_EQ(InState(state).app.LinkMode, mode) << NameOf(state);

  const std::vector<std::pair<State, int>> after_disconnect = {
      {State::kAsked, 0}, {State::kHeld, 0}, {State::kUploading, 1}, {State::kDownloadStream, 2}};
  for (const auto& [state, mode] : after_disconnect) {
    InState program(state);
    Disconnect(program);
    EXPECT_EQ(program.app.LinkMode, mode) << NameOf(state);
  }
}

TEST(LinkState, ThePointerOverATransferShowsItsHint) {
  InState program(State::kHeld);
  const auto& pictures = program.app.frmMain.Picture1;
  const std::vector<std::pair<const char*, std::pair<bool, bool>>> moves = {
      {"CmdUpDow(0)", {true, false}},  {"CmdUpDow(1)", {false, true}}, {"CmdUpDow(4)", {false, false}},
      {"CmdUpDow(1)", {false, true}},  {"Frame11", {false, false}},    {"CmdUpDow(0)", {true, false}},
      {"CmdUpDow(2)", {false, false}}, {"CmdUpDow(0)", {true, false}}, {"Frame11", {false, false}}};
  for (const auto& [name, shown] : moves) {
    Dispatch(program.app, PointEvent{program.app.registry.Find(name)->control});
    EXPECT_EQ(std::pair(pictures[1].visible, pictures[2].visible), shown) << name;
  }
}

}  // namespace
}  // namespace ovl::testing
