#include "command_line/command_line.h"

#include <getopt.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <iostream>

namespace command_line {
namespace {

constexpr int kWrongUsage = 2;
constexpr std::size_t kWidestColumn = 26;

// What getopt_long returns. No character of a short option is as large as those without one.
constexpr int kHelp = 'h', kVersion = 256, kFirstRow = 257;

std::vector<option> LongOptions(const std::vector<std::string>& names, std::span<const Option> table) {
  std::vector<option> options{{"help", no_argument, nullptr, kHelp},
                              {"version", no_argument, nullptr, kVersion}};
  for (std::size_t at = 0; at < table.size(); ++at) {
    const int value = table[at].value.empty() ? no_argument : required_argument;
    options.push_back({names[at].c_str(), value, nullptr, kFirstRow + static_cast<int>(at)});
  }
  options.push_back({});
  return options;
}

// `word` is the last one that getopt_long took.
std::string WhyNotUnderstood(int found, const std::string& word, std::span<const Option> table) {
  const auto name = word.substr(0, word.find('='));
  if (found == ':')
    return name + " needs a value, " + std::string(table[static_cast<std::size_t>(optopt - kFirstRow)].value);
  if (optopt == kHelp || optopt >= kVersion) return name + " takes no value";
  const bool is_short = optopt != 0;
  return (is_short ? std::string{'-', static_cast<char>(optopt)} : name) + ": there is no such option";
}

// Whether the form lists all words that are allowed, and this is none of them.
bool IsNoChoice(std::string_view form, const std::string& value) {
  const bool is_list =
      form.find('|') != std::string_view::npos &&
      std::none_of(form.begin(), form.end(), [](unsigned char c) { return std::isupper(c); });
  return is_list && ('|' + std::string(form) + '|').find('|' + value + '|') == std::string::npos;
}

std::string OptionHelp(const std::string& words, std::string_view help, std::size_t column) {
  auto text = "  " + words;
  if (text.size() + 2 > column) text += '\n' + std::string(column, ' ');
  if (text.size() < column) text.resize(column, ' ');
  for (const char c : help) {
    text += c;
    if (c == '\n') text += std::string(column, ' ');
  }
  return text + '\n';
}

std::string OptionsHelp(std::span<const Option> table) {
  std::vector<std::pair<std::string, std::string_view>> rows;
  for (const auto& option : table) {
    auto words = std::string("--").append(option.name);
    if (!option.value.empty()) words.append(" ").append(option.value);
    rows.emplace_back(words, option.help);
  }
  rows.emplace_back("-h, --help", "shows this text");
  rows.emplace_back("--version", "shows the version");
  std::size_t column = 0;
  for (const auto& [words, help] : rows) column = std::max(column, words.size() + 4);
  std::string text;
  for (const auto& [words, help] : rows) text += OptionHelp(words, help, std::min(column, kWidestColumn));
  return text;
}

}  // namespace

CommandLine Read(const Program& program, std::span<const std::string_view> words) {
  std::vector<std::string> names, copies{std::string(program.name)};
  for (const auto& option : program.options) names.emplace_back(option.name);
  copies.insert(copies.end(), words.begin(), words.end());
  std::vector<char*> pointers;
  for (auto& copy : copies) pointers.push_back(copy.data());
  pointers.push_back(nullptr);
  const auto count = static_cast<int>(copies.size());
  const auto known = LongOptions(names, program.options);

  CommandLine read;
  const auto wrong = [](std::string error) { return CommandLine{Wish::kWrong, std::move(error), {}, {}}; };
  optind = 0;  // getopt_long begins anew
  for (int found = 0; (found = ::getopt_long(count, pointers.data(), ":h", known.data(), nullptr)) != -1;) {
    if (found == kHelp) return {Wish::kHelp, {}, {}, {}};
    if (found == kVersion) return {Wish::kVersion, {}, {}, {}};
    if (found < kFirstRow)
      return wrong(WhyNotUnderstood(found, pointers[static_cast<std::size_t>(optind - 1)], program.options));
    const auto at = static_cast<std::size_t>(found - kFirstRow);
    const auto& option = program.options[at];
    const std::string value = optarg == nullptr ? "" : optarg;
    if (IsNoChoice(option.value, value))
      return wrong(std::string("--").append(option.name) + " " + value + ": expected " +
                   std::string(option.value));
    read.options.push_back({at, value});
  }
  read.arguments.assign(pointers.begin() + optind, pointers.end() - 1);
  return read;
}

int Answer(const Program& program, Wish wish, const std::string& error) {
  if (wish == Wish::kVersion) {
    std::cout << program.name << " " OVL_VERSION "\n";
    return EXIT_SUCCESS;
  }
  if (wish == Wish::kHelp) {
    std::cout << "Usage: " << program.name << " " << program.arguments << "\n\n"
              << program.purpose << "\nOptions:\n"
              << OptionsHelp(program.options) << program.further;
    return EXIT_SUCCESS;
  }
  std::cerr << program.name << ": " << error << "\nTry \"" << program.name << " --help\".\n";
  return kWrongUsage;
}

}  // namespace command_line
