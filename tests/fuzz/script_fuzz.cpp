// Any text as a script, run in a folder of its own on the simulated line.
#include <algorithm>
#include <filesystem>
#include <sstream>

#include "bytes.h"
#include "parser.h"
#include "runner.h"
#include "support/harness.h"

namespace {

using ovl::fuzz::Require;
using ovl::script::Word;

namespace fs = std::filesystem;

// How often, and how long: more takes too long and shows nothing new.
constexpr std::size_t kLongestNumber = 3;

// A script that starts the program is run this seldom; the others are taken apart only.
constexpr unsigned kRarely = 8;

bool LeavesFolder(const Word& word) {
  return word.text.find('/') != std::string::npos || word.text == ".." || word.text == ".";
}

bool TakesLong(const Word& word) {
  return word.text.size() > kLongestNumber &&
         std::all_of(word.text.begin(), word.text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Statements that would touch the machine, and numbers that keep a statement busy.
bool IsHarmless(const std::vector<Word>& words) {
  const auto& name = words.front().text;
  if (name == "store" || name == "port")
    return std::none_of(words.begin(), words.end(),
                        [](const Word& word) { return word.text == "system" || word.text == "real"; });
  return std::none_of(words.begin(), words.end(),
                      [](const Word& word) { return LeavesFolder(word) || TakesLong(word); });
}

// Every word reads back from what it is printed as.
void CheckPrinting(const std::vector<Word>& words) {
  for (const auto& word : words) {
    const auto again = ovl::script::SplitWords(ovl::script::AsWord(word.text));
    Require(again.size() == 1 && again[0].text == word.text, "a word reads back as it was printed");
  }
}

bool CanRun(const std::string& script) {
  std::istringstream lines(script);
  for (std::string line; std::getline(lines, line);) {
    try {
      const auto words = ovl::script::SplitWords(line);
      CheckPrinting(words);
      if (!words.empty() && !IsHarmless(words)) return false;
    } catch (const ovl::script::Stop&) {
      return true;
    }
  }
  return true;
}

// What scripts wrote; the images stay.
void Clean(const fs::path& folder) {
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (!entry.is_directory()) fs::remove(entry.path());
  }
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
  Clean(site.folder.Path());
  return 0;
}
