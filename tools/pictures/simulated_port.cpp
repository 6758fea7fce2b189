#include "pictures/simulated_port.h"

#include <utility>

#include "firmware/traits.h"
#include "image/field_map.h"
#include "image/record_stream.h"

namespace ovl::pictures {
namespace {

constexpr const char* kDevice = "/dev/ttyUSB0";

}  // namespace

SimulatedPort::SimulatedPort(ui::Program& program) : program_(program) {
  auto& serial = program.Model().platform.serial;
  serial.open = [this](const core::LineSettings&) { return std::exchange(opening_, core::Result()); };
  serial.close = [this] { lost_ = {}; };
  serial.write = [this](std::string_view) {
    written_ = true;
    return lost_;
  };
  serial.read = [this] { return std::string(1, character_); };
  serial.clear_input = [] {};
  serial.clear_output = [] {};
  serial.lost = [this] { return lost_.Ok() ? nullptr : &lost_.Problem(); };
}

void SimulatedPort::ReceiveFromUnit(std::string_view text) {
  for (const char character : text) {
    character_ = character;
    program_.Act(core::ReceivedEvent{});
  }
}

void SimulatedPort::SendCharacters(int count) {
  for (written_ = true; written_ && count > 0; --count) {
    written_ = false;
    program_.Act(core::DrainedEvent{});
  }
}

void SimulatedPort::Refuse(std::errc reason) {
  opening_ = core::Failure(kDevice, std::make_error_code(reason));
}

void SimulatedPort::Lose() {
  lost_ = core::Failure(kDevice, std::make_error_code(std::errc::no_such_device));
  program_.Act(core::TickEvent{&program_.Model().frmMain.Timer});
}

std::string StreamOfUnit(const core::Application& app) {
  const auto& firmware = app.image_firmware;
  const auto sections = image::WriteSections(app.image, firmware::LayoutOf(firmware), firmware,
                                             firmware::CapabilitiesOf(firmware));
  return image::BlockRecords(sections.SYSCFG + sections.SYSFIXED + sections.SYSSTR,
                             image::ReadRegion(firmware));
}

}  // namespace ovl::pictures
