// How a test gets into the states that the link can be in, and single steps from there.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "support/harness.h"
#include "support/state_table.h"

namespace ovl::testing {

inline constexpr const char* kAck = "\x06";
inline constexpr const char* kNak = "\x15";
inline constexpr const char* kCan = "\x18";
inline constexpr const char* kEnq = "\x05";
inline constexpr const char* kFormFeed = "\x0C";
inline constexpr const char* kRequest = "~~~SOH_REQUEST_EOT~~~k";
inline constexpr int kSilence = 6;   // ticks of the watchdog
inline constexpr int kTimeOut = 30;  // ticks of the keep-alive

inline constexpr const char* kFailTitle = "- Connection Fail -";
inline constexpr const char* kFailText =
    "                            !!! Remote Connection Fail. !!!\n"
    "Cable Disconnected Or Communication Setting Wrong ,Try Again";
inline constexpr const char* kParityText = "Check Parity and Data Bit Setting that Same OVL ,Try again !!!";
inline constexpr const char* kTimeOutTitle = "- Connection Time Out -";
inline constexpr const char* kTimeOutText = "!!! Remote Connection Time out. !!!";
inline constexpr const char* kLost = "Input/output error";

// A program that was started and stands in the state, with nothing sent and no box left to ask for. A scan
// runs over a line that was held before, so that it can find the unit.
struct InState : Harness {
  explicit InState(State state, const FirmwareId& firmware = {"V1400", "R12"},
                   const std::vector<std::string>& further_registers = {});
};

void OpenPort(Harness& program);
// Remote mode on an open port, its first tick over.
void Hold(Harness& program);
void Disconnect(Harness& program);
void PressOk(Harness& program);

// The command and all that the unit answers.
void RunUpload(Harness& program, std::string_view answer);
// The command, its acknowledgement, and the whole stream, which is the result.
std::string RunDownload(Harness& program);

void ExpectState(const Application& app, State state);
// The oldest box, which bears no icon.
void ExpectBox(Harness& program, std::string_view title, std::string_view text);

// Single steps for tables.
using Act = std::function<void(Harness&)>;
Act Press(const char* button);  // and the transmitter runs empty
Act Arrives(const std::string& text);
Act Ticks(Timer MainForm::*timer, int count);

}  // namespace ovl::testing
