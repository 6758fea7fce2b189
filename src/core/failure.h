// How a handler is left early.
#pragma once

#include <stdexcept>
#include <string>

namespace ovl::core {

// A step that failed at run time. what() is the system's own description of the error; the subject names the
// file or port concerned.
class Failure : public std::runtime_error {
 public:
  Failure(std::string subject, const std::string& description)
      : std::runtime_error(description), subject_(std::move(subject)) {}
  const std::string& Subject() const { return subject_; }

 private:
  std::string subject_;
};

// The program ends at once. Only the gate catches it; it is no std::exception, so that nothing that
// skips a failed step can swallow it.
struct ProgramEnd {};

}  // namespace ovl::core
