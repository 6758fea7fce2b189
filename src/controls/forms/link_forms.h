// The small windows of the link: port settings, progress of the baud rate scan, end of a transfer.
#pragma once

#include "controls/controls.h"

namespace ovl::controls {

class Registry;

struct PortSettingsForm {
  Form form;
  Frame comport_frame, baudrate_frame, data_bits_frame, parity_frame;
  List Comport_Select;
  OptionArray OpBaud, OpDataBits, OpParity;
  Button cmdSET, BaudrateCMD;
  controls::Timer BaudRateScan;
  Label Label1;

  PortSettingsForm();
  void Register(Registry& registry);
};

struct ScanProgressForm {
  Form form;
  Label Label1;
  ProgressBar ScanProgressBar1;  // the step of the scan, 0 to 10
  Button Command1;

  ScanProgressForm();
  void Register(Registry& registry);
};

struct TransferEndForm {
  static constexpr const char* kDesignText = "Download Completed.";

  Form form;
  Label Label1;
  Button Command1;

  TransferEndForm();
  void Register(Registry& registry);
};

}  // namespace ovl::controls
