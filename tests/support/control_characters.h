// The control characters of the protocol between the program and the unit.
#pragma once

namespace ovl::testing {

inline constexpr const char *kEnq = "\x05", *kAck = "\x06", *kFormFeed = "\x0C", *kNak = "\x15",
                            *kCan = "\x18";

// Asks the unit for remote mode.
inline constexpr const char* kRemoteRequest = "~~~SOH_REQUEST_EOT~~~k";

}  // namespace ovl::testing
