// What stands in the way of a file that is written.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace ovl::testing {

enum class End { kWritten, kRefused };

struct Pressure {
  std::string name;
  End end;
  // Changes the file's surroundings, which hold it already, or the process. False: not possible here.
  std::function<bool(const std::filesystem::path& file)> apply;
  std::string file_name = {};   // another one for the file
  bool not_for_stores = false;  // a settings store makes what is missing, and waits for a pipe
};

std::vector<Pressure> AllPressures();

}  // namespace ovl::testing
