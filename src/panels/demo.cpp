#include "panels/demo.h"

#include <algorithm>
#include <array>

#include "panels/panel.h"

namespace ovl::panels {
namespace {

constexpr int kOnBit = 7;
constexpr int kCharactersBit = 6;
constexpr int kSpeedShift = 4;

bool Is(const firmware::FirmwareId& firmware, std::string_view version, int first_release) {
  return firmware.version == version && firmware.Number() >= first_release;
}

// Later firmware pack four selections into the byte; older ones keep one value below the demo's own bit.
bool HasNewForm(const firmware::FirmwareId& firmware) {
  return Is(firmware, "V1400", 2) || Is(firmware, "V1300", 27) || Is(firmware, "V1324", 26) ||
         firmware.version == "V1310" || firmware.version == "V1334";
}

bool StoresNothing(const firmware::FirmwareId& firmware) {
  return !firmware::IsKnownFamily(firmware.version) || (firmware.IsV1400() && firmware.Number() < 1);
}

bool ShowsType(const firmware::FirmwareId& firmware) {
  constexpr std::array kReleases = {2, 4, 6, 7, 11, 12};
  const int release = firmware.Number();
  return firmware.IsV1400() &&
         (release >= 13 || std::find(kReleases.begin(), kReleases.end(), release) != kReleases.end());
}

bool ShowsSpeed(const firmware::FirmwareId& firmware) {
  return firmware.IsV1400() ? firmware.Number() >= 13 : HasNewForm(firmware);
}

std::string& Field(core::Application& app) {
  return app.image[image::FieldId::DEMO_ENABLE];
}

void Store(core::Application& app, int keep, int value) {
  if (!app.PanelsReady || StoresNothing(app.firmware)) return;
  Field(app) = codecs::ByteToHex((codecs::HexToInt(Field(app)) & keep) | value);
}

}  // namespace

void ApplyDemo(core::Application& app) {
  const PanelsQuiet quiet(app);
  auto& form = app.frmMain;
  const int byte = codecs::HexToInt(Field(app));
  if (form.DemoMode.checked != HasBit(byte, kOnBit)) {
    form.DemoMode.checked = HasBit(byte, kOnBit);
    DemoMode_Click(app, 0);
  }
  if (StoresNothing(app.firmware)) return;
  if (!HasNewForm(app.firmware)) {
    AssignPosition(app, form.CharacterList, (byte & 0xBF) == 1 ? 0 : 1);
    return;
  }
  AssignPosition(app, form.CharacterList, byte >> kCharactersBit & 1);
  AssignPosition(app, form.DemoSpeed, byte >> kSpeedShift & 3);
  if (app.firmware.IsV1400()) AssignPosition(app, form.DemoType, byte & 0x0F);
}

void DemoMode_Click(core::Application& app, int) {
  auto& form = app.frmMain;
  const bool on = form.DemoMode.checked;
  form.CharacterList.visible = on;
  if (ShowsType(app.firmware)) form.DemoType.visible = on;
  if (ShowsSpeed(app.firmware)) form.DemoSpeed.visible = on;
  if (app.PanelsReady) Field(app) = codecs::ByteToHex(WithBit(codecs::HexToInt(Field(app)), kOnBit, on));
}

void CharacterList_Click(core::Application& app, int) {
  const int position = app.frmMain.CharacterList.position;
  if (HasNewForm(app.firmware)) {
    Store(app, 0xBF, position << kCharactersBit);
  } else {
    Store(app, 0x80, position + 1);
  }
}

void DemoType_Click(core::Application& app, int) {
  if (app.firmware.IsV1400())
    Store(app, HasNewForm(app.firmware) ? 0xF0 : 0xC0, app.frmMain.DemoType.position);
}

void DemoSpeed_Click(core::Application& app, int) {
  const int position = app.frmMain.DemoSpeed.position;
  if (HasNewForm(app.firmware)) {
    Store(app, 0xCF, position << kSpeedShift);
  } else if (app.firmware.IsV1400()) {
    Store(app, 0xC0, position + 1);
  }
}

}  // namespace ovl::panels
