#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "files/files.h"
#include "script/runner.h"

namespace {

using ovl::script::ExitStatus;

ExitStatus Run(const std::vector<std::string>& words) {
  if (words.size() > 1 || (!words.empty() && words[0].size() > 1 && words[0][0] == '-')) {
    std::cerr << "Usage: ovl-script [FILE]; ovl-script --help lists the statements.\n";
    return ExitStatus::kWrongStatement;
  }
  ovl::script::Session session(std::cout, std::cerr);
  if (words.empty() || words[0] == "-") return RunScript(session, std::cin, "stdin", std::cerr);
  std::ifstream file(words[0], std::ios::binary);
  std::error_code error;
  if (std::filesystem::is_directory(words[0], error)) {
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
  ovl::files::OutliveSizeLimit();
  const std::vector<std::string> words(argv + 1, argv + argc);
  if (words.size() == 1 && words[0] == "--help") {
    std::cout << ovl::script::HelpText();
    return 0;
  }
  return static_cast<int>(Run(words));
}
