#include "ui/kit/layout.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "host/text_codec.h"
#include "ui/kit/box_layouts.h"
#include "ui/kit/widgets.h"

namespace ovl::ui {
namespace {

enum GridColumn { kLabels, kFields, kRest, kGridColumns };

class RowLabelWidget : public QLabel {
 public:
  using QLabel::QLabel;

  QSize sizeHint() const override { return QLabel::sizeHint() + QSize(kLetterRoom, 0); }
  QSize minimumSizeHint() const override { return QLabel::minimumSizeHint() + QSize(kLetterRoom, 0); }
};

QWidget* TitleBlock(QLabel& title) {
  auto* block = new QWidget;
  auto* down = new QVBoxLayout(block);
  down->setContentsMargins(0, 0, 0, kRowGap / 2);
  down->setSpacing(kRowGap);
  down->addWidget(&title);
  down->addWidget(Hairline());
  return block;
}

// The keyboard letter of the label moves the focus to the field. A button has a letter in its own caption.
void SetKeyboardTarget(QLabel& label, QWidget& field) {
  if (field.focusPolicy() != Qt::NoFocus && qobject_cast<QPushButton*>(&field) == nullptr)
    label.setBuddy(&field);
}

}  // namespace

struct PageColumn::RowState {
  QWidget* label;
  QWidget* fields;
  std::function<bool()> wanted;
  ChangeDetector<bool> shown;
};

struct PageColumn::SectionState {
  const controls::Frame* frame = nullptr;
  std::function<QString()> title;
  std::function<bool()> wanted;
  QLabel* title_label = nullptr;
  QWidget* block = nullptr;
  std::vector<RowState> rows;
  ChangeDetector<QString> shown_title;
  ChangeDetector<bool> shown;
  ChangeDetector<bool> enabled;
  ChangeDetector<bool> is_first;
};

struct PageColumn::State {
  std::deque<SectionState> sections;

  static bool Wanted(const SectionState& section) {
    if (section.frame != nullptr && !section.frame->visible) return false;
    return !section.wanted || section.wanted();
  }

  static bool Shows(const SectionState& section) {
    return section.block != nullptr && Wanted(section) &&
           std::any_of(section.rows.begin(), section.rows.end(),
                       [](const RowState& row) { return !row.wanted || row.wanted(); });
  }

  static bool ShowRows(SectionState& section, bool wanted, bool& any) {
    bool reshaped = false;
    for (auto& row : section.rows) {
      const bool show = wanted && (!row.wanted || row.wanted());
      any |= show;
      if (!row.shown.Update(show)) continue;
      row.fields->setVisible(show);
      if (row.label != nullptr) row.label->setVisible(show);
      reshaped = true;
    }
    return reshaped;
  }

  static void Enable(SectionState& section) {
    if (section.frame == nullptr || !section.enabled.Update(section.frame->enabled)) return;
    for (auto& row : section.rows) {
      row.fields->setEnabled(section.frame->enabled);
    }
  }

  bool Refresh() {
    bool reshaped = false;
    bool is_first = true;
    for (auto& section : sections) {
      if (section.block == nullptr) continue;
      bool any = false;
      reshaped |= ShowRows(section, Wanted(section), any);
      Enable(section);
      if (any && section.shown_title.Update(section.title())) {
        section.title_label->setText(section.title());
        section.title_label->setVisible(!section.title().isEmpty());
      }
      if (section.shown.Update(any)) {
        section.block->setVisible(any);
        reshaped = true;
      }
      if (any && section.is_first.Update(is_first)) {
        section.block->layout()->setContentsMargins(0, is_first ? 0 : kSectionGap - kRowGap, 0, kRowGap / 2);
      }
      is_first = is_first && !any;
    }
    return reshaped;
  }
};

PageColumn::PageColumn(Bindings& bindings, const controls::Form& form, QWidget& holder)
    : bindings_(bindings),
      form_(form),
      holder_(&holder),
      grid_(new QGridLayout),
      state_(std::make_shared<State>()) {
  auto* down = LayOutDown(holder);
  down->addLayout(grid_);
  down->addStretch(1);
  grid_->setHorizontalSpacing(kFieldGap + kFieldGap / 2);
  grid_->setVerticalSpacing(kRowGap);
  grid_->setColumnStretch(kRest, 1);
  bindings_.OnRefresh([state = state_] { return state->Refresh(); });
}

PageColumn& PageColumn::Section(std::string_view frame) {
  within_ = nullptr;
  auto& section = state_->sections.emplace_back();
  section.frame = std::get<controls::Frame*>(bindings_.Named(form_, frame).control);
  section.title = [frame = section.frame] { return FormText(frame->caption); };
  return *this;
}

PageColumn& PageColumn::OwnSection(const QString& title, std::function<bool()> shown) {
  return OwnSection([title] { return title; }, std::move(shown));
}

PageColumn& PageColumn::OwnSection(std::function<QString()> title, std::function<bool()> shown) {
  within_ = nullptr;
  auto& section = state_->sections.emplace_back();
  section.title = std::move(title);
  section.wanted = std::move(shown);
  return *this;
}

PageColumn& PageColumn::Within(std::string_view frame) {
  within_ = std::get<controls::Frame*>(bindings_.Named(form_, frame).control);
  return *this;
}

PageColumn::SectionState& PageColumn::Current() {
  auto& section = state_->sections.back();
  if (section.block != nullptr) return section;
  section.title_label = TitleLabel(section.title());
  section.block = TitleBlock(*section.title_label);
  grid_->addWidget(section.block, grid_->rowCount(), kLabels, 1, kGridColumns);
  return section;
}

void PageColumn::Add(QWidget* label, QWidget* fields, std::function<bool()> shown) {
  auto& section = Current();
  const int row = grid_->rowCount();
  if (label == nullptr) {
    grid_->addWidget(fields, row, kLabels, 1, kGridColumns);
  } else {
    grid_->addWidget(label, row, kLabels, Qt::AlignLeft | Qt::AlignTop);
    grid_->addWidget(fields, row, kFields, Qt::AlignLeft | Qt::AlignTop);
  }
  if (within_ != nullptr) {
    shown = [frame = within_, also = std::move(shown)] { return frame->visible && (!also || also()); };
  }
  section.rows.push_back({label, fields, std::move(shown), {}});
}

std::function<bool()> PageColumn::AnyVisible(const std::vector<Field>& fields) const {
  std::vector<const controls::ControlState*> states;
  for (const auto& field : fields) {
    for (const auto& name : field.names)
      states.push_back(&controls::StateOf(bindings_.Named(form_, name).control));
  }
  return [states] {
    return std::any_of(states.begin(), states.end(),
                       [](const controls::ControlState* state) { return state->visible; });
  };
}

QWidget* PageColumn::MakeField(const QString& label, const Field& field, QWidget*& first) {
  auto* holder = new QWidget;
  auto* down = LayOutDown(*holder, kRowGap / 4);
  const auto accessible_name = field.caption.isEmpty() ? label : label + QLatin1Char(' ') + field.caption;
  for (const auto& name : field.names) {
    auto* widget = bindings_.Make(bindings_.Named(form_, name), accessible_name);
    if (first == nullptr) first = widget;
    if (field.substitute.empty()) {
      down->addWidget(widget, 0, Qt::AlignLeft);
    } else {
      AddSubstitute(*down, *widget, accessible_name, field.substitute);
    }
  }
  if (!field.caption.isEmpty()) down->addWidget(MutedLabel(field.caption));
  bindings_.OnRefresh([holder, any = AnyVisible({field}), shown = ChangeDetector<bool>()]() mutable {
    if (!shown.Update(any())) return false;
    holder->setVisible(any());
    return true;
  });
  return holder;
}

void PageColumn::AddSubstitute(QBoxLayout& place, QWidget& replaced, const QString& label,
                               const std::string& substitute) {
  const auto& named = bindings_.Named(form_, substitute);
  auto* replaced_holder = new QWidget;
  auto* across = LayOutAcross(*replaced_holder);
  across->addWidget(&replaced);
  auto* shown_instead = bindings_.MakeReadOnlyList(named, label);
  place.addWidget(replaced_holder, 0, Qt::AlignLeft);
  place.addWidget(shown_instead, 0, Qt::AlignLeft);
  bindings_.OnRefresh([replaced_holder, &replaced, shown_instead, &state = controls::StateOf(named.control),
                       shown = ChangeDetector<bool>()]() mutable {
    shown_instead->setMinimumWidth(replaced.sizeHint().width());
    if (!shown.Update(state.visible)) return false;
    replaced_holder->setVisible(!state.visible);
    return true;
  });
}

QWidget* PageColumn::MakeFields(const QString& label, const std::vector<Field>& fields, QWidget*& first) {
  auto* holder = new QWidget;
  auto* across = LayOutAcross(*holder, kFieldGap);
  int place = 0;
  for (const auto& field : fields) {
    const bool one_of_many = fields.size() > 1 && field.caption.isEmpty();
    const auto accessible_name = one_of_many ? QStringLiteral("%1 %2").arg(label).arg(++place) : label;
    across->addWidget(MakeField(accessible_name, field, first), 0, Qt::AlignTop);
  }
  across->addStretch(1);
  return holder;
}

QLabel* PageColumn::MakeRowLabel(const RowLabel& label, const controls::NamedControl& first,
                                 const controls::ControlState* substitute) {
  auto text_of_label = label.text;
  auto* text = new RowLabelWidget(text_of_label.replace(QLatin1Char('&'), QStringLiteral("&&")));
  text->setTextFormat(Qt::PlainText);
  const controls::ControlState* named =
      label.control.empty() ? nullptr : &controls::StateOf(bindings_.Named(form_, label.control).control);
  if (named != nullptr) text->setObjectName(QString::fromStdString(label.control));
  const auto& state = controls::StateOf(first.control);
  if (label.of_field) {
    bindings_.OnRefresh([text, &state, caption = ChangeDetector<std::string>()]() mutable {
      if (!caption.Update(state.caption)) return false;
      text->setText(CaptionText(state.caption));
      if (text->buddy() != nullptr) text->buddy()->setAccessibleName(FormText(state.caption));
      return true;
    });
  }
  // A substitute is a disabled list, so its label is disabled too.
  bindings_.OnRefresh([text, named, substitute, &state, caption = ChangeDetector<std::string>(),
                       enabled = ChangeDetector<bool>()]() mutable {
    const bool replaced = substitute != nullptr && substitute->visible;
    const bool can = state.enabled && !replaced && (named == nullptr || named->enabled);
    if (enabled.Update(can)) text->setEnabled(can);
    if (named == nullptr || !caption.Update(named->visible ? named->caption : std::string())) return false;
    text->setText(named->visible ? CaptionText(named->caption) : QString());
    return true;
  });
  return text;
}

QString PageColumn::AccessibleNameOf(const RowLabel& label, const controls::NamedControl& first) const {
  if (label.of_field) return FormText(controls::StateOf(first.control).caption);
  if (label.control.empty()) return label.text;
  return FormText(controls::StateOf(bindings_.Named(form_, label.control).control).caption);
}

PageColumn& PageColumn::Row(const RowLabel& label, const std::vector<Field>& fields) {
  const auto& control = bindings_.Named(form_, fields.front().names.front());
  QWidget* first = nullptr;
  auto* holder = MakeFields(AccessibleNameOf(label, control), fields, first);
  const auto& substitute = fields.front().substitute;
  const auto* shown_instead =
      substitute.empty() ? nullptr : &controls::StateOf(bindings_.Named(form_, substitute).control);
  return AddRow(label, control, holder, *first, AnyVisible(fields), shown_instead);
}

PageColumn& PageColumn::Row(const char* name, QWidget* holder) {
  const auto& control = bindings_.Named(form_, name);
  return AddRow(RowLabel::OfField(), control, holder, *bindings_.WidgetOf(controls::StateOf(control.control)),
                AnyVisible({name}));
}

PageColumn& PageColumn::AddRow(const RowLabel& label, const controls::NamedControl& control, QWidget* fields,
                               QWidget& first, std::function<bool()> shown,
                               const controls::ControlState* substitute) {
  auto* text = MakeRowLabel(label, control, substitute);
  text->setMinimumHeight(first.sizeHint().height());
  SetKeyboardTarget(*text, first);
  Add(text, fields, std::move(shown));
  return *this;
}

PageColumn& PageColumn::FieldPrefix(const char* name) {
  auto* mark = bindings_.Make(bindings_.Named(form_, name));
  const int row = grid_->rowCount() - 1;
  mark->setMinimumHeight(grid_->itemAtPosition(row, kLabels)->widget()->minimumHeight());
  grid_->addWidget(mark, row, kLabels, Qt::AlignRight | Qt::AlignTop);
  return *this;
}

PageColumn& PageColumn::LabelsAtLeast(int width) {
  grid_->setColumnMinimumWidth(kLabels, width);
  return *this;
}

PageColumn& PageColumn::Unlabelled(const char* name) {
  QWidget* first = nullptr;
  Add(nullptr, MakeFields({}, {name}, first), AnyVisible({name}));
  return *this;
}

QWidget* PageColumn::MakeOptionColumn(const OptionColumn& column, std::function<bool()> shown) {
  auto* holder = new QWidget;
  auto* down = LayOutDown(*holder, kRowGap);
  if (!column.head.isEmpty()) down->addWidget(MutedLabel(column.head));
  down->addWidget(bindings_.MakeOptions(bindings_.Named(form_, column.array), column.columns, column.head));
  bindings_.OnRefresh([holder, shown = std::move(shown), was = ChangeDetector<bool>()]() mutable {
    const bool shows = shown();
    if (!was.Update(shows)) return false;
    holder->setVisible(shows);
    return true;
  });
  return holder;
}

PageColumn& PageColumn::Options(const std::vector<OptionColumn>& arrays) {
  auto* holder = new QWidget;
  auto* across = LayOutAcross(*holder, kColumnGap);
  std::vector<std::function<bool()>> columns;
  for (const auto& array : arrays) {
    const controls::Frame* frame =
        array.frame.empty() ? nullptr
                            : std::get<controls::Frame*>(bindings_.Named(form_, array.frame).control);
    const auto& options = *std::get<controls::OptionArray*>(bindings_.Named(form_, array.array).control);
    columns.push_back([frame, &options] {
      return options.visible && (frame == nullptr || frame->visible) &&
             std::any_of(options.elements.begin(), options.elements.end(),
                         [](const controls::ControlState& element) { return element.visible; });
    });
    across->addWidget(MakeOptionColumn(array, columns.back()), 0, Qt::AlignTop);
  }
  across->addStretch(1);
  Add(nullptr, holder, [columns] {
    return std::any_of(columns.begin(), columns.end(), [](const auto& shown) { return shown(); });
  });
  return *this;
}

PageColumn& PageColumn::Options(const char* array, int columns) {
  return Options({OptionColumn{{}, array, columns}});
}

PageColumn& PageColumn::FullWidth(QWidget* widget, std::function<bool()> shown) {
  Add(nullptr, widget, std::move(shown));
  return *this;
}

PageColumn& PageColumn::Note(const QString& text, std::function<bool()> shown) {
  auto* note = MutedLabel(text);
  note->setWordWrap(true);
  return FullWidth(note, std::move(shown));
}

bool PageColumn::AnySectionShown() const {
  return std::any_of(state_->sections.begin(), state_->sections.end(), State::Shows);
}

}  // namespace ovl::ui
