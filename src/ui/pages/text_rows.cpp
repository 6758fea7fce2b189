#include "ui/pages/text_rows.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <functional>
#include <utility>

#include "ui/kit/box_layouts.h"

namespace ovl::ui {
namespace {

class Opener : public QObject {
 public:
  Opener(QWidget& shown, std::function<void()> open) : QObject(&shown), open_(std::move(open)) {
    shown.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonRelease) {
      const auto* line = qobject_cast<QLineEdit*>(watched);
      const bool marks = line != nullptr && line->hasSelectedText();
      if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton && !marks) open_();
      return false;
    }
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space) return false;
    open_();
    return true;
  }

 private:
  std::function<void()> open_;
};

}  // namespace

void OpenWithButton(Bindings& bindings, QWidget& shown, controls::Button& button) {
  new Opener(shown, [&bindings, &button] { bindings.Act(core::ClickEvent{&button}); });
  shown.setCursor(Qt::PointingHandCursor);
  const auto how = QCoreApplication::translate("TextRows", "Click here to change it.");
  shown.setToolTip(shown.toolTip() + QLatin1Char(' ') + how);
  shown.setAccessibleDescription(shown.toolTip());
}

// A least width replaces the one that the caption needs.
void WidenSetButton(QWidget& button) {
  button.setMinimumWidth(std::max<int>(kSetButtonWidth, button.sizeHint().width()));
}

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
  WidenSetButton(*widget(button));
  auto* line = static_cast<QLineEdit*>(widget(name));
  line->setFixedWidth(kStoredTextWidth);
  QObject::connect(line, &QLineEdit::textChanged, line, [line] { line->home(false); });
  OpenWithButton(bindings, *line, *std::get<controls::Button*>(bindings.Named(form, button).control));
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
