// The serial line of the window program and of the script tool. It keeps the promises of SerialLine: events
// are told one at a time, never from inside an operation, and wait as long as the program is busy.
#pragma once

#include <QObject>
#include <QSerialPort>
#include <QString>
#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/gate.h"
#include "host/posix/parity_marks.h"
#include "host/posix/posix_line.h"

namespace ovl::host {

// Must be made after the application object of the toolkit, whose event loop it lives in, and must not be
// destroyed by an event that it dispatches.
class SerialPort : public QObject {
 public:
  // The dispatch takes a ReceivedEvent for every character and a DrainedEvent when the transmitter has run
  // empty. When it answers kBusy the event is kept until Resume.
  SerialPort(QString program_folder, std::function<core::Outcome(const core::Event&)> dispatch);
  ~SerialPort() override;

  // For Platform::serial; valid as long as this object.
  core::SerialLine Operations();

  // To be called when a handler has ended: what had to wait is offered again by the event loop.
  void Resume();

  // To be called ahead of a tick: all that the line has to tell is told first.
  void DeliverPending();

  // What last went wrong with a port, as a sentence with port, device and reason; empty since a port was
  // last opened.
  QString LastProblem() const { return problem_; }

  bool event(QEvent* event) override;

 private:
  using Clock = std::chrono::steady_clock;
  enum class Turn { kWhole, kShort };

  core::Result Open(const core::LineSettings& settings);
  std::string OpenReason() const;
  // Gives an error number, or 0.
  int Prepare();
  void Close();
  core::Result Write(std::string_view bytes);
  std::string Read();
  void ClearInput();
  void ClearOutput();

  void OnPortError(QSerialPort::SerialPortError error);
  void Lose(const std::string& reason);
  void Forget();
  core::Failure Report(const std::string& reason);

  void Post();
  void TakeReceived();
  void Deliver(Turn turn);
  bool DeliverOne();
  bool OfferDrained();
  bool OfferReceived();
  bool Kept(core::Outcome outcome);

  Clock::time_point DrainDue() const;
  bool Drained() const;
  void ScheduleDrain();
  void AwaitDrain();

  QString program_folder_;
  std::function<core::Outcome(const core::Event&)> dispatch_;
  QSerialPort port_;
  ShortTimer timer_;
  int number_ = 0;
  QString device_;
  QString problem_;
  core::Result lost_;  // why the open port cannot be used any more

  std::optional<ParityMarks> marks_;
  std::deque<char> received_;
  std::size_t untold_ = 0;  // characters at the end of received_ whose event is still to come

  bool drain_owed_ = false;
  Clock::time_point line_free_;  // when the last stop bit has left, by the clock
  std::chrono::nanoseconds bit_time_ = {};
  int character_bits_ = 0;
  std::chrono::microseconds retry_ = {};

  bool posted_ = false;
  bool held_ = false;  // an event was met by kBusy
};

}  // namespace ovl::host
