#include "line.h"

#include "firmware/firmware_table.h"

namespace ovl::testing {

Line::Line(ui::Program& program, const firmware::FirmwareId& firmware)
    : program_(program), firmware_(firmware::ServedFirmware(firmware.Joined()).Joined()) {
  unit_ = std::make_unique<SimulatedUnit>(SimulatedUnitSetup{.firmware = firmware_, .speed = 0});
  auto& serial = program.Model().platform.serial;
  serial.open = [this](const core::LineSettings&) {
    if (lost_) return core::Result(*lost_);
    open_ = true;
    return core::Result();
  };
  serial.close = [this] {
    open_ = wrote_ = false;
    in_.clear();
    out_.clear();
  };
  serial.write = [this](std::string_view text) {
    if (lost_) return core::Result(*lost_);
    out_ += text;
    wrote_ = true;
    return core::Result();
  };
  serial.read = [this] {
    if (in_.empty()) return std::string();
    const std::string first(1, in_.front());
    in_.erase(0, 1);
    return first;
  };
  serial.clear_input = [this] { in_.clear(); };
  serial.clear_output = [] {};
  serial.lost = [this]() -> const core::Failure* { return lost_ && open_ ? &*lost_ : nullptr; };
}

bool Line::CarryOne() {
  if (!open_ || lost_) return false;
  if (wrote_) {
    in_ += unit_->WholeAnswer(std::exchange(out_, {}));
    wrote_ = false;
    program_.Act(core::DrainedEvent{});
    return true;
  }
  if (in_.empty()) return false;
  program_.Act(core::ReceivedEvent{});
  return true;
}

void Line::Carry(int count) {
  while (count-- > 0 && !program_.Model().ended && CarryOne()) continue;
}

void Line::Lose() {
  lost_ = core::Failure("the device", std::make_error_code(std::errc::no_such_device));
}

void Line::Mend(Random& random) {
  constexpr std::array kFaults = {
      "", "", "drop:2", "garble:2", "refuse:download", "silent:upload", "refuse:request"};
  lost_.reset();
  unit_ = std::make_unique<SimulatedUnit>(
      SimulatedUnitSetup{.firmware = firmware_,
                         .faults = random.Any(kFaults),
                         .speed = 0,
                         .seed = static_cast<std::uint64_t>(random.Below(1000))});
}

}  // namespace ovl::testing
