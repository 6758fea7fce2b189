// Lays out pages from the names of the controls. A page has columns side by side. A column has sections one
// below the other; each has a title, a line and rows of a label and its fields. In a column all labels start
// at one left edge, and so do all fields. What the model hides leaves no gap: a row, a section without
// visible rows, a column without visible sections.
//
//   auto& left = page.Column();
//   left.Section("Frame4").Row("INTERFACE TYPE", "ComboCOMM(0)");
//
// A column only builds: the widget of the page owns the widgets, and the bindings keep them up to date.
//
// The grid is a QGridLayout and not a QFormLayout with QFormLayout::setRowVisible. That function would save
// one line, the call that hides the label: when a row shows, and what its section and its column then show,
// must still be computed here. A form layout also allows only one widget in a label cell, but FieldPrefix
// puts a second one there, and it has no least width for all labels, which LabelsAtLeast sets.
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

// Space at the end of the label of a row. An underlined letter loses its kerning, so the text is then wider
// than Qt has measured it.
inline constexpr Em kLetterRoom(0.17);

// The label of a row: a text of the program, a label of the model with its caption and state, or the caption
// of the field itself.
struct RowLabel {
  RowLabel(const QString& words) : text(words) {}
  RowLabel(const char* words) : text(FormText(words)) {}
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

// One place in a row: a control, or several of which the model shows one at a time. Below it there may be a
// muted caption. A text box as `substitute` is shown instead of the control while it is visible.
struct Field {
  Field(const char* name) : names{name} {}
  Field(std::string name) : names{std::move(name)} {}
  Field(std::vector<std::string> alternatives, const char* below)
      : names(std::move(alternatives)), caption(FormText(below)) {}
  static Field WithSubstitute(const char* name, const char* substitute) {
    Field field(name);
    field.substitute = substitute;
    return field;
  }

  std::vector<std::string> names;
  QString caption;
  std::string substitute;
};

// An option array below a muted head, one of several side by side. It may be in an inner frame; then it shows
// only while this frame is visible too.
struct OptionColumn {
  QString head;
  std::string array;
  int columns = 1;
  std::string frame = {};
};

class PageColumn {
 public:
  // Builds into `holder`, which must have no layout yet.
  PageColumn(Bindings& bindings, const controls::Form& form, QWidget& holder);

  // Begins a section that shows while the frame is visible; the caption of the frame is the title. The
  // section is made with its first row, so a section without rows does not show.
  PageColumn& Section(std::string_view frame);

  // Begins a section with a title of the program, shown while the condition is true.
  PageColumn& OwnSection(const QString& title, std::function<bool()> shown = {});
  PageColumn& OwnSection(std::function<QString()> title, std::function<bool()> shown);

  // The following rows of this section show only while the inner frame is visible.
  PageColumn& Within(std::string_view frame);

  PageColumn& Row(const RowLabel& label, const std::vector<Field>& fields);
  PageColumn& Row(const RowLabel& label, const char* name) { return Row(label, std::vector<Field>{name}); }
  // Puts a label of the model directly in front of the field of the last row. The label and the field of the
  // row keep their places.
  PageColumn& FieldPrefix(const char* name);

  // Gives all labels a least width, so that the fields of several columns start at one edge.
  PageColumn& LabelsAtLeast(int width);

  // A row whose label is the caption of the control. The second form is for a control that is already in a
  // widget of the caller.
  PageColumn& Row(const char* name) { return Row(RowLabel::OfField(), name); }
  PageColumn& Row(const char* name, QWidget* holder);

  // A row without a label: a check box, a button, an option array.
  PageColumn& Unlabelled(const char* name);
  PageColumn& Options(const std::vector<OptionColumn>& arrays);
  PageColumn& Options(const char* array, int columns);

  // A widget over the whole width. It shows with its section and while the condition is true.
  PageColumn& FullWidth(QWidget* widget, std::function<bool()> shown = {});

  // A line of text of the program.
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
  void AddSubstitute(QBoxLayout& place, QWidget& replaced, const QString& label,
                     const std::string& substitute);
  QString AccessibleNameOf(const RowLabel& label, const controls::NamedControl& first) const;
  QWidget* MakeOptionColumn(const OptionColumn& column, std::function<bool()> shown);
  QWidget* MakeFields(const QString& label, const std::vector<Field>& fields, QWidget*& first);
  QWidget* MakeField(const QString& label, const Field& field, QWidget*& first);
  PageColumn& AddRow(const RowLabel& label, const controls::NamedControl& control, QWidget* fields,
                     QWidget& first, std::function<bool()> shown,
                     const controls::ControlState* substitute = nullptr);
  QLabel* MakeRowLabel(const RowLabel& label, const controls::NamedControl& first,
                       const controls::ControlState* substitute);

  Bindings& bindings_;
  const controls::Form& form_;
  QWidget* holder_;
  QGridLayout* grid_;
  std::shared_ptr<State> state_;
  const controls::Frame* within_ = nullptr;
};

// Makes a scroll area that owns the content. Scroll bars show where the content does not fit.
QScrollArea* Scrolled(QWidget* content);

class Page {
 public:
  // `left` is the distance to what is left of the page.
  Page(Bindings& bindings, const controls::Form& form, int left = kMargin);

  // Adds a column at the right, with its share of the width and its least width.
  PageColumn& Column(int share = 1, int least = 0);

  // The columns take the height of the page, for what should be as tall as it can.
  void Fill() { fills_ = true; }

  // Ends the page. `empty_text` shows while no section is visible. Below the columns there is the line of
  // what else an act has stored. The returned widget scrolls where the window is too small.
  QScrollArea* Finish(const QString& empty_text);

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
