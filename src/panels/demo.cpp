#include "panels/demo.h"

#include <array>

#include "firmware/traits.h"
#include "panels/panel.h"

namespace ovl::panels {
namespace {

using enum image::FieldId;
using core::Place;

constexpr int kOnBit = 7;
constexpr int kCharactersBit = 6;
constexpr int kSpeedShift = 4;

std::string& Field(core::Application& app) {
  return app.image[image::FieldId::DEMO_ENABLE];
}

void Store(core::Application& app, int keep, int value) {
  if (!app.PanelsReady || !firmware::StoresDemo(app.firmware)) return;
  Field(app) = codecs::ByteToHex((codecs::HexToInt(Field(app)) & keep) | value);
}

constexpr std::array kEditors = {
    core::Editor{DEMO_ENABLE, Place::kRemote, "DemoMode CharacterList DemoType DemoSpeed"},
};

}  // namespace

void ApplyDemo(core::Application& app) {
  const PanelsQuiet quiet(app);
  auto& form = app.frmMain;
  const int byte = codecs::HexToInt(Field(app));
  if (form.DemoMode.checked != codecs::HasBit(byte, kOnBit)) {
    form.DemoMode.checked = codecs::HasBit(byte, kOnBit);
    DemoMode_Click(app, 0);
  }
  if (!firmware::StoresDemo(app.firmware)) return;
  if (!firmware::HasPackedDemo(app.firmware)) {
    AssignPosition(app, form.CharacterList, (byte & 0xBF) == 1 ? 0 : 1);
    return;
  }
  AssignPosition(app, form.CharacterList, byte >> kCharactersBit & 1);
  AssignPosition(app, form.DemoSpeed, byte >> kSpeedShift & 3);
  if (firmware::StoresDemoType(app.firmware)) AssignPosition(app, form.DemoType, byte & 0x0F);
}

void DemoMode_Click(core::Application& app, int) {
  auto& form = app.frmMain;
  const bool on = form.DemoMode.checked;
  form.CharacterList.visible = on;
  if (firmware::ShowsDemoType(app.firmware)) form.DemoType.visible = on;
  if (firmware::ShowsDemoSpeed(app.firmware)) form.DemoSpeed.visible = on;
  if (app.PanelsReady)
    Field(app) = codecs::ByteToHex(codecs::WithBit(codecs::HexToInt(Field(app)), kOnBit, on));
}

void CharacterList_Click(core::Application& app, int) {
  const int position = app.frmMain.CharacterList.position;
  if (firmware::HasPackedDemo(app.firmware)) {
    Store(app, 0xBF, position << kCharactersBit);
  } else {
    Store(app, 0x80, position + 1);
  }
}

void DemoType_Click(core::Application& app, int) {
  if (firmware::StoresDemoType(app.firmware))
    Store(app, firmware::HasPackedDemo(app.firmware) ? 0xF0 : 0xC0, app.frmMain.DemoType.position);
}

void DemoSpeed_Click(core::Application& app, int) {
  const int position = app.frmMain.DemoSpeed.position;
  if (firmware::HasPackedDemo(app.firmware)) {
    Store(app, 0xCF, position << kSpeedShift);
  } else if (firmware::StoresUnpackedDemoSpeed(app.firmware)) {
    Store(app, 0xC0, position + 1);
  }
}

std::span<const core::Editor> DemoEditors() {
  return kEditors;
}

}  // namespace ovl::panels
