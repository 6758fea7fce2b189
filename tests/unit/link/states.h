// A program in each state of the link, and single steps from there.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/box_texts.h"
#include "support/control_characters.h"
#include "support/harness.h"
#include "support/state_table.h"

namespace ovl::testing {

inline const firmware::FirmwareId kV1400 = {"V1400", "R12"};
inline const firmware::FirmwareId kV1300 = {"V1300", "R14"};

inline constexpr const char* kRemoteButton = "CmdUpDow(4)";
inline constexpr int kEnqAt = 5;    // ticks of the keep-alive
inline constexpr int kSilence = 6;  // ticks of the watchdog

inline void ExpectState(const core::Application& app, State state) {
  EXPECT_EQ(DifferenceFrom(state, app), "")
      << "from " << NameOf(state) << ", mode " << app.LinkMode << ", timers " << RunningTimers(app);
}

// A program in the state. What was sent on the way there is dropped, and no message box is left. The states
// that follow the end of a transfer cannot be reached this way.
class InState : public Harness {
 public:
  explicit InState(State state, const firmware::FirmwareId& firmware = kV1400,
                   const std::vector<std::string>& further_registers = {})
      : Harness(firmware, further_registers) {
    EXPECT_EQ(Start(), core::Outcome::kDone);
    if (state != State::kClosed) OpenPort();
    if (state > State::kOpen) FromHeld(state);
    TakeSent();
    EXPECT_TRUE(NoBoxLeft());
  }

  // Clicks, and lets the transmitter send everything.
  void Press(const char* button) {
    EXPECT_EQ(Click(button), core::Outcome::kDone) << button;
    DrainAll();
  }
  void OpenPort() {
    Press("cmdConnect");
    EXPECT_EQ(Click("cmdSET"), core::Outcome::kDone);
  }
  void Scan() {
    EXPECT_EQ(Click("cmdConnect"), core::Outcome::kDone);
    EXPECT_EQ(Click("BaudrateCMD"), core::Outcome::kDone);
  }
  // Remote mode on an open port, its first tick over.
  void Hold() {
    Press(kRemoteButton);
    Unit(kAck);
    Tick(app.frmMain.General_timer);
    ExpectState(app, State::kHeld);
    TakeSent();
  }
  // Sends the command, acknowledges it, and returns the stream.
  std::string Download() {
    Press("CmdUpDow(1)");
    TakeSent();
    Unit(kAck);
    DrainAll();
    return TakeSent();
  }

 private:
  void FromHeld(State state) {
    Hold();
    if (state == State::kUploading) Press("CmdUpDow(0)");
    if (state == State::kDownloadCommand || state == State::kDownloadStream) Press("CmdUpDow(1)");
    if (state == State::kDownloadStream) Unit(kAck);
  }
};

}  // namespace ovl::testing
