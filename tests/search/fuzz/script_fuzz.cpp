// Any text is a script that runs in a folder of its own with the simulated serial port.
#include <algorithm>
#include <filesystem>
#include <sstream>

#include "bytes.h"
#include "script/parser.h"
#include "script/runner.h"
#include "support/harness.h"

namespace {

using ovl::fuzz::Require;
using ovl::script::Word;

namespace fs = std::filesystem;

// Limits of a script: more takes too long and finds nothing new.
constexpr std::size_t kLongestNumber = 3;

// Few of the scripts that start the program run. The others are only parsed.
constexpr unsigned kRarely = 8;

// Statements that would change the computer, and numbers that take too long.
bool IsHarmless(const std::vector<Word>& words) {
  const bool of_machine = words.front().text == "store" || words.front().text == "port";
  return std::ranges::none_of(words, [&](const Word& word) {
    const auto& text = word.text;
    if (of_machine) return text == "system" || text == "real";
    const bool leaves_folder = text.find('/') != std::string::npos || text == ".." || text == ".";
    const bool number = text.find_first_not_of("0123456789") == std::string::npos;
    return leaves_folder || (number && text.size() > kLongestNumber);
  });
}

bool ReadsBack(const std::string& text) {
  try {
    const auto again = ovl::script::SplitWords(ovl::script::AsWord(text));
    return again.size() == 1 && again[0].text == text;
  } catch (const ovl::script::Stop&) {
    return false;
  }
}

bool CanRun(const std::string& script) {
  std::istringstream lines(script);
  for (std::string line; std::getline(lines, line);) {
    try {
      const auto words = ovl::script::SplitWords(line);
      for (const auto& word : words) Require(ReadsBack(word.text), "a word reads back as it was printed");
      if (!words.empty() && !IsHarmless(words)) return false;
    } catch (const ovl::script::Stop&) {
      return true;
    }
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const ovl::testing::Harness site({"V1400", "R12"});
  fs::current_path(site.folder.Path());
  const std::string script(reinterpret_cast<const char*>(data), size);
  if (!CanRun(script)) return -1;
  const bool starts = script.find("start") != std::string::npos;
  if (starts && !ovl::fuzz::OneIn(kRarely, script)) return 0;
  std::ostringstream output, errors;
  {
    ovl::script::Session session(output, errors);
    std::istringstream input("setting Version V1400\nsetting Release R12\n" + script);
    const auto status = RunScript(session, input, "script", errors);
    Require((status == ovl::script::ExitStatus::kDone) == errors.str().empty(), "a failure has its reason");
  }
  // Removes what scripts wrote. The images stay.
  for (const auto& entry : fs::directory_iterator(site.folder.Path())) {
    if (!entry.is_directory()) fs::remove(entry.path());
  }
  return 0;
}
