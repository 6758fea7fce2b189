#include <getopt.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "host/files.h"
#include "host/system/disk.h"
#include "script/runner.h"

namespace {

using ovl::script::ExitStatus;

constexpr int kHelp = 'h';
constexpr std::array kOptions{option{"help", no_argument, nullptr, kHelp}, option{}};

ExitStatus RefuseUsage() {
  std::cerr << "Usage: ovl-script [FILE]; ovl-script --help lists the statements.\n";
  return ExitStatus::kWrongStatement;
}

ExitStatus Run(const std::vector<std::string>& words) {
  if (words.size() > 1) {
    std::cerr << "ovl-script: one file at most is expected, not \"" << words[1] << "\"\n";
    return RefuseUsage();
  }
  ovl::script::Session session(std::cout, std::cerr);
  if (words.empty() || words[0] == "-") return RunScript(session, std::cin, "stdin", std::cerr);
  const auto path = ovl::host::PathOf(words[0]);
  std::ifstream file(path, std::ios::binary);
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) {
    file.setstate(std::ios::failbit);
    errno = EISDIR;
  }
  if (!file) {
    std::cerr << words[0] << ": " << std::generic_category().message(errno) << '\n';
    return ExitStatus::kWrongStatement;
  }
  return RunScript(session, file, words[0], std::cerr);
}

}  // namespace

int main(int argc, char** argv) {
  ovl::host::OutliveSizeLimit();
  const int found = ::getopt_long(argc, argv, "", kOptions.data(), nullptr);
  if (found == kHelp) {
    std::cout << ovl::script::HelpText();
    return 0;
  }
  if (found != -1) return static_cast<int>(RefuseUsage());  // getopt_long has named the wrong word
  return static_cast<int>(Run({argv + optind, argv + argc}));
}
