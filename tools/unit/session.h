#pragma once

#include <chrono>
#include <fstream>
#include <memory>
#include <optional>
#include <string>

#include "unit/descriptor.h"
#include "unit/journal.h"
#include "unit/options.h"
#include "unit/pty_line.h"
#include "unit/unit.h"

namespace unit {

// One run of the program: a unit, its line, its files and the clock that drives them.
class Session {
 public:
  // Null if the unit cannot start. `error` then has the reason.
  static std::unique_ptr<Session> Start(const Options& options, std::string& error);

  const std::string& Port() const { return line_->Path(); }

  // Runs until an interrupt or termination signal. True if there was no complaint.
  bool Run();

 private:
  explicit Session(const Options& options);

  std::string Prepare();
  std::string OpenLog();
  std::string LoadMemory(std::string& image) const;
  UnitHooks MakeHooks();
  Time Now() const;
  void Complain(const std::string& text);
  void Note(const std::string& text);
  void Wait(bool& stop);
  void Hear();
  void Speak(const std::string& bytes);
  void NoteNoise(unsigned speed, std::size_t count);

  Options options_;
  std::chrono::steady_clock::time_point started_ = std::chrono::steady_clock::now();
  std::ofstream log_file_;
  Journal journal_{nullptr};
  Descriptor signals_;
  std::unique_ptr<PtyLine> line_;
  std::optional<Unit> unit_;
  bool complained_ = false;
  unsigned noise_speed_ = 0;  // already noted
  bool overrun_noted_ = false;
};

}  // namespace unit
