// What the program is: name, version, the firmware it serves, licence.
#pragma once

#include "core/controls.h"

namespace ovl {

class Registry;

struct AboutForm {
  Form form;
  Label lbProgram, lbVersion, lbFirmware, lbLicence;
  Button Command1;

  AboutForm();
  void Register(Registry& registry);
};

}  // namespace ovl
