#include <algorithm>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "command_line/command_line.h"
#include "core/failure.h"
#include "firmware/firmware_table.h"
#include "host/system/disk.h"
#include "images/default_images.h"

namespace {

using command_line::Wish;

const command_line::Program kProgram = {
    "ovl-images",
    "[OPTION] FOLDER [FIRMWARE]...",
    "Writes the default image of every register: FOLDER/FAMILY/RELEASE/REGISTER.bin\n"
    "for each FIRMWARE, such as V1400R12, or for all firmware. Replaces files that\n"
    "exist.\n",
    {},
    "\n"
    "Exit status:\n"
    "  0  done\n"
    "  1  a file could not be written\n"
    "  2  wrong usage\n"
    "\n"
    "Examples:\n"
    "  The images of two firmware below the folder \"site\":\n"
    "\n"
    "  $ ovl-images site V1400R12 V1300R14\n"};

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

// What is wrong with the folder and the firmware; empty if nothing is.
std::string WhyNot(const std::vector<std::string>& words) {
  if (words.empty()) return "FOLDER is missing";
  if (words.front().empty() || words.front().front() == '-')
    return "no folder may be called \"" + words.front() + "\"";
  const auto unknown = std::find_if_not(words.begin() + 1, words.end(), IsFirmware);
  return unknown == words.end() ? "" : *unknown + ": there is no such firmware";
}

int WriteImages(const std::string& folder, const std::vector<std::string>& names) {
  int files = 0;
  for (const auto& entry : ovl::firmware::FirmwareTable()) {
    const ovl::firmware::FirmwareId firmware{std::string(entry.version), std::string(entry.release)};
    if (entry.in_menu && Wanted(firmware, names)) files += ovl::images::WriteDefaultImages(folder, firmware);
  }
  return files;
}

}  // namespace

int main(int argc, char** argv) {
  ovl::host::OutliveSizeLimit();
  const auto read = command_line::Read(kProgram, std::vector<std::string_view>(argv + 1, argv + argc));
  if (read.wish != Wish::kRun) return command_line::Answer(kProgram, read.wish, read.error);
  const auto& words = read.arguments;
  if (const auto error = WhyNot(words); !error.empty())
    return command_line::Answer(kProgram, Wish::kWrong, error);
  try {
    const int files = WriteImages(words.front(), {words.begin() + 1, words.end()});
    std::cout << files << " default images below " << words.front() << "\n";
  } catch (const ovl::core::Failure& failure) {
    std::cerr << "ovl-images: " << failure.Text() << "\n";
    return 1;
  }
  return 0;
}
