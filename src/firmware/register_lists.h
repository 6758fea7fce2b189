// Which registers a firmware knows, and under which code. A firmware numbers its registers by their place in
// one list; the same code means different registers in different firmware, so the rest of the system
// recognises a register by its key, which is the same everywhere.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace ovl::firmware {

struct RegisterEntry {
  std::string_view name;  // as ComboReg shows it; its place in the list is the register code
  std::string_view key;   // identity across firmware; empty: the entry has no key
  int key_index;          // the value that the key's RegisterIndex takes; -1 without a key
};

// Every key once, in an order that never changes during a run. The texts live as long as the program.
std::span<const std::string_view> RegisterKeys();

// The list of a firmware such as ("V1400", "R7"), position 0 first; empty for a pair that no list serves. A
// key stands at most once in a list. `key_index` is the entry's own position but for "UNIPAR" of V1400R11 and
// R12, whose key takes the position of the entry before it. The texts live as long as the program.
std::vector<RegisterEntry> BuildRegisterEntries(std::string_view version, std::string_view release);

}  // namespace ovl::firmware
