#include <iostream>
#include <string>
#include <vector>

#include "core/failure.h"
#include "files/files.h"
#include "firmware/firmware_table.h"
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
  ovl::files::OutliveSizeLimit();
  const std::vector<std::string> words(argv + 1, argv + argc);
  if (words.empty() || words.front() == "--help") {
    (words.empty() ? std::cerr : std::cout) << kHelp;
    return words.empty() ? 2 : 0;
  }
  if (words.front().empty() || words.front().front() == '-') {
    std::cerr << "ovl-images: no folder may be called \"" << words.front() << "\"\n";
    return 2;
  }
  const std::vector<std::string> names(words.begin() + 1, words.end());
  for (const auto& name : names) {
    if (IsFirmware(name)) continue;
    std::cerr << "ovl-images: no firmware is called " << name << "\n";
    return 2;
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
