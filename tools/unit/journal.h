#pragma once

#include <functional>
#include <optional>
#include <string>

#include "unit/transmitter.h"

namespace unit {

// Writes a conversation down for people: one line for all that one side said in a row, with its time, its
// direction and every byte printable. Long texts are shortened to their first and last line and a count.
class Journal {
 public:
  enum class Side { kTool, kUnit };

  // `write` takes one finished line without its end. An empty one makes a journal that writes nothing.
  explicit Journal(std::function<void(const std::string&)> write) : write_(std::move(write)) {}

  void Add(Side side, const std::string& bytes, Time now);

  // A line of its own between what was said.
  void Remark(const std::string& text, Time now);

  // Writes down what is still open.
  void Flush();

  // When Flush() should be called, if nothing is said before; nothing when all is written.
  std::optional<Time> NextDue() const;

 private:
  std::function<void(const std::string&)> write_;
  Side side_ = Side::kTool;
  std::string said_;
  Time began_{};
  Time latest_{};
};

}  // namespace unit
