#include "core/forms/viewer_form.h"

#include "core/registry.h"

namespace ovl {

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

}  // namespace ovl
