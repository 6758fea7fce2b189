// How a script ends early.
#pragma once

#include <stdexcept>
#include <string>

namespace ovl::script {

// The exit status of the tool.
enum class ExitStatus {
  kDone = 0,
  kExpectationFailed = 1,
  kWrongStatement = 2,
  kProgramEnded = 3,  // a later statement needs the running program
  kTransferFailed = 4,
};

// Ends the script with a status. what() is the reason, without the place in the script.
class Stop : public std::runtime_error {
 public:
  Stop(ExitStatus status, const std::string& reason) : std::runtime_error(reason), status_(status) {}
  ExitStatus Status() const { return status_; }

 private:
  ExitStatus status_;
};

[[noreturn]] inline void Wrong(const std::string& reason) {
  throw Stop(ExitStatus::kWrongStatement, reason);
}

}  // namespace ovl::script
