// Writes what the fuzzers begin with: fuzz_seeds FOLDER makes a folder of inputs for each target, and the
// words of the script's language as a dictionary.
#include <filesystem>
#include <iostream>

#include "catalogue/firmware.h"
#include "core/failure.h"
#include "image/field_map.h"
#include "image/files.h"
#include "statements.h"
#include "support/harness.h"

namespace {

namespace fs = std::filesystem;

using namespace std::string_literals;

class Seeds {
 public:
  Seeds(const fs::path& folder, const char* target) : folder_(folder / target) {
    fs::create_directories(folder_);
  }
  void Add(std::string_view bytes) { ovl::WriteWhole((folder_ / std::to_string(count_++)).string(), bytes); }

 private:
  fs::path folder_;
  int count_ = 0;
};

std::vector<ovl::FirmwareId> AllFirmware() {
  std::vector<ovl::FirmwareId> all;
  for (const auto& entry : ovl::FirmwareTable()) {
    if (entry.in_menu) all.push_back({std::string(entry.version), std::string(entry.release)});
  }
  return all;
}

std::string Byte(std::size_t value) {
  return std::string(1, static_cast<char>(value));
}

void SeedStream(const fs::path& folder) {
  Seeds seeds(folder, "stream");
  const auto all = AllFirmware();
  for (std::size_t index = 0; index < all.size(); ++index) {
    seeds.Add(Byte(index) + "\x02");
    seeds.Add(Byte(index) + "\x03\x00\x06\x02" + "G" + "\x10\x10\x45\x23");
    auto stream = ovl::testing::RawPatternStream(all[index]);
    std::erase_if(stream, [](char c) { return c == '\r' || c == '\n'; });
    seeds.Add(Byte(index) + "\x00"s + stream.substr(0, 150) + "#" + stream.substr(stream.rfind('$')));
  }
}

void SeedLink(const fs::path& folder) {
  Seeds seeds(folder, "link");
  const auto held = "\xEF\xF0"s;
  for (std::size_t firmware = 0; firmware < 4; ++firmware) {
    for (const auto& rest :
         {"\xFA\xF8\xE9\xF7"s, "\xFA\xF8$2000\xF2\xF2\xF2\xF2\xF2\xF2\xFA"s, "\xFB\xF8\x06\xF8\x06\xF7"s,
          "\xFB\xF8\x06\xED\xF9\xED\xF5"s, "\xFC\xF8\x06"s, "\xFC\xF8\x15"s, "\xEC\xFD\xF8LINE\r\n\x06"s,
          "\xFF\xF8\x06"s, "\xF1\xF1\xF1\xF1\xF1\x0C\xF1\xF1"s, "\xF5\xEB\xF4\xEB\xF4"s, "?"s,
          "\xF5\xF6\xF3\xF3\x06\xF3\xF7"s, "\xF5\xF6\xF3\xEE"s, "\xEA\xFC\xED\x06"s}) {
      seeds.Add(Byte(firmware) + held + rest);
    }
  }
}

void SeedHistory(const fs::path& folder) {
  Seeds seeds(folder, "history");
  for (const char* text : {"OVLH\r\n", "OVLH", "OVLH\rLINE\rLINE\r\n", "OVLH\r\n00001 NO SALE\r\n\r\n",
                           "ovlh\r\n", "OVLH \r\n", "OVLH\nLINE", "\r\nOVLH\r\n", ""}) {
    seeds.Add(text);
  }
}

void SeedSettings(const fs::path& folder) {
  Seeds seeds(folder, "settings");
  for (const auto& firmware : AllFirmware()) seeds.Add("\x01" + firmware.version + "\0"s + firmware.release);
  seeds.Add("\xFEV1400\0R12"s);
  seeds.Add("\xFEV1410\0R1"s);
  seeds.Add("\xFEV1300\0R14"s);
  seeds.Add("\xFF[General]\nVersion=V1400\nRelease=\"R12\"\n"s);
  seeds.Add("\xFFVersion=@Variant(\\0\\0\\0\\x2\\0\\0\\x5x)\n"s);
  seeds.Add("\xFF[General]\nVersion=a, \"b\\x41\"\n[Other]\nVersion=1\n"s);
}

void SeedScript(const fs::path& folder) {
  Seeds seeds(folder, "script");
  std::string dictionary;
  const auto word = [&](std::string_view text) { dictionary.append("\"").append(text).append("\"\n"); };
  for (const auto& statement : ovl::script::Statements()) {
    word(statement.word);
    seeds.Add("start\n" + std::string(statement.forms) + "\n");
  }
  ovl::Application app;
  for (const auto& named : app.registry.All()) word(named.name);
  for (const auto& row : ovl::FieldTable()) word(row.name);
  ovl::WriteWhole((folder / "script.dict").string(), dictionary);
  seeds.Add("start\npick ComboReg 0\nshow ComboReg\nlist ComboReg\nexpect no box\n");
  seeds.Add(
      "start\nclick cmdConnect\nclick cmdSET\nclick CmdUpDow(4)\nsent\nunit hex 06\ntick General_timer\n"
      "click CmdUpDow(0)\ndrain\nunit \"$2000\\x06#\"\nwait 900\n");
  seeds.Add("start\nset REGTYPE 01\nfield EXCPSTRS(2)\nvar SYSCFG\nstream a\ndiff a a\ninspect a\ndump b\n");
  seeds.Add("clock \"2026-02-28 23:59:59\"\nstart\nwait 999\nexpect var ClockDay 01\nexpect ended\n");
  seeds.Add("echo \"\\\"\\\\\\r\\n\\t\\xFF\" # end\n");
}

void SeedUnit(const fs::path& folder) {
  Seeds seeds(folder, "unit");
  for (std::size_t firmware = 0; firmware < AllFirmware().size(); ++firmware) {
    seeds.Add(Byte(firmware) + "\x00\xFF\xFF\xFD/LD\r\xFE\xFF\x0F"s);
  }
  for (const char fault : "\x00\x01\x02\x03\x04\x05\x06\x07\x08\x09\xFF"s) {
    const auto begin = "\x01\x01"s + fault + "\xFF\xFD";
    for (const auto& rest : {"/LU\r\xFF\x0D"s, "/LD\r$7800\xFF\x0F\xFF\x0F"s, "\x05\x18"s,
                             "/TD03-05-26 14:07:09\r\n\r"s, "/LH\r\n\r"s, "/MR\r\n\r"s, "/XX\r\n\r"s}) {
      seeds.Add(begin + rest);
    }
  }
  seeds.Add("\xFE\x01$7800" + std::string(64, '0') + "\r\n$7820" + std::string(64, 'F') + "#\r\n");
  for (const auto& words : {"--firmware\0V1310R1\0--memory\0unit.bin\0--link\0ports"s,
                            "--fault=drop:5\0--fault\0once\0--log\0-\0--seed\0007\0--pace\0off\0--help"s,
                            "--speed\000115200\0--history\0lines:12\0--clock-file\0clock\0--verbose"s}) {
    seeds.Add("\xFF" + words);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Usage: fuzz_seeds FOLDER\n";
    return 2;
  }
  const fs::path folder(argv[1]);
  try {
    for (auto* seed : {SeedStream, SeedLink, SeedHistory, SeedSettings, SeedScript, SeedUnit}) seed(folder);
  } catch (const ovl::Failure& failure) {
    std::cerr << failure.Subject() << ": " << failure.what() << '\n';
    return 1;
  }
  return 0;
}
