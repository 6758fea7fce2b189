// A serial line between the program and a unit in software, with the times of hardware.
//   ovl-line DEVICE LINK [--fifo N] [--latency MS] [--lost N] [--doubled N] [--seed N]
// The unit is at DEVICE and should answer at once ("--pace off"). LINK becomes the program's port. Lost and
// doubled characters are so many of 1000 toward the program. Ends with a signal and then prints: the
// characters to the unit, which share of the wire's time they used, the same to the program, and how many
// were lost because nobody read them.
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <cstdio>
#include <cstring>

#include "raw_speed.h"
#include "unit/pty_line.h"
#include "wire.h"

namespace ovl::testing {
namespace {

struct Options {
  std::string device, link;
  Hardware hardware;
  unsigned seed = 1;
};

std::optional<Options> ReadOptions(int count, char** words) {
  if (count < 3 || count % 2 == 0) return std::nullopt;
  Options options{words[1], words[2], {}, 1};
  for (int word = 3; word < count; word += 2) {
    int number = 0;
    const std::string_view name = words[word], text = words[word + 1];
    if (std::from_chars(text.data(), text.data() + text.size(), number).ec != std::errc() || number < 0)
      return std::nullopt;
    if (name == "--fifo" && number > 0)
      options.hardware.fifo = static_cast<std::size_t>(number);
    else if (name == "--latency")
      options.hardware.latency = std::chrono::milliseconds(number);
    else if (name == "--lost")
      options.hardware.lost = number;
    else if (name == "--doubled")
      options.hardware.doubled = number;
    else if (name == "--seed")
      options.seed = static_cast<unsigned>(number);
    else
      return std::nullopt;
  }
  return options;
}

class Line {
 public:
  Line(const Options& options, std::unique_ptr<unit::PtyLine> near)
      : near_(std::move(near)),
        far_(::open(options.device.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)),
        to_unit_({options.hardware.fifo, options.hardware.latency, 0, 0}, options.seed),
        to_program_(options.hardware, options.seed + 1) {}

  bool Open() const { return far_.Open(); }

  void Run(int signals) {
    std::array<pollfd, 4> awaited{pollfd{signals, POLLIN, 0}, pollfd{near_->Openings(), POLLIN, 0},
                                  pollfd{near_->Arrivals(), POLLIN, 0}, pollfd{far_.Get(), POLLIN, 0}};
    for (;;) {
      awaited[2].events = to_unit_.Room() > 0 ? POLLIN : 0;
      awaited[3].events = to_program_.Room() > 0 ? POLLIN : 0;
      const auto wait = Wait();
      if (::ppoll(awaited.data(), awaited.size(), wait ? &*wait : nullptr, nullptr) < 0) return;
      if (awaited[0].revents != 0 || (awaited[3].revents & (POLLHUP | POLLERR)) != 0) return;
      if (awaited[1].revents != 0) near_->FollowOpenings();
      if ((awaited[2].revents & POLLIN) != 0) TakeFromProgram();
      if ((awaited[3].revents & POLLIN) != 0) TakeFromUnit();
      Deliver();
    }
  }

  void Report() const {
    std::printf("%zu %.3f %zu %.3f %zu\n", to_unit_count_, to_unit_.Share(), to_program_count_,
                to_program_.Share(), overrun_);
  }

 private:
  std::optional<timespec> Wait() const {
    const auto unit = to_unit_.Next(), program = to_program_.Next();
    if (!unit && !program) return std::nullopt;
    const auto next = unit && program ? std::min(*unit, *program) : unit ? *unit : *program;
    const auto left = std::max(std::chrono::nanoseconds(next - Clock::now()), std::chrono::nanoseconds(0));
    return timespec{left.count() / 1'000'000'000, left.count() % 1'000'000'000};
  }

  // The unit hears at the speed that the program has set, which decides the times of both wires.
  void FollowSpeed() {
    const unsigned speed = near_->Speed();
    if (speed == speed_) return;
    speed_ = speed;
    SetRawSpeed(far_.Get(), speed);
    to_unit_.SetSpeed(speed);
    to_program_.SetSpeed(speed);
  }

  void TakeFromProgram() {
    std::array<char, 4096> part{};
    FollowSpeed();
    const auto count = ::read(near_->Arrivals(), part.data(), std::min(part.size(), to_unit_.Room()));
    if (count > 0) to_unit_.Send({part.data(), static_cast<std::size_t>(count)}, Clock::now());
  }

  void TakeFromUnit() {
    std::array<char, 4096> part{};
    const auto count = ::read(far_.Get(), part.data(), std::min(part.size(), to_program_.Room()));
    if (count > 0) to_program_.Send({part.data(), static_cast<std::size_t>(count)}, Clock::now());
  }

  void Deliver() {
    const auto now = Clock::now();
    const auto unit = to_unit_.Arrived(now), program = to_program_.Arrived(now);
    to_unit_count_ += unit.size();
    to_program_count_ += program.size();
    if (!unit.empty() && ::write(far_.Get(), unit.data(), unit.size()) != static_cast<ssize_t>(unit.size()))
      overrun_ += unit.size();
    if (!program.empty() && !near_->Write(program)) overrun_ += program.size();
  }

  std::unique_ptr<unit::PtyLine> near_;
  unit::Descriptor far_;
  Wire to_unit_, to_program_;
  unsigned speed_ = 0;
  std::size_t to_unit_count_ = 0, to_program_count_ = 0, overrun_ = 0;
};

int Run(const Options& options) {
  std::string error;
  auto near = unit::PtyLine::Open(error);
  if (near != nullptr) error = near->MakeLink(options.link);
  if (!error.empty()) {
    std::fprintf(stderr, "ovl-line: %s\n", error.c_str());
    return 1;
  }
  sigset_t ends;
  sigemptyset(&ends);
  sigaddset(&ends, SIGTERM);
  sigaddset(&ends, SIGINT);
  sigprocmask(SIG_BLOCK, &ends, nullptr);
  Line line(options, std::move(near));
  if (!line.Open()) {
    std::fprintf(stderr, "ovl-line: %s cannot be opened\n", options.device.c_str());
    return 1;
  }
  line.Run(::signalfd(-1, &ends, SFD_CLOEXEC));
  line.Report();
  return 0;
}

}  // namespace
}  // namespace ovl::testing

int main(int count, char** words) {
  const auto options = ovl::testing::ReadOptions(count, words);
  if (!options) {
    std::fprintf(
        stderr,
        "Usage: ovl-line DEVICE LINK [--fifo N] [--latency MS] [--lost N] [--doubled N] [--seed N]\n");
    return 2;
  }
  return ovl::testing::Run(*options);
}
