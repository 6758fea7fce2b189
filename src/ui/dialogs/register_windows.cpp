#include "ui/dialogs/register_windows.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

#include "host/text_codec.h"
#include "ui/kit/layout.h"
#include "ui/kit/theme.h"

namespace ovl::ui {
namespace {

constexpr int kButtonWidth = 112;
constexpr int kLeastWidth = 320;

// The window's content; the window follows its size.
QVBoxLayout* SnugLayout(FormWindow& window) {
  auto* down = new QVBoxLayout(&window);
  down->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  down->setSpacing(kSectionGap);
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
  auto* across = new QHBoxLayout(holder);
  across->setContentsMargins(0, 0, 0, 0);
  across->setSpacing(kFieldGap);
  across->addWidget(
      bindings.Make(bindings.Named(model.form, "ECRNumber"), host::FromWindows1252(model.ECRNumber.caption)));
  across->addWidget(MutedLabel(host::FromWindows1252(model.ecr_hint.caption)));
  return holder;
}

// The button of the panel that shows is the window's default.
QWidget* SetButton(Bindings& bindings, const controls::Form& form, const char* name,
                   const controls::Frame& panel) {
  auto* holder = new QWidget;
  auto* across = new QHBoxLayout(holder);
  across->setContentsMargins(0, 0, 0, 0);
  auto* button = static_cast<QPushButton*>(bindings.Make(bindings.Named(form, name)));
  button->setMinimumWidth(kButtonWidth);
  across->addStretch(1);
  across->addWidget(button);
  bindings.Follow([holder, button, &panel, shown = ChangeDetector<bool>()]() mutable {
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
  auto* down = SnugLayout(*window);
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
  auto* down = SnugLayout(*window);
  PageColumn column(bindings, model.form, *Content(*down));
  column.Section("Frame1").Options("F1OP", 1);
  column.Section("Frame2")
      .Row(RowLabel::FromModel("Label1(0)"), "Combo1(0)")
      .Row(RowLabel::FromModel("Label1(1)"), "Combo1(1)");
  column.Section("SharpSubMenuFrame").Options("Option1", 1);
  column.Section("UP3000Frm").Row(RowLabel::FromModel("Label2"), "Combo2");
  down->addWidget(MutedLabel(QStringLiteral("A pick is stored at once.")));
  return window;
}

}  // namespace ovl::ui
