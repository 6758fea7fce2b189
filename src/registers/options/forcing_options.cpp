#include "registers/options/forcing_options.h"

#include <array>

#include "core/actions.h"
#include "firmware/traits.h"

namespace ovl::registers {
namespace {

using enum image::FieldId;
using controls::Comm;

constexpr int kBaud1200 = 0;
constexpr int kBaud2400 = 1;
constexpr int kBaud4800 = 2;
constexpr int kBaud9600 = 3;
constexpr int kBaud19200 = 5;

// Sets a line setting that the register's protocol needs. The handler of the selection runs in any case.
void ForceLine(core::Application& app, int member, int position) {
  AssignPosition(app, app.frmMain.ComboCOMM.at(static_cast<std::size_t>(member)), position,
                 core::Raise::kAlways);
}

void ForceSpeeds(core::Application& app, int receive, int transmit) {
  ForceLine(app, Comm::kReceiveSpeed, receive);
  ForceLine(app, Comm::kSendSpeed, transmit);
}

void ForceReport(core::Application& app, int position) {
  AssignPosition(app, app.frmMain.ComboExcepRe[controls::ExcepRe::kOutput], position, core::Raise::kAlways);
}

void StoreSpeeds(core::Application& app, int receive, int transmit) {
  app.image[RX_BAUDRATE] = codecs::ByteToHex(receive);
  app.image[TX_BAUDRATE] = codecs::ByteToHex(transmit);
}

void ComboSICOM_Click(core::Application& app, int) {
  app.image[REGTYPE_MINOR] = codecs::ByteToHex(app.frmMain.ComboSICOM.position);
  ForceSpeeds(app, firmware::AutoSpeedPosition(app.firmware), kBaud9600);
}

// The first list holds the fixed model name, the second one the mode.
void StoreMode(core::Application& app, int index, int position, std::array<int, 2> tapping,
               std::array<int, 2> emulating) {
  if (index != 1) return;
  app.image[REGTYPE_MINOR] = codecs::ByteToHex(position);
  const auto& speeds = position == 0 ? tapping : emulating;
  ForceSpeeds(app, speeds[0], speeds[1]);
}

void ComboTk500_Click(core::Application& app, int index) {
  StoreMode(app, index, app.frmMain.ComboTk500[1].position,
            {firmware::AutoSpeedPosition(app.firmware), kBaud9600}, {kBaud19200, kBaud19200});
}

void ComboTE2200_Click(core::Application& app, int index) {
  StoreMode(app, index, app.frmMain.ComboTE2200[1].position,
            {firmware::AutoSpeedPosition(app.firmware), kBaud9600}, {kBaud19200, kBaud19200});
}

// The tapping speed is this position in every family, although the entries of the lists differ there.
void ComboTEC_Click(core::Application& app, int index) {
  constexpr int kTappingSpeed = 8;
  StoreMode(app, index, app.frmMain.ComboTEC[1].position, {kTappingSpeed, kBaud9600}, {kBaud4800, kBaud4800});
}

void OpDYWAYE_Click(core::Application& app, int element) {
  app.image[REGTYPE_MINOR] = codecs::ByteToHex(element);
  ForceSpeeds(app, element < 2 ? firmware::AutoSpeedPosition(app.firmware) : kBaud9600, kBaud9600);
}

void OpSHARPUP600_Click(core::Application& app, int element) {
  app.image[REGTYPE_MINOR] = codecs::ByteToHex(element);
  ForceSpeeds(app, element == 0 ? firmware::AutoSpeedPosition(app.firmware) : kBaud9600, kBaud9600);
}

// For the next four options the speed list shows the forced position, and the field then gets the unit's own
// speed code.
void ComboPana_Click(core::Application& app, int index) {
  if (index == 0) {
    app.image[GTITLE_NF_BAK] = codecs::ByteToHex(app.frmMain.ComboPana[0].position);
    return;
  }
  const bool tap = app.frmMain.ComboPana[1].position == 0;
  ForceSpeeds(app, kBaud9600, kBaud9600);
  ForceReport(app, tap ? 1 : 0);
  app.image[REGTYPE_MINOR] = tap ? "00" : "01";
  StoreSpeeds(app, 3, tap ? 1 : 3);
}

void ComboWoring_Click(core::Application& app, int) {
  const bool tap = app.frmMain.ComboWoring.position == 0;
  ForceSpeeds(app, kBaud4800, tap ? kBaud2400 : kBaud4800);
  ForceReport(app, tap ? 1 : 0);
  app.image[REGTYPE_MINOR] = tap ? "00" : "01";
  StoreSpeeds(app, 2, tap ? 1 : 2);
}

void OpMicrelec_Click(core::Application& app, int element) {
  ForceSpeeds(app, kBaud19200, kBaud2400);
  ForceLine(app, Comm::kParity, 1);
  ForceLine(app, Comm::kDataBits, 0);
  app.image[REGTYPE_MINOR] = "00";
  app.image[UNITADDR] = codecs::ByteToHex(element);
  StoreSpeeds(app, 4, 1);
}

void OpMicrelec9500_Click(core::Application& app, int element) {
  ForceSpeeds(app, kBaud9600, kBaud2400);
  ForceLine(app, Comm::kParity, 0);
  ForceLine(app, Comm::kDataBits, 0);
  app.image[REGTYPE_MINOR] = "01";
  app.image[UNITADDR] = codecs::ByteToHex(element);
  StoreSpeeds(app, 3, 1);
}

void ComboTITLEDIP_Click(core::Application& app, int) {
  const int position = app.frmMain.ComboTITLEDIP.position;
  app.image[GTITLE_NF_BAK] = codecs::ByteToHex(position);
  AssignPosition(app, app.frmMain.ComboTD[controls::Td::kTitler], position == 0 ? 0 : 1,
                 core::Raise::kAlways);
}

constexpr int kAutoOfModels = 10;

void ForceInterface(core::Application& app, int type, int receive) {
  ForceLine(app, Comm::kInterface, type);
  ForceSpeeds(app, receive, kBaud9600);
}

void POSOP_Click(core::Application& app, int element) {
  app.image[REGTYPE_MINOR] = "00";
  app.image[REGTYPE_EXT2] = codecs::ByteToHex(element);
  ForceInterface(app, 1, kAutoOfModels);
}

void TEROP_Click(core::Application& app, int element) {
  app.image[REGTYPE_MINOR] = "01";
  app.image[REGTYPE_EXT1] = "00";
  app.image[REGTYPE_EXT2] = codecs::ByteToHex(element);
  ForceInterface(app, 0, kBaud9600);
}

void PRNOP_Click(core::Application& app, int element) {
  app.image[REGTYPE_MINOR] = "01";
  app.image[REGTYPE_EXT1] = "01";
  app.image[REGTYPE_EXT2] = codecs::ByteToHex(element);
  ForceInterface(app, 0, kAutoOfModels);
}

void SECUOP_Click(core::Application& app, int) {
  app.image[REGTYPE_MINOR] = "01";
  app.image[REGTYPE_EXT1] = "02";
  ForceInterface(app, 0, kAutoOfModels);
}

// The lists run from the last digit to the first.
void StoreDigit(core::Application& app, const std::array<controls::List, 3>& lists, int index) {
  constexpr std::array kFields = {TCIADDBAK_3, TCIADDBAK_2, TCIADDBAK_1};
  const auto place = static_cast<std::size_t>(index);
  app.image[kFields.at(place)] = "0" + lists.at(place).Text();
}

void ComboTCI_ID_Click(core::Application& app, int index) {
  StoreDigit(app, app.frmMain.ComboTCI_ID, index);
  ForceLine(app, Comm::kInterface, 0);
  ForceSpeeds(app, kBaud1200, kBaud2400);
  ForceLine(app, Comm::kParity, 0);
  ForceLine(app, Comm::kDataBits, 1);
}

void ComboUNI_ID_Click(core::Application& app, int index) {
  StoreDigit(app, app.frmMain.ComboUNI_ID, index);
}

}  // namespace

void WireForcingOptions(controls::RegisterOptions& form) {
  form.OpDYWAYE.handler = OpDYWAYE_Click;
  form.OpSHARPUP600.handler = OpSHARPUP600_Click;
  form.OpMicrelec.handler = OpMicrelec_Click;
  form.OpMicrelec9500.handler = OpMicrelec9500_Click;
  form.POSOP.handler = POSOP_Click;
  form.TEROP.handler = TEROP_Click;
  form.PRNOP.handler = PRNOP_Click;
  form.SECUOP.handler = SECUOP_Click;
  form.ComboSICOM.handler = ComboSICOM_Click;
  form.ComboWoring.handler = ComboWoring_Click;
  form.ComboTITLEDIP.handler = ComboTITLEDIP_Click;
  core::HandleAll(form.ComboPana, ComboPana_Click);
  core::HandleAll(form.ComboTk500, ComboTk500_Click);
  core::HandleAll(form.ComboTE2200, ComboTE2200_Click);
  core::HandleAll(form.ComboTEC, ComboTEC_Click);
  core::HandleAll(form.ComboTCI_ID, ComboTCI_ID_Click);
  core::HandleAll(form.ComboUNI_ID, ComboUNI_ID_Click);
}

}  // namespace ovl::registers
