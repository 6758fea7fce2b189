#include "ui/pages/pages.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <utility>

#include "host/text_codec.h"
#include "registers/options/option_rows.h"
#include "registers/selection_driver.h"
#include "ui/kit/box_layouts.h"
#include "ui/kit/layout.h"
#include "ui/kit/theme.h"
#include "ui/kit/widgets.h"

namespace ovl::ui {
namespace {

constexpr Em kRegisterListWidth(22.5);
constexpr Em kSignSize(1.5);

using controls::OptionFrame;
using registers::OptionRow;

// A line that filters the list. Down and Enter go on in the list, Escape clears the line.
class FilterLine : public QLineEdit {
 public:
  explicit FilterLine(ListBox& list) : list_(list) {
    setObjectName(QStringLiteral("RegisterFilter"));
    setAccessibleName(QCoreApplication::translate("RegisterPage", "Filter of the registers"));
    setPlaceholderText(QCoreApplication::translate("RegisterPage", "Filter"));
    setToolTip(QCoreApplication::translate(
        "RegisterPage", "Shows only the registers whose names have all of these words (Ctrl+F)."));
    // The icon of the button takes time to load, which a start does not need.
    connect(this, &QLineEdit::textEdited, this, [this] { setClearButtonEnabled(true); });
    connect(this, &QLineEdit::textChanged, &list, &ListBox::SetFilter);
    auto* find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, this, [this] {
      setFocus(Qt::ShortcutFocusReason);
      selectAll();
    });
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Down:
      case Qt::Key_Return:
      case Qt::Key_Enter:
        return list_.TakeFocus();
      case Qt::Key_Escape:
        return clear();
      default:
        QLineEdit::keyPressEvent(event);
    }
  }

 private:
  ListBox& list_;
};

QString CountText(const ListBox& list) {
  const int all = list.count(), shown = list.ShownEntries();
  if (shown == all)
    return QCoreApplication::translate(
        "RegisterPage", "Type a part of the name. Enter goes to the list. %n registers.", nullptr, all);
  if (shown == 0) return QCoreApplication::translate("RegisterPage", "No register has these words.");
  return QCoreApplication::translate("RegisterPage", "%1 of %n registers.", nullptr, all).arg(shown);
}

QWidget* RegisterList(Bindings& bindings) {
  auto& form = bindings.Model().frmMain;
  auto* side = new QWidget;
  auto* down = new QVBoxLayout(side);
  down->setContentsMargins(kMargin, kMargin, 0, kMargin);
  down->setSpacing(kRowGap);
  auto* title = TitleLabel(QCoreApplication::translate("RegisterPage", "Register"));
  auto* list = bindings.MakeListBox(bindings.Named(form.form, "ComboReg"), title->text());
  title->setBuddy(list);
  auto* filter = new FilterLine(*list);
  auto* count = MutedLabel({});
  count->setObjectName(QStringLiteral("RegisterCount"));
  count->setWordWrap(true);
  down->addWidget(title);
  down->addWidget(filter);
  down->addWidget(list, 1);
  down->addWidget(count);
  side->setFixedWidth(kMargin + kRegisterListWidth);
  QObject::connect(filter, &QLineEdit::textChanged, count,
                   [count, list] { count->setText(CountText(*list)); });
  // A register that came with a file or an upload is shown, whatever was looked for before.
  bindings.OnRefresh([filter, list, &form, register_detector = ChangeDetector<int>()]() mutable {
    const int row = form.ComboReg.position;
    if (register_detector.Update(row) && row >= 0 && row < list->count() && list->isRowHidden(row))
      filter->clear();
    return false;
  });
  bindings.OnRefresh([count, list, &form, entries = ChangeDetector<std::size_t>()]() mutable {
    if (!entries.Update(form.ComboReg.items.size())) return false;
    count->setText(CountText(*list));
    return true;
  });
  return side;
}

// Builds the rows of a frame when it is first shown. An installer sees only a few frames a day, and building
// all of them would delay every start.
class FrameBuilder {
 public:
  FrameBuilder(Bindings& bindings, PageColumn column) : bindings_(bindings), column_(std::move(column)) {}

  void BuildShown() {
    const auto& frames = bindings_.Model().frmMain.frmAddress;
    for (std::size_t frame = 0; frame < frames.size(); ++frame) {
      if (frames[frame].visible) Build(static_cast<OptionFrame>(frame));
    }
  }

 private:
  void Build(OptionFrame frame) {
    const auto index = static_cast<std::size_t>(frame);
    if (std::exchange(built_.at(index), true)) return;
    // The only two frames that show together: the models above the id.
    if (frame == OptionFrame::kUniwellId) Build(OptionFrame::kUniwellModels);
    column_.Section("frmAddress(" + std::to_string(index) + ")");
    const auto rows = registers::RowsOfFrame(frame);
    for (auto row = rows.begin(); row != rows.end();) {
      const auto end = std::find_if(row + 1, rows.end(), [](const OptionRow& next) { return !next.beside; });
      AddLine({row, end});
      row = end;
    }
  }

  const controls::NamedControl& Named(std::string_view name) const {
    return bindings_.Named(bindings_.Model().frmMain.form, name);
  }

  void AddLine(std::span<const OptionRow> line) {
    const auto& first = line.front();
    const auto& control = Named(first.control).control;
    if (std::holds_alternative<controls::OptionArray*>(control)) return AddOptions(line);
    if (std::holds_alternative<controls::Label*>(control)) return AddWarning(first);
    if (!first.inner.empty()) column_.Within(first.inner);
    std::vector<Field> fields;
    for (const auto& row : line) fields.emplace_back(std::string(row.control));
    if (first.label.empty()) {
      column_.Unlabelled(fields.front().names.front().c_str());
    } else {
      column_.Row(LabelOf(first), fields);
    }
    if (std::holds_alternative<controls::Button*>(control)) {
      bindings_.WidgetOf(controls::StateOf(control))->setMinimumWidth(kButtonWidth);
    }
  }

  RowLabel LabelOf(const OptionRow& row) const {
    const auto& model = bindings_.Model();
    const auto* label = model.registry.Find(model.frmMain.form, row.label);
    if (label != nullptr) return RowLabel::FromModel(label->name);
    return FormText(std::string(row.label));
  }

  void AddOptions(std::span<const OptionRow> line) {
    std::vector<OptionColumn> arrays;
    for (const auto& row : line) {
      const auto head = FormText(std::string(row.label));
      arrays.push_back({head, std::string(row.control), row.columns, std::string(row.inner)});
    }
    column_.Options(arrays);
  }

  void AddWarning(const OptionRow& row) {
    const auto& named = Named(row.control);
    auto* holder = new QWidget;
    auto* across = LayOutAcross(*holder, kFieldGap);
    auto* sign = new QLabel;
    sign->setPixmap(
        holder->style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(QSize(kSignSize, kSignSize)));
    auto* words = bindings_.Make(named);
    auto font = words->font();
    font.setWeight(QFont::DemiBold);
    words->setFont(font);
    across->addWidget(sign);
    across->addWidget(words);
    across->addStretch(1);
    column_.FullWidth(holder, [&state = controls::StateOf(named.control)] { return state.visible; });
  }

  Bindings& bindings_;
  PageColumn column_;
  std::array<bool, std::tuple_size_v<decltype(controls::MainForm::frmAddress)>> built_{};
};

// The options of the selected register, or a line that says that it has none.
QWidget* RegisterOptionsPage(Bindings& bindings) {
  auto& form = bindings.Model().frmMain;
  // Added before the column, so that the rows that it builds show in the same refresh.
  auto builder = std::make_shared<std::optional<FrameBuilder>>();
  bindings.OnRefresh([builder] {
    (*builder)->BuildShown();
    return false;
  });
  Page page(bindings, form.form, kColumnGap);
  auto& column = page.Column();
  builder->emplace(bindings, column);
  const auto without_options = [&form] {
    return std::none_of(form.frmAddress.begin(), form.frmAddress.end(),
                        [](const controls::Frame& frame) { return frame.visible; });
  };
  column.OwnSection([&form] { return host::FromWindows1252(form.ComboReg.Text()); },
                    [&form, without_options] { return form.ComboReg.position >= 0 && without_options(); });
  const auto hidden = [&app = bindings.Model()] { return registers::OptionsAreHidden(app); };
  column.Note(QCoreApplication::translate("RegisterPage", "This register has no options of its own."),
              [hidden] { return !hidden(); });
  column.Note(QCoreApplication::translate(
                  "RegisterPage",
                  "The options of this register are hidden: one of the stored options is not in its "
                  "list. Pick the register again to load its default options."),
              hidden);
  return page.Finish(QCoreApplication::translate("RegisterPage", "No register is selected."));
}

}  // namespace

QWidget* BuildRegisterPage(Bindings& bindings) {
  auto* page = new QWidget;
  auto* across = LayOutAcross(*page, 0);
  across->addWidget(RegisterList(bindings));
  across->addWidget(RegisterOptionsPage(bindings), 1);
  return page;
}

}  // namespace ovl::ui
