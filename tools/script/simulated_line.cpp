#include "script/simulated_line.h"

#include <utility>

namespace ovl::script {
namespace {

constexpr const char* kDevice = "simulated line";
// The last error that the system has a description for.
constexpr int kLastError = 133;

// The error that the system describes with these words, so that the program can advise its cure.
core::Failure FailureFor(const std::string& reason) {
  for (int error = 1; error <= kLastError; ++error) {
    const std::error_code code(error, std::generic_category());
    if (code.message() == reason) return {kDevice, code};
  }
  return {kDevice, reason};
}

}  // namespace

core::SerialLine SimulatedLine::Operations() {
  core::SerialLine line;
  line.open = [this](const core::LineSettings&) { return Open(); };
  line.close = [this] { Close(); };
  line.write = [this](std::string_view text) { return Write(text); };
  line.read = [this] { return Read(); };
  line.clear_input = [this] { ClearInput(); };
  line.clear_output = [] {};
  line.lost = [this] { return open_ && dead_ ? &lost_ : nullptr; };
  return line;
}

void SimulatedLine::Restore() {
  opening_ = {};
}

void SimulatedLine::Refuse(const std::string& reason) {
  opening_ = FailureFor(reason);
}

void SimulatedLine::Unplug() {
  opening_ = core::Failure(kDevice, std::make_error_code(std::errc::no_such_file_or_directory));
  dead_ = true;
}

void SimulatedLine::Arrive(char character) {
  if (!open_ || dead_) return;
  received_.push_back(character);
  ++undelivered_;
}

bool SimulatedLine::TakeReceived() {
  if (undelivered_ == 0) return false;
  --undelivered_;
  return true;
}

bool SimulatedLine::TakeDrained() {
  return std::exchange(draining_, false);
}

core::Result SimulatedLine::Open() {
  if (!opening_.Ok()) return opening_;
  open_ = true;
  dead_ = false;
  return {};
}

void SimulatedLine::Close() {
  open_ = false;
  draining_ = false;
  ClearInput();
}

core::Result SimulatedLine::Write(std::string_view text) {
  if (dead_) return lost_;
  if (open_ && !text.empty()) draining_ = true;
  return {};
}

std::string SimulatedLine::Read() {
  if (received_.empty()) return {};
  const std::string character(1, received_.front());
  received_.pop_front();
  return character;
}

void SimulatedLine::ClearInput() {
  received_.clear();
  undelivered_ = 0;
}

}  // namespace ovl::script
