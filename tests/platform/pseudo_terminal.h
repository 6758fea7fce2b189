// The unit's end of a line, played by the master of a pseudo-terminal.
#pragma once

#include <string>
#include <string_view>

namespace ovl {

class PseudoTerminal {
 public:
  PseudoTerminal();
  ~PseudoTerminal();
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  const std::string& Device() const { return device_; }
  void Send(std::string_view bytes) const;
  std::string Receive() const;
  void HangUp();

  unsigned Speed() const;
  bool MarksParityErrors() const;

  // A pseudo-terminal has no parity errors of its own. With the driver's marking off, what is sent reaches
  // the program as it stands, marks included.
  void SendRaw(std::string_view bytes) const;

 private:
  int master_ = -1;
  std::string device_;
};

}  // namespace ovl
