#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <optional>

#include "bench.h"
#include "core/configuration.h"
#include "event_loop.h"
#include "image/record_stream.h"
#include "site.h"
#include "ui/app/program.h"

namespace ovl::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kBitsPerCharacter = 10;

double Seconds(Clock::duration duration) {
  return std::chrono::duration<double>(duration).count();
}

double ProcessorSeconds() {
  rusage usage = {};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// The first and the last character of a stream.
struct Stream {
  std::optional<Clock::time_point> first;
  Clock::time_point last;

  void Count() {
    last = Clock::now();
    if (!first) first = last;
  }
};

// Notices the characters of the streams on the program's line.
void Watch(core::Application& app, Stream& stream) {
  auto& line = app.platform.serial;
  line.write = [&app, &stream, write = line.write](std::string_view bytes) {
    if (app.DownloadActive) stream.Count();
    return write(bytes);
  };
  line.read = [&app, &stream, read = line.read] {
    if (app.frmMain.Timer_Operating.enabled) stream.Count();
    return read();
  };
}

struct Bench {
  ui::Program& program;
  EventLoop& loop;
  int speed;
  Stream& stream;

  core::Application& Model() const { return program.Model(); }

  void Click(const char* name) const { program.Act(core::ClickEvent{Model().registry.Find(name)->control}); }

  bool Hold() const {
    Click("CmdUpDow(4)");
    return loop.RunUntil([&] { return Model().RemoteHeld && !Model().frmMain.General_timer.enabled; });
  }

  bool Streams() const {
    return Model().frmMain.Timer_Operating.enabled || Model().DownloadRequested || Model().DownloadActive;
  }

  void Measure(const char* name, const char* button, double aim) const {
    if (!Hold()) {
      std::printf("%-8s at %6d   no remote mode\n", name, speed);
      return;
    }
    loop.Restart();
    stream.first.reset();
    const double processor = ProcessorSeconds();
    const auto start = Clock::now();
    Click(button);
    const bool ended = loop.RunUntil([&] { return !Streams(); });
    const double hold = loop.LongestHoldBefore();
    if (!ended || !loop.RunUntil([&] { return Model().frmOK_buttom.form.visible; })) {
      std::printf("%-8s at %6d   did not end\n", name, speed);
      return;
    }
    const double busy = (ProcessorSeconds() - processor) / Seconds(Clock::now() - start);
    const auto characters = static_cast<double>(core::SectionsToStream(Model()).size());
    const double rate = (characters - 1) / Seconds(stream.last - *stream.first);
    std::printf(
        "%-8s at %6d   %8.1f characters/s, %.3f of the line (aim %.2f); processor %.3f of the time, "
        "longest hold %.2f ms, with the window at the end %.2f ms\n",
        name, speed, rate, rate * kBitsPerCharacter / speed, aim, busy, hold, loop.LongestHold());
    Click("frmOK_buttom.Command1");
  }
};

void MeasureBareLoop() {
  EventLoop loop;
  const auto start = Clock::now();
  loop.RunUntil([&] { return Clock::now() - start > std::chrono::seconds(5); });
  std::printf("an event loop with nothing to do is held up to %.2f ms\n", loop.LongestHold());
}

}  // namespace

void MeasureTransfers(Site& site) {
  constexpr int kBaud9600 = 3;
  constexpr int kBaud115200 = 9;
  MeasureBareLoop();
  for (const int element : {kBaud9600, kBaud115200}) {
    ui::Program program(site.Folder(), site.Store());
    if (program.Start() != core::Outcome::kDone) return;
    auto& app = program.Model();
    const int speed = std::stoi(app.frmSettSR.OpBaud.elements[static_cast<std::size_t>(element)].caption);
    if (!site.StartUnit(speed)) {
      std::printf("no unit at %d\n", speed);
      continue;
    }
    EventLoop loop;
    Stream stream;
    Watch(app, stream);
    const Bench bench{program, loop, speed, stream};
    bench.Click("cmdConnect");
    program.Act(core::PickEvent{&app.frmSettSR.OpBaud, element});
    bench.Click("cmdSET");
    bench.Measure("upload", "CmdUpDow(0)", 0.98);
    bench.Measure("download", "CmdUpDow(1)", element == kBaud9600 ? 0.99 : 0.95);
    bench.Click("cmdDisConnect");
  }
  site.StopUnit();
}

}  // namespace ovl::bench
