#include "ui/dialogs/register_windows.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <string>

#include "host/text_codec.h"
#include "ui/dialogs/window_parts.h"
#include "ui/kit/box_layouts.h"
#include "ui/kit/layout.h"
#include "ui/kit/theme.h"

namespace ovl::ui {
namespace {

constexpr Em kLeastWidth(26.67);

// A layout that always gives the window the size of its content.
QVBoxLayout* FixedSizeLayout(FormWindow& window) {
  auto* down = WindowLayout(window);
  down->setSizeConstraint(QLayout::SetFixedSize);
  return down;
}

QWidget* Content(QVBoxLayout& down) {
  auto* content = new QWidget;
  content->setMinimumWidth(kLeastWidth);
  down.addWidget(content);
  return content;
}

QWidget* NumberField(Bindings& bindings, const controls::MicrosForm& model) {
  auto* holder = new QWidget;
  auto* across = LayOutAcross(*holder, kFieldGap);
  across->addWidget(
      bindings.Make(bindings.Named(model.form, "ECRNumber"), FormText(model.ECRNumber.caption)));
  across->addWidget(MutedLabel(FormText(model.ecr_hint.caption)));
  return holder;
}

// A button that is the default of the window while its panel is visible.
QWidget* SetButton(Bindings& bindings, const controls::Form& form, const char* name,
                   const controls::Frame& panel) {
  auto* holder = new QWidget;
  auto* across = LayOutAcross(*holder);
  auto* button = MakePushButton(bindings, form, name);
  across->addStretch(1);
  across->addWidget(button);
  bindings.OnRefresh([holder, button, &panel, shown = ChangeDetector<bool>()]() mutable {
    if (!shown.Update(panel.visible)) return false;
    holder->setVisible(panel.visible);
    if (panel.visible) button->setDefault(true);
    return true;
  });
  return holder;
}

}  // namespace

FormWindow* BuildMicrosWindow(Bindings& bindings, QWidget* parent) {
  auto& model = bindings.Model().frmMicros;
  auto* window = new FormWindow(bindings, model.form, parent);
  auto* down = FixedSizeLayout(*window);
  PageColumn column(bindings, model.form, *Content(*down));
  column.Section("frmIDN").Row("ComboMICROS").Row("ComboMICROSADD").Row("ComboMODE");
  column.Section("frmISN");
  for (std::size_t list = 0; list < model.ComboISN.size(); ++list) {
    column.Row(("ComboISN(" + std::to_string(list) + ")").c_str());
  }
  column.Section("frm3700").Row("HandSHKCombo").Row("ECRNumber", NumberField(bindings, model));
  down->addWidget(SetButton(bindings, model.form, "cmdSetMicros", model.frmIDN));
  down->addWidget(SetButton(bindings, model.form, "cmdISNset", model.frmISN));
  down->addWidget(SetButton(bindings, model.form, "CMD3700Set", model.frm3700));
  return window;
}

FormWindow* BuildSubMenuWindow(Bindings& bindings, QWidget* parent) {
  auto& model = bindings.Model().FrmSubMenu;
  auto* window = new FormWindow(bindings, model.form, parent);
  auto* down = FixedSizeLayout(*window);
  PageColumn column(bindings, model.form, *Content(*down));
  column.Section("Frame1").Options("F1OP", 1);
  column.Section("Frame2")
      .Row(RowLabel::FromModel("Label1(0)"), "Combo1(0)")
      .Row(RowLabel::FromModel("Label1(1)"), "Combo1(1)");
  column.Section("SharpSubMenuFrame").Options("Option1", 1);
  column.Section("UP3000Frm").Row(RowLabel::FromModel("Label2"), "Combo2");
  down->addWidget(
      MutedLabel(QCoreApplication::translate("RegisterWindows", "The program stores your pick at once.")));
  return window;
}

}  // namespace ovl::ui
