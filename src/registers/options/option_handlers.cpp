#include "registers/options/option_handlers.h"

#include <array>

#include "core/actions.h"
#include "firmware/traits.h"
#include "registers/options/forcing_options.h"
#include "registers/options/micros.h"
#include "registers/options/sub_menus.h"

namespace ovl::registers {
namespace {

using enum image::FieldId;
using Form = controls::RegisterOptions;

template <image::FieldId kField>
void StoreElement(core::Application& app, int element) {
  app.image[kField] = codecs::ByteToHex(element);
}

template <auto kList, image::FieldId kField>
void StorePosition(core::Application& app, int) {
  app.image[kField] = codecs::ByteToHex((app.frmMain.*kList).position);
}

// Options whose field depends on the firmware. Some firmware read another field than they write.
void OpNIXDORF_Click(core::Application& app, int element) {
  const bool extended = firmware::WritesNixdorfToExtension(app.firmware);
  app.image[extended ? REGTYPE_EXT2 : REGTYPE_MINOR] = codecs::ByteToHex(element);
}

void OpRI_QT2_Click(core::Application& app, int element) {
  const bool extended = firmware::WritesEpsonToExtension(app.firmware);
  app.image[extended ? REGTYPE_EXT2 : REGTYPE_MINOR] = codecs::ByteToHex(element);
}

void OpSharp_Click(core::Application& app, int element) {
  if (!firmware::StoresOldSharpModel(app.firmware)) return;
  const bool coded = firmware::HasSharpCodes(app.firmware);
  app.image[REGTYPE_MINOR] = codecs::ByteToHex(coded ? Select_Sharp_V13(element) : element);
}

void OpGilbraco_Click(core::Application& app, int element) {
  if (!firmware::StoresGilbarco(app.firmware)) return;
  ShowGilbarco(app, element);
  app.image[REGTYPE_MINOR] = codecs::ByteToHex(element);
}

// A main option stores its code and then shows what belongs to it.
template <void (*kShow)(core::Application&, int)>
void StoreAndShow(core::Application& app, int element) {
  app.image[REGTYPE_MINOR] = codecs::ByteToHex(element);
  kShow(app, element);
}

// Chooses the chosen element again, if it is among the first `count`.
void ChooseAgain(core::Application& app, controls::OptionArray& array, int count) {
  if (array.chosen >= 0 && array.chosen < count) array.handler(app, array.chosen);
}

void Command1_Click(core::Application& app, int) {
  ChooseAgain(app, app.frmMain.CASIOOP, 35);
}

void SharpCom_Click(core::Application& app, int) {
  ChooseAgain(app, app.frmMain.SharpOP, 26);
}

void Command2_Click(core::Application& app, int) {
  ChooseAgain(app, app.frmMain.TECOP, 11);
}

// The first four lists belong to the old frame, which stores nothing.
void ComboTCPIP_Click(core::Application& app, int index) {
  const int entry = index - 3;
  if (entry < 1) return;
  const auto& list = app.frmMain.ComboTCPIP.at(static_cast<std::size_t>(index));
  app.image.at(IPADDRESS, entry) = codecs::ByteToHex(list.position);
}

void ComboTCPINFO_Click(core::Application& app, int index) {
  const int mask = 1 << index;
  const int flags = codecs::HexToInt(app.image[REGTYPE_MINOR]);
  const bool on = app.frmMain.ComboTCPINFO.at(static_cast<std::size_t>(index)).position == 1;
  app.image[REGTYPE_MINOR] = codecs::ByteToHex(on ? flags | mask : flags & ~mask);
}

struct ArrayHandler {
  controls::OptionArray Form::*array;
  controls::Handler handler;
};

constexpr controls::Handler kMinor = StoreElement<REGTYPE_MINOR>;
constexpr controls::Handler kExtension = StoreElement<REGTYPE_EXT2>;

constexpr std::array kArrayHandlers = {
    ArrayHandler{&Form::BleepOP, kMinor},
    ArrayHandler{&Form::DIGIOP, kMinor},
    ArrayHandler{&Form::FUJIOP, kMinor},
    ArrayHandler{&Form::GELLEROP, kMinor},
    ArrayHandler{&Form::JCMOp, kMinor},
    ArrayHandler{&Form::OpA410, kMinor},
    ArrayHandler{&Form::OpBEETLE, kMinor},
    ArrayHandler{&Form::OpDelta, kMinor},
    ArrayHandler{&Form::OpEDA, kMinor},
    ArrayHandler{&Form::OpNCR, kMinor},
    ArrayHandler{&Form::OpNUCP, kMinor},
    ArrayHandler{&Form::OpPoleDisplay, kMinor},
    ArrayHandler{&Form::OpSun, kMinor},
    ArrayHandler{&Form::OpVerifone, kMinor},
    ArrayHandler{&Form::OpVWEIGHBRIDGE, kMinor},
    ArrayHandler{&Form::OpWEIGHS, kMinor},
    ArrayHandler{&Form::SamOP, kMinor},
    ArrayHandler{&Form::BEETLEOp, kExtension},
    ArrayHandler{&Form::JRNLRCPT_SLP_OP, kExtension},
    ArrayHandler{&Form::NIXDORF14OPSelect, kExtension},
    ArrayHandler{&Form::POS50OP, kExtension},
    ArrayHandler{&Form::TEAMOP, kExtension},
    ArrayHandler{&Form::TEAMPOSOP, kExtension},
    ArrayHandler{&Form::OpNIXDORF, OpNIXDORF_Click},
    ArrayHandler{&Form::OpRI_QT2, OpRI_QT2_Click},
    ArrayHandler{&Form::OpSharp, OpSharp_Click},
    ArrayHandler{&Form::OpGilbraco, OpGilbraco_Click},
    ArrayHandler{&Form::OpMicros, OpMicros_Click},
    ArrayHandler{&Form::IBMOP, StoreAndShow<ShowIbm>},
    ArrayHandler{&Form::ICLOP, StoreAndShow<ShowIcl>},
    ArrayHandler{&Form::NCROP, StoreAndShow<ShowNcr>},
    ArrayHandler{&Form::NIXDORF14OP, StoreAndShow<ShowNixdorf>},
    ArrayHandler{&Form::UNIWOP, StoreAndShow<ApplyUniwellFrame>},
    ArrayHandler{&Form::CASIOOP, StoreAndShow<ApplyCasioSubmenu>},
    ArrayHandler{&Form::SharpOP, StoreAndShow<ApplySharpSubmenu>},
    ArrayHandler{&Form::TECOP, StoreAndShow<ApplyTecSubmenu>},
};

struct ListHandler {
  controls::List Form::*list;
  controls::Handler handler;
};

template <auto kList, image::FieldId kField>
constexpr ListHandler Plain() {
  return {kList, StorePosition<kList, kField>};
}

constexpr std::array kListHandlers = {
    Plain<&Form::ComboAddress, REGTYPE_MINOR>(),     Plain<&Form::ComboAddr, REGTYPE_MINOR>(),
    Plain<&Form::ComboDisplay, REGTYPE_MINOR>(),     Plain<&Form::ComboDeviceADD, REGTYPE_MINOR>(),
    Plain<&Form::ComboDIPMIXED, REGTYPE_MINOR>(),    Plain<&Form::ComboNE134, REGTYPE_MINOR>(),
    Plain<&Form::ComboUni, REGTYPE_MINOR>(),         Plain<&Form::Combo1, REGTYPE_EXT2>(),
    Plain<&Form::Combo4610TF6, REGTYPE_EXT2>(),      Plain<&Form::IBMCombo, REGTYPE_EXT2>(),
    Plain<&Form::RDSCombo, REGTYPE_EXT2>(),          Plain<&Form::ST6105C, REGTYPE_EXT2>(),
    Plain<&Form::ComboUniFor14R7up, REGTYPE_EXT2>(), Plain<&Form::ComboXML, REGTYPE_EXT2>(),
    Plain<&Form::ComboCLARITYEPOS, UNITADDR>(),      Plain<&Form::ComboDeviceGas, GTITLE_NF_BAK>(),
    Plain<&Form::ComboCONSOLEID, DV_ADDRIND_BAK>(),
};

}  // namespace

void WireRegisterOptions(controls::MainForm& form) {
  for (const auto& row : kArrayHandlers) (form.*row.array).handler = row.handler;
  for (const auto& row : kListHandlers) (form.*row.list).handler = row.handler;
  core::HandleAll(form.ComboTCPIP, ComboTCPIP_Click);
  core::HandleAll(form.ComboTCPINFO, ComboTCPINFO_Click);
  WireForcingOptions(form);
  form.Command1.handler = Command1_Click;
  form.SharpCom.handler = SharpCom_Click;
  form.Command2.handler = Command2_Click;
  form.cmdMicros.handler = cmdMicros_Click;
}

void ShowIbm(core::Application& app, int element) {
  auto& form = app.frmMain;
  struct Companion {
    int element;
    controls::List* list;
    bool label;
  };
  const std::array companions = {Companion{0, &form.IBMCombo, true}, Companion{4, &form.RDSCombo, true},
                                 Companion{8, &form.Combo4610TF6, false}};
  const int position = codecs::HexToInt(app.image[REGTYPE_EXT2]);
  form.IBMFrame.visible = false;
  for (const auto& companion : companions) companion.list->visible = false;
  for (const auto& companion : companions) {
    if (companion.element != element) continue;
    form.Label82[0].visible = companion.label;
    form.IBMFrame.visible = true;
    companion.list->visible = true;
    AssignPosition(app, *companion.list, position, core::Raise::kAlways);
  }
}

void ShowIcl(core::Application& app, int element) {
  auto& form = app.frmMain;
  const bool newer = element == 1;
  ChooseElement(app, newer ? form.POS50OP : form.TEAMOP, codecs::HexToInt(app.image[REGTYPE_EXT2]));
  form.POS2000.visible = !newer;
  form.POS5000.visible = newer;
}

void ShowNcr(core::Application& app, int element) {
  auto& form = app.frmMain;
  if (element == 1) ChooseElement(app, form.JRNLRCPT_SLP_OP, codecs::HexToInt(app.image[REGTYPE_EXT2]));
  form.NCRFrame.visible = element == 1;
}

void ShowNixdorf(core::Application& app, int element) {
  auto& form = app.frmMain;
  const bool beetle = element == 0;
  ChooseElement(app, beetle ? form.BEETLEOp : form.NIXDORF14OPSelect,
                codecs::HexToInt(app.image[REGTYPE_EXT2]));
  form.BEETLEFrm.visible = beetle;
  form.NIXDORFrm.visible = !beetle;
}

void ApplyUniwellFrame(core::Application& app, int element) {
  constexpr std::array kWithId = {1, 2, 6, 7, 10};
  bool shown = false;
  for (const int model : kWithId) shown = shown || model == element;
  app.frmMain.FrameOf(controls::OptionFrame::kUniwellId).visible = shown;
}

void ShowGilbarco(core::Application& app, int element) {
  if (!firmware::HasGilbarcoXmlList(app.firmware)) return;
  auto& form = app.frmMain;
  const bool xml = element == 5;
  form.Label84.visible = xml;
  form.Label85.visible = xml;
  form.ComboXML.visible = xml;
  if (xml)
    AssignPosition(app, form.ComboXML, codecs::HexToInt(app.image[REGTYPE_EXT2]), core::Raise::kAlways);
}

int Select_Sharp_V13(int element) {
  constexpr std::array kCodes = {0, 1, 2, 3, 4, 6, 7, 8, 9, 5};
  return kCodes.at(static_cast<std::size_t>(element));
}

}  // namespace ovl::registers
