// What a transfer that meets one fault must come to, told from the conversation alone.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "core/firmware_id.h"

namespace ovl::testing {

enum class Fault {
  kSilence,     // the unit says nothing from there on
  kStall,       // the transmitter never runs empty again
  kLost,        // the device is gone
  kDropped,     // the character itself
  kDoubled,     //
  kGarbled,     // one bit of it
  kParity,      // a "?" behind it
  kNak,         // and so on
  kAck,         //
  kDisconnect,  // pressed behind it
  kScan,        // Disconnect, and a baud scan
};
inline constexpr std::array kFaultNames = {"silence",    "stalled",    "port lost",    "dropped",
                                           "doubled",    "garbled",    "\"?\" put in", "NAK put in",
                                           "ACK put in", "Disconnect", "Baudrate Scan"};

enum class Ending {
  kDone,          // the closing window
  kForeign,       // the closing window, with a stream that does not fit
  kBrokenFile,    // a stream without its end ends the program
  kSilence,       // the watchdog closes the port
  kParity,        // a "?" closes it
  kDisconnected,  //
  kStandsStill,   // a download stream without a time-out
};
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
  FirmwareId firmware;
  bool upload = false;
  std::string stream;

  // The command, for a download the acknowledgement, the stream, and a download's final acknowledgement.
  std::size_t Length() const { return stream.size() + (upload ? 4 : 6); }
};

// The bit that a garbled character loses or gains.
constexpr unsigned GarbleAt(std::size_t at) {
  return 1U << (at % 7);
}

// How a stream is taken: completely, not at all, or as a broken file.
Ending Judge(const FirmwareId& firmware, std::string_view text);

Expectation Expect(const Conversation& talk, std::size_t at, Fault fault);

}  // namespace ovl::testing
