// What the program writes, and what stands in the way of a file that is written.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "support/harness.h"

namespace ovl::testing {

// What became of an act, as the program told it.
struct Told {
  bool done = false;
  std::string words;
  bool right = true;  // the words and the state are those that belong to it
};

struct Act {
  std::string name;
  std::string file;      // below the folder that it works in
  bool any_name = true;  // the file can have another name
  std::string before;    // what stands in the file beforehand
  std::function<Told(const std::string& folder, const std::string& path)> run;
  std::vector<std::string> between = {};  // a store's contents that a stop may leave, beside before and after
};

// The programs behind the acts are started here, so that an act in a forked process only writes.
std::vector<Act> AllActs();

// A script that prints to a device.
Told PrintTo(const std::string& device);

struct Pressure {
  std::string name;
  bool written;
  // Changes the file's surroundings, which hold it already, or the process. False: not possible here.
  std::function<bool(const std::filesystem::path& file)> apply;
  bool for_stores = true;      // a settings store makes what is missing, and waits for a pipe
  std::string file_name = {};  // another one for the file
};

std::vector<Pressure> AllPressures();

}  // namespace ovl::testing
