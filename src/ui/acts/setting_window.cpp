#include "ui/acts/setting_window.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/kit/mnemonics.h"
#include "ui/kit/theme.h"
#include "ui/kit/widgets.h"

namespace ovl::ui {
namespace {

constexpr Em kStartWidth(75), kStartHeight(38.33);

QRect OnScreen(const QWidget& widget) {
  return {widget.mapToGlobal(QPoint()), widget.size()};
}

// The label beside a control, or the control itself.
QWidget& CaptionOf(QWidget& control) {
  for (auto* label : control.parentWidget()->findChildren<QLabel*>()) {
    if (label->buddy() == &control) return *label;
  }
  return control;
}

}  // namespace

SettingWindow::SettingWindow(Bindings& bindings, const QString& name, const QString& title, QWidget* parent)
    : QDialog(parent), bindings_(bindings) {
  setObjectName(name);
  setWindowTitle(title);
  resize(QSize(kStartWidth, kStartHeight).boundedTo(screen()->availableSize()));
  StayOnScreen(*this);
}

void SettingWindow::BuildAround(SettingList& list, QWidget* beside) {
  summary_ = MutedLabel({});
  summary_->setWordWrap(true);
  list_ = &list;
  list.setObjectName(objectName() + QStringLiteral("List"));
  list.setAccessibleDescription(
      QCoreApplication::translate("SettingWindow", "Enter goes to the control. Ctrl+C copies the rows."));
  list.opened = [this](const SettingGoal& goal) { GoTo(goal); };
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  for (auto* button : buttons->buttons()) static_cast<QPushButton*>(button)->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
  auto* below = new QHBoxLayout;
  if (beside != nullptr) below->addWidget(beside);
  below->addWidget(MutedLabel(
      QCoreApplication::translate("SettingWindow", "Enter goes to the setting. Ctrl+C copies rows.")));
  below->addStretch(1);
  below->addWidget(buttons);
  below->setSpacing(kSectionGap);
  auto* down = new QVBoxLayout(this);
  down->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  down->setSpacing(kFieldGap);
  down->addWidget(summary_);
  down->addWidget(list_);
  down->addLayout(below);
  AssignPageMnemonics(*this, {});
}

void SettingWindow::Open() {
  if (list_ == nullptr) Build();
  show();
  raise();
  activateWindow();
  Refresh();
  list_->setFocus();
}

// The widget of a control; of an option array, that of the chosen option.
QWidget* SettingWindow::WidgetFor(const std::string& control) const {
  const auto* named = bindings_.Model().registry.Find(control);
  if (named == nullptr) return nullptr;
  if (auto* const* array = std::get_if<controls::OptionArray*>(&named->control)) {
    const int chosen = std::max((*array)->chosen, 0);
    return bindings_.WidgetOf((*array)->elements.at(static_cast<std::size_t>(chosen)));
  }
  return bindings_.WidgetOf(controls::StateOf(named->control));
}

// While another window blocks the main one, nothing can be picked there.
void SettingWindow::GoTo(const SettingGoal& goal) {
  if (goal.control.empty() || !bindings_.Model().frmMain.form.enabled) return;
  if (open_tab) open_tab(goal.tab);
  const auto* named = bindings_.Model().registry.Find(goal.list);
  if (auto* const* list = named == nullptr ? nullptr : std::get_if<controls::List*>(&named->control)) {
    if ((*list)->position != goal.slot - 1) bindings_.Act(core::PickEvent{*list, goal.slot - 1});
  }
  parentWidget()->activateWindow();
  auto* widget = WidgetFor(goal.control);
  if (widget == nullptr || !widget->isVisibleTo(parentWidget())) return;
  widget->setFocus(Qt::ShortcutFocusReason);
  ScrollTo(*widget);
  MoveAside(*this, OnScreen(*widget).united(OnScreen(CaptionOf(*widget))));
}

QPushButton* StatusButton(SettingWindow& window, const QString& name, const QString& tip) {
  auto* button = new QPushButton;
  button->setObjectName(name);
  button->setFlat(true);
  button->setAutoDefault(false);
  button->setToolTip(tip);
  QObject::connect(button, &QPushButton::clicked, &window, &SettingWindow::Open);
  return button;
}

}  // namespace ovl::ui
