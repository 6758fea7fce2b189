// Random events for the link, by the program and by the table of rules, under each firmware in turn; the
// first difference is printed as the shortest sequence of events that shows it.
//   ovl-opinion [EVENTS [SEED]]
#include <iostream>
#include <random>
#include <span>

#include "codecs/codecs.h"
#include "search/fault_sweep/long_run.h"
#include "search/reference_model/pair.h"

namespace ovl::testing {
namespace {

using Steps = std::vector<const LinkEvent*>;

std::string FirstDifference(const firmware::FirmwareId& firmware, const Steps& steps) {
  Pair pair(firmware);
  std::string found;
  for (std::size_t at = 0; at < steps.size() && found.empty() && !pair.Ended(); ++at)
    found = pair.Step(*steps[at]);
  return found.empty() && !pair.KeptImage() ? "the image has changed\n" : found;
}

void TellShortest(const firmware::FirmwareId& firmware, const Steps& steps) {
  const auto fails = [&](const Steps& fewer) { return !FirstDifference(firmware, fewer).empty(); };
  const auto shortest = Shortest(steps, fails);
  std::cout << firmware.Joined() << '\n';
  for (const auto* step : shortest)
    std::cout << (step->kind == kCharacter ? "unit hex " + codecs::TextToHex(step->name)
                                           : std::string(step->name))
              << '\n';
  std::cout << FirstDifference(firmware, shortest);
}

// Mostly what can happen, and what leads somewhere oftener than what leads out.
const LinkEvent* NextStep(std::mt19937& chance, const Link& link) {
  constexpr unsigned kOneLong = 40, kOneFault = 60, kOneOfAll = 4, kOneImpossible = 16, kFewTries = 4;
  const auto one_of = [&](std::span<const LinkEvent> events) { return &events[chance() % events.size()]; };
  const std::span<const LinkEvent> events = kLinkEvents;
  const auto short_ones = events.first(events.size() - kLong);
  if (chance() % kOneLong == 0) return one_of(events.last(kLong));
  if (chance() % kOneFault == 0) return one_of(short_ones.last(kOfTheSurroundings));
  const bool any = chance() % kOneImpossible == 0;
  const LinkEvent* event = nullptr;
  for (unsigned tries = 0; tries < kFewTries; ++tries) {
    const bool ways_out = chance() % kOneOfAll == 0;
    do {
      event = one_of(short_ones);
    } while (!event->way_in && !ways_out);
    if (any || CanHappen(link, *event)) break;
  }
  return event;
}

int Run(long events, unsigned seed) {
  constexpr std::size_t kLongestSequence = 2000, kLongestBurst = 32;
  const StopWatch watch;
  std::mt19937 chance(seed);
  Digest digest;
  long done = 0;
  std::size_t sequences = 0;
  for (; done < events; ++sequences) {
    const auto& firmware = kUnlike[(seed + sequences) % kUnlike.size()];
    Pair pair(firmware);
    Steps steps;
    std::string found;
    while (found.empty() && steps.size() < kLongestSequence && !pair.Ended() && done < events) {
      const auto* step = NextStep(chance, pair.Table());
      // Time goes on a while before anything else happens.
      auto times = step->kind == kTick ? 1 + chance() % kLongestBurst : 1;
      for (; times > 0 && found.empty() && !pair.Ended(); --times, ++done) {
        steps.push_back(step);
        found = pair.Step(*step);
        pair.AddTo(digest);
      }
    }
    if (found.empty() && pair.KeptImage()) continue;
    TellShortest(firmware, steps);
    return EXIT_FAILURE;
  }
  std::cout << done << " events in " << sequences << " sequences, no difference, digest " << digest.Text()
            << ", " << watch.Told() << '\n';
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace ovl::testing

int main(int count, char** words) {
  const auto seed = ovl::testing::NumberIn(count, words, 2, 1);
  return ovl::testing::Run(ovl::testing::NumberIn(count, words, 1, 1'000'000), static_cast<unsigned>(seed));
}
