// Random events for the link, by the program and by the table of rules; the first difference is printed as
// the shortest sequence of events that shows it.
//   ovl-opinion [EVENTS [SEED]]
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <random>
#include <vector>

#include "image/record_stream.h"
#include "opinion/link_table.h"
#include "support/harness.h"

namespace ovl::testing {
namespace {

using enum LinkEvent;

const FirmwareId kFirmware = {"V1400", "R4"};
constexpr int kDrainAll = kLinkEvents, kWholeStream = kLinkEvents + 1;

// The program and the table side by side. A step is an event, or one of the two long ones above.
class Pair {
 public:
  Pair() : program_(kFirmware) {
    program_.Start();
    auto& app = program_.app;
    app.frmMain.CmdUpDow[5].visible = true;
    app.ClockMonth = "03", app.ClockDay = "05", app.ClockYear = "26";
    app.ClockHour = "14", app.ClockMinute = "07", app.ClockSecond = "09";
    link_.firmware = kFirmware;
    link_.stream = [this] { return SectionsToStream(program_.app); };
    stream_ = PatternStream(kFirmware);
  }

  // What differs after the step; empty: nothing.
  std::string Step(int step) {
    if (step == kDrainAll) {
      do {
        if (auto found = Both(kDrained); !found.empty()) return found;
      } while (wrote_);
      return {};
    }
    if (step == kWholeStream) {
      for (std::size_t at = 0; at < stream_.size() && link_.open != 0; ++at) {
        const char character = stream_[at];
        const auto event = character == '$' ? kStart : character == '#' ? kEnd : kOther;
        if (auto found = Both(event, character); !found.empty()) return found;
      }
      return {};
    }
    return Both(static_cast<LinkEvent>(step));
  }
  bool Ended() const { return program_.app.ended; }
  const Link& Table() const { return link_; }

 private:
  std::string Both(LinkEvent event, char other = '0') {
    const bool theirs = Act(event, other), ours = Apply(link_, event, other);
    if (theirs != ours) return std::string("the event is ") + (theirs ? "let in" : "refused") + "\n";
    return Compared();
  }
  std::string Compared() {
    auto found = Difference(link_, program_.app);
    const auto sent = program_.TakeSent();
    if (sent != link_.sent) found += "sent " + sent + ", by the table " + link_.sent + "\n";
    std::string boxes;
    for (const auto& box : program_.boxes) boxes += "[" + box.title + "|" + box.text + "]";
    if (boxes != link_.boxes) found += "boxes " + boxes + ", by the table " + link_.boxes + "\n";
    wrote_ = !sent.empty();
    program_.boxes.clear();
    link_.sent.clear();
    link_.boxes.clear();
    return found;
  }

  bool Act(LinkEvent event, char other) {
    auto& app = program_.app;
    auto& main = app.frmMain;
    const auto done = [](Outcome outcome) { return outcome == Outcome::kDone; };
    const auto click = [&](Button& button) { return done(Dispatch(app, ClickEvent{&button})); };
    const auto close = [&](Form& form) { return done(Dispatch(app, CloseEvent{&form})); };
    const auto tick = [&](Timer& timer) { return done(program_.Tick(timer)); };
    if (event <= kMasterReset) {
      constexpr std::size_t kIndexes[] = {4, 0, 1, 2, 3, 5};
      return click(main.CmdUpDow[kIndexes[static_cast<int>(event)]]);
    }
    if (event >= kAck && event <= kOther) {
      const bool open = main.MSComm1.PortOpen;
      constexpr std::string_view kCharacters = "\x06\x15?\x0C$#";
      const auto place = static_cast<std::size_t>(event) - static_cast<std::size_t>(kAck);
      program_.Unit(event == kOther ? std::string_view(&other, 1) : kCharacters.substr(place, 1));
      return open;
    }
    switch (event) {
      case kSetComport:
        return click(main.cmdConnect);
      case kSet:
        return click(app.frmSettSR.cmdSET);
      case kBaudrateScan:
        return click(app.frmSettSR.BaudrateCMD);
      case kCloseDialog:
        return close(app.frmSettSR.form);
      case kCancelScan:
        return click(app.frmScanBProgress.Command1);
      case kCloseScan:
        return close(app.frmScanBProgress.form);
      case kDisconnect:
        return click(main.cmdDisConnect);
      case kOk:
        return click(app.frmOK_buttom.Command1);
      case kCloseOk:
        return close(app.frmOK_buttom.form);
      case kGeneralTick:
        return tick(main.General_timer);
      case kKeepAliveTick:
        return tick(main.Time_handcheck);
      case kWatchdogTick:
        return tick(main.Timer_Operating);
      case kScanTick:
        return tick(app.frmSettSR.BaudRateScan);
      case kDrained:
        return done(Dispatch(app, DrainedEvent{}));
      default:
        program_.line_error.reset();
        program_.open_error.reset();
        if (event == kLineLost) program_.line_error = "lost";
        if (event == kLineRefused) program_.open_error = "refused";
        return true;
    }
  }

  Harness program_;
  Link link_;
  std::string stream_;
  bool wrote_ = false;
};

std::string FirstDifference(const std::vector<int>& steps) {
  Pair pair;
  for (const int step : steps) {
    if (auto found = pair.Step(step); !found.empty()) return found;
    if (pair.Ended()) break;
  }
  return {};
}

void TellShortest(std::vector<int> steps) {
  for (std::size_t length = steps.size() / 2; length > 0; length = length == 1 ? 0 : length / 2) {
    for (std::size_t at = 0; at + length <= steps.size();) {
      auto fewer = steps;
      fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(at),
                  fewer.begin() + static_cast<std::ptrdiff_t>(at + length));
      if (FirstDifference(fewer).empty()) {
        at += length;
      } else {
        steps = std::move(fewer);
      }
    }
  }
  for (const int step : steps) {
    std::cout << (step == kDrainAll      ? "drain all"
                  : step == kWholeStream ? "whole stream"
                                         : NameOf(static_cast<LinkEvent>(step)))
              << '\n';
  }
  std::cout << FirstDifference(steps);
}

// Mostly what can happen, and what leads somewhere oftener than what leads out.
int NextStep(std::mt19937& chance, const Link& link) {
  constexpr unsigned kLong = 40, kFault = 60, kWayIn = 4, kImpossible = 16, kFewTries = 4;
  if (chance() % kLong == 0) return chance() % 2 == 0 ? kDrainAll : kWholeStream;
  if (chance() % kFault == 0) return static_cast<int>(kLineLost) + static_cast<int>(chance() % 3);
  const bool any = chance() % kImpossible == 0;
  constexpr LinkEvent kIn[] = {kSetComport, kSet,      kRemote,   kAck,           kFormFeed,    kGeneralTick,
                               kUpload,     kDownload, kLineWell, kKeepAliveTick, kWatchdogTick};
  auto event = kOther;
  for (unsigned tries = 0; tries < kFewTries; ++tries) {
    event = chance() % kWayIn == 0 ? static_cast<LinkEvent>(chance() % static_cast<unsigned>(kLineLost))
                                   : kIn[chance() % std::size(kIn)];
    if (any || CanHappen(link, event)) break;
  }
  return static_cast<int>(event);
}

int Run(long events, unsigned seed) {
  constexpr std::size_t kLongestSequence = 2000, kLongestBurst = 32;
  const auto start = std::chrono::steady_clock::now();
  std::mt19937 chance(seed);
  long done = 0;
  std::size_t sequences = 0;
  while (done < events) {
    Pair pair;
    std::vector<int> steps;
    while (steps.size() < kLongestSequence && !pair.Ended() && done < events) {
      const int step = NextStep(chance, pair.Table());
      // Time goes on a while before anything else happens.
      const bool burst = step >= static_cast<int>(kGeneralTick) && step <= static_cast<int>(kScanTick);
      for (auto times = burst ? 1 + chance() % kLongestBurst : 1; times > 0 && !pair.Ended(); --times) {
        steps.push_back(step);
        ++done;
        if (pair.Step(step).empty()) continue;
        TellShortest(steps);
        return EXIT_FAILURE;
      }
    }
    ++sequences;
  }
  const auto seconds =
      std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
  std::cout << done << " events in " << sequences << " sequences, no difference, " << seconds.count()
            << " s\n";
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace ovl::testing

int main(int count, char** words) {
  const long events = count > 1 ? std::atol(words[1]) : 1'000'000L;
  const auto seed = count > 2 ? std::strtoul(words[2], nullptr, 10) : 1UL;
  return ovl::testing::Run(events, static_cast<unsigned>(seed));
}
