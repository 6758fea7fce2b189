#include "panels/communication.h"

#include <array>
#include <optional>

#include "panels/panel.h"

namespace ovl::panels {
namespace {

using enum image::FieldId;

constexpr int kDataBitsBit = 2;
constexpr int kLinefeedBit = 3;
constexpr int kReportBit = 4;
constexpr int kHandshakeBit = 5;

// The interface codes in list order.
using InterfaceCodes = std::array<const char*, 3>;
constexpr InterfaceCodes kEarlyV1400Codes = {"0A", "19", "36"};
constexpr InterfaceCodes kLateV1400Codes = {"0E", "1D", "36"};
constexpr InterfaceCodes kOldV13Codes = {"0A", "19", "26"};
constexpr InterfaceCodes kNewV13Codes = {"0E", "1D", "26"};

std::optional<InterfaceCodes> CodesOf(const firmware::FirmwareId& firmware) {
  if (!firmware::IsKnownFamily(firmware.version)) return std::nullopt;
  const auto& release = firmware.release;
  if (firmware.IsV1400()) {
    const bool early = release == "R1" || release == "R2" || release == "R4" || release == "R6";
    return early ? kEarlyV1400Codes : kLateV1400Codes;
  }
  const bool old = (firmware.version == "V1300" && firmware.Number() < 26) ||
                   (firmware.version == "V1324" && firmware.Number() < 25);
  return old ? kOldV13Codes : kNewV13Codes;
}

// The members that store their position in a field of their own.
struct PositionField {
  int member;
  image::FieldId field;
};
constexpr std::array kPositionFields = {
    PositionField{1, RX_BAUDRATE},   PositionField{2, TX_BAUDRATE},   PositionField{7, TX_PROTOCOL},
    PositionField{8, SW_HANDSHAKE},  PositionField{9, NET_TYPE},      PositionField{10, NET_ADDRESS},
    PositionField{11, NET_PROTOCOL}, PositionField{12, NET_BAUDRATE},
};

controls::List& Member(core::Application& app, int member) {
  return app.frmMain.ComboCOMM.at(static_cast<std::size_t>(member));
}

void ApplyField(core::Application& app, int member, image::FieldId field) {
  AssignPosition(app, Member(app, member), codecs::HexToInt(app.image[field]));
}

void ApplyFlags(core::Application& app) {
  const int flags = codecs::HexToInt(app.image[COMMCFG_BAK]);
  const bool parity = HasBit(flags, 1);
  AssignPosition(app, Member(app, 3), !parity ? 0 : (HasBit(flags, 0) ? 1 : 2));
  AssignPosition(app, Member(app, 4), HasBit(flags, kDataBitsBit) ? 1 : 0);
  AssignPosition(app, Member(app, 6), HasBit(flags, kLinefeedBit) ? 0 : 1);
  AssignPosition(app, Member(app, 5), HasBit(flags, kHandshakeBit) ? 0 : 1);
  AssignPosition(app, app.frmMain.ComboExcepRe[0], HasBit(flags, kReportBit) ? 1 : 0);
}

void ApplyInterfaceType(core::Application& app) {
  const auto codes = CodesOf(app.firmware);
  if (!codes) return;
  for (int position = 0; position < static_cast<int>(codes->size()); ++position) {
    if (app.image[IOCFG_BAK] != (*codes)[static_cast<std::size_t>(position)]) continue;
    AssignPosition(app, Member(app, 0), position);
    return;
  }
}

// The flags after a click of one of the four members that live in them. The line feed follows the handshake's
// selection, not its own: the unit's images were made that way.
int GatherFlags(core::Application& app, int member, int flags) {
  switch (member) {
    case 3: {
      constexpr std::array kParityBits = {0, 3, 2};
      return (flags & ~3) | kParityBits.at(static_cast<std::size_t>(Member(app, 3).position));
    }
    case 4:
      return WithSelection(flags, kDataBitsBit, Member(app, 4));
    case 5:
      return WithBit(flags, kHandshakeBit, Member(app, 5).position == 0);
    case 6:
      return WithSelection(flags, kLinefeedBit, Member(app, 5));
    default:
      return flags;
  }
}

}  // namespace

void GatherInterfaceType(core::Application& app) {
  const auto codes = CodesOf(app.firmware);
  const int position = Member(app, 0).position;
  if (codes && position >= 0) app.image[IOCFG_BAK] = codes->at(static_cast<std::size_t>(position));
}

void ApplyCommunication(core::Application& app) {
  const PanelsQuiet quiet(app);
  ApplyFlags(app);
  ApplyInterfaceType(app);
  ApplyField(app, 1, RX_BAUDRATE);
  ApplyField(app, 2, TX_BAUDRATE);
  if (!app.firmware.IsV1400()) return;
  ApplyField(app, 10, NET_ADDRESS);
  ApplyField(app, 9, NET_TYPE);
  ApplyField(app, 11, NET_PROTOCOL);
  ApplyField(app, 7, TX_PROTOCOL);
  ApplyField(app, 8, SW_HANDSHAKE);
  ApplyField(app, 12, NET_BAUDRATE);
  ApplyNetworkRules(app);
}

void ComboCOMM_Click(core::Application& app, int index) {
  if (!app.PanelsReady) return;
  const int flags = GatherFlags(app, index, codecs::HexToInt(app.image[COMMCFG_BAK]));
  if (index == 0) GatherInterfaceType(app);
  for (const auto& row : kPositionFields) {
    if (row.member == index) app.image[row.field] = codecs::ByteToHex(Member(app, index).position);
  }
  if (index == 9) ApplyNetworkRules(app);
  if (index == 11) ApplyProtocolBaud(app);
  app.image[COMMCFG_BAK] = codecs::ByteToHex(flags);
  RefreshSavedIndexes(app, "ComboCOMM", app.frmMain.ComboCOMM);
}

void ApplyNetworkRules(core::Application& app) {
  auto& form = app.frmMain;
  constexpr int kMaster = 1;
  constexpr int kSlave = 2;
  const int type = Member(app, 9).position;
  if (type < 0) return;
  const bool master = type == kMaster;
  const bool chained = master || type == kSlave;
  const auto firmware = app.firmware.Joined();
  const bool fixed_address = master ? firmware == "V1400R1" || firmware == "V1400R2" : !chained;
  form.ComboNone[0].visible = !master;
  form.ComboNone[1].visible = fixed_address;
  form.ComboNone[2].visible = !chained;
  if (type != kSlave) AssignPosition(app, Member(app, 10), 0);
  if (chained) ApplyProtocolBaud(app);
  Member(app, 12).enabled = !chained;
}

void ApplyProtocolBaud(core::Application& app) {
  constexpr std::array kSpeeds = {3, 8, 5};
  const int protocol = Member(app, 11).position;
  if (protocol < 0) return;
  AssignPosition(app, Member(app, 12), kSpeeds.at(static_cast<std::size_t>(protocol)));
}

}  // namespace ovl::panels
