#include "panels/exceptions/exception_report.h"

#include <array>

#include "image/slot_records.h"
#include "panels/panel.h"

namespace ovl::panels {
namespace {

using enum image::FieldId;
using core::Place;
using enum core::ValueDisplay;

constexpr std::array kEditors = {
    core::Editor{COMMCFG_BAK, Place::kExceptionReport, "ComboExcepRe(0)", 0x10, kSetIsOn},
    core::Editor{TIMESTAMP_ENA, Place::kExceptionReport, "ComboExcepRe(1)", core::kWholeByte, kPicked},
    core::Editor{DUPLINE_BAK, Place::kExceptionReport, "ComboExcepRe(2)", core::kWholeByte, kPicked},
};

}  // namespace

using controls::ExcepRe;
void ApplyTimeStamp(core::Application& app) {
  AssignPosition(app, app.frmMain.ComboExcepRe[ExcepRe::kTimeStamp],
                 app.image[image::FieldId::TIMESTAMP_ENA] == "00" ? 0 : 1);
}

void ApplyDuplicateLine(core::Application& app) {
  AssignPosition(app, app.frmMain.ComboExcepRe[ExcepRe::kDuplicateLine],
                 codecs::HexToInt(app.image[image::FieldId::DUPLINE_BAK]));
}

void ComboExcepRe_Click(core::Application& app, int index) {
  if (!app.PanelsReady) return;
  const auto& lists = app.frmMain.ComboExcepRe;
  auto& flags = app.image[image::FieldId::COMMCFG_BAK];
  flags = codecs::ByteToHex(
      codecs::WithBit(codecs::HexToInt(flags), image::kReportBit, lists[ExcepRe::kOutput].position == 1));
  app.image[image::FieldId::TIMESTAMP_ENA] = lists[ExcepRe::kTimeStamp].position == 1 ? "01" : "00";
  if (index == ExcepRe::kDuplicateLine)
    app.image[image::FieldId::DUPLINE_BAK] = codecs::ByteToHex(lists[ExcepRe::kDuplicateLine].position);
  RefreshSavedIndexes(app, "ComboExcepRe", lists);
}

std::span<const core::Editor> ExceptionReportEditors() {
  return kEditors;
}

}  // namespace ovl::panels
