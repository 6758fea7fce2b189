#include "core/configuration.h"

#include <utility>

#include "core/actions.h"
#include "core/configuration.h"
#include "image/field_map.h"
#include "image/record_stream.h"

namespace ovl {

void PrepareCapabilities(Application& app) {
  app.capabilities = CapabilitiesOf(app.firmware);
}

bool LoadStream(Application& app, std::string_view stream) {
  std::string digits;
  switch (ParseRecords(stream, ReadRegion(app.firmware), digits)) {
    case ParseResult::kOtherFirmware:
      EnableTimer(app.frmMain.Timer_Operating, false);
      app.OperatingCount = 0;
      MsgBox(app, Box::kOtherFirmware);
      return false;
    case ParseResult::kBroken:
      MsgBox(app, Box::kSystemFile);
      EndProgram(app);
    case ParseResult::kOk:
      break;
  }
  const auto scope = app.PanelsReady ? Scope::kRegisterDefault : Scope::kWhole;
  const auto sections = CutSections(digits, app.firmware);
  auto image = app.image;
  ReadSections(sections, app.firmware, app.capabilities, scope, image);
  app.image = std::move(image);
  if (scope == Scope::kWhole) app.known_image = app.image;
  if (scope == Scope::kWhole && LayoutOf(app.firmware) != Layout::kLateV1400) app.DiagnosticText.clear();
  return true;
}

std::string SectionsToStream(Application& app) {
  PrepareCapabilities(app);
  auto sections = WriteSections(app.image, LayoutOf(app.firmware), app.firmware, app.capabilities);
  app.SYSCFG = std::move(sections.SYSCFG);
  app.SYSFIXED = std::move(sections.SYSFIXED);
  app.SYSSTR = std::move(sections.SYSSTR);
  return BlockRecords(app.SYSCFG + app.SYSFIXED + app.SYSSTR, WriteRegion(app.firmware));
}

std::string ReopenableStream(const Application& app) {
  auto image = app.image;
  const auto sections =
      WriteSections(image, LayoutOf(app.firmware), app.firmware, CapabilitiesOf(app.firmware));
  return BlockRecords(sections.SYSCFG + sections.SYSFIXED + sections.SYSSTR, ReadRegion(app.firmware));
}

}  // namespace ovl
