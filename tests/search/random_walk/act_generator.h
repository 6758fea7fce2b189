// Random acts of a person and of the unit, as statements of a script.
#pragma once

#include <array>
#include <random>
#include <string>
#include <vector>

#include "core/application.h"

namespace ovl::registers {
struct OptionRow;
}

namespace ovl::testing {

using Script = std::vector<std::string>;

// The files that the acts read and write in the current folder.
inline constexpr std::array kWalkFiles = {"first.bin", "second.bin", "history.txt", "upload.bin"};

class ActGenerator {
 public:
  explicit ActGenerator(unsigned seed) : random_(seed) {}

  // The next act for a program in this state.
  Script Next(const core::Application& app);

 private:
  int Below(std::size_t limit) { return static_cast<int>(random_() % limit); }
  std::string File() { return kWalkFiles.at(static_cast<std::size_t>(Below(kWalkFiles.size()))); }
  std::string Text();
  std::string PickIn(const std::string& name, std::size_t size);
  Script Upload(const core::Application& app);
  std::string OnAnyControl(const core::Application& app, bool options);
  std::string On(const std::string& name, const controls::ControlRef& control);

  std::mt19937 random_;
  std::vector<const registers::OptionRow*> rows_;
};

}  // namespace ovl::testing
