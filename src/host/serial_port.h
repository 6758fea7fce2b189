// The serial port of the window program and of the script tool, as SerialLine describes it. Events are
// dispatched one at a time and never from inside an operation. They wait as long as the program is busy.
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
#include "host/parity_marks.h"
#include "host/system/line_watch.h"
#include "host/system/short_timer.h"

namespace ovl::host {

// Needs Qt's application object, in whose event loop it lives. An event that it dispatches must not destroy
// it.
class SerialPort : public QObject {
 public:
  // `dispatch` takes a ReceivedEvent for every character and a DrainedEvent when the transmitter has run
  // empty. If it returns kBusy, the event is kept until Resume.
  SerialPort(QString program_folder, std::function<core::Outcome(const core::Event&)> dispatch);
  ~SerialPort() override;

  // For Platform::serial; valid as long as this object.
  core::SerialLine Operations();

  // To be called when a handler has ended. The event loop then dispatches the events that had to wait.
  void Resume();

  // To be called before a tick. Dispatches all events that are due.
  void DeliverPending();

  // The last failure of a port, as a sentence with port, device and reason. Empty once a port opens.
  QString LastProblem() const { return problem_; }

  // Called when the open port has lost its device. It may run inside an operation.
  std::function<void()> on_loss = [] {};

  bool event(QEvent* event) override;

 private:
  using Clock = std::chrono::steady_clock;
  enum class Turn { kWhole, kShort };

  core::Result Open(const core::LineSettings& settings);
  core::Failure OpenFailure() const;
  core::Failure FailureWith(int error) const;
  // Returns an error number, or 0.
  int Prepare();
  void Close();
  core::Result Write(std::string_view bytes);
  std::string Read();
  void ClearInput();
  void ClearOutput();

  void Discard(QSerialPort::Direction side);
  void OnGone();
  void OnPortError(QSerialPort::SerialPortError error);
  void Lose(int error);
  void Forget();
  core::Failure Report(core::Failure failure);

  void Post();
  void TakeReceived();
  void Deliver(Turn turn);
  bool DeliverOne();
  bool OfferDrained();
  bool OfferReceived();
  bool Kept(core::Outcome outcome);

  Clock::time_point DrainDue() const;
  bool Drained();
  void ScheduleDrain();
  void AwaitDrain();

  QString program_folder_;
  std::function<core::Outcome(const core::Event&)> dispatch_;
  QSerialPort port_;
  LineWatch watch_;
  ShortTimer timer_;
  MeasuredSleep sleep_;
  int number_ = 0;
  QString device_;
  QString problem_;
  core::Result lost_;  // why the open port cannot be used any more

  std::optional<ParityMarks> marks_;
  std::deque<char> received_;
  std::size_t undelivered_ = 0;  // characters at the end of received_ whose event is still to come

  bool drain_owed_ = false;
  Clock::time_point line_free_;  // when, by the clock, the last stop bit is sent
  std::chrono::nanoseconds bit_time_ = {};
  int character_bits_ = 0;
  std::chrono::microseconds retry_ = {};

  bool posted_ = false;
  bool held_ = false;  // kBusy was the answer to an event
};

}  // namespace ovl::host
