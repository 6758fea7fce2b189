#include "controls/forms/main_form.h"

#include <span>

#include "controls/design.h"
#include "controls/registry.h"

namespace ovl::controls {
namespace {

constexpr int kClockRefresh = 100;
constexpr int kGrantLimit = 300;
constexpr int kSecond = 1000;

void DesignFrames(MainForm& form) {
  form.Frame3.caption = "Text Display Settings";
  form.Frame8.caption = "Alarm Outputs";
  form.Frame15.caption = "TRIGGERED TEXT";
  form.Frame4.caption = "Register Settings";
  form.Frame13.caption = "Network Settings";
  form.Frame6.caption = "Set Exception";
  form.Frame7.caption = "Exception Report";
  form.Frame14.caption = "Scroll Matching";
  form.Frame5.caption = "DVR Selection";
  form.Frame2.caption = "Time / Date Settings";
  form.Frame12.caption = "Language Settings";
  form.Frame11.caption = "Remote Function";
  form.FrameDemo.caption = "Register Demo";
  for (auto& frame : form.frmAddress) frame.visible = false;
}

void DesignDvr(MainForm& form) {
  SetElements(form.OpDVR, {"KLM-4001", "KLR-4011, 4021", "TRVX3000/TRVX5000"});
  form.OpDVR.caption = form.Frame5.caption;
  for (auto& list : form.ComboKLM4011) {
    list.items = Numbers(1, 32);
    list.enabled = false;
  }
}

void DesignLink(MainForm& form) {
  SetCaptions(form.CmdUpDow, {"Upload", "Download", "SET TIME", "LOAD HISTORY", "Remote", "MASTER RESET"});
  form.CmdUpDow[kMasterReset].visible = false;
  form.cmdConnect.caption = "Set Comport";
  form.cmdDisConnect.caption = "Disconnect";
  form.cmdDisConnect.visible = false;
  form.lbConnectting.caption = "Not Connected";
  form.lbRemoteAccess.caption = "No Access";
  for (std::size_t picture = 1; picture < form.Picture1.size(); ++picture)
    form.Picture1[picture].visible = false;
  SetCaptions(form.Label64, {"Downloading . . .", "Uploading . . ."});
  for (auto& label : form.Label64) label.visible = false;
  form.vbalProgressBar1.visible = false;
}

void DesignClock(MainForm& form) {
  form.ComboHR.items = Numbers(0, 23, 2);
  form.ComboMin.items = Numbers(0, 59, 2);
  form.ComboSec.items = Numbers(0, 59, 2);
  form.ComboMonth.items = Numbers(1, 12, 2);
  form.ComboYear.items = Numbers(0, 99, 2);
  int days = 28;
  for (auto& list : form.ComboDay) list.items = Numbers(1, days++, 2);
  form.CheckTD.caption = "Use Current Time Date";
  form.CheckTD.checked = true;
  form.Timer.interval = kClockRefresh;
  form.General_timer.interval = kGrantLimit;
  form.Time_handcheck.interval = kSecond;
  form.Timer_Operating.interval = kSecond;
}

// The labels with a number and the lists beside them.
void DesignLabels(MainForm& form) {
  const auto label = [&](int number, List& list) { form.Label1[number].caption = list.caption; };
  const auto labels = [&](int first, const auto& lists) {
    for (const auto& list : lists) form.Label1[first++].caption = list.caption;
  };
  label(0, form.ComboTD[0]), label(8, form.ComboTD[5]);
  form.ComboKLM4011[0].caption = form.ComboKLM4011[2].caption = "DEST ID";
  form.ComboKLM4011[1].caption = form.ComboKLM4011[3].caption = "SRC ID";
  labels(12, form.ComboKLM4011);
  for (const int number : {12, 13, 14, 15}) form.Label1[number].enabled = false;
  labels(20, std::span(form.ComboExcp).subspan(1, 4));
  form.Label1[23].visible = false;
  labels(24, form.ComboExcepRe);
  label(32, form.ComboCOMM[7]), label(33, form.ComboCOMM[3]), label(34, form.ComboCOMM[4]);
  label(35, form.ComboCOMM[5]), label(36, form.ComboCOMM[8]), label(37, form.ComboCOMM[6]);
  labels(46, std::span(form.ComboALM).subspan(4));
  form.Label1[49].visible = false;
  labels(50, form.ComboTrigger);
  labels(54, form.ComboDIP);
}

void DesignMenus(MainForm& form) {
  form.FileMenu.caption = "File";
  form.OpenMenu.caption = "Open";
  form.menuSave.caption = "Save";
  form.OpenHistory_menu.caption = "Open History";
  form.menuExit.caption = "Exit";
  form.VersionMenu.caption = "Version";
  form.HelpMenu.caption = "Help";
  form.menuAbout.caption = "About";
}

}  // namespace

MainForm::MainForm() {
  form.name = "frmMain";
  form.caption = "OVL Software";
  SSTab1.captions = {" REGISTER SELECT ", "    TEXT SETUP   ", "  ALARM OUTPUTS  ", "   COMMUNICATION ",
                     " EXCEPTION REPORT", " TIME / LANGUAGE ", "      REMOTE     "};
  for (auto& label : lbVersionID) label.caption = "Version ID";
  ComboReg.caption = "Register";
  DesignFrames(*this);
  DesignDvr(*this);
  DesignLink(*this);
  DesignClock(*this);
  DesignLabels(*this);
  DesignMenus(*this);
}

void MainForm::Register(Registry& registry) {
  registry.AddForm(form);
  const auto add = [&](const char* name, auto& control) { registry.Add(form, name, control); };
  const auto add_array = [&](const char* name, auto& controls) { registry.AddArray(form, name, controls); };

  add("SSTab1", SSTab1);
  add_array("lbVersionID", lbVersionID);
  add("ComboReg", ComboReg);
  add_array("frmAddress", frmAddress);
  add("Frame2", Frame2), add("Frame3", Frame3), add("Frame4", Frame4), add("Frame5", Frame5);
  add("Frame6", Frame6), add("Frame7", Frame7), add("Frame8", Frame8), add("Frame10", Frame10);
  add("Frame11", Frame11), add("Frame12", Frame12), add("Frame13", Frame13), add("Frame14", Frame14);
  add("Frame15", Frame15), add("FrameDemo", FrameDemo);

  RegisterOptions::Register(registry, form);
  CommunicationPanel::Register(registry, form);
  DisplayPanel::Register(registry, form);
  TextPanels::Register(registry, form);
  for (auto& [number, label] : Label1) registry.Add(form, "Label1(" + std::to_string(number) + ")", label);
  registry.AddOptions(form, "OpDVR", OpDVR);
  add_array("ComboKLM4011", ComboKLM4011);

  add_array("CmdUpDow", CmdUpDow);
  add("cmdConnect", cmdConnect), add("cmdDisConnect", cmdDisConnect);
  add("lbConnectting", lbConnectting), add("lbRemoteAccess", lbRemoteAccess);
  add_array("Picture1", Picture1);
  add_array("Label64", Label64);
  add("vbalProgressBar1", vbalProgressBar1);
  add("ComboHR", ComboHR), add("ComboMin", ComboMin), add("ComboSec", ComboSec);
  add("ComboMonth", ComboMonth), add("ComboYear", ComboYear);
  add_array("ComboDay", ComboDay);
  add("CheckTD", CheckTD);

  add("FileMenu", FileMenu), add("OpenMenu", OpenMenu), add("menuSave", menuSave);
  add("OpenHistory_menu", OpenHistory_menu), add("menuExit", menuExit);
  add("VersionMenu", VersionMenu), add("HelpMenu", HelpMenu), add("menuAbout", menuAbout);
  add("Timer", Timer), add("General_timer", General_timer);
  add("Time_handcheck", Time_handcheck), add("Timer_Operating", Timer_Operating);
}

void MainForm::EnableActions(bool enabled) {
  for (const int action : {kUpload, kDownload, kSetTime, kLoadHistory, kMasterReset}) {
    CmdUpDow[static_cast<std::size_t>(action)].enabled = enabled;
  }
}

}  // namespace ovl::controls
