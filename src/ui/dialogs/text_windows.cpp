#include "ui/dialogs/text_windows.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>

#include "host/text_codec.h"
#include "panels/exceptions/text_entry.h"
#include "ui/dialogs/window_parts.h"
#include "ui/kit/box_layouts.h"
#include "ui/kit/theme.h"
#include "ui/kit/widgets.h"

namespace ovl::ui {
namespace {

constexpr Em kTextWidth(36.67);
constexpr Em kViewerWidth(60);
constexpr Em kViewerHeight(40);
constexpr Em kTextMargin(1);

QWidget* Part(Bindings& bindings, const controls::Form& form, std::string_view name,
              const QString& label = {}) {
  return bindings.Make(bindings.Named(form, name), label);
}

QLabel* LabelFor(QWidget& field) {
  auto* label = new QLabel(field.accessibleName());
  label->setBuddy(&field);
  return label;
}

// Selects the whole text when the field gets the focus. After a click this must wait, because the click sets
// the caret later.
class WholeTextMarker : public QObject {
 public:
  explicit WholeTextMarker(QLineEdit& line) : QObject(&line), line_(line) { line.installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::FocusIn) return false;
    const bool by_click = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
    if (by_click) QTimer::singleShot(0, &line_, &QLineEdit::selectAll);
    if (!by_click) line_.selectAll();
    return false;
  }

 private:
  QLineEdit& line_;
};

// How many characters the text has. Padding blanks do not count.
QString TextHint(const core::Application& app) {
  const auto& box = app.frmSetEXCPSTR.Text1;
  const auto seen = box.text.find_last_not_of(' ') + 1;
  const bool of_exception = app.TextEntryMode == static_cast<int>(panels::TextTarget::kException);
  const auto hint = of_exception ? QCoreApplication::translate(
                                       "TextWindows", "%1 of %2 characters. A ? matches any character.")
                                 : QCoreApplication::translate("TextWindows", "%1 of %2 characters.");
  return hint.arg(seen).arg(box.max_length);
}

// One value: whole digits, separator, decimal digits.
struct ValueRow {
  const char* whole;
  const char* decimals;
};

// How many digits the unit keeps of each value.
QString RangeHint(const core::Application& app) {
  return QCoreApplication::translate("TextWindows",
                                     "Up to %1 digits before the separator, and %2 after it: 5 becomes 05.")
      .arg(app.frmSetRange.Range_Hi.max_length)
      .arg(app.frmSetRange.SubRange_Hi.max_length);
}

// Shows the hint, and after a refused key the reason until the next key that is taken.
QLabel* MakeRangeHint(Bindings& bindings) {
  auto* hint = MutedLabel({});
  hint->setObjectName(QStringLiteral("RangeHint"));
  auto& app = bindings.Model();
  auto& form = app.frmSetRange;
  for (const auto* box : {&form.Range_Hi, &form.SubRange_Hi, &form.Range_Low, &form.SubRange_Low}) {
    auto* line = static_cast<TextLine*>(bindings.WidgetOf(*box));
    line->refused = [hint](const QString& reason) { hint->setText(reason); };
    QObject::connect(line, &QLineEdit::textEdited, hint, [hint, &app] { hint->setText(RangeHint(app)); });
  }
  bindings.OnRefresh([hint, &app, shown = ChangeDetector<QString>()]() mutable {
    if (shown.Update(RangeHint(app))) hint->setText(RangeHint(app));
    return false;
  });
  return hint;
}

void AddValue(Bindings& bindings, QGridLayout& grid, int row, const ValueRow& value, QLabel* separator) {
  const auto& form = bindings.Model().frmSetRange.form;
  auto* whole = static_cast<TextLine*>(Part(bindings, form, value.whole));
  auto* decimals = static_cast<TextLine*>(Part(bindings, form, value.decimals));
  const auto room = [](TextLine& line, int digits) {
    line.setFixedWidth(line.fontMetrics().horizontalAdvance(QString(digits + 2, QLatin1Char('0'))));
    line.AcceptOnlyDigits();
    new WholeTextMarker(line);
  };
  room(*whole, 8);
  room(*decimals, 2);
  whole->setAlignment(Qt::AlignRight);
  grid.addWidget(LabelFor(*whole), row, 0);
  grid.addWidget(whole, row, 1);
  grid.addWidget(separator, row, 2);
  grid.addWidget(decimals, row, 3);
}

// A second widget for the same label of the model.
QLabel* CopyOfLabel(Bindings& bindings, const controls::Label& label) {
  auto* copy = new QLabel;
  copy->setTextFormat(Qt::PlainText);
  bindings.OnRefresh([copy, &label, caption = ChangeDetector<std::string>()]() mutable {
    if (caption.Update(label.caption)) copy->setText(FormText(label.caption));
    return false;
  });
  return copy;
}

// Opens with a good size for a text; the user may change it.
class ViewerPane : public QWidget {
 public:
  QSize sizeHint() const override { return {kViewerWidth, kViewerHeight}; }
};

}  // namespace

FormWindow* BuildTextEntryWindow(Bindings& bindings, QWidget* parent) {
  auto& app = bindings.Model();
  auto& model = app.frmSetEXCPSTR;
  auto* window = new FormWindow(bindings, model.form, parent);
  auto* down = WindowLayout(*window);
  auto* fields = new QVBoxLayout;
  fields->setSpacing(kRowGap);
  auto* text = static_cast<QLineEdit*>(Part(bindings, model.form, "Text1"));
  text->setMinimumWidth(kTextWidth);
  new WholeTextMarker(*text);
  auto* hint = MutedLabel({});
  hint->setObjectName(QStringLiteral("TextHint"));
  fields->addWidget(LabelFor(*text));
  fields->addWidget(text);
  fields->addWidget(hint);
  down->addLayout(fields);
  down->addLayout(MakeButtonRow(bindings, model.form, "cmdSET", "cmdClr"));
  bindings.OnRefresh([hint, &app, shown = ChangeDetector<QString>()]() mutable {
    const auto words = TextHint(app);
    if (shown.Update(words)) hint->setText(words);
    return false;
  });
  return window;
}

FormWindow* BuildRangeWindow(Bindings& bindings, QWidget* parent) {
  auto& model = bindings.Model().frmSetRange;
  auto* window = new FormWindow(bindings, model.form, parent);
  auto* down = WindowLayout(*window);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kFieldGap);
  grid->setVerticalSpacing(kRowGap);
  grid->setColumnStretch(4, 1);
  auto* separator = static_cast<QLabel*>(Part(bindings, model.form, "lbDec"));
  AddValue(bindings, *grid, 0, {"Range_Hi", "SubRange_Hi"}, separator);
  AddValue(bindings, *grid, 1, {"Range_Low", "SubRange_Low"}, CopyOfLabel(bindings, model.lbDec));
  auto* list = Part(bindings, model.form, "ComboDec");
  grid->addWidget(LabelFor(*list), 2, 0);
  grid->addWidget(list, 2, 1, 1, 4, Qt::AlignLeft);
  down->addLayout(grid);
  down->addWidget(MakeRangeHint(bindings));
  down->addWidget(MutedLabel(QCoreApplication::translate(
      "TextWindows", "The separator is for all exceptions. The program stores it at once.")));
  down->addLayout(MakeButtonRow(bindings, model.form, "cmdSetRange", "cmdClr"));

  auto* first = static_cast<QLineEdit*>(bindings.WidgetOf(model.Range_Hi));
  bindings.OnRefresh([first, &form = model.form, open = ChangeDetector<bool>()]() mutable {
    if (!open.Update(form.visible) || !form.visible) return false;
    first->setFocus(Qt::TabFocusReason);
    first->selectAll();
    return false;
  });
  return window;
}

FormWindow* BuildViewerWindow(Bindings& bindings, QWidget* parent) {
  auto& model = bindings.Model().frmView;
  auto* window = new FormWindow(bindings, model.form, parent);
  window->setWindowFlag(Qt::WindowMaximizeButtonHint);
  window->setSizeGripEnabled(true);
  auto* down = LayOutDown(*window);
  auto* pane = new ViewerPane;
  auto* inside = LayOutDown(*pane);
  auto* lines = static_cast<QPlainTextEdit*>(Part(bindings, model.form, "Text"));
  lines->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  lines->setLineWrapMode(QPlainTextEdit::NoWrap);
  lines->setUndoRedoEnabled(false);
  lines->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  lines->setFrameShape(QFrame::NoFrame);
  const QSignalBlocker no_change_of_text(lines);
  lines->document()->setDocumentMargin(kTextMargin);
  inside->addWidget(lines);
  down->addWidget(pane);
  return window;
}

}  // namespace ovl::ui
