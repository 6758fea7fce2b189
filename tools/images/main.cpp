#include <getopt.h>

#include <array>
#include <iostream>
#include <string>
#include <vector>

#include "core/failure.h"
#include "firmware/firmware_table.h"
#include "host/system/disk.h"
#include "images/default_images.h"

namespace {

constexpr const char* kHelp =
    "ovl-images FOLDER [FIRMWARE...]\n"
    "\n"
    "Writes the default image of every register below FOLDER: a folder for each family, below it one for\n"
    "each release, in it one .bin file for each name of the firmware's register list. Without FIRMWARE, such "
    "as\n"
    "V1400R12, all of them. Files that are there are replaced.\n"
    "\n"
    "Exit status: 0 done; 1 a file could not be written; 2 wrong usage.\n";

constexpr int kWrongUsage = 2;
constexpr int kHelpAsked = 'h';
constexpr std::array kOptions{option{"help", no_argument, nullptr, kHelpAsked}, option{}};

bool Wanted(const ovl::firmware::FirmwareId& firmware, const std::vector<std::string>& names) {
  if (names.empty()) return true;
  for (const auto& name : names) {
    if (name == firmware.Joined()) return true;
  }
  return false;
}

bool IsFirmware(const std::string& name) {
  for (const auto& entry : ovl::firmware::FirmwareTable()) {
    if (entry.in_menu && name == std::string(entry.version).append(entry.release)) return true;
  }
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  ovl::host::OutliveSizeLimit();
  const int found = ::getopt_long(argc, argv, "", kOptions.data(), nullptr);
  if (found == kHelpAsked) {
    std::cout << kHelp;
    return 0;
  }
  if (found != -1) return kWrongUsage;  // getopt_long has named the wrong word
  const std::vector<std::string> words(argv + optind, argv + argc);
  if (words.empty()) {
    std::cerr << kHelp;
    return kWrongUsage;
  }
  if (words.front().empty() || words.front().front() == '-') {
    std::cerr << "ovl-images: no folder may be called \"" << words.front() << "\"\n";
    return kWrongUsage;
  }
  const std::vector<std::string> names(words.begin() + 1, words.end());
  for (const auto& name : names) {
    if (IsFirmware(name)) continue;
    std::cerr << "ovl-images: no firmware is called " << name << "\n";
    return kWrongUsage;
  }
  int files = 0;
  try {
    for (const auto& entry : ovl::firmware::FirmwareTable()) {
      const ovl::firmware::FirmwareId firmware{std::string(entry.version), std::string(entry.release)};
      if (entry.in_menu && Wanted(firmware, names))
        files += ovl::images::WriteDefaultImages(words.front(), firmware);
    }
  } catch (const ovl::core::Failure& failure) {
    std::cerr << "ovl-images: " << failure.Text() << "\n";
    return 1;
  }
  std::cout << files << " default images below " << words.front() << "\n";
  return 0;
}
