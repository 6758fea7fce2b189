// How a step reports that it failed.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>

namespace ovl::core {

// A step that failed at run time. what() is the system's own description of the error; the subject names the
// file or port concerned. Thrown, it ends the handler that runs.
class Failure : public std::runtime_error {
 public:
  Failure(std::string subject, const std::string& description)
      : std::runtime_error(description), subject_(std::move(subject)) {}
  Failure(std::string subject, std::error_code reason)
      : std::runtime_error(reason.message()), subject_(std::move(subject)), reason_(reason) {}
  // The same reason, told of another subject.
  Failure(std::string subject, const Failure& other) : Failure(other) { subject_ = std::move(subject); }

  const std::string& Subject() const { return subject_; }
  // False for a failure that was made from a description.
  bool Is(std::errc reason) const { return reason_ == reason; }
  // "SUBJECT: REASON", as people read it.
  std::string Text() const { return subject_ + ": " + what(); }

 private:
  std::string subject_;
  std::error_code reason_;
};

// What an operation returns when its caller decides what a failure means: success, or the failure.
class [[nodiscard]] Result {
 public:
  Result() = default;
  Result(Failure failure) : failure_(std::move(failure)) {}
  bool Ok() const { return !failure_; }
  // Only for a result that is not Ok.
  const Failure& Problem() const { return *failure_; }

 private:
  std::optional<Failure> failure_;
};

// The program ends at once. Only the gate catches it. It does not derive from std::exception, so that code
// that skips a failed step cannot swallow it.
struct ProgramEnd {};

}  // namespace ovl::core
