#include <chrono>
#include <cstdio>
#include <string_view>

#include "bench.h"
#include "link/link_state.h"
#include "model.h"

namespace ovl::bench {
namespace {

// A history of so many characters, collected one by one and saved.
double MicrosecondsForEach(core::Application& app, char& received, std::size_t characters) {
  constexpr std::string_view kLine = "0123456789 TOTAL\r\n";
  const auto receive = [&](char character) {
    received = character;
    Dispatch(app, core::ReceivedEvent{});
  };
  Click(app, "CmdUpDow(4)");
  receive(*link::kAck);
  Click(app, "CmdUpDow(3)");
  const auto start = std::chrono::steady_clock::now();
  for (std::size_t at = 0; at < characters; ++at) receive(kLine[at % kLine.size()]);
  receive(*link::kAck);
  const std::chrono::duration<double, std::micro> taken = std::chrono::steady_clock::now() - start;
  return taken.count() / static_cast<double>(characters);
}

}  // namespace

void MeasureHistory(Site& site) {
  core::Application app;
  char received = '\0';
  StartModel(app, site, received);
  Click(app, "cmdConnect");
  Click(app, "frmSettSR.cmdSET");
  const double short_cost = MicrosecondsForEach(app, received, 100'000);
  const double long_cost = MicrosecondsForEach(app, received, 5'000'000);
  std::printf("history, collected and saved   %.3f us a character for 100 KB, %.3f us for 5 MB\n", short_cost,
              long_cost);
}

}  // namespace ovl::bench
