// Gives random events to the link of the program and to the reference model, under several firmware in turn.
// The first difference is printed as the shortest sequence of events that shows it.
//   ovl-reference-model [EVENTS [SEED]]
#include <iostream>
#include <random>
#include <span>

#include "codecs/codecs.h"
#include "search/fault_sweep/long_run.h"
#include "search/reference_model/comparison.h"

namespace ovl::testing {
namespace {

using Steps = std::vector<const LinkEvent*>;

std::string FirstDifference(const firmware::FirmwareId& firmware, const Steps& steps) {
  Comparison comparison(firmware);
  std::string found;
  for (std::size_t at = 0; at < steps.size() && found.empty() && !comparison.Ended(); ++at)
    found = comparison.Step(*steps[at]);
  return found.empty() && !comparison.KeptImage() ? "the image has changed\n" : found;
}

void PrintShortest(const firmware::FirmwareId& firmware, const Steps& steps) {
  const auto fails = [&](const Steps& fewer) { return !FirstDifference(firmware, fewer).empty(); };
  const auto shortest = Shortest(steps, fails);
  std::cout << firmware.Joined() << '\n';
  for (const auto* step : shortest)
    std::cout << (step->kind == kCharacter ? "unit hex " + codecs::TextToHex(step->name)
                                           : std::string(step->name))
              << '\n';
  std::cout << FirstDifference(firmware, shortest);
}

// Mostly possible events, and more often those that lead into a state than those that lead out of it.
const LinkEvent* NextStep(std::mt19937& random, const LinkModel& link) {
  constexpr unsigned kOneLong = 40, kOneFault = 60, kOneOfAll = 4, kOneImpossible = 16, kFewTries = 4;
  const auto one_of = [&](std::span<const LinkEvent> events) { return &events[random() % events.size()]; };
  const std::span<const LinkEvent> events = kLinkEvents;
  const auto short_ones = events.first(events.size() - kLong);
  if (random() % kOneLong == 0) return one_of(events.last(kLong));
  if (random() % kOneFault == 0) return one_of(short_ones.last(kEnvironmentEvents));
  const bool any = random() % kOneImpossible == 0;
  const LinkEvent* event = nullptr;
  for (unsigned tries = 0; tries < kFewTries; ++tries) {
    const bool any_direction = random() % kOneOfAll == 0;
    do {
      event = one_of(short_ones);
    } while (!event->leads_in && !any_direction);
    if (any || CanHappen(link, *event)) break;
  }
  return event;
}

int Run(long events, unsigned seed) {
  constexpr std::size_t kLongestSequence = 2000, kLongestBurst = 32;
  const StopWatch watch;
  std::mt19937 random(seed);
  Digest digest;
  long done = 0;
  std::size_t sequences = 0;
  for (; done < events; ++sequences) {
    const auto& firmware = kStreamForms[(seed + sequences) % kStreamForms.size()];
    Comparison comparison(firmware);
    Steps steps;
    std::string found;
    while (found.empty() && steps.size() < kLongestSequence && !comparison.Ended() && done < events) {
      const auto* step = NextStep(random, comparison.Model());
      // A timer ticks several times before another event happens.
      auto times = step->kind == kTick ? 1 + random() % kLongestBurst : 1;
      for (; times > 0 && found.empty() && !comparison.Ended(); --times, ++done) {
        steps.push_back(step);
        found = comparison.Step(*step);
        comparison.AddTo(digest);
      }
    }
    if (found.empty() && comparison.KeptImage()) continue;
    PrintShortest(firmware, steps);
    return EXIT_FAILURE;
  }
  std::cout << done << " events in " << sequences << " sequences, no difference, digest " << digest.Text()
            << ", " << watch.Text() << '\n';
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace ovl::testing

int main(int count, char** words) {
  const auto seed = ovl::testing::NumberIn(count, words, 2, 1);
  return ovl::testing::Run(ovl::testing::NumberIn(count, words, 1, 1'000'000), static_cast<unsigned>(seed));
}
