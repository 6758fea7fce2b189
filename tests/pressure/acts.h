// What the program writes: each act with the file that it replaces.
#pragma once

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
  bool is_store = false;
  std::vector<std::string> between = {};  // contents that a stop may leave beside those of before and after
};

// The programs behind the acts are started here, so that an act in a forked process only writes.
std::vector<Act> AllActs();

// A script that prints to a device.
Told PrintTo(const std::string& device);

}  // namespace ovl::testing
