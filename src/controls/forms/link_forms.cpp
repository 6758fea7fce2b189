#include "controls/forms/link_forms.h"

#include "controls/design.h"
#include "controls/registry.h"

namespace ovl::controls {
namespace {

constexpr int kPorts = 16;
constexpr int kScanPlaces = 10;
constexpr int kScanInterval = 1000;

}  // namespace

PortSettingsForm::PortSettingsForm() {
  form.name = "frmSettSR";
  form.holds_main = true;
  form.caption = "Communication Setting";
  comport_frame.caption = "Comport";
  baudrate_frame.caption = "Baudrate";
  data_bits_frame.caption = "Data Bits";
  parity_frame.caption = "Parity";
  for (auto& number : Numbers(1, kPorts)) Comport_Select.items.push_back("Comport " + number);
  SetElements(OpBaud,
              {"1200", "2400", "4800", "9600", "14400", "19200", "28800", "38400", "57600", "115200"});
  SetElements(OpDataBits, {"7 Bits", "8 Bits"});
  SetElements(OpParity, {"NONE", "ODD", "EVEN"});
  cmdSET.caption = "SET";
  BaudrateCMD.caption = "Baudrate Scan";
  BaudRateScan.interval = kScanInterval;
  Label1.caption = "Make sure you are select correct the comport.";
}

void PortSettingsForm::Register(Registry& registry) {
  registry.AddForm(form);
  registry.Add(form, "Comport_Select", Comport_Select);
  registry.AddOptions(form, "OpBaud", OpBaud);
  registry.AddOptions(form, "OpDataBits", OpDataBits);
  registry.AddOptions(form, "OpParity", OpParity);
  registry.Add(form, "cmdSET", cmdSET);
  registry.Add(form, "BaudrateCMD", BaudrateCMD);
  registry.Add(form, "BaudRateScan", BaudRateScan);
  registry.Add(form, "Label1", Label1);
}

ScanProgressForm::ScanProgressForm() {
  form.name = "frmScanBProgress";
  form.caption = "Scan Baudrate";
  Label1.caption = "Baudrate Scaning..";
  ScanProgressBar1.maximum = kScanPlaces;
  Command1.caption = "Cancel";
}

void ScanProgressForm::Register(Registry& registry) {
  registry.AddForm(form);
  registry.Add(form, "Label1", Label1);
  registry.Add(form, "ScanProgressBar1", ScanProgressBar1);
  registry.Add(form, "Command1", Command1);
}

TransferEndForm::TransferEndForm() {
  form.name = "frmOK_buttom";
  form.holds_main = true;
  form.caption = "Program Download";
  Label1.caption = kDesignText;
  Command1.caption = "OK";
}

void TransferEndForm::Register(Registry& registry) {
  registry.AddForm(form);
  registry.Add(form, "Label1", Label1);
  registry.Add(form, "Command1", Command1);
}

}  // namespace ovl::controls
