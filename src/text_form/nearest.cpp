#include "text_form/nearest.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <vector>

namespace ovl::text_form {
namespace {

bool Alike(char one, char other) {
  return std::tolower(static_cast<unsigned char>(one)) == std::tolower(static_cast<unsigned char>(other));
}

// Letters to insert, to leave out or to replace.
std::size_t Distance(std::string_view one, std::string_view other) {
  std::vector<std::size_t> row(other.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < one.size(); ++i) {
    auto diagonal = row[0]++;
    for (std::size_t j = 0; j < other.size(); ++j) {
      const auto replaced = diagonal + (Alike(one[i], other[j]) ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({row[j] + 1, row[j + 1] + 1, replaced});
    }
  }
  return row.back();
}

}  // namespace

std::string Nearest(std::string_view word, std::span<const std::string> words) {
  constexpr std::size_t kLongest = 80;
  if (word.size() > kLongest) return {};
  std::string nearest;
  auto least = std::max<std::size_t>(2, word.size() / 3) + 1;
  for (const auto& candidate : words) {
    const auto distance = Distance(word, candidate);
    if (distance >= least) continue;
    least = distance;
    nearest = candidate;
  }
  return nearest;
}

}  // namespace ovl::text_form
