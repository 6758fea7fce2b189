// Pages that are laid out by naming controls. A page has columns side by side; a column has sections below
// one another, each with a title, a hairline and rows of a label and its fields. All labels of a column, and
// all fields, stand on one edge. What the model hides closes up, down to a section that has nothing left to
// show.
//
//   auto& left = page.Column();
//   left.Section("Frame4").Row("INTERFACE TYPE", "ComboCOMM(0)");
//
// Columns only build; what they built is owned by the page's widget and kept up to date by the bindings.
#pragma once

#include <QString>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "ui/kit/bindings.h"
#include "ui/kit/theme.h"

class QBoxLayout;
class QGridLayout;
class QHBoxLayout;
class QScrollArea;
class QVBoxLayout;

namespace ovl::ui {

// At the end of a row's label. A letter that is underlined for the keyboard loses its kerning, and the text
// becomes wider than it was measured.
inline constexpr int kLetterRoom = 2;

// The label of a row: words of our own, a label of the model with caption, state and name, or the caption of
// the field itself.
struct RowLabel {
  RowLabel(const QString& words) : text(words) {}
  RowLabel(const char* words) : text(QString::fromLatin1(words)) {}
  static RowLabel FromModel(std::string name) {
    RowLabel label("");
    label.control = std::move(name);
    return label;
  }
  static RowLabel OfField() {
    RowLabel label("");
    label.of_field = true;
    return label;
  }

  QString text;
  std::string control;
  bool of_field = false;
};

// One place in a row: a control, or several of which the model shows one at a time; a muted word below, if
// any. A text box as `cover` stands in the control's place while it is visible.
struct Field {
  Field(const char* name) : names{name} {}
  Field(std::string name) : names{std::move(name)} {}
  Field(std::vector<std::string> alternatives, const char* below)
      : names(std::move(alternatives)), caption(QString::fromLatin1(below)) {}
  static Field Covered(const char* name, const char* cover) {
    Field field(name);
    field.cover = cover;
    return field;
  }

  std::vector<std::string> names;
  QString caption;
  std::string cover;
};

// An option array under a muted head, one of several side by side. It may stand in an inner frame, which then
// must be visible as well.
struct OptionColumn {
  QString head;
  std::string array;
  int columns = 1;
  std::string frame = {};
};

class PageColumn {
 public:
  // Builds into `holder`, which has no layout yet.
  PageColumn(Bindings& bindings, const controls::Form& form, QWidget& holder);

  // Begins a section that shows while the frame does; its caption is the title. A section comes to be with
  // its first row: one without rows is nowhere to be seen.
  PageColumn& Section(std::string_view frame);

  // Begins a section with a title of our own, shown while the condition holds.
  PageColumn& OwnSection(const QString& title, std::function<bool()> shown = {});
  PageColumn& OwnSection(std::function<QString()> title, std::function<bool()> shown);

  // The rows that follow in this section show only while the inner frame does.
  PageColumn& Within(std::string_view frame);

  PageColumn& Row(const RowLabel& label, const std::vector<Field>& fields);
  PageColumn& Row(const RowLabel& label, const char* name) { return Row(label, std::vector<Field>{name}); }
  // A label of the model between the last row's label and its field, where it moves neither.
  PageColumn& Mark(const char* name);

  // All labels are at least so wide, for columns whose fields are to stand on one edge.
  PageColumn& LabelsAtLeast(int width);

  // Under the control's own caption; the control may stand in a holder of the caller's.
  PageColumn& Row(const char* name) { return Row(RowLabel::OfField(), name); }
  PageColumn& Row(const char* name, QWidget* holder);

  // A control over the whole width that needs no label: a check box, a button, an option array.
  PageColumn& Alone(const char* name);
  PageColumn& Options(const std::vector<OptionColumn>& arrays);
  PageColumn& Options(const char* array, int columns);

  // A widget over the whole width. It shows with its section and while the condition holds.
  PageColumn& Wide(QWidget* widget, std::function<bool()> shown = {});

  // A line of our own words.
  PageColumn& Note(const QString& text, std::function<bool()> shown = {});

  bool AnySectionShown() const;
  QWidget& Holder() const { return *holder_; }

 private:
  struct RowState;
  struct SectionState;
  struct State;

  SectionState& Current();
  void Add(QWidget* label, QWidget* fields, std::function<bool()> shown);
  std::function<bool()> AnyVisible(const std::vector<Field>& fields) const;
  void Cover(QBoxLayout& place, QWidget& covered, const QString& label, const std::string& cover);
  QString CalledBy(const RowLabel& label, const controls::NamedControl& first) const;
  QWidget* MakeOptionColumn(const OptionColumn& column, std::function<bool()> shown);
  QWidget* MakeFields(const QString& label, const std::vector<Field>& fields, QWidget*& first);
  QWidget* MakeField(const QString& label, const Field& field, QWidget*& first);
  PageColumn& AddRow(const RowLabel& label, const controls::NamedControl& control, QWidget* fields,
                     QWidget& first, std::function<bool()> shown,
                     const controls::ControlState* cover = nullptr);
  QLabel* MakeRowLabel(const RowLabel& label, const controls::NamedControl& first,
                       const controls::ControlState* cover);

  Bindings& bindings_;
  const controls::Form& form_;
  QWidget* holder_;
  QGridLayout* grid_;
  std::shared_ptr<State> state_;
  const controls::Frame* within_ = nullptr;
};

// Takes the content as its own; the bars come where the room is too small for it.
QScrollArea* Scrolled(QWidget* content);

class Page {
 public:
  // What stands to the left of the page, if anything, is `left` pixels away.
  Page(Bindings& bindings, const controls::Form& form, int left = kMargin);

  // The next column to the right; its share of the width, and how wide it is at least.
  PageColumn& Column(int share = 1, int least = 0);

  // The columns take the height of the page, for what should be as tall as it can.
  void Fill() { fills_ = true; }

  // Ends the page: what shows while no section does. Below the columns stands the quiet line. The widget
  // scrolls where the window is too small.
  QScrollArea* Finish(const QString& calm);

 private:
  Bindings& bindings_;
  const controls::Form& form_;
  QWidget* content_;
  QScrollArea* area_;
  QVBoxLayout* down_;
  QHBoxLayout* across_;
  std::deque<PageColumn> columns_;
  bool fills_ = false;
};

}  // namespace ovl::ui
