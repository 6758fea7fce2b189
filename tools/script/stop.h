// How a script is left before its end.
#pragma once

#include <stdexcept>
#include <string>

namespace ovl::script {

// What the tool answers to its caller.
enum class ExitStatus {
  kDone = 0,
  kExpectationFailed = 1,
  kWrongStatement = 2,
  kProgramEnded = 3,  // a statement that needs the running program was left
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
