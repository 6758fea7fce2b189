#include "unit/journal.h"

#include <array>
#include <cstdio>
#include <vector>

#include "unit/text.h"

namespace unit {
namespace {

constexpr Time kSilence = std::chrono::milliseconds(500);
constexpr std::size_t kMostHeld = 65536;
constexpr std::size_t kShort = 160;

std::string Stamp(Time time) {
  const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%7lld.%03lld ", static_cast<long long>(milliseconds / 1000),
                static_cast<long long>(milliseconds % 1000));
  return text.data();
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t begin = 0;
  while (begin < text.size()) {
    const std::size_t end = text.find('\n', begin);
    const std::size_t next = end == std::string::npos ? text.size() : end + 1;
    lines.push_back(text.substr(begin, next - begin));
    begin = next;
  }
  return lines;
}

std::string Ends(const std::string& line) {
  if (line.size() <= kShort) return Printable(line);
  return Printable(line.substr(0, kShort / 2)) + " ... " + Printable(line.substr(line.size() - kShort / 2));
}

std::string Shortened(const std::string& text) {
  const std::string count = ", " + std::to_string(text.size()) + " characters)";
  const std::vector<std::string> lines = Lines(text);
  if (lines.size() > 2) {
    return Ends(lines.front()) + " ... " + Ends(lines.back()) + " (" + std::to_string(lines.size()) +
           " lines" + count;
  }
  return text.size() <= kShort ? Printable(text)
                               : Ends(text) + " (" + std::to_string(lines.size()) + " lines" + count;
}

}  // namespace

void Journal::Add(Side side, const std::string& bytes, Time now) {
  if (!write_ || bytes.empty()) return;
  const bool goes_on = side == side_ && now - latest_ < kSilence && said_.size() < kMostHeld;
  if (!goes_on) Flush();
  if (said_.empty()) began_ = now;
  side_ = side;
  said_ += bytes;
  latest_ = now;
}

void Journal::Remark(const std::string& text, Time now) {
  if (!write_) return;
  Flush();
  write_(Stamp(now) + "-- " + text);
}

void Journal::Flush() {
  if (said_.empty()) return;
  write_(Stamp(began_) + (side_ == Side::kTool ? "> " : "< ") + Shortened(said_));
  said_.clear();
}

std::optional<Time> Journal::NextDue() const {
  return said_.empty() ? std::nullopt : std::optional<Time>(latest_ + kSilence);
}

}  // namespace unit
