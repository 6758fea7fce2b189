#include "ui/kit/layout.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "host/text_codec.h"
#include "ui/kit/widgets.h"

namespace ovl::ui {
namespace {

enum GridColumn { kLabels, kFields, kRest, kGridColumns };

class RowText : public QLabel {
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

// A label that has a letter for the keyboard stands for the field behind it; a button has one of its own.
void Attach(QLabel& label, QWidget& field) {
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
  ChangeDetector<QString> titled;
  ChangeDetector<bool> shown;
  ChangeDetector<bool> enabled;
  ChangeDetector<bool> leads;
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
    bool leads = true;
    for (auto& section : sections) {
      if (section.block == nullptr) continue;
      bool any = false;
      reshaped |= ShowRows(section, Wanted(section), any);
      Enable(section);
      if (any && section.titled.Update(section.title())) {
        section.title_label->setText(section.title());
        section.title_label->setVisible(!section.title().isEmpty());
      }
      if (section.shown.Update(any)) {
        section.block->setVisible(any);
        reshaped = true;
      }
      if (any && section.leads.Update(leads)) {
        section.block->layout()->setContentsMargins(0, leads ? 0 : kSectionGap - kRowGap, 0, kRowGap / 2);
      }
      leads = leads && !any;
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
  auto* down = new QVBoxLayout(&holder);
  down->setContentsMargins(0, 0, 0, 0);
  down->addLayout(grid_);
  down->addStretch(1);
  grid_->setHorizontalSpacing(kFieldGap + kFieldGap / 2);
  grid_->setVerticalSpacing(kRowGap);
  grid_->setColumnStretch(kRest, 1);
  bindings_.Follow([state = state_] { return state->Refresh(); });
}

PageColumn& PageColumn::Section(std::string_view frame) {
  within_ = nullptr;
  auto& section = state_->sections.emplace_back();
  section.frame = std::get<controls::Frame*>(bindings_.Named(form_, frame).control);
  section.title = [frame = section.frame] { return host::FromWindows1252(frame->caption); };
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
  std::vector<const controls::ControlState*> faces;
  for (const auto& field : fields) {
    for (const auto& name : field.names)
      faces.push_back(&controls::StateOf(bindings_.Named(form_, name).control));
  }
  return [faces] {
    return std::any_of(faces.begin(), faces.end(),
                       [](const controls::ControlState* face) { return face->visible; });
  };
}

QWidget* PageColumn::MakeField(const QString& label, const Field& field, QWidget*& first) {
  auto* holder = new QWidget;
  auto* down = new QVBoxLayout(holder);
  down->setContentsMargins(0, 0, 0, 0);
  down->setSpacing(kRowGap / 4);
  const auto called = field.caption.isEmpty() ? label : label + QLatin1Char(' ') + field.caption;
  for (const auto& name : field.names) {
    auto* widget = bindings_.Make(bindings_.Named(form_, name), called);
    if (first == nullptr) first = widget;
    if (field.cover.empty()) {
      down->addWidget(widget, 0, Qt::AlignLeft);
    } else {
      Cover(*down, *widget, called, field.cover);
    }
  }
  if (!field.caption.isEmpty()) down->addWidget(MutedLabel(field.caption));
  bindings_.Follow([holder, any = AnyVisible({field}), shown = ChangeDetector<bool>()]() mutable {
    if (!shown.Update(any())) return false;
    holder->setVisible(any());
    return true;
  });
  return holder;
}

void PageColumn::Cover(QBoxLayout& place, QWidget& covered, const QString& label, const std::string& cover) {
  const auto& named = bindings_.Named(form_, cover);
  auto* below = new QWidget;
  auto* across = new QHBoxLayout(below);
  across->setContentsMargins(0, 0, 0, 0);
  across->addWidget(&covered);
  auto* above = bindings_.Fixed(named, label);
  place.addWidget(below, 0, Qt::AlignLeft);
  place.addWidget(above, 0, Qt::AlignLeft);
  bindings_.Follow([below, &covered, above, &face = controls::StateOf(named.control),
                    shown = ChangeDetector<bool>()]() mutable {
    above->setMinimumWidth(covered.sizeHint().width());
    if (!shown.Update(face.visible)) return false;
    below->setVisible(!face.visible);
    return true;
  });
}

QWidget* PageColumn::MakeFields(const QString& label, const std::vector<Field>& fields, QWidget*& first) {
  auto* holder = new QWidget;
  auto* across = new QHBoxLayout(holder);
  across->setContentsMargins(0, 0, 0, 0);
  across->setSpacing(kFieldGap);
  int place = 0;
  for (const auto& field : fields) {
    const bool one_of_many = fields.size() > 1 && field.caption.isEmpty();
    const auto called = one_of_many ? QStringLiteral("%1 %2").arg(label).arg(++place) : label;
    across->addWidget(MakeField(called, field, first), 0, Qt::AlignTop);
  }
  across->addStretch(1);
  return holder;
}

QLabel* PageColumn::MakeRowLabel(const RowLabel& label, const controls::NamedControl& first,
                                 const controls::ControlState* cover) {
  auto* text = new RowText(CaptionText(label.text.toStdString()));
  text->setTextFormat(Qt::PlainText);
  const controls::ControlState* named =
      label.control.empty() ? nullptr : &controls::StateOf(bindings_.Named(form_, label.control).control);
  if (named != nullptr) text->setObjectName(QString::fromStdString(label.control));
  const auto& face = controls::StateOf(first.control);
  if (label.of_field) {
    bindings_.Follow([text, &face, caption = ChangeDetector<std::string>()]() mutable {
      if (!caption.Update(face.caption)) return false;
      text->setText(CaptionText(face.caption));
      if (text->buddy() != nullptr) text->buddy()->setAccessibleName(host::FromWindows1252(face.caption));
      return true;
    });
  }
  // The label of what is covered is as faint as what covers it.
  bindings_.Follow([text, named, cover, &face, caption = ChangeDetector<std::string>(),
                    enabled = ChangeDetector<bool>()]() mutable {
    const bool covered = cover != nullptr && cover->visible;
    const bool can = face.enabled && !covered && (named == nullptr || named->enabled);
    if (enabled.Update(can)) text->setEnabled(can);
    if (named == nullptr || !caption.Update(named->visible ? named->caption : std::string())) return false;
    text->setText(named->visible ? CaptionText(named->caption) : QString());
    return true;
  });
  return text;
}

QString PageColumn::CalledBy(const RowLabel& label, const controls::NamedControl& first) const {
  if (label.of_field) return host::FromWindows1252(controls::StateOf(first.control).caption);
  if (label.control.empty()) return label.text;
  return host::FromWindows1252(controls::StateOf(bindings_.Named(form_, label.control).control).caption);
}

PageColumn& PageColumn::Row(const RowLabel& label, const std::vector<Field>& fields) {
  const auto& control = bindings_.Named(form_, fields.front().names.front());
  QWidget* first = nullptr;
  auto* holder = MakeFields(CalledBy(label, control), fields, first);
  const auto& cover = fields.front().cover;
  const auto* above = cover.empty() ? nullptr : &controls::StateOf(bindings_.Named(form_, cover).control);
  return AddRow(label, control, holder, *first, AnyVisible(fields), above);
}

PageColumn& PageColumn::Row(const char* name, QWidget* holder) {
  const auto& control = bindings_.Named(form_, name);
  return AddRow(RowLabel::OfField(), control, holder, *bindings_.WidgetOf(controls::StateOf(control.control)),
                AnyVisible({name}));
}

PageColumn& PageColumn::AddRow(const RowLabel& label, const controls::NamedControl& control, QWidget* fields,
                               QWidget& first, std::function<bool()> shown,
                               const controls::ControlState* cover) {
  auto* text = MakeRowLabel(label, control, cover);
  text->setMinimumHeight(first.sizeHint().height());
  Attach(*text, first);
  Add(text, fields, std::move(shown));
  return *this;
}

PageColumn& PageColumn::Mark(const char* name) {
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

PageColumn& PageColumn::Alone(const char* name) {
  QWidget* first = nullptr;
  Add(nullptr, MakeFields({}, {name}, first), AnyVisible({name}));
  return *this;
}

QWidget* PageColumn::MakeOptionColumn(const OptionColumn& column, std::function<bool()> shown) {
  auto* holder = new QWidget;
  auto* down = new QVBoxLayout(holder);
  down->setContentsMargins(0, 0, 0, 0);
  down->setSpacing(kRowGap);
  if (!column.head.isEmpty()) down->addWidget(MutedLabel(column.head));
  down->addWidget(bindings_.Options(bindings_.Named(form_, column.array), column.columns, column.head));
  bindings_.Follow([holder, shown = std::move(shown), was = ChangeDetector<bool>()]() mutable {
    const bool shows = shown();
    if (!was.Update(shows)) return false;
    holder->setVisible(shows);
    return true;
  });
  return holder;
}

PageColumn& PageColumn::Options(const std::vector<OptionColumn>& arrays) {
  auto* holder = new QWidget;
  auto* across = new QHBoxLayout(holder);
  across->setContentsMargins(0, 0, 0, 0);
  across->setSpacing(kColumnGap);
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

PageColumn& PageColumn::Wide(QWidget* widget, std::function<bool()> shown) {
  Add(nullptr, widget, std::move(shown));
  return *this;
}

PageColumn& PageColumn::Note(const QString& text, std::function<bool()> shown) {
  auto* note = MutedLabel(text);
  note->setWordWrap(true);
  return Wide(note, std::move(shown));
}

bool PageColumn::AnySectionShown() const {
  return std::any_of(state_->sections.begin(), state_->sections.end(), State::Shows);
}

}  // namespace ovl::ui
