#include "shell/text_rows.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

namespace ovl {
namespace {

constexpr int kTextWidth = 250;
constexpr int kSetButtonWidth = 180;

}  // namespace

void AddTextRow(Bindings& bindings, PageColumn& column, const char* name) {
  column.Row(name);
  const auto& form = bindings.Model().frmMain.form;
  auto* line = static_cast<QLineEdit*>(bindings.WidgetOf(FaceOf(bindings.Named(form, name).control)));
  line->setFixedWidth(kTextWidth);
  QObject::connect(line, &QLineEdit::textChanged, line, [line] { line->home(false); });
}

void AddSetButton(Bindings& bindings, PageColumn& column, const char* name) {
  const auto& control = bindings.Named(bindings.Model().frmMain.form, name);
  auto* holder = new QWidget;
  auto* across = new QHBoxLayout(holder);
  across->setContentsMargins(0, 0, 0, 0);
  across->addStretch(1);
  auto* button = bindings.Make(control);
  button->setMinimumWidth(kSetButtonWidth);
  across->addWidget(button);
  column.Wide(holder, [&face = FaceOf(control.control)] { return face.visible; });
}

void AddTitleRows(Bindings& bindings, PageColumn& column) {
  AddTextRow(bindings, column, "Title_Text");
  AddSetButton(bindings, column, "cmdTitle");
}

int CaptionWidth(std::initializer_list<const Face*> faces) {
  const QFontMetrics metrics(QLabel().font());
  int widest = 0;
  for (const auto* face : faces)
    widest = std::max(widest, metrics.horizontalAdvance(CaptionText(face->caption)));
  return widest;
}

QWidget* BesideOverview(QWidget* overview, QWidget* editor) {
  auto* page = new QWidget;
  auto* across = new QHBoxLayout(page);
  across->setContentsMargins(0, 0, 0, 0);
  across->setSpacing(0);
  across->addWidget(overview, 1);
  across->addWidget(editor);
  return page;
}

}  // namespace ovl
