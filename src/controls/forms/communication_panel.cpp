#include "controls/forms/communication_panel.h"

#include "controls/design.h"
#include "controls/registry.h"

namespace ovl::controls {
namespace {

const std::vector<std::string> kSpeeds = {"1200",  "2400",  "4800",  "9600",  "14400",
                                          "19200", "28800", "38400", "57600", "115200"};

std::vector<std::string> SpeedsAndAuto() {
  auto speeds = kSpeeds;
  speeds.push_back("AUTO");
  return speeds;
}

}  // namespace

CommunicationPanel::CommunicationPanel() {
  SetCaptions(ComboCOMM,
              {"INTERFACE TYPE", "RX BAUDRATE", "TX BAUDRATE", "PARITY", "DATA BITS", "HW HANDSHAKING",
               "AUTO LINEFEED", "TX PROTOCOL", "SW HANDSHAKING", "TYPE", "ADDRESS", "PROTOCOL", "BAUD RATE"});
  ComboCOMM[Comm::kInterface].items = {"RS-232", "PASSIVE TAP", "RS-485"};
  ComboCOMM[Comm::kReceiveSpeed].items = SpeedsAndAuto();
  ComboCOMM[Comm::kSendSpeed].items = SpeedsAndAuto();
  ComboCOMM[Comm::kParity].items = {"NONE", "EVEN", "ODD"};
  ComboCOMM[Comm::kDataBits].items = {"7", "8"};
  ComboCOMM[Comm::kHandshake].items = {"ON", "OFF"};
  ComboCOMM[Comm::kLinefeed].items = {"ON", "OFF"};
  ComboCOMM[Comm::kProtocol].items = {"OVL-ADD", "ONET", "TRVX", "DALLMEIER"};
  ComboCOMM[Comm::kSoftHandshake].items = {"NONE", "ACK/NAK", "XON/XOFF"};
  ComboCOMM[Comm::kNetType].items = {"OFF", "MASTER", "SLAVE", "GENERIC"};
  ComboCOMM[Comm::kNetAddress].items = HeadAndNumbers("N/A", 1, 16);
  ComboCOMM[Comm::kNetProtocol].items = {"REGCOM   9.6K", "REGCOM 57.6K", "ONET"};
  ComboCOMM[Comm::kNetSpeed].items = kSpeeds;

  SetCaptions(ComboNone, {"TX PROTOCOL", "ADDRESS", "PROTOCOL"});
  ComboNone[0].text = "ASCII";
  ComboNone[1].text = "N/A";
  ComboNone[2].text = "N/A";
  for (auto& overlay : ComboNone) overlay.read_only = true;
}

void CommunicationPanel::Register(Registry& registry, Form& form) {
  registry.AddArray(form, "ComboCOMM", ComboCOMM);
  registry.AddArray(form, "ComboNone", ComboNone);
}

}  // namespace ovl::controls
