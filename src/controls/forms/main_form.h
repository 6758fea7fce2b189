// The main form: seven tabs, the menus, the serial control and the timers of the link.
#pragma once

#include <array>
#include <vector>

#include "controls/controls.h"
#include "controls/forms/communication_panel.h"
#include "controls/forms/display_panel.h"
#include "controls/forms/register_options.h"
#include "controls/forms/text_panels.h"

namespace ovl::controls {

class Registry;

// The actions of the link. The value is the index of the button.
enum LinkAction { kUpload = 0, kDownload = 1, kSetTime = 2, kLoadHistory = 3, kRemote = 4, kMasterReset = 5 };

// One family of the Version menu: "V1400" and its releases.
struct VersionFamily {
  MenuItem parent;
  std::vector<std::size_t> items;  // positions in version_items
};

// The controls of the panels are members of the form: app.frmMain.ComboCOMM[3].
struct MainForm : RegisterOptions, CommunicationPanel, DisplayPanel, TextPanels {
  Form form;
  Tabs SSTab1;
  std::array<Label, 7> lbVersionID;

  // REGISTER SELECT
  List ComboReg;

  // TEXT SETUP, ALARM OUTPUTS, COMMUNICATION, EXCEPTION REPORT, TIME / LANGUAGE
  Frame Frame3, Frame8, Frame15, Frame4, Frame13, Frame6, Frame10, Frame7, Frame14, Frame5, Frame2, Frame12;

  OptionArray OpDVR;
  std::array<List, 4> ComboKLM4011;  // destination and source id of the second recorder, then of the third

  // REMOTE
  Frame Frame11, FrameDemo;
  std::array<Button, 6> CmdUpDow;
  Button cmdConnect, cmdDisConnect;
  Label lbConnectting, lbRemoteAccess;
  std::array<Picture, 4> Picture1;  // no access, hint for Upload, hint for Download, access
  std::array<Label, 2> Label64;     // downloading, uploading
  ProgressBar vbalProgressBar1;
  List ComboHR, ComboMin, ComboSec, ComboMonth, ComboYear;
  std::array<List, 4> ComboDay;  // for months of 28, 29, 30 and 31 days, all at the same place
  CheckBox CheckTD;

  // Menus
  MenuItem FileMenu, OpenMenu, menuSave, OpenHistory_menu, menuExit, VersionMenu, HelpMenu, menuAbout;
  std::vector<VersionFamily> version_families;
  std::vector<MenuItem> version_items;  // in the order of the firmware table

  std::map<int, Label> Label1;  // the labels that firmware/variants.h hides or renames

  SerialControl MSComm1;
  controls::Timer Timer;            // refreshes the clock lists
  controls::Timer General_timer;    // the unit must grant remote mode before its tick
  controls::Timer Time_handcheck;   // keep-alive
  controls::Timer Timer_Operating;  // silence watchdog

  MainForm();
  void Register(Registry& registry);

  // The five buttons that need remote mode. "Remote" is not one of them.
  void EnableActions(bool enabled);
};

}  // namespace ovl::controls
