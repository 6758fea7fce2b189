// A window that shows a text, such as a saved history. Its caption says what is shown.
#pragma once

#include "core/controls.h"

namespace ovl {

class Registry;

struct ViewerForm {
  Form form;
  TextBox Text;

  ViewerForm();
  void Register(Registry& registry);
};

}  // namespace ovl
