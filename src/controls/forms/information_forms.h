// The forms that only show something: the text viewer and the window about the program.
#pragma once

#include "controls/controls.h"

namespace ovl::controls {

class Registry;

// A window that shows a text, such as a saved history. Its caption names the text.
struct ViewerForm {
  Form form;
  TextBox Text;

  ViewerForm();
  void Register(Registry& registry);
};

// Name and version of the program, the firmware that it serves, and its licence.
struct AboutForm {
  Form form;
  Label lbProgram, lbVersion, lbFirmware, lbLicence;
  Button Command1;

  AboutForm();
  void Register(Registry& registry);
};

}  // namespace ovl::controls
