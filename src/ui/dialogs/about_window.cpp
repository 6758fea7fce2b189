#include "ui/dialogs/about_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/dialogs/window_parts.h"
#include "ui/kit/theme.h"

namespace ovl::ui {
namespace {

constexpr Em kLeastWidth(26.67);

}  // namespace

FormWindow* BuildAboutWindow(Bindings& bindings, QWidget* parent) {
  auto& model = bindings.Model().frmAbout;
  auto* window = new FormWindow(bindings, model.form, parent);
  window->setMinimumWidth(kLeastWidth);
  auto* down = WindowLayout(*window, kRowGap);
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
  auto* qt_version = new QLabel(QStringLiteral("Qt %1").arg(QString::fromLatin1(qVersion())));
  qt_version->setObjectName(QStringLiteral("QtVersion"));
  down->addWidget(qt_version);
  add("lbLicence");
  down->addSpacing(kSectionGap - kRowGap);
  down->addLayout(MakeButtonRow(bindings, model.form, "Command1"));
  return window;
}

}  // namespace ovl::ui
