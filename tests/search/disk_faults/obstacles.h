// The files that the program writes, and the obstacles that can prevent a write.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "support/harness.h"

namespace ovl::testing {

// The result of an act as the program reports it.
struct Result {
  bool done = false;
  std::string report;
  bool right = true;  // the report and the state of the program fit the result
};

struct Act {
  std::string name;
  std::string file;      // relative to its folder
  bool any_name = true;  // the user can give the file another name
  std::string before;    // the content of the file before the act
  std::function<Result(const std::string& folder, const std::string& path)> run;
  std::vector<std::string> between = {};  // contents of a settings store that a kill may leave, too
};

// Starts the programs of the acts, so that an act in a forked process does nothing but write.
std::vector<Act> AllActs();

// A script that prints to a device.
Result PrintTo(const std::string& device);

struct Obstacle {
  std::string name;
  bool written;
  // Changes the folder of the existing file, or the process. Returns false if that is not possible here.
  std::function<bool(const std::filesystem::path& file)> apply;
  bool for_stores = true;      // not if a settings store creates what is missing or waits for a pipe
  std::string file_name = {};  // another name of the file
};

std::vector<Obstacle> AllObstacles();

}  // namespace ovl::testing
