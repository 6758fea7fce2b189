#include "ui/dialogs/about_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/kit/theme.h"

namespace ovl::ui {
namespace {

constexpr int kButtonWidth = 112;
constexpr int kLeastWidth = 320;

}  // namespace

FormWindow* BuildAboutWindow(Bindings& bindings, QWidget* parent) {
  auto& model = bindings.Model().frmAbout;
  auto* window = new FormWindow(bindings, model.form, parent);
  window->setMinimumWidth(kLeastWidth);
  auto* down = new QVBoxLayout(window);
  down->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  down->setSpacing(kRowGap);
  const auto add = [&](std::string_view name) {
    auto* label = bindings.Make(bindings.Named(model.form, name));
    down->addWidget(label);
    return label;
  };
  auto* name = add("lbProgram");
  auto font = name->font();
  font.setWeight(QFont::DemiBold);
  font.setPointSizeF(font.pointSizeF() * 1.5);
  name->setFont(font);
  add("lbVersion");
  add("lbFirmware");
  auto* toolkit = new QLabel(QStringLiteral("Qt %1").arg(QString::fromLatin1(qVersion())));
  toolkit->setObjectName(QStringLiteral("Toolkit"));
  down->addWidget(toolkit);
  add("lbLicence");
  down->addSpacing(kSectionGap - kRowGap);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  auto* ok = static_cast<QPushButton*>(bindings.Make(bindings.Named(model.form, "Command1")));
  ok->setMinimumWidth(kButtonWidth);
  ok->setDefault(true);
  buttons->addWidget(ok);
  down->addLayout(buttons);
  return window;
}

}  // namespace ovl::ui
