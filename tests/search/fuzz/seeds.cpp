// Writes the first inputs of the fuzzers: a folder for each target, and the words of the script language as a
// dictionary.
//   fuzz_seeds FOLDER
#include <filesystem>
#include <sstream>
#include <stdexcept>

#include "firmware/firmware_table.h"
#include "image/field_map.h"
#include "script/statements.h"
#include "start/start_up.h"
#include "support/harness.h"
#include "text_form/encoding.h"
#include "text_form/export.h"

namespace {

namespace fs = std::filesystem;

using namespace std::string_literals;

using Inputs = std::vector<std::string>;

std::vector<ovl::firmware::FirmwareId> AllFirmware() {
  std::vector<ovl::firmware::FirmwareId> all;
  for (const auto& entry : ovl::firmware::FirmwareTable()) {
    if (entry.in_menu) all.push_back({std::string(entry.version), std::string(entry.release)});
  }
  return all;
}

std::string Byte(std::size_t value) {
  return std::string(1, static_cast<char>(value));
}

Inputs OfStream() {
  Inputs seeds;
  const auto all = AllFirmware();
  for (std::size_t index = 0; index < all.size(); ++index) {
    seeds.push_back(Byte(index) + "\x02");
    seeds.push_back(Byte(index) + "\x03\x00\x06\x02" + "G" + "\x10\x10\x45\x23");
    auto stream = ovl::testing::RawPatternStream(all[index]);
    std::erase_if(stream, [](char c) { return c == '\r' || c == '\n'; });
    seeds.push_back(Byte(index) + "\x00"s + stream.substr(0, 150) + "#" + stream.substr(stream.rfind('$')));
  }
  return seeds;
}

// The bytes from 0xDE on are the events of the reference model.
Inputs OfLink() {
  Inputs seeds;
  const auto held = "\xE4\xE6\xDE\x06\xED"s;
  for (std::size_t firmware = 0; firmware < 4; ++firmware) {
    for (const auto& rest :
         {"\xDF\xFE\xFF\xEB"s, "\xDF\xFE$2000\xEF\xEF\xEF\xEF\xEF\xEF\xDF"s, "\xE0\xFE\x06\xFE\x06\xEB"s,
          "\xE0\xFE\x06\xF8\xFB\xF8\xE5"s, "\xE1\xFE\x06"s, "\xE1\xFE\x15"s, "\xFA\xE2\xFELINE\r\n\x06"s,
          "\xE3\xFE\x06"s, "\xEE\xEE\xEE\xEE\xEE\x0C\xEE\xEE"s, "\xE5\xFC\xE4\xE6\xFD\xE4\xE6"s, "?"s,
          "\xE5\xE4\xE7\xF0\xF0\x06\xF0\xEB"s, "\xE5\xE4\xE7\xF0\xE9"s, "\xF9\xE1\xF8\x06"s}) {
      seeds.push_back(Byte(firmware) + held + rest);
    }
  }
  return seeds;
}

Inputs OfSettings() {
  Inputs seeds = {"\xFEV1400\0R12"s,
                  "\xFEV1410\0R1"s,
                  "\xFEV1300\0R14"s,
                  "\xFF[General]\nVersion=V1400\nRelease=\"R12\"\n",
                  "\xFFVersion=@Variant(\\0\\0\\0\\x2\\0\\0\\x5x)\n",
                  "\xFF[General]\nVersion=a, \"b\\x41\"\n[Other]\nVersion=1\n"};
  for (const auto& firmware : AllFirmware())
    seeds.push_back("\x01" + firmware.version + "\0"s + firmware.release);
  return seeds;
}

Inputs OfScript() {
  Inputs seeds = {
      "start\npick ComboReg 0\nshow ComboReg\nlist ComboReg\nexpect no box\n",
      "start\nclick cmdConnect\nclick cmdSET\nclick CmdUpDow(4)\nsent\nunit hex 06\ntick General_timer\n"
      "click CmdUpDow(0)\ndrain\nunit \"$2000\\x06#\"\nwait 900\n",
      "start\nset REGTYPE 01\nfield EXCPSTRS(2)\nvar SYSCFG\nstream a\ndiff a a\ninspect a\ndump b\n",
      "clock \"2026-02-28 23:59:59\"\nstart\nwait 999\nexpect var ClockDay 01\nexpect ended\n",
      "echo \"\\\"\\\\\\r\\n\\t\\xFF\" # end\n"};
  for (const auto& statement : ovl::script::Statements()) {
    seeds.push_back("start\n" + std::string(statement.forms) + "\n");
  }
  return seeds;
}

// The words of the script language.
std::string Dictionary() {
  std::string words;
  const auto add = [&](std::string_view word) { words.append("\"").append(word).append("\"\n"); };
  for (const auto& statement : ovl::script::Statements()) add(statement.word);
  const ovl::core::Application app;
  for (const auto& named : app.registry.All()) add(named.name);
  for (const auto& row : ovl::image::FieldTable()) add(row.name);
  return words;
}

Inputs OfUnit() {
  Inputs seeds;
  for (std::size_t firmware = 0; firmware < AllFirmware().size(); ++firmware) {
    seeds.push_back(Byte(firmware) + "\x00\xFF\xFF\xFD/LD\r\xFE\xFF\x0F"s);
  }
  for (const char fault : "\x00\x01\x02\x03\x04\x05\x06\x07\x08\x09\xFF"s) {
    const auto begin = "\x01\x01"s + fault + "\xFF\xFD";
    for (const auto& rest : {"/LU\r\xFF\x0D"s, "/LD\r$7800\xFF\x0F\xFF\x0F"s, "\x05\x18"s,
                             "/TD03-05-26 14:07:09\r\n\r"s, "/LH\r\n\r"s, "/MR\r\n\r"s, "/XX\r\n\r"s}) {
      seeds.push_back(begin + rest);
    }
  }
  seeds.push_back("\xFE\x01$7800" + std::string(64, '0') + "\r\n$7820" + std::string(64, 'F') + "#\r\n");
  for (const auto& words : {"--firmware\0V1310R1\0--memory\0unit.bin\0--link\0ports"s,
                            "--fault=drop:5\0--fault\0once\0--log\0-\0--seed\0007\0--pace\0off\0--help"s,
                            "--speed\000115200\0--history\0lines:12\0--clock-file\0clock\0--verbose"s}) {
    seeds.push_back("\xFF" + words);
  }
  return seeds;
}

// Each line of a text form by itself, and the forms of values that it does not have.
Inputs OfText() {
  Inputs seeds;
  ovl::core::Application app;
  ovl::start::ServeFirmware(app, ovl::firmware::ServedFirmware("V1400R12"));
  ovl::text_form::Catalogue catalogue(app);
  const auto image = ovl::text_form::FilledImage(catalogue.Firmware(), '0');
  std::istringstream text(ovl::text_form::Export(catalogue, image));
  std::string table;
  for (std::string line; std::getline(text, line);) {
    if (line.starts_with('[')) table = line;
    if (line.find("# ") == std::string::npos || table.empty() || line.starts_with('[')) continue;
    seeds.push_back("\0format = 1\n"s + table + "\n" + line.substr(0, line.find("  #")));
  }
  for (const auto& lines :
       {"complete = true\nfirmware = 'V1300 R14'\n"s, "['Other bytes']\nEXECENTRY = { digits = '7' }\n"s,
        "[COMMUNICATION]\nPARITY = { bytes = '03' }\n"s, "['Other bytes']\n'EXCPSTRS(3)' = '80'\n"s,
        "['REGISTER SELECT']\nRegister = 'ADS'\nDisplay = 'JOURNAL'\n"s})
    seeds.push_back("\0format = 1\n"s + lines);
  seeds.push_back("\4format = 1\nfirmware = 'V1300 R14'\n[COMMUNICATION]\nPARITY = 'ODD'\n"s);
  // Changes to lines of the whole form.
  for (const auto& change :
       {"\0\x0APARITY = 'ODD'"s, "\0\x03complete = false\n\0\x20"s, "\x01\0['Other bytes']"s})
    seeds.push_back("\x08" + change);
  return seeds;
}

}  // namespace

int main(int argc, char** argv) {
  const fs::path folder(argc == 2 ? argv[1] : throw std::invalid_argument("Usage: fuzz_seeds FOLDER"));
  const Inputs of_history = {"OVLH\r\n", "OVLH",      "OVLH\rLINE\rLINE\r\n", "OVLH\r\n00001 NO SALE\r\n\r\n",
                             "ovlh\r\n", "OVLH \r\n", "OVLH\nLINE",           "\r\nOVLH\r\n",
                             ""};
  const std::pair<const char*, Inputs> all[] = {
      {"stream", OfStream()}, {"link", OfLink()}, {"history", of_history}, {"settings", OfSettings()},
      {"script", OfScript()}, {"text", OfText()}, {"unit", OfUnit()}};
  for (const auto& [target, inputs] : all) {
    fs::create_directories(folder / target);
    for (std::size_t at = 0; at < inputs.size(); ++at)
      ovl::testing::WriteFile((folder / target / std::to_string(at)).string(), inputs[at]);
  }
  ovl::testing::WriteFile((folder / "script.dict").string(), Dictionary());
  return 0;
}
