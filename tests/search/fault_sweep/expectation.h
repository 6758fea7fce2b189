// What a transfer that meets one fault must come to, told from the conversation alone.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "firmware/firmware_id.h"

namespace ovl::testing {

// What the boxes say, and the system's reason for a device that is gone.
inline constexpr const char* kFailBox =
    "                            !!! Remote Connection Fail. !!!\n"
    "Cable Disconnected Or Communication Setting Wrong ,Try Again";
inline constexpr const char* kParityBox = "Check Parity and Data Bit Setting that Same OVL ,Try again !!!";
inline constexpr const char* kForeignBox =
    "The Ovalon Version is not compatible !!!\n       Try with the same version again.";
inline constexpr const char* kBrokenBox =
    "                System File Error. \nPlease ReInstall Ovalon PC Software !!";
inline constexpr const char* kScanBox = "No Response From The Device";
inline constexpr const char* kNoDevice = "No such device";
inline constexpr const char* kSendBox = "                       No such device";

// From a character on the unit says nothing, the transmitter never runs empty again, or the device is gone;
// the character itself is dropped, doubled, or one bit of it turned; behind it a "?" comes in, a NAK, an ACK,
// or "Disconnect" is pressed, or that and a baud scan.
enum class Fault { kSilence, kStall, kLost, kDropped, kDoubled, kGarbled, kBad, kNak, kAck, kHangUp, kScan };
inline constexpr std::array kFaultNames = {"silence",    "stalled",    "port lost",    "dropped",
                                           "doubled",    "garbled",    "\"?\" put in", "NAK put in",
                                           "ACK put in", "Disconnect", "Baudrate Scan"};

// The closing window; the same with a stream that does not fit; a stream without its end ends the program;
// the watchdog closes the port, or a "?" does; Disconnect; a download stream without a time-out.
enum class Ending { kDone, kForeign, kBrokenFile, kTimeOut, kParity, kHungUp, kStandsStill };
inline constexpr std::array kEndingNames = {"completed",           "incompatible", "program ended",
                                            "silence told",        "parity told",  "disconnected",
                                            "waits for Disconnect"};

struct Expectation {
  Ending ending = Ending::kDone;
  std::string stored{};        // what upload.bin then holds without its line end; empty: as it was
  std::string left{};          // an upload's text that stands ahead of the next
  bool send_failure = false;   // told before the ending
  bool parity_behind = false;  // a "?" behind the closing window
};

struct Conversation {
  firmware::FirmwareId firmware;
  bool upload = false;
  std::string stream;

  // The command, for a download the acknowledgement, the stream, and a download's final acknowledgement.
  std::size_t Length() const { return stream.size() + (upload ? 4 : 6); }
};

// What a fault puts in behind the character.
constexpr std::string_view PutIn(Fault fault) {
  return fault == Fault::kBad ? "?" : fault == Fault::kNak ? "\x15" : fault == Fault::kAck ? "\x06" : "";
}

// The bit that a garbled character loses or gains.
constexpr unsigned GarbleAt(std::size_t at) {
  return 1U << (at % 7);
}

// How a stream is taken: completely, not at all, or as a broken file.
Ending Judge(const firmware::FirmwareId& firmware, std::string_view text);

Expectation Expect(const Conversation& talk, std::size_t at, Fault fault);

}  // namespace ovl::testing
