// Which registers a firmware knows, and under which code. The code of a register is its position in the list
// of the firmware. The same code means different registers in different firmware. The rest of the system
// therefore identifies a register by its key, which is the same in all firmware.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace ovl::firmware {

struct RegisterEntry {
  std::string_view name;  // as ComboReg shows it; the position in the list is the register code
  std::string_view key;   // the same in all firmware; empty if the entry has no key
  int key_index;          // the RegisterIndex of the key; -1 without a key
};

// Every key once, in a fixed order. The texts are valid during the whole run.
std::span<const std::string_view> RegisterKeys();

// The list of a firmware such as ("V1400", "R7"), position 0 first; empty for an unknown firmware. A key
// occurs at most once in a list. `key_index` is the position of the entry, with one exception: the key
// "UNIPAR" of V1400R11 and R12 has the position of the entry before. The texts are valid during the whole
// run.
std::vector<RegisterEntry> BuildRegisterEntries(std::string_view version, std::string_view release);

}  // namespace ovl::firmware
