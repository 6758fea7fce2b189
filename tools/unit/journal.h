#pragma once

#include <functional>
#include <optional>
#include <string>

#include "unit/transmitter.h"

namespace unit {

// Writes a conversation for people. Everything that one side sends in a row is one line, with its time, its
// direction and printable bytes. A long text is shortened to its first and last line and a count.
class Journal {
 public:
  enum class Side { kTool, kUnit };

  // `write` takes one complete line without its end. With an empty `write` the journal writes nothing.
  explicit Journal(std::function<void(const std::string&)> write) : write_(std::move(write)) {}

  void Add(Side side, const std::string& bytes, Time now);

  // A line of its own in the conversation.
  void Remark(const std::string& text, Time now);

  // Writes the last line, even though the same side may continue.
  void Flush();

  // When to call Flush() if nothing is sent before. Nothing if everything is written.
  std::optional<Time> NextDue() const;

 private:
  std::function<void(const std::string&)> write_;
  Side side_ = Side::kTool;
  std::string said_;
  Time began_{};
  Time latest_{};
};

}  // namespace unit
