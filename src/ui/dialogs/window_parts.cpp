#include "ui/dialogs/window_parts.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace ovl::ui {

QVBoxLayout* WindowLayout(QWidget& window, int spacing) {
  auto* down = new QVBoxLayout(&window);
  down->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  down->setSpacing(spacing);
  return down;
}

QPushButton* MakePushButton(Bindings& bindings, const controls::Form& form, std::string_view name) {
  auto* button = static_cast<QPushButton*>(bindings.Make(bindings.Named(form, name)));
  button->setMinimumWidth(kButtonWidth);
  return button;
}

QHBoxLayout* MakeButtonRow(Bindings& bindings, const controls::Form& form, std::string_view default_name,
                           std::string_view left_name) {
  auto* row = new QHBoxLayout;
  auto* button = MakePushButton(bindings, form, default_name);
  button->setDefault(true);
  if (!left_name.empty()) row->addWidget(MakePushButton(bindings, form, left_name));
  row->addStretch(1);
  row->addWidget(button);
  return row;
}

}  // namespace ovl::ui
