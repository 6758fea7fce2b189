// The unit in software in simulated time, without a serial port.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/control_characters.h"
#include "unit/factory.h"
#include "unit/unit.h"

namespace ovl::testing {

struct SimulatedUnitSetup {
  std::string firmware = "V1400R12";
  std::string faults = {};  // separated by blanks
  std::string history = "one\r\ntwo\r\n";
  unsigned speed = 9600;  // 0: no time passes while the unit sends
  std::uint64_t seed = 1;
};

class SimulatedUnit {
 public:
  explicit SimulatedUnit(const SimulatedUnitSetup& setup = {}) {
    const auto* firmware = unit::FindFirmware(setup.firmware);
    std::vector<unit::Fault> faults;
    std::istringstream words(setup.faults);
    for (std::string fault; words >> fault;) faults.push_back(unit::ParseFault(fault).fault.value());
    program.emplace(
        unit::UnitSetup{firmware, unit::FactoryImage(*firmware), setup.history, setup.speed,
                        unit::Faults(std::move(faults), setup.seed)},
        unit::UnitHooks{[this](const std::string& text) { complaints.push_back(text); },
                        [](const std::string&) {}, [this](const std::string& bytes) { sent += bytes; },
                        [this](const std::string& image) { return kept_image = image, failure; },
                        [this](const std::string& clock) { return kept_clock = clock, failure; }});
  }
  SimulatedUnit(const SimulatedUnit&) = delete;
  SimulatedUnit& operator=(const SimulatedUnit&) = delete;

  void Receive(std::string_view text) {
    for (const char character : text) program->Receive(character, now);
  }
  void Pass(unit::Time time) {
    now += time;
    program->Advance(now);
  }
  // What the unit answers at once.
  std::string Answer(std::string_view text) {
    Receive(text);
    Pass({});
    return std::exchange(sent, {});
  }
  // What the unit sends until it has nothing more to send. Remote mode does not end meanwhile.
  std::string WholeAnswer(std::string_view text) {
    using namespace std::chrono_literals;
    Receive(text);
    Pass({});
    for (auto due = program->NextDue(); due && *due < now + unit::kPatience - 1s; due = program->NextDue())
      Pass(*due - now);
    return std::exchange(sent, {});
  }

  std::string WholeAnswerInRemoteMode(std::string_view text) {
    WholeAnswer(kRemoteRequest);
    return WholeAnswer(text);
  }

  unit::Time now = std::chrono::seconds(5);
  std::string sent, kept_image, kept_clock;
  std::string failure;  // the reason why nothing can be kept; empty: everything is kept
  std::vector<std::string> complaints;
  std::optional<unit::Unit> program;
};

}  // namespace ovl::testing
