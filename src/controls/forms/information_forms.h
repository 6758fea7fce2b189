// The forms that only show something: the viewer of texts, and the box about the program.
#pragma once

#include "controls/controls.h"

namespace ovl::controls {

class Registry;

// A window that shows a text, such as a saved history. Its caption says what is shown.
struct ViewerForm {
  Form form;
  TextBox Text;

  ViewerForm();
  void Register(Registry& registry);
};

// What the program is: name, version, the firmware it serves, licence.
struct AboutForm {
  Form form;
  Label lbProgram, lbVersion, lbFirmware, lbLicence;
  Button Command1;

  AboutForm();
  void Register(Registry& registry);
};

}  // namespace ovl::controls
