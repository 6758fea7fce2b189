#include "host/serial_port.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include "host/comports.h"
#include "host/system/device.h"
#include "host/system/line.h"
#include "host/text_codec.h"

namespace ovl::host {
namespace {

using std::chrono::microseconds;

constexpr auto kDelivery = QEvent::User;

// The longest time that one turn of the event loop may spend on waiting events.
constexpr auto kTurn = std::chrono::milliseconds(2);

// The event loop is too coarse for the last bit before the end of a character, so this time is spent without
// it: asleep, and at the end in a busy loop. A timer fires late by some part of it, so it is set to fire a
// little earlier. A drained event is due one bit before the character's end: on a slow line the timer may
// then be late by one bit without any loss.
constexpr auto kLastPart = microseconds(300);
constexpr auto kWakeAhead = microseconds(160);

// A transmitter that is slower than the clock predicts is asked again at growing intervals.
constexpr auto kFirstRetry = microseconds(100);
constexpr auto kLastRetry = microseconds(20'000);

// A driver may round a speed to what its divisor gives. A receiver tolerates no larger error than this.
constexpr int kSpeedTolerancePercent = 3;

struct LineFormat {
  int baud = 0;
  QSerialPort::Parity parity = QSerialPort::NoParity;
  QSerialPort::DataBits data_bits = QSerialPort::Data8;
  char parity_letter = 'N';
};

std::optional<QSerialPort::Parity> ParityOf(const QByteArray& letter) {
  if (letter == "N") return QSerialPort::NoParity;
  if (letter == "O") return QSerialPort::OddParity;
  if (letter == "E") return QSerialPort::EvenParity;
  return std::nullopt;
}

std::optional<LineFormat> ParseFormat(const std::string& text) {
  const auto parts = QByteArray::fromStdString(text).split(',');
  if (parts.size() != 4 || parts[3] != "1") return std::nullopt;
  const auto parity = ParityOf(parts[1]);
  const int baud = parts[0].toInt();
  if (!parity || baud <= 0 || (parts[2] != "7" && parts[2] != "8")) return std::nullopt;
  return LineFormat{baud, *parity, parts[2] == "7" ? QSerialPort::Data7 : QSerialPort::Data8,
                    parts[1].front()};
}

// The name of an unplugged device stays for a moment, but opens nothing.
bool IsGone(const QString& device) {
  const int error = ProbeDevice(device);
  return error == ENOENT || error == ENODEV || error == ENXIO || error == EIO;
}

}  // namespace

SerialPort::SerialPort(QString program_folder, std::function<core::Outcome(const core::Event&)> dispatch)
    : program_folder_(std::move(program_folder)),
      dispatch_(std::move(dispatch)),
      watch_([this] { OnGone(); }),
      timer_([this] { Post(); }) {
  connect(&port_, &QSerialPort::readyRead, this, [this] {
    TakeReceived();
    Post();
  });
  connect(&port_, &QSerialPort::bytesWritten, this, [this] { ScheduleDrain(); });
  connect(&port_, &QSerialPort::errorOccurred, this, &SerialPort::OnPortError);
}

SerialPort::~SerialPort() {
  Close();
}

core::SerialLine SerialPort::Operations() {
  core::SerialLine line;
  line.open = [this](const core::LineSettings& settings) { return Open(settings); };
  line.close = [this] { Close(); };
  line.write = [this](std::string_view bytes) { return Write(bytes); };
  line.read = [this] { return Read(); };
  line.clear_input = [this] { ClearInput(); };
  line.clear_output = [this] { ClearOutput(); };
  line.lost = [this] { return lost_.Ok() ? nullptr : &lost_.Problem(); };
  return line;
}

core::Result SerialPort::Open(const core::LineSettings& settings) {
  Close();
  number_ = settings.port;
  device_ = ComportDevice(program_folder_, number_);
  const auto format = ParseFormat(settings.text);
  if (!format) return Report(FailureWith(EINVAL));

  port_.setPortName(device_);
  // They are set before the port is open. On an open port, drivers that lack 7 data bits or parity refuse
  // them; pseudo-terminals do.
  port_.setBaudRate(format->baud);
  port_.setDataBits(format->data_bits);
  port_.setParity(format->parity);
  port_.setStopBits(QSerialPort::OneStop);
  port_.setFlowControl(QSerialPort::NoFlowControl);
  const LinePreset preset(device_, format->baud, format->data_bits, format->parity_letter);
  if (!port_.open(QIODevice::ReadWrite)) return Report(OpenFailure());
  if (const int error = Prepare()) {
    Close();
    return Report(FailureWith(error));
  }
  problem_.clear();
  return {};
}

// Qt words errors in its own way, so the system is asked once more why the device does not open.
core::Failure SerialPort::OpenFailure() const {
  if (const int error = ProbeDevice(device_)) return FailureWith(error);
  if (port_.error() == QSerialPort::PermissionError && CanLockDevices()) return FailureWith(EBUSY);
  if (port_.error() == QSerialPort::UnsupportedOperationError) return FailureWith(EINVAL);
  return {QFile::encodeName(device_).toStdString(),
          ToWindows1252(port_.errorString()).value_or(SystemText(EIO))};
}

core::Failure SerialPort::FailureWith(int error) const {
  return {QFile::encodeName(device_).toStdString(), std::error_code(error, std::generic_category())};
}

// Sets what Qt does not set on a port that has just been opened.
int SerialPort::Prepare() {
  const int asked = port_.baudRate();
  const int speed = LineSpeed(port_.handle());
  if (speed != 0 && std::abs(speed - asked) > asked / 100 * kSpeedTolerancePercent) return EINVAL;

  const bool parity = port_.parity() != QSerialPort::NoParity;
  if (parity) {
    const auto check = CheckParity(port_.handle());
    if (check.error != 0) return check.error;
    if (check.marked) marks_.emplace();
  }
  if (const int error = watch_.Start(port_.handle())) return error;
  bit_time_ = std::chrono::nanoseconds(std::chrono::seconds(1)) / asked;
  character_bits_ = 1 + port_.dataBits() + (parity ? 1 : 0) + 1;
  line_free_ = Clock::now();
  return 0;
}

void SerialPort::Close() {
  watch_.Stop();
  if (port_.isOpen()) port_.close();
  lost_ = {};
  Forget();
}

void SerialPort::Forget() {
  timer_.Stop();
  QCoreApplication::removePostedEvents(this, kDelivery);
  posted_ = false;
  held_ = false;
  drain_owed_ = false;
  marks_.reset();
  received_.clear();
  undelivered_ = 0;
}

core::Result SerialPort::Write(std::string_view bytes) {
  if (!lost_.Ok()) return lost_;
  if (!port_.isOpen()) return FailureWith(EBADF);
  if (bytes.empty()) return {};

  const auto start = Clock::now();
  WriteResult result;
  if (port_.bytesToWrite() == 0) result = WriteAtOnce(port_.handle(), bytes);
  if (result.error != 0) {
    Lose(result.error);
    return lost_;
  }
  const auto rest = bytes.substr(result.taken);
  if (!rest.empty()) port_.write(rest.data(), static_cast<qint64>(rest.size()));
  if (!lost_.Ok()) return lost_;

  const auto length = bit_time_ * character_bits_ * static_cast<int>(bytes.size());
  line_free_ = std::max(start, line_free_) + std::chrono::duration_cast<Clock::duration>(length);
  drain_owed_ = true;
  retry_ = kFirstRetry;
  ScheduleDrain();
  return {};
}

std::string SerialPort::Read() {
  if (received_.empty()) return {};
  const std::string character(1, received_.front());
  received_.pop_front();
  undelivered_ = std::min(undelivered_, received_.size());
  return character;
}

void SerialPort::ClearInput() {
  Discard(QSerialPort::Input);
  if (marks_) marks_.emplace();
  received_.clear();
  undelivered_ = 0;
}

void SerialPort::ClearOutput() {
  Discard(QSerialPort::Output);
  if (!port_.isOpen()) return;
  // At most the character in the chip is still to be sent.
  line_free_ = std::min(line_free_, Clock::now() + bit_time_ * character_bits_);
  ScheduleDrain();
}

void SerialPort::Discard(QSerialPort::Direction side) {
  if (!port_.isOpen() || port_.clear(side)) return;
  if (port_.isOpen() && !LineAlive(port_.handle())) Lose(EIO);
}

void SerialPort::OnGone() {
  // The driver may still hold characters from before. Reading them may already report the loss.
  port_.waitForReadyRead(0);
  if (port_.isOpen()) Lose(EIO);
}

// What QSerialPort reads and writes itself.
void SerialPort::OnPortError(QSerialPort::SerialPortError error) {
  const bool fatal = error == QSerialPort::ReadError || error == QSerialPort::WriteError ||
                     error == QSerialPort::ResourceError;
  if (!fatal || !port_.isOpen()) return;
  if (error != QSerialPort::WriteError && ReadAgain(port_)) return;
  Lose(EIO);
}

// A lost device keeps its descriptor readable without end, so the port is closed at once. Characters received
// before stay. A drained event that is due is still dispatched: a sender then goes on, and its next write
// fails. Most operations on a line that was hung up fail with the same EIO. Only the device's name shows
// that the device itself is gone.
void SerialPort::Lose(int error) {
  TakeReceived();
  watch_.Stop();
  port_.close();
  timer_.Stop();
  // Where a port opens only once, it cannot be probed before it is closed.
  lost_ = Report(FailureWith(IsGone(device_) ? ENODEV : error));
  if (drain_owed_ || undelivered_ > 0) Post();
  on_loss();
}

core::Failure SerialPort::Report(core::Failure failure) {
  problem_ = ComportProblem(number_, failure);
  return failure;
}

void SerialPort::Post() {
  if (posted_) return;
  posted_ = true;
  QCoreApplication::postEvent(this, new QEvent(kDelivery));
}

bool SerialPort::event(QEvent* event) {
  if (event->type() != kDelivery) return QObject::event(event);
  posted_ = false;
  Deliver(Turn::kShort);
  return true;
}

void SerialPort::Resume() {
  if (!held_) return;
  held_ = false;
  Post();
}

void SerialPort::DeliverPending() {
  // Characters that the kernel holds arrived before the tick as well.
  if (port_.isOpen()) port_.waitForReadyRead(0);
  Deliver(Turn::kWhole);
}

void SerialPort::TakeReceived() {
  if (!port_.isOpen() || port_.bytesAvailable() == 0) return;
  const auto bytes = port_.readAll().toStdString();
  const auto text = marks_ ? marks_->Decode(bytes) : bytes;
  received_.insert(received_.end(), text.begin(), text.end());
  undelivered_ += text.size();
}

void SerialPort::Deliver(Turn turn) {
  held_ = false;
  TakeReceived();
  const auto end = Clock::now() + kTurn;
  while (DeliverOne()) {
    if (turn == Turn::kWhole || Clock::now() < end) continue;
    Post();
    return;
  }
  if (turn == Turn::kShort && drain_owed_ && !held_) AwaitDrain();
}

// The unit answers what was sent, so a drained event is older than the characters that wait to be read.
bool SerialPort::DeliverOne() {
  if (drain_owed_ && Drained()) return OfferDrained();
  if (undelivered_ > 0) return OfferReceived();
  return false;
}

bool SerialPort::OfferDrained() {
  drain_owed_ = false;
  const auto outcome = dispatch_(core::DrainedEvent{});
  if (outcome == core::Outcome::kBusy) drain_owed_ = true;
  return !Kept(outcome);
}

bool SerialPort::OfferReceived() {
  --undelivered_;
  const auto outcome = dispatch_(core::ReceivedEvent{});
  if (outcome == core::Outcome::kBusy) ++undelivered_;
  // The program will not read this character, and the next event must not find it instead of its own.
  if (outcome == core::Outcome::kRefused && received_.size() > undelivered_) received_.pop_front();
  return !Kept(outcome);
}

bool SerialPort::Kept(core::Outcome outcome) {
  if (outcome == core::Outcome::kEnded) Forget();
  if (outcome == core::Outcome::kBusy) held_ = true;
  return outcome == core::Outcome::kBusy || outcome == core::Outcome::kEnded;
}

// One bit early: while the stop bit is on the line, the next character can already be handed over.
SerialPort::Clock::time_point SerialPort::DrainDue() const {
  return line_free_ - std::chrono::duration_cast<Clock::duration>(bit_time_);
}

bool SerialPort::Drained() {
  if (!lost_.Ok()) return true;
  if (port_.bytesToWrite() > 0) return false;
  const auto waiting = WaitingCharacters(port_.handle());
  if (waiting.error != 0) Lose(waiting.error);
  return !lost_.Ok() || (!waiting.characters && Clock::now() >= DrainDue());
}

// Neither waits nor dispatches an event, since it runs inside the handler that wrote.
void SerialPort::ScheduleDrain() {
  if (!drain_owed_) return;
  const auto left = std::chrono::duration_cast<microseconds>(DrainDue() - Clock::now());
  if (left <= kLastPart) return Post();
  timer_.Start(left -
               std::max(kWakeAhead - std::chrono::duration_cast<microseconds>(bit_time_), microseconds(0)));
}

void SerialPort::AwaitDrain() {
  const auto due = DrainDue();
  const auto left = due - Clock::now();
  if (left > kLastPart) return ScheduleDrain();
  sleep_.Until(due);
  for (bool late = false; !late;) {
    late = Clock::now() >= due;
    if (!Drained()) continue;
    OfferDrained();
    return;
  }
  timer_.Start(retry_);
  retry_ = std::min(retry_ * 2, kLastRetry);
}

}  // namespace ovl::host
