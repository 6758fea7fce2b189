#include "registers/option_handlers.h"

#include <array>

#include "core/actions.h"
#include "image/field_map.h"
#include "registers/ip_settings.h"
#include "registers/micros.h"
#include "registers/sub_menus.h"

namespace ovl {
namespace {

using enum FieldId;
using Form = RegisterOptions;

constexpr int kBaud1200 = 0;
constexpr int kBaud2400 = 1;
constexpr int kBaud4800 = 2;
constexpr int kBaud9600 = 3;
constexpr int kBaud19200 = 5;

template <FieldId kField>
void StoreElement(Application& app, int element) {
  app.image[kField] = ByteToHex(element);
}

template <auto kList, FieldId kField>
void StorePosition(Application& app, int) {
  app.image[kField] = ByteToHex((app.frmMain.*kList).position);
}

void ForceSpeeds(Application& app, int receive, int transmit) {
  ForceLine(app, 1, receive);
  ForceLine(app, 2, transmit);
}

void ForceReport(Application& app, int position) {
  AssignPosition(app, app.frmMain.ComboExcepRe[0], position, Raise::kAlways);
}

void StoreSpeeds(Application& app, int receive, int transmit) {
  app.image[RX_BAUDRATE] = ByteToHex(receive);
  app.image[TX_BAUDRATE] = ByteToHex(transmit);
}

void ComboSICOM_Click(Application& app, int) {
  app.image[REGTYPE_MINOR] = ByteToHex(app.frmMain.ComboSICOM.position);
  ForceSpeeds(app, AutoSpeed(app), kBaud9600);
}

// The mode list stands second, behind the fixed model name.
void StoreMode(Application& app, int index, int position, std::array<int, 2> tapping,
               std::array<int, 2> emulating) {
  if (index != 1) return;
  app.image[REGTYPE_MINOR] = ByteToHex(position);
  const auto& speeds = position == 0 ? tapping : emulating;
  ForceSpeeds(app, speeds[0], speeds[1]);
}

void ComboTk500_Click(Application& app, int index) {
  StoreMode(app, index, app.frmMain.ComboTk500[1].position, {AutoSpeed(app), kBaud9600},
            {kBaud19200, kBaud19200});
}

void ComboTE2200_Click(Application& app, int index) {
  StoreMode(app, index, app.frmMain.ComboTE2200[1].position, {AutoSpeed(app), kBaud9600},
            {kBaud19200, kBaud19200});
}

// Its tapping speed is the same position in every family, whatever the list reads there.
void ComboTEC_Click(Application& app, int index) {
  constexpr int kTappingSpeed = 8;
  StoreMode(app, index, app.frmMain.ComboTEC[1].position, {kTappingSpeed, kBaud9600}, {kBaud4800, kBaud4800});
}

void OpDYWAYE_Click(Application& app, int element) {
  app.image[REGTYPE_MINOR] = ByteToHex(element);
  ForceSpeeds(app, element < 2 ? AutoSpeed(app) : kBaud9600, kBaud9600);
}

void OpSHARPUP600_Click(Application& app, int element) {
  app.image[REGTYPE_MINOR] = ByteToHex(element);
  ForceSpeeds(app, element == 0 ? AutoSpeed(app) : kBaud9600, kBaud9600);
}

// Of the next four the list shows the forced position, and the field then takes the unit's own speed code.
void ComboPana_Click(Application& app, int index) {
  if (index == 0) {
    app.image[GTITLE_NF_BAK] = ByteToHex(app.frmMain.ComboPana[0].position);
    return;
  }
  const bool tap = app.frmMain.ComboPana[1].position == 0;
  ForceSpeeds(app, kBaud9600, kBaud9600);
  ForceReport(app, tap ? 1 : 0);
  app.image[REGTYPE_MINOR] = tap ? "00" : "01";
  StoreSpeeds(app, 3, tap ? 1 : 3);
}

void ComboWoring_Click(Application& app, int) {
  const bool tap = app.frmMain.ComboWoring.position == 0;
  ForceSpeeds(app, kBaud4800, tap ? kBaud2400 : kBaud4800);
  ForceReport(app, tap ? 1 : 0);
  app.image[REGTYPE_MINOR] = tap ? "00" : "01";
  StoreSpeeds(app, 2, tap ? 1 : 2);
}

void OpMicrelec_Click(Application& app, int element) {
  ForceSpeeds(app, kBaud19200, kBaud2400);
  ForceLine(app, 3, 1);
  ForceLine(app, 4, 0);
  app.image[REGTYPE_MINOR] = "00";
  app.image[UNITADDR] = ByteToHex(element);
  StoreSpeeds(app, 4, 1);
}

void OpMicrelec9500_Click(Application& app, int element) {
  ForceSpeeds(app, kBaud9600, kBaud2400);
  ForceLine(app, 3, 0);
  ForceLine(app, 4, 0);
  app.image[REGTYPE_MINOR] = "01";
  app.image[UNITADDR] = ByteToHex(element);
  StoreSpeeds(app, 3, 1);
}

void ComboTITLEDIP_Click(Application& app, int) {
  const int position = app.frmMain.ComboTITLEDIP.position;
  app.image[GTITLE_NF_BAK] = ByteToHex(position);
  AssignPosition(app, app.frmMain.ComboTD[5], position == 0 ? 0 : 1, Raise::kAlways);
}

constexpr int kAutoOfModels = 10;

void ForceInterface(Application& app, int type, int receive) {
  ForceLine(app, 0, type);
  ForceSpeeds(app, receive, kBaud9600);
}

void POSOP_Click(Application& app, int element) {
  app.image[REGTYPE_MINOR] = "00";
  app.image[REGTYPE_EXT2] = ByteToHex(element);
  ForceInterface(app, 1, kAutoOfModels);
}

void TEROP_Click(Application& app, int element) {
  app.image[REGTYPE_MINOR] = "01";
  app.image[REGTYPE_EXT1] = "00";
  app.image[REGTYPE_EXT2] = ByteToHex(element);
  ForceInterface(app, 0, kBaud9600);
}

void PRNOP_Click(Application& app, int element) {
  app.image[REGTYPE_MINOR] = "01";
  app.image[REGTYPE_EXT1] = "01";
  app.image[REGTYPE_EXT2] = ByteToHex(element);
  ForceInterface(app, 0, kAutoOfModels);
}

void SECUOP_Click(Application& app, int) {
  app.image[REGTYPE_MINOR] = "01";
  app.image[REGTYPE_EXT1] = "02";
  ForceInterface(app, 0, kAutoOfModels);
}

// The lists run from the last digit to the first.
void StoreDigit(Application& app, const std::array<List, 3>& lists, int index) {
  constexpr std::array kFields = {TCIADDBAK_3, TCIADDBAK_2, TCIADDBAK_1};
  const auto place = static_cast<std::size_t>(index);
  app.image[kFields.at(place)] = "0" + lists.at(place).Text();
}

void ComboTCI_ID_Click(Application& app, int index) {
  StoreDigit(app, app.frmMain.ComboTCI_ID, index);
  ForceLine(app, 0, 0);
  ForceSpeeds(app, kBaud1200, kBaud2400);
  ForceLine(app, 3, 0);
  ForceLine(app, 4, 1);
}

void ComboUNI_ID_Click(Application& app, int index) {
  StoreDigit(app, app.frmMain.ComboUNI_ID, index);
}

// Members whose target depends on the firmware. What reads them does not follow in every one.
void OpNIXDORF_Click(Application& app, int element) {
  app.image[app.firmware.Number() < 7 ? REGTYPE_MINOR : REGTYPE_EXT2] = ByteToHex(element);
}

void OpRI_QT2_Click(Application& app, int element) {
  const bool extended = app.firmware.IsV1400() && app.firmware.Number() >= 7;
  app.image[extended ? REGTYPE_EXT2 : REGTYPE_MINOR] = ByteToHex(element);
}

void OpSharp_Click(Application& app, int element) {
  if (!IsKnownFamily(app.firmware.version) || app.firmware.IsV1400()) return;
  const bool coded = LayoutOf(app.firmware) == Layout::kNewV13;
  app.image[REGTYPE_MINOR] = ByteToHex(coded ? Select_Sharp_V13(element) : element);
}

bool HasXmlBoard(const FirmwareId& firmware) {
  return (firmware.version == "V1300" && firmware.Number() >= 27) || firmware.version == "V1310";
}

void OpGilbraco_Click(Application& app, int element) {
  if (app.firmware.version != "V1300" && app.firmware.version != "V1310") return;
  ShowGilbarco(app, element);
  app.image[REGTYPE_MINOR] = ByteToHex(element);
}

// A main option: its code, then what it shows.
template <void (*kShow)(Application&, int)>
void StoreAndShow(Application& app, int element) {
  app.image[REGTYPE_MINOR] = ByteToHex(element);
  kShow(app, element);
}

// Choosing the first chosen element among the first `count` again.
void ChooseAgain(Application& app, OptionArray& array, int count) {
  if (array.chosen >= 0 && array.chosen < count) array.handler(app, array.chosen);
}

void Command1_Click(Application& app, int) {
  ChooseAgain(app, app.frmMain.CASIOOP, 35);
}

void SharpCom_Click(Application& app, int) {
  ChooseAgain(app, app.frmMain.SharpOP, 26);
}

void Command2_Click(Application& app, int) {
  ChooseAgain(app, app.frmMain.TECOP, 11);
}

struct ArrayHandler {
  OptionArray Form::*array;
  Handler handler;
};

constexpr Handler kMinor = StoreElement<REGTYPE_MINOR>;
constexpr Handler kExtension = StoreElement<REGTYPE_EXT2>;

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
    ArrayHandler{&Form::OpDYWAYE, OpDYWAYE_Click},
    ArrayHandler{&Form::OpSHARPUP600, OpSHARPUP600_Click},
    ArrayHandler{&Form::OpMicrelec, OpMicrelec_Click},
    ArrayHandler{&Form::OpMicrelec9500, OpMicrelec9500_Click},
    ArrayHandler{&Form::POSOP, POSOP_Click},
    ArrayHandler{&Form::TEROP, TEROP_Click},
    ArrayHandler{&Form::PRNOP, PRNOP_Click},
    ArrayHandler{&Form::SECUOP, SECUOP_Click},
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
  List Form::*list;
  Handler handler;
};

template <auto kList, FieldId kField>
constexpr ListHandler Plain() {
  return {kList, StorePosition<kList, kField>};
}

constexpr std::array kListHandlers = {
    Plain<&Form::ComboAddress, REGTYPE_MINOR>(),
    Plain<&Form::ComboAddr, REGTYPE_MINOR>(),
    Plain<&Form::ComboDisplay, REGTYPE_MINOR>(),
    Plain<&Form::ComboDeviceADD, REGTYPE_MINOR>(),
    Plain<&Form::ComboDIPMIXED, REGTYPE_MINOR>(),
    Plain<&Form::ComboNE134, REGTYPE_MINOR>(),
    Plain<&Form::ComboUni, REGTYPE_MINOR>(),
    Plain<&Form::Combo1, REGTYPE_EXT2>(),
    Plain<&Form::Combo4610TF6, REGTYPE_EXT2>(),
    Plain<&Form::IBMCombo, REGTYPE_EXT2>(),
    Plain<&Form::RDSCombo, REGTYPE_EXT2>(),
    Plain<&Form::ST6105C, REGTYPE_EXT2>(),
    Plain<&Form::ComboUniFor14R7up, REGTYPE_EXT2>(),
    Plain<&Form::ComboXML, REGTYPE_EXT2>(),
    Plain<&Form::ComboCLARITYEPOS, UNITADDR>(),
    Plain<&Form::ComboDeviceGas, GTITLE_NF_BAK>(),
    Plain<&Form::ComboCONSOLEID, DV_ADDRIND_BAK>(),
    ListHandler{&Form::ComboSICOM, ComboSICOM_Click},
    ListHandler{&Form::ComboWoring, ComboWoring_Click},
    ListHandler{&Form::ComboTITLEDIP, ComboTITLEDIP_Click},
};

template <class Lists>
void Handle(Lists& lists, Handler handler) {
  for (auto& list : lists) list.handler = handler;
}

}  // namespace

void WireRegisterOptions(MainForm& form) {
  for (const auto& row : kArrayHandlers) (form.*row.array).handler = row.handler;
  for (const auto& row : kListHandlers) (form.*row.list).handler = row.handler;
  Handle(form.ComboPana, ComboPana_Click);
  Handle(form.ComboTk500, ComboTk500_Click);
  Handle(form.ComboTE2200, ComboTE2200_Click);
  Handle(form.ComboTEC, ComboTEC_Click);
  Handle(form.ComboTCI_ID, ComboTCI_ID_Click);
  Handle(form.ComboUNI_ID, ComboUNI_ID_Click);
  Handle(form.ComboTCPIP, ComboTCPIP_Click);
  Handle(form.ComboTCPINFO, ComboTCPINFO_Click);
  form.Command1.handler = Command1_Click;
  form.SharpCom.handler = SharpCom_Click;
  form.Command2.handler = Command2_Click;
  form.cmdMicros.handler = cmdMicros_Click;
}

void ForceLine(Application& app, int member, int position) {
  AssignPosition(app, app.frmMain.ComboCOMM.at(static_cast<std::size_t>(member)), position, Raise::kAlways);
}

int AutoSpeed(const Application& app) {
  return app.firmware.IsV1400() ? 10 : 8;
}

void ShowIbm(Application& app, int element) {
  auto& form = app.frmMain;
  struct Companion {
    int element;
    List* list;
    bool label;
  };
  const std::array companions = {Companion{0, &form.IBMCombo, true}, Companion{4, &form.RDSCombo, true},
                                 Companion{8, &form.Combo4610TF6, false}};
  const int position = HexToInt(app.image[REGTYPE_EXT2]);
  form.IBMFrame.visible = false;
  for (const auto& companion : companions) companion.list->visible = false;
  for (const auto& companion : companions) {
    if (companion.element != element) continue;
    form.Label82[0].visible = companion.label;
    form.IBMFrame.visible = true;
    companion.list->visible = true;
    AssignPosition(app, *companion.list, position, Raise::kAlways);
  }
}

void ShowIcl(Application& app, int element) {
  auto& form = app.frmMain;
  const bool newer = element == 1;
  ChooseElement(app, newer ? form.POS50OP : form.TEAMOP, HexToInt(app.image[REGTYPE_EXT2]));
  form.POS2000.visible = !newer;
  form.POS5000.visible = newer;
}

void ShowNcr(Application& app, int element) {
  auto& form = app.frmMain;
  if (element == 1) ChooseElement(app, form.JRNLRCPT_SLP_OP, HexToInt(app.image[REGTYPE_EXT2]));
  form.NCRFrame.visible = element == 1;
}

void ShowNixdorf(Application& app, int element) {
  auto& form = app.frmMain;
  const bool beetle = element == 0;
  ChooseElement(app, beetle ? form.BEETLEOp : form.NIXDORF14OPSelect, HexToInt(app.image[REGTYPE_EXT2]));
  form.BEETLEFrm.visible = beetle;
  form.NIXDORFrm.visible = !beetle;
}

void ApplyUniwellFrame(Application& app, int element) {
  constexpr std::array kWithId = {1, 2, 6, 7, 10};
  bool shown = false;
  for (const int model : kWithId) shown = shown || model == element;
  app.frmMain.frmAddress[18].visible = shown;
}

void ShowGilbarco(Application& app, int element) {
  if (!HasXmlBoard(app.firmware)) return;
  auto& form = app.frmMain;
  const bool xml = element == 5;
  form.Label84.visible = xml;
  form.Label85.visible = xml;
  form.ComboXML.visible = xml;
  if (xml) AssignPosition(app, form.ComboXML, HexToInt(app.image[REGTYPE_EXT2]), Raise::kAlways);
}

int Select_Sharp_V13(int element) {
  constexpr std::array kCodes = {0, 1, 2, 3, 4, 6, 7, 8, 9, 5};
  return kCodes.at(static_cast<std::size_t>(element));
}

}  // namespace ovl
