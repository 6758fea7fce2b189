// Makes the widget for each kind of control and binds it.
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <memory>
#include <vector>

#include "host/text_codec.h"
#include "ui/kit/bindings.h"
#include "ui/kit/theme.h"
#include "ui/kit/widgets.h"

namespace ovl::ui {
namespace {

constexpr Em kOptionGap(2);

QStringList Texts(const std::vector<std::string>& items, QString (*text)(const std::string&) = FormText) {
  QStringList texts;
  texts.reserve(static_cast<qsizetype>(items.size()));
  for (const auto& item : items) texts.append(text(item));
  return texts;
}

// The names of registers are the same in every language.
QString AsItIs(const std::string& item) {
  return host::FromWindows1252(item);
}

struct ListShadow {
  ChangeDetector<std::vector<std::string>> items;
  ChangeDetector<int> position;
};

// The Tab key reaches only one button of an array; the arrow keys reach the others.
int TabStop(const controls::OptionArray& array) {
  const auto reachable = [&](int at) {
    const auto& element = array.elements.at(static_cast<std::size_t>(at));
    return element.visible && element.enabled;
  };
  if (array.chosen >= 0 && reachable(array.chosen)) return array.chosen;
  for (int at = 0; at < static_cast<int>(array.elements.size()); ++at) {
    if (reachable(at)) return at;
  }
  return -1;
}

void Arrange(QGridLayout& grid, const std::vector<QWidget*>& buttons, const controls::OptionArray& array,
             int columns) {
  std::vector<QWidget*> shown;
  for (std::size_t at = 0; at < buttons.size(); ++at) {
    grid.removeWidget(buttons[at]);
    if (array.elements[at].visible) shown.push_back(buttons[at]);
  }
  const int rows = (static_cast<int>(shown.size()) + columns - 1) / columns;
  int place = 0;
  for (auto* button : shown) {
    grid.addWidget(button, place % rows, place / rows);
    ++place;
  }
}

}  // namespace

QWidget* Bindings::MakePickList(controls::List& list) {
  auto* box = new PickList;
  auto shadow = std::make_shared<ListShadow>();
  QObject::connect(box, &QComboBox::activated, box, [this, &list, shadow](int position) {
    shadow->position.Forget();
    act_(core::PickEvent{&list, position});
  });
  const auto show = [box, &list, shadow] {
    const QSignalBlocker blocker(box);
    const bool renewed = shadow->items.Update(list.items);
    if (renewed) {
      box->clear();
      box->addItems(Texts(list.items));
      shadow->position.Forget();
    }
    if (shadow->position.Update(list.position)) box->setCurrentIndex(list.position);
    return renewed;
  };
  // The list is filled here and not at the first refresh, so that a layout measures it with its entries.
  show();
  BindState(*box, list);
  OnRefresh(show);
  return box;
}

PickList* Bindings::MakeReadOnlyList(const controls::NamedControl& control, const QString& label) {
  auto& text = *std::get<controls::TextBox*>(control.control);
  auto* box = new PickList;
  SetUp(*box, control, label);
  box->setEnabled(false);
  box->addItem(FormText(text.text));
  OnRefresh([box, &text, visible = ChangeDetector<bool>(), shown = ChangeDetector<std::string>()]() mutable {
    if (shown.Update(text.text)) box->setItemText(0, FormText(text.text));
    if (!visible.Update(text.visible)) return false;
    box->setVisible(text.visible);
    return true;
  });
  return box;
}

ListBox* Bindings::MakeListBox(const controls::NamedControl& control, const QString& label) {
  auto& list = *std::get<controls::List*>(control.control);
  auto* box = new ListBox;
  auto shadow = std::make_shared<ListShadow>();
  box->picked = [this, &list, shadow](int position) {
    shadow->position.Forget();
    act_(core::PickEvent{&list, position});
  };
  BindState(*box, list);
  OnRefresh([box, &list, shadow] {
    if (shadow->items.Update(list.items)) {
      box->clear();
      box->addItems(Texts(list.items, AsItIs));
      shadow->position.Forget();
    }
    if (shadow->position.Update(list.position)) box->SetMarked(list.position);
    return false;
  });
  SetUp(*box, control, label);
  return box;
}

QWidget* Bindings::MakeOption(const controls::OptionElement& element) {
  auto* button = new OptionButton;
  const auto& state = element.Of();
  button->setText(CaptionText(state.caption));
  button->step = [this, element](int step) { StepOption(element, step); };
  QObject::connect(button, &QRadioButton::clicked, button,
                   [this, element] { act_(core::ClickEvent{element}); });
  BindState(*button, state, element.array);
  BindCaption(*button, state);
  OnRefresh(
      [this, button, element, chosen = ChangeDetector<bool>(), stop = ChangeDetector<bool>()]() mutable {
        const bool is_chosen = element.array->chosen == element.element;
        if (chosen.Update(is_chosen)) {
          button->setChecked(is_chosen);
          if (is_chosen) widgets_[element.array] = button;
        }
        const bool is_stop = TabStop(*element.array) == element.element;
        if (stop.Update(is_stop)) button->setFocusPolicy(is_stop ? Qt::StrongFocus : Qt::ClickFocus);
        return false;
      });
  return button;
}

void Bindings::StepOption(const controls::OptionElement& from, int step) {
  const int count = static_cast<int>(from.array->elements.size());
  for (int tried = 1; tried < count; ++tried) {
    const controls::OptionElement next{from.array, ((from.element + step * tried) % count + count) % count};
    if (!next.Of().visible || !next.Of().enabled) continue;
    if (auto* button = WidgetOf(next.Of())) button->setFocus(Qt::TabFocusReason);
    act_(core::ClickEvent{next});
    return;
  }
}

QWidget* Bindings::MakeOptions(const controls::NamedControl& control, int columns, const QString& label) {
  auto& array = *std::get<controls::OptionArray*>(control.control);
  auto* holder = new QWidget;
  auto* grid = new QGridLayout(holder);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(kOptionGap);
  std::vector<QWidget*> buttons;
  for (int element = 0; element < static_cast<int>(array.elements.size()); ++element) {
    const auto name = control.name + "(" + std::to_string(element) + ")";
    auto* button = Make(Named(*control.form, name));
    button->setParent(holder);
    buttons.push_back(button);
  }
  holder->setObjectName(host::FromWindows1252(control.name));
  holder->setAccessibleName(label);
  auto shown = std::make_shared<ChangeDetector<std::vector<bool>>>();
  const auto arrange = [grid, buttons, &array, columns, shown] {
    std::vector<bool> visible;
    visible.reserve(array.elements.size());
    for (const auto& element : array.elements) visible.push_back(element.visible);
    if (!shown->Update(visible)) return false;
    Arrange(*grid, buttons, array, columns);
    return true;
  };
  // The buttons are arranged here and not at the first refresh, so that a layout measures them.
  arrange();
  BindState(*holder, array);
  OnRefresh(arrange);
  return holder;
}

QWidget* Bindings::MakeTextLine(controls::TextBox& box) {
  auto* line = new TextLine;
  auto shadow = std::make_shared<ChangeDetector<std::string>>();
  line->refused = hint_;
  QObject::connect(line, &QLineEdit::textEdited, line, [this, &box, shadow](const QString& text) {
    const auto typed = host::ToWindows1252(text).value_or(std::string());
    shadow->Forget();
    if (act_(core::TypeEvent{&box, typed}) == core::Outcome::kDone) shadow->Update(typed);
  });
  BindState(*line, box);
  OnRefresh(
      [line, &box, shadow, limit = ChangeDetector<std::size_t>(), fixed = ChangeDetector<bool>()]() mutable {
        if (limit.Update(box.max_length)) line->SetLimit(static_cast<int>(box.max_length));
        if (fixed.Update(box.read_only)) line->setReadOnly(box.read_only);
        if (shadow->Update(box.text)) line->setText(host::FromWindows1252(box.text));
        return false;
      });
  return line;
}

QWidget* Bindings::MakeTextEdit(controls::TextBox& box) {
  auto* lines = new QPlainTextEdit;
  lines->setTabChangesFocus(true);
  auto shadow = std::make_shared<ChangeDetector<std::string>>();
  QObject::connect(lines, &QPlainTextEdit::textChanged, lines, [this, lines, &box, shadow] {
    const auto text = lines->toPlainText();
    shadow->Forget();
    if (!host::ToWindows1252(text))
      return hint_(
          QCoreApplication::translate("TextLine", "The program can store only characters of Windows-1252."));
    if (act_(core::TypeEvent{&box, host::ToWindows1252(text).value_or(std::string())}) ==
        core::Outcome::kDone)
      shadow->Update(box.text);
  });
  BindState(*lines, box);
  OnRefresh([lines, &box, shadow, fixed = ChangeDetector<bool>()]() mutable {
    if (fixed.Update(box.read_only)) lines->setReadOnly(box.read_only);
    if (!shadow->Update(box.text)) return false;
    const QSignalBlocker blocker(lines);
    lines->setPlainText(host::FromWindows1252(box.text));
    return false;
  });
  return lines;
}

QWidget* Bindings::MakeLabel(controls::Label& label) {
  auto* text = new QLabel;
  text->setTextFormat(Qt::PlainText);
  BindState(*text, label);
  OnRefresh([text, &label, caption = ChangeDetector<std::string>()]() mutable {
    if (!caption.Update(label.caption)) return false;
    text->setText(FormText(label.caption));
    text->setAccessibleName(FormText(label.caption));
    return true;
  });
  return text;
}

QWidget* Bindings::MakeButton(controls::Button& button) {
  // With its caption, so that a layout measures it.
  auto* push = new QPushButton(CaptionText(button.caption).trimmed());
  push->setAutoDefault(true);
  QObject::connect(push, &QPushButton::clicked, push, [this, &button] { act_(core::ClickEvent{&button}); });
  BindState(*push, button);
  BindCaption(*push, button);
  return push;
}

QWidget* Bindings::MakeCheckBox(controls::CheckBox& box) {
  auto* check = new ModelCheckBox;
  QObject::connect(check, &QCheckBox::clicked, check, [this, &box] { act_(core::ClickEvent{&box}); });
  BindState(*check, box);
  BindCaption(*check, box);
  OnRefresh([check, &box, checked = ChangeDetector<bool>()]() mutable {
    if (checked.Update(box.checked)) check->setChecked(box.checked);
    return false;
  });
  return check;
}

QWidget* Bindings::MakeProgressBar(controls::ProgressBar& bar) {
  auto* progress = new QProgressBar;
  BindState(*progress, bar);
  OnRefresh([progress, &bar, maximum = ChangeDetector<int>(), value = ChangeDetector<int>(),
             text = ChangeDetector<std::string>()]() mutable {
    if (maximum.Update(bar.maximum)) progress->setMaximum(bar.maximum);
    if (value.Update(bar.value)) progress->setValue(bar.value);
    if (text.Update(bar.text)) {
      progress->setTextVisible(!bar.text.empty());
      progress->setFormat(host::FromWindows1252(bar.text));
    }
    return false;
  });
  return progress;
}

}  // namespace ovl::ui
