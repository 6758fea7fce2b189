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
  ComboCOMM[0].items = {"RS-232", "PASSIVE TAP", "RS-485"};
  ComboCOMM[1].items = SpeedsAndAuto();
  ComboCOMM[2].items = SpeedsAndAuto();
  ComboCOMM[3].items = {"NONE", "EVEN", "ODD"};
  ComboCOMM[4].items = {"7", "8"};
  ComboCOMM[5].items = {"ON", "OFF"};
  ComboCOMM[6].items = {"ON", "OFF"};
  ComboCOMM[7].items = {"OVL-ADD", "ONET", "TRVX", "DALLMEIER"};
  ComboCOMM[8].items = {"NONE", "ACK/NAK", "XON/XOFF"};
  ComboCOMM[9].items = {"OFF", "MASTER", "SLAVE", "GENERIC"};
  ComboCOMM[10].items = HeadAndNumbers("N/A", 1, 16);
  ComboCOMM[11].items = {"REGCOM   9.6K", "REGCOM 57.6K", "ONET"};
  ComboCOMM[12].items = kSpeeds;

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
