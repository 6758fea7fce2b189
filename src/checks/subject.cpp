#include "checks/subject.h"

#include <algorithm>
#include <array>

#include "checks/trial_program.h"
#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "firmware/traits.h"
#include "panels/communication.h"
#include "panels/text_display.h"

namespace ovl::checks {
namespace {

// Lists that a fixed text covers while they have no meaning.
struct Covered {
  std::string_view control;
  std::size_t cover;  // its place in ComboNone
};
constexpr std::array kCovered = {Covered{"ComboCOMM(7)", 0}, Covered{"ComboCOMM(10)", 1},
                                 Covered{"ComboCOMM(11)", 2}};

template <class Rows>
auto RowOf(const Rows& rows, std::string_view control) {
  return std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.control == control; });
}

}  // namespace

int Subject::Byte(image::FieldId field, int entry) const {
  return codecs::HexToInt(image_.at(field, entry));
}

bool Subject::HasBit(image::FieldId field, int bit) const {
  return codecs::HasBit(Byte(field), bit);
}

std::string Subject::Entry(std::string_view control) const {
  return Program().WordsOf(control).value_or("");
}

const image::ConfigImage& Subject::ByPanelRules() {
  if (!by_panel_rules_) {
    by_panel_rules_ = TrialProgram(like_, image_).After([](core::Application& app) {
      panels::ApplyLineRule(app);
      if (!firmware::HasNetwork(app.firmware)) return;
      // So that the rules store their speed and their address.
      for (const auto member : {controls::Comm::kNetSpeed, controls::Comm::kNetAddress})
        app.frmMain.ComboCOMM[member].position = -1;
      panels::ApplyNetworkRules(app);
    });
  }
  return *by_panel_rules_;
}

bool Subject::Offers(const std::string& control) const {
  if (!Program().Shows(control) || !controls::StateOf(Program().Named(control).control).enabled) return false;
  const auto covered = RowOf(kCovered, control);
  return covered == kCovered.end() || !Form().ComboNone.at(covered->cover).visible;
}

}  // namespace ovl::checks
