#include "panels/communication.h"

#include <array>

#include "firmware/traits.h"
#include "image/slot_records.h"
#include "panels/panel.h"

namespace ovl::panels {
namespace {

using enum image::FieldId;
using core::Place;
using enum core::ValueDisplay;
using controls::Comm;

constexpr int kDataBitsBit = 2;
constexpr int kLinefeedBit = 3;
constexpr int kHandshakeBit = 5;

// The lists whose position is a field of its own.
struct PositionField {
  int member;
  image::FieldId field;
};
constexpr std::array kPositionFields = {
    PositionField{Comm::kReceiveSpeed, RX_BAUDRATE}, PositionField{Comm::kSendSpeed, TX_BAUDRATE},
    PositionField{Comm::kProtocol, TX_PROTOCOL},     PositionField{Comm::kSoftHandshake, SW_HANDSHAKE},
    PositionField{Comm::kNetType, NET_TYPE},         PositionField{Comm::kNetAddress, NET_ADDRESS},
    PositionField{Comm::kNetProtocol, NET_PROTOCOL}, PositionField{Comm::kNetSpeed, NET_BAUDRATE},
};

controls::List& Member(core::Application& app, int member) {
  return app.frmMain.ComboCOMM.at(static_cast<std::size_t>(member));
}

void ApplyField(core::Application& app, int member, image::FieldId field) {
  AssignPosition(app, Member(app, member), codecs::HexToInt(app.image[field]));
}

void ApplyFlags(core::Application& app) {
  const int flags = codecs::HexToInt(app.image[COMMCFG_BAK]);
  AssignPosition(app, Member(app, Comm::kParity), image::ParityEntry(flags));
  AssignPosition(app, Member(app, Comm::kDataBits), codecs::HasBit(flags, kDataBitsBit) ? 1 : 0);
  AssignPosition(app, Member(app, Comm::kLinefeed), codecs::HasBit(flags, kLinefeedBit) ? 0 : 1);
  AssignPosition(app, Member(app, Comm::kHandshake), codecs::HasBit(flags, kHandshakeBit) ? 0 : 1);
  AssignPosition(app, app.frmMain.ComboExcepRe[controls::ExcepRe::kOutput],
                 codecs::HasBit(flags, image::kReportBit) ? 1 : 0);
}

void ApplyInterfaceType(core::Application& app) {
  const auto* codes = firmware::InterfaceCodesOf(app.firmware);
  if (codes == nullptr) return;
  for (int position = 0; position < static_cast<int>(codes->size()); ++position) {
    if (app.image[IOCFG_BAK] != (*codes)[static_cast<std::size_t>(position)]) continue;
    AssignPosition(app, Member(app, Comm::kInterface), position);
    return;
  }
}

// The flags after a click on one of the four lists that are stored in them. The bit for the line feed follows
// the handshake list and not its own list. It stays so, because the images of the units were made that way.
int GatherFlags(core::Application& app, int member, int flags) {
  switch (member) {
    case Comm::kParity:
      return image::WithParityEntry(flags, Member(app, Comm::kParity).position);
    case Comm::kDataBits:
      return WithSelection(flags, kDataBitsBit, Member(app, Comm::kDataBits));
    case Comm::kHandshake:
      return codecs::WithBit(flags, kHandshakeBit, Member(app, Comm::kHandshake).position == 0);
    case Comm::kLinefeed:
      return WithSelection(flags, kLinefeedBit, Member(app, Comm::kHandshake));
    default:
      return flags;
  }
}

constexpr std::array kEditors = {
    core::Editor{COMMCFG_BAK, Place::kCommunication, "ComboCOMM(3)", 0x03, kParity},
    core::Editor{COMMCFG_BAK, Place::kCommunication, "ComboCOMM(4)", 0x04, kSetIsOn},
    core::Editor{COMMCFG_BAK, Place::kCommunication, "ComboCOMM(5)", 0x20, kSetIsOff},
    core::Editor{COMMCFG_BAK, Place::kCommunication, "ComboCOMM(6)", 0x08, kSetIsOff},
    core::Editor{IOCFG_BAK, Place::kCommunication, "ComboCOMM(0)", core::kWholeByte, kPicked},
    core::Editor{RX_BAUDRATE, Place::kCommunication, "ComboCOMM(1)", core::kWholeByte, kPicked},
    core::Editor{TX_BAUDRATE, Place::kCommunication, "ComboCOMM(2)", core::kWholeByte, kPicked},
    core::Editor{NET_ADDRESS, Place::kCommunication, "ComboCOMM(10)", core::kWholeByte, kPicked},
    core::Editor{NET_TYPE, Place::kCommunication, "ComboCOMM(9)", core::kWholeByte, kPicked},
    core::Editor{NET_PROTOCOL, Place::kCommunication, "ComboCOMM(11)", core::kWholeByte, kPicked},
    core::Editor{TX_PROTOCOL, Place::kCommunication, "ComboCOMM(7)", core::kWholeByte, kPicked},
    core::Editor{NET_BAUDRATE, Place::kCommunication, "ComboCOMM(12)", core::kWholeByte, kPicked},
    core::Editor{SW_HANDSHAKE, Place::kCommunication, "ComboCOMM(8)", core::kWholeByte, kPicked},
};

}  // namespace

void GatherInterfaceType(core::Application& app) {
  const auto* codes = firmware::InterfaceCodesOf(app.firmware);
  const int position = Member(app, Comm::kInterface).position;
  if (codes != nullptr && position >= 0) app.image[IOCFG_BAK] = codes->at(static_cast<std::size_t>(position));
}

void ApplyCommunication(core::Application& app) {
  const PanelsQuiet quiet(app);
  ApplyFlags(app);
  ApplyInterfaceType(app);
  ApplyField(app, Comm::kReceiveSpeed, RX_BAUDRATE);
  ApplyField(app, Comm::kSendSpeed, TX_BAUDRATE);
  if (!firmware::HasNetwork(app.firmware)) return;
  ApplyField(app, Comm::kNetAddress, NET_ADDRESS);
  ApplyField(app, Comm::kNetType, NET_TYPE);
  ApplyField(app, Comm::kNetProtocol, NET_PROTOCOL);
  ApplyField(app, Comm::kProtocol, TX_PROTOCOL);
  ApplyField(app, Comm::kSoftHandshake, SW_HANDSHAKE);
  ApplyField(app, Comm::kNetSpeed, NET_BAUDRATE);
  ApplyNetworkRules(app);
}

void ComboCOMM_Click(core::Application& app, int index) {
  if (!app.PanelsReady) return;
  const int flags = GatherFlags(app, index, codecs::HexToInt(app.image[COMMCFG_BAK]));
  if (index == Comm::kInterface) GatherInterfaceType(app);
  for (const auto& row : kPositionFields) {
    if (row.member == index) app.image[row.field] = codecs::ByteToHex(Member(app, index).position);
  }
  if (index == Comm::kNetType) ApplyNetworkRules(app);
  if (index == Comm::kNetProtocol) ApplyProtocolBaud(app);
  app.image[COMMCFG_BAK] = codecs::ByteToHex(flags);
  RefreshSavedIndexes(app, "ComboCOMM", app.frmMain.ComboCOMM);
}

void ApplyNetworkRules(core::Application& app) {
  auto& form = app.frmMain;
  constexpr int kMaster = 1;
  constexpr int kSlave = 2;
  const int type = Member(app, Comm::kNetType).position;
  if (type < 0) return;
  const bool master = type == kMaster;
  const bool chained = master || type == kSlave;
  const bool fixed_address = master ? firmware::HasFixedMasterAddress(app.firmware) : !chained;
  form.ComboNone[0].visible = !master;
  form.ComboNone[1].visible = fixed_address;
  form.ComboNone[2].visible = !chained;
  if (type != kSlave) AssignPosition(app, Member(app, Comm::kNetAddress), 0);
  if (chained) ApplyProtocolBaud(app);
  Member(app, Comm::kNetSpeed).enabled = !chained;
}

void ApplyProtocolBaud(core::Application& app) {
  constexpr std::array kSpeeds = {3, 8, 5};
  const int protocol = Member(app, Comm::kNetProtocol).position;
  if (protocol < 0) return;
  AssignPosition(app, Member(app, Comm::kNetSpeed), kSpeeds.at(static_cast<std::size_t>(protocol)));
}

std::span<const core::Editor> CommunicationEditors() {
  return kEditors;
}

}  // namespace ovl::panels
