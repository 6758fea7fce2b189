#include "core/configuration.h"

#include <utility>

#include "core/actions.h"
#include "firmware/traits.h"
#include "image/field_map.h"
#include "image/record_stream.h"

namespace ovl::core {

void PrepareCapabilities(Application& app) {
  app.capabilities = firmware::CapabilitiesOf(app.firmware);
}

bool LoadStream(Application& app, std::string_view stream) {
  std::string digits;
  switch (image::ParseRecords(stream, image::ReadRegion(app.firmware), digits)) {
    case image::ParseResult::kOtherFirmware:
      if (app.on_foreign_stream != nullptr) app.on_foreign_stream(app);
      MsgBox(app, Box::kOtherFirmware);
      return false;
    case image::ParseResult::kBroken:
      MsgBox(app, Box::kSystemFile);
      EndProgram(app);
    case image::ParseResult::kOk:
      break;
  }
  const auto scope = app.PanelsReady ? image::Scope::kRegisterDefault : image::Scope::kWhole;
  const auto sections = image::CutSections(digits, app.firmware);
  auto image = app.image;
  image::ReadSections(sections, app.firmware, app.capabilities, scope, image);
  app.image = std::move(image);
  if (scope == image::Scope::kWhole) app.known_image = app.image;
  if (scope == image::Scope::kWhole && firmware::LayoutOf(app.firmware) != firmware::Layout::kLateV1400)
    app.DiagnosticText.clear();
  return true;
}

std::string ComposeStream(Application& app, firmware::Layout layout, const image::Region& region) {
  PrepareCapabilities(app);
  image::MarkMissingFields(app.image, app.capabilities);
  auto sections = image::WriteSections(app.image, layout, app.firmware, app.capabilities);
  app.SYSCFG = std::move(sections.SYSCFG);
  app.SYSFIXED = std::move(sections.SYSFIXED);
  app.SYSSTR = std::move(sections.SYSSTR);
  return image::BlockRecords(app.SYSCFG + app.SYSFIXED + app.SYSSTR, region);
}

std::string SectionsToStream(Application& app) {
  return ComposeStream(app, firmware::LayoutOf(app.firmware), image::WriteRegion(app.firmware));
}

void TakeImage(Application& app, const image::ConfigImage& image) {
  const bool were_ready = app.PanelsReady;
  const auto mode = std::exchange(app.LinkMode, kLinkUpload);  // the window of MICROS stays closed
  app.PanelsReady = false;
  app.UploadApplying = true;
  app.ImageTouched = true;
  PrepareCapabilities(app);
  for (const auto& routine : app.Setting_Code) {
    app.image = image;
    routine.run(app);
  }
  auto& shown = app.frmMain.ComboExcp[controls::Excp::kNumber];
  AssignPosition(app, shown, 1);
  AssignPosition(app, shown, 0);
  app.UploadApplying = false;
  app.LinkMode = mode;
  app.PanelsReady = were_ready;
  app.image = image;
}

}  // namespace ovl::core
