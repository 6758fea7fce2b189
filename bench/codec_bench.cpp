#include <chrono>
#include <cstdio>

#include "bench.h"
#include "core/configuration.h"
#include "image/record_stream.h"
#include "images/default_images.h"

namespace ovl::bench {
namespace {

constexpr int kRounds = 2000;

template <class Work>
double MicrosecondsEach(const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  for (int round = 0; round < kRounds; ++round) work();
  const std::chrono::duration<double, std::micro> taken = std::chrono::steady_clock::now() - start;
  return taken.count() / kRounds;
}

}  // namespace

void MeasureCodecs() {
  core::Application app;
  app.firmware = {"V1400", "R12"};
  app.image = images::FactoryImage(app.firmware);
  auto stream = SectionsToStream(app);
  std::erase_if(stream, [](char character) { return character == '\r' || character == '\n'; });
  std::size_t length = 0;
  const double decode = MicrosecondsEach([&] { LoadStream(app, stream); });
  const double compose = MicrosecondsEach([&] { length += SectionsToStream(app).size(); });
  std::printf("decode an image    %6.1f us  (aim below 50)\n", decode);
  std::printf("compose an image   %6.1f us  (aim below 50, %zu characters)\n", compose, length / kRounds);
}

}  // namespace ovl::bench
