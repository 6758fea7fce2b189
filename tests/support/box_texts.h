// Texts of message boxes that several tests expect.
#pragma once

namespace ovl::testing {

inline constexpr const char* kFailBox =
    "                            !!! Remote Connection Fail. !!!\n"
    "Cable Disconnected Or Communication Setting Wrong ,Try Again";
inline constexpr const char* kParityBox = "Check Parity and Data Bit Setting that Same OVL ,Try again !!!";
inline constexpr const char* kForeignBox =
    "The Ovalon Version is not compatible !!!\n       Try with the same version again.";
inline constexpr const char* kBrokenBox =
    "                System File Error. \nPlease ReInstall Ovalon PC Software !!";
inline constexpr const char* kScanBox = "No Response From The Device";

// The reason that the system gives for a device that is gone, and the box about it.
inline constexpr const char* kNoDevice = "No such device";
inline constexpr const char* kSendBox = "                       No such device";

}  // namespace ovl::testing
