// Input for the unit in software. The first byte chooses: a conversation in simulated time, a stream from a
// file, or a command line.
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "bytes.h"
#include "unit/factory.h"
#include "unit/options.h"
#include "unit/stream.h"
#include "unit/text.h"
#include "unit/unit.h"

namespace {

using ovl::fuzz::Bytes;
using ovl::fuzz::Require;

constexpr unsigned kCommandLine = 0xFF, kFile = 0xFE;

// Bytes of a conversation that are not characters.
constexpr unsigned kTimePasses = 0xFF, kWholeStream = 0xFE, kRequest = 0xFD;

// A whole stream takes a hundred times as long as other input, so only one of 8 inputs may contain it.
constexpr unsigned kRarely = 8;

// The steps in which the time passes until the unit is idle.
constexpr unit::Time kStep = std::chrono::milliseconds(200);
constexpr int kMostSteps = 1000;

constexpr std::array<std::string_view, 10> kFaults{
    "refuse:upload", "silent:download-ack", "silent:after=20", "drop:100",  "garble:100",
    "cut:30",        "stall:40,500",        "junk:9",          "late:1500", "once"};

struct Model {
  const unit::Firmware* firmware;
  std::string factory, stream;
};

std::vector<Model> AllModels() {
  std::vector<Model> models;
  for (const auto& firmware : unit::AllFirmware()) {
    const auto factory = unit::FactoryImage(firmware);
    models.push_back({&firmware, factory, unit::ComposeStream(unit::RegionOf(firmware), factory)});
  }
  return models;
}

bool IsImageOf(const std::string& image, const unit::Firmware& firmware) {
  return image.size() == unit::RegionOf(firmware).Digits() &&
         std::ranges::all_of(image, [](char c) { return unit::UpperHexDigit(c).has_value(); });
}

class Conversation {
 public:
  Conversation(const Model& model, Bytes& input)
      : model_(model),
        streamed_(!ovl::fuzz::OneIn(kRarely, input.Rest())),
        unit_({model.firmware, model.factory, "LINE 1\r\n", (input.Next() & 1U) != 0 ? 9600U : 0U,
               unit::Faults(TakeFaults(input), 1)},
              MakeHooks()) {}

  void Hear(std::uint8_t code, Bytes& input) {
    std::string_view text(reinterpret_cast<const char*>(&code), 1);
    if (code == kTimePasses) {
      now_ += std::chrono::milliseconds(1U << (input.Next() % 16U));
      text = "";
    }
    if (code == kWholeStream) text = std::exchange(streamed_, true) ? "" : std::string_view(model_.stream);
    if (code == kRequest) text = unit::kRequest;
    for (const char c : text) unit_.Receive(c, now_);
    unit_.Advance(now_);
  }

  // The unit must become idle, even if the other side disappears.
  void FallAsleep() {
    int steps = 0;
    for (auto due = unit_.NextDue(); due; due = unit_.NextDue()) {
      Require(++steps < kMostSteps, "the unit comes to rest");
      now_ = std::max(now_, *due) + kStep;
      unit_.Advance(now_);
    }
    Require(!unit_.Remote(), "remote mode ends");
    Require(IsImageOf(unit_.Image(), *model_.firmware), "the unit keeps an image of its size");
  }

 private:
  static std::vector<unit::Fault> TakeFaults(Bytes& input) {
    std::vector<unit::Fault> faults;
    for (int count = 0; count < 2; ++count) {
      const unsigned choice = input.Next();
      if (choice < kFaults.size()) faults.push_back(unit::ParseFault(kFaults.at(choice)).fault.value());
    }
    return faults;
  }

  unit::UnitHooks MakeHooks() {
    const auto expect_readable = [](const std::string& text) {
      for (const char c : text) Require(c >= ' ' && c <= '~', "complaints are readable");
    };
    const auto keep_image = [this](const std::string& image) {
      Require(IsImageOf(image, *model_.firmware), "only a whole image is kept");
      return std::string();
    };
    return {expect_readable, expect_readable, [](const std::string&) {}, keep_image,
            [](const std::string&) { return std::string(); }};
  }

  const Model& model_;
  bool streamed_;
  unit::Unit unit_;
  unit::Time now_{};
};

void CheckFile(const Model& model, std::string_view text) {
  const auto& region = unit::RegionOf(*model.firmware);
  const auto read = unit::ReadStreamText(region, text);
  if (!read.errors.empty()) return;
  Require(IsImageOf(read.image, *model.firmware), "a good file holds an image");
  const auto again = unit::ReadStreamText(region, unit::ComposeStream(region, read.image));
  Require(again.errors.empty() && again.image == read.image, "what was read composes to the same");
}

void CheckCommandLine(Bytes& input) {
  std::vector<std::string_view> words;
  while (!input.Empty()) words.push_back(input.NextText());
  const auto parsed = unit::ParseOptions(words);
  const bool runs = parsed.error.empty() && parsed.wish == command_line::Wish::kRun;
  Require(!runs || parsed.options.firmware != nullptr, "good options name a firmware");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto models = AllModels();
  Bytes input(data, size);
  const unsigned choice = input.Next();
  if (choice == kCommandLine) {
    CheckCommandLine(input);
  } else if (choice == kFile) {
    const auto& model = models[input.Next() % models.size()];
    CheckFile(model, input.Rest());
  } else {
    Conversation conversation(models[choice % models.size()], input);
    while (!input.Empty()) conversation.Hear(input.Next(), input);
    conversation.FallAsleep();
  }
  return 0;
}
