#include "firmware/variants.h"

#include <array>

#include "firmware/traits.h"

namespace ovl::firmware {
namespace {

constexpr const char* kAuto = "AUTO";

void Show(controls::MainForm& form, int label, controls::List& list, bool visible) {
  form.Label1[label].visible = visible;
  list.visible = visible;
}

void Rename(controls::MainForm& form, int label, controls::List& list, const char* caption) {
  form.Label1[label].caption = caption;
  list.caption = caption;
}

void LanguageAndNetwork(controls::MainForm& form) {
  form.ComboLang.items.emplace_back("Spanish");
  form.ComboCOMM[controls::Comm::kProtocol].items.emplace_back("NORBAIN VISTA");
}

void AlarmType(controls::MainForm& form) {
  Show(form, 49, form.ComboALM[controls::Alm::kType], true);
}

void BlankByRts(controls::MainForm& form) {
  form.ComboDIP[controls::Dip::kScreenBlank].items.emplace_back("RTS");
}

void EleventhRelease(controls::MainForm& form) {
  form.SharpOP.elements.at(26).visible = true;
  BlankByRts(form);
}

void TwelfthRelease(controls::MainForm& form) {
  form.CmdUpDow[controls::kMasterReset].visible = true;
  form.ComboLang.items.at(0) = "English";
  form.ComboLang.items.at(1) = "Spanish";
  form.IBMOP.elements.at(7).visible = true;
  form.IBMOP.elements.at(8).visible = true;
}

void SharpAdditions(controls::MainForm& form) {
  form.OpSharp.elements.at(9).visible = true;
  BlankByRts(form);
  AlarmType(form);
}

void EpsonAdditions(controls::MainForm& form) {
  form.OpRI_QT2.elements.at(10).visible = true;
  BlankByRts(form);
  AlarmType(form);
}

// The V13xx families have no baud rate above 38400.
void LimitSpeeds(controls::List& list) {
  list.items.resize(8);
  list.items.emplace_back(kAuto);
}

void ReduceForm(controls::MainForm& form) {
  Show(form, 62, form.ComboDIP[controls::Dip::kCharacters], false);
  Show(form, 48, form.ComboALM[controls::Alm::kVideoLoss], false);
  Show(form, 52, form.ComboTrigger[controls::TriggerList::kDelay], false);
  form.Frame13.visible = false;
  Show(form, 32, form.ComboCOMM[controls::Comm::kProtocol], false);
  form.ComboNone[0].visible = false;
  Rename(form, 35, form.ComboCOMM[controls::Comm::kHandshake], "HANDSHAKE");
  Show(form, 36, form.ComboCOMM[controls::Comm::kSoftHandshake], false);
  Show(form, 26, form.ComboExcepRe[controls::ExcepRe::kDuplicateLine], false);
  form.Frame14.visible = false;
  Show(form, 23, form.ComboExcp[controls::Excp::kScroll], true);
  form.Frame12.visible = false;
  form.SSTab1.captions.at(5) = "           TIME             ";
  form.SSTab1.current = 0;
  LimitSpeeds(form.ComboCOMM[controls::Comm::kReceiveSpeed]);
  LimitSpeeds(form.ComboCOMM[controls::Comm::kSendSpeed]);
}

void NoSecondPair(controls::MainForm& form) {
  form.OpDVR.elements.at(2).visible = false;
  Show(form, 14, form.ComboKLM4011[2], false);
  Show(form, 15, form.ComboKLM4011[3], false);
}

void NoDemo(controls::MainForm& form) {
  form.FrameDemo.visible = false;
  Show(form, 61, form.ComboDIP[controls::Dip::kSpaceCompress], false);
}

using Step = void (*)(controls::MainForm&);

// What a family changes in the form, from the first to the last release.
struct Variant {
  FamilySet families;
  int first_release;
  int last_release;
  Step step;
};
constexpr int kNewest = 9999;

// Additions. They need a firmware whose register list is known. The rows apply from top to bottom.
constexpr std::array kVariants = {
    Variant{kFamily1400, 2, kNewest, LanguageAndNetwork}, Variant{kFamily1400, 6, kNewest, AlarmType},
    Variant{kFamily1400, 11, kNewest, EleventhRelease},   Variant{kFamily1400, 12, kNewest, TwelfthRelease},
    Variant{kFamily1300, 26, kNewest, SharpAdditions},    Variant{kFamily1310, 1, kNewest, SharpAdditions},
    Variant{kFamily1324, 25, kNewest, EpsonAdditions},    Variant{kFamily1334, 1, kNewest, EpsonAdditions},
};

// Reductions. They also hold for releases that no unit has.
constexpr std::array kReductions = {
    Variant{kFamily1300 | kFamily1310 | kFamily1324 | kFamily1334, 0, kNewest, ReduceForm},
    Variant{kFamily1300, 0, 26, NoSecondPair},
    Variant{kFamily1324, 0, 25, NoSecondPair},
    Variant{kFamily1300, 14, 17, NoDemo},
    Variant{kFamily1324, 17, 20, NoDemo},
};

template <class Variants>
void Run(controls::MainForm& form, const FirmwareId& firmware, const Variants& variants) {
  for (const auto& row : variants) {
    if (IsInReleases(firmware, {row.families, row.first_release, row.last_release})) row.step(form);
  }
}

}  // namespace

void ApplyFirmwareVariants(controls::MainForm& form, const FirmwareId& firmware) {
  if (!form.ComboReg.items.empty()) Run(form, firmware, kVariants);
  Run(form, firmware, kReductions);
}

void ApplyCompactForm(controls::MainForm& form) {
  Rename(form, 62, form.ComboDIP[controls::Dip::kCharacters], "OUTPUT CHARACTER / LINE");
  for (int list = 0; list < 8; ++list)
    Show(form, 54 + list, form.ComboDIP.at(static_cast<std::size_t>(list)), false);
  for (int list = 4; list < 7; ++list)
    Show(form, 42 + list, form.ComboALM.at(static_cast<std::size_t>(list)), false);
  Show(form, 50, form.ComboTrigger[controls::TriggerList::kDisplay], false);
  Show(form, 20, form.ComboExcp[controls::Excp::kDisplay], false);
  form.Frame12.visible = false;
  Show(form, 0, form.ComboTD[controls::Td::kClockDisplay], false);
  Show(form, 8, form.ComboTD[controls::Td::kTitler], false);
  form.cmdTitle.visible = false;
  form.Title_Text.visible = false;
}

}  // namespace ovl::firmware
