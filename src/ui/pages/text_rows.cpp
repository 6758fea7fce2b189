#include "ui/pages/text_rows.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

#include "ui/kit/box_layouts.h"

namespace ovl::ui {

void AddTextRow(Bindings& bindings, PageColumn& column, const char* name, const char* button,
                ButtonPlace place) {
  if (place == ButtonPlace::kBeside) {
    column.Row(RowLabel::OfField(), {name, button});
  } else {
    column.Row(name).Row("", button);
  }
  const auto& form = bindings.Model().frmMain.form;
  const auto widget = [&](const char* control) {
    return bindings.WidgetOf(controls::StateOf(bindings.Named(form, control).control));
  };
  widget(button)->setMinimumWidth(kSetButtonWidth);
  auto* line = static_cast<QLineEdit*>(widget(name));
  line->setFixedWidth(kStoredTextWidth);
  QObject::connect(line, &QLineEdit::textChanged, line, [line] { line->home(false); });
}

void AddTitleRows(Bindings& bindings, PageColumn& column) {
  AddTextRow(bindings, column, "Title_Text", "cmdTitle", ButtonPlace::kBeside);
}

int CaptionWidth(std::initializer_list<const controls::ControlState*> states) {
  int widest = 0;
  for (const auto* state : states)
    widest = std::max(widest, QLabel(CaptionText(state->caption)).sizeHint().width());
  return widest + 2 * kLetterRoom;
}

QWidget* OverviewWithEditor(Bindings& bindings, QWidget* overview, QScrollArea* editor) {
  auto* page = new QWidget;
  auto* across = LayOutAcross(*page, 0);
  across->addWidget(overview, 1);
  across->addWidget(editor);
  editor->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  bindings.OnRefresh([editor] {
    const int bar = editor->verticalScrollBar()->sizeHint().width();
    const int least = editor->widget()->minimumSizeHint().width() + bar;
    if (editor->minimumWidth() != least) editor->setFixedWidth(least);
    return false;
  });
  // If the window is too narrow for both, the user scrolls from one to the other.
  return Scrolled(page);
}

}  // namespace ovl::ui
