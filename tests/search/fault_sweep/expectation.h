// How a transfer with one fault must end, derived from the conversation alone.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "firmware/firmware_id.h"
#include "support/box_texts.h"
#include "support/control_characters.h"

namespace ovl::testing {

enum class Fault {
  // From this character on:
  kSilence,  // the unit sends nothing
  kStall,    // the transmitter never becomes empty
  kLost,     // the device is gone
  // This character is:
  kDropped,
  kDoubled,
  kGarbled,  // one bit is changed
  // After this character:
  kQuestionMark,  // "?" is received
  kNakReceived,
  kAckReceived,
  kDisconnect,  // "Disconnect" is clicked
  kScan,        // "Disconnect" is clicked and a baud scan follows
};
inline constexpr std::array kFaultNames = {"silence",    "stalled",    "port lost",    "dropped",
                                           "doubled",    "garbled",    "\"?\" put in", "NAK put in",
                                           "ACK put in", "Disconnect", "Baudrate Scan"};

enum class Ending {
  kDone,          // the window at the end of a transfer
  kForeign,       // the same window, but the stream does not fit the firmware
  kBrokenFile,    // a stream without its end ends the program
  kTimeOut,       // the watchdog closes the port
  kParity,        // a "?" closes the port
  kDisconnected,  // by the user
  kWaits,         // a download stream has no time-out
};
inline constexpr std::array kEndingNames = {"completed",           "incompatible",    "program ended",
                                            "silence reported",    "parity reported", "disconnected",
                                            "waits for Disconnect"};

struct Expectation {
  Ending ending = Ending::kDone;
  std::string stored{};       // upload.bin afterwards, without its line end; empty: unchanged
  std::string left{};         // the part of an upload that remains ahead of the next upload
  bool send_failure = false;  // a message box about it comes before the ending
  bool late_parity = false;   // a "?" comes after the window at the end
};

struct Conversation {
  firmware::FirmwareId firmware;
  bool upload = false;
  std::string stream;

  // The characters of the command and the stream; a download has two acknowledgements more.
  std::size_t Length() const { return stream.size() + (upload ? 4 : 6); }
};

// What the fault inserts after the character.
constexpr std::string_view Inserted(Fault fault) {
  return fault == Fault::kQuestionMark  ? "?"
         : fault == Fault::kNakReceived ? kNak
         : fault == Fault::kAckReceived ? kAck
                                        : "";
}

// The bit that changes in a garbled character.
constexpr unsigned GarbleAt(std::size_t at) {
  return 1U << (at % 7);
}

// How the load of a stream ends: kDone, kForeign or kBrokenFile.
Ending EndingOfLoad(const firmware::FirmwareId& firmware, std::string_view text);

Expectation Expect(const Conversation& talk, std::size_t at, Fault fault);

}  // namespace ovl::testing
