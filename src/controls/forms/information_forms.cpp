#include "controls/forms/information_forms.h"

#include "controls/registry.h"

namespace ovl::controls {
ViewerForm::ViewerForm() {
  form.name = "frmView";
  Text.caption = "Text";
  Text.read_only = true;
  Text.multi_line = true;
}

void ViewerForm::Register(Registry& registry) {
  registry.AddForm(form);
  registry.Add(form, "Text", Text);
}

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

}  // namespace ovl::controls
