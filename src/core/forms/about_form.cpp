#include "core/forms/about_form.h"

#include "core/registry.h"

namespace ovl {

AboutForm::AboutForm() {
  form.name = "frmAbout";
  form.caption = "About OVL Software";
  lbProgram.caption = "OVL Software";
  lbVersion.caption = "Version " OVL_VERSION;
  lbLicence.caption = "MIT licence";
  Command1.caption = "OK";
}

void AboutForm::Register(Registry& registry) {
  registry.AddForm(form);
  registry.Add(form, "lbProgram", lbProgram);
  registry.Add(form, "lbVersion", lbVersion);
  registry.Add(form, "lbFirmware", lbFirmware);
  registry.Add(form, "lbLicence", lbLicence);
  registry.Add(form, "Command1", Command1);
}

}  // namespace ovl
