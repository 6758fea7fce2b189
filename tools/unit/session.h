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
  // Null when the unit cannot start, and `error` says why.
  static std::unique_ptr<Session> Start(const Options& options, std::string& error);

  const std::string& Port() const { return line_->Path(); }

  // Plays until an interrupt or termination signal. True when there was nothing to complain about.
  bool Run();

 private:
  explicit Session(const Options& options);

  std::string Prepare();
  std::string OpenLog();
  std::string LoadMemory(std::string& image) const;
  Surroundings MakeSurroundings();
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
  unsigned noise_speed_ = 0;  // already told
  bool overrun_told_ = false;
};

}  // namespace unit
