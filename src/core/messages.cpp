#include "core/messages.h"

#include <array>

namespace ovl::core {
namespace {

constexpr auto kInformation = BoxIcon::kInformation;

constexpr std::array kBoxes = {
    BoxWords{Box::kRegistryError, "Registry Error.", "Registry Error.", "Please ReInstall Ovalon PC Software",
             kInformation},
    BoxWords{Box::kStartFailed, "The program does not start", "", " ! Please Reinstall OVL PC Software !",
             BoxIcon::kNone, true},
    BoxWords{Box::kFirmwareChosen, "Another firmware was picked", "",
             "%1 WILL TAKE EFFECT WHEN THE APPLICATION NEXT START", kInformation},
    BoxWords{Box::kNoDefaultImage, "A register has no default image", "",
             "                   %1\nPlease ReInstall Ovalon PC Software !!", BoxIcon::kNone, true},
    BoxWords{Box::kOtherFirmware, "The version is not compatible", "",
             "The Ovalon Version is not compatible !!!\n       Try with the same version again."},
    BoxWords{Box::kSystemFile, "System File Error", "",
             "                System File Error. \nPlease ReInstall Ovalon PC Software !!"},
    BoxWords{Box::kSaved, "Save Completed", "", "Save Completed.        ", kInformation},
    BoxWords{Box::kNotSaved, "NoFile Save", "", "NoFile Save. !!!        ", kInformation},
    BoxWords{Box::kNotHistory, "Incompatible File", "", "Incompatible File !!!, try again."},
    BoxWords{Box::kPortFailed, "The port does not open", "", "           %1"},
    BoxWords{Box::kSelectComport, "Please Select Comport", "", "        Please Select Comport."},
    BoxWords{Box::kNoResponse, "No Response From The Device", "", "No Response From The Device"},
    BoxWords{Box::kConnectionFail, "Connection Fail", "- Connection Fail -",
             "                            !!! Remote Connection Fail. !!!\n"
             "Cable Disconnected Or Communication Setting Wrong ,Try Again"},
    BoxWords{Box::kTimeOut, "Connection Time Out", "- Connection Time Out -",
             "!!! Remote Connection Time out. !!!"},
    BoxWords{Box::kWrongParity, "Check Parity and Data Bit Setting", "",
             "Check Parity and Data Bit Setting that Same OVL ,Try again !!!"},
    BoxWords{Box::kSendFailed, "Sending failed", "", "                       %1"},
    BoxWords{Box::kKeepAliveFailed, "The keep-alive failed", "", "%1"},
    BoxWords{Box::kClockSet, "SET TIME DATE FINISHED", "", "SET TIME DATE FINISHED."},
    BoxWords{Box::kClockRefused, "Please Send Time Date agian", "", "Please Send Time Date agian."},
    BoxWords{Box::kResetDone, "Master Reset Done", "", "       Master Reset Done."},
    BoxWords{Box::kResetRefused, "Cannot Master Reset to Device", "", "Cannot Master Reset to Device."},
};

static_assert([] {
  std::size_t place = 0;
  for (const auto& words : kBoxes) {
    if (static_cast<std::size_t>(words.box) != place++) return false;
  }
  return place == static_cast<std::size_t>(Box::kResetRefused) + 1;
}());

}  // namespace

std::span<const BoxWords> BoxTable() {
  return kBoxes;
}

MessageBox BoxOf(Box box, std::string_view detail) {
  const auto& words = kBoxes.at(static_cast<std::size_t>(box));
  MessageBox shown{std::string(words.title), std::string(words.text), words.icon, words.topic,
                   words.shows_note,         std::string(detail)};
  if (const auto place = shown.text.find(kDetail); place != std::string::npos) {
    shown.text.replace(place, kDetail.size(), detail);
  }
  return shown;
}

}  // namespace ovl::core
