#include "checks/subject.h"

#include <utility>

#include "checks/trial_program.h"
#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "firmware/traits.h"
#include "panels/communication.h"
#include "panels/text_display.h"

namespace ovl::checks {

int Subject::Byte(image::FieldId field, int entry) const {
  return codecs::HexToInt(image_.at(field, entry));
}

bool Subject::HasBit(image::FieldId field, int bit) const {
  return codecs::HasBit(Byte(field), bit);
}

phrases::Words Subject::Entry(std::string_view control) const {
  return Program().WordsOf(control).value_or(phrases::Words());
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

std::optional<image::ConfigImage> Subject::AfterPickAgain(const changes::Site& site) {
  wording_.WordsOf(site, {});  // loads the exception or the alarm
  const int entry = Program().EntryShown(site.control);
  if (entry < 0) return std::nullopt;
  if (!picks_) picks_.emplace(like_, image_);
  if (site.slot > 0 && site.place == core::Place::kAlarmOutputs) picks_->ShowAlarm(site.slot);
  if (site.slot > 0 && site.place == core::Place::kExceptionReport) picks_->ShowException(site.slot);
  auto after = picks_->AfterPick(site.control, entry, image_);
  return picks_->EntryShown(site.control) == entry ? std::move(after) : std::nullopt;
}

bool Subject::ShowsPicks(const changes::Site& site) {
  const int other = Program().EntryShown(site.control) == 0 ? 1 : 0;
  const auto after = picks_->AfterPick(site.control, other, image_);
  return after && changes::PreviewProgram(like_, *after).EntryShown(site.control) == other;
}

bool Subject::Offers(const std::string& control) const {
  return Program().Shows(control) && !Program().CoverOf(control) &&
         controls::StateOf(Program().Named(control).control).enabled;
}

}  // namespace ovl::checks
