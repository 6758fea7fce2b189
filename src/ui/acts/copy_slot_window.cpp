#include "ui/acts/copy_slot_window.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

#include "host/text_codec.h"
#include "ui/kit/mnemonics.h"
#include "ui/kit/theme.h"
#include "ui/kit/widgets.h"

namespace ovl::ui {
namespace {

bool IsAlarm(acts::SlotKind kind) {
  return kind == acts::SlotKind::kAlarm;
}

QString ItselfText(acts::SlotKind kind) {
  return IsAlarm(kind)
             ? QCoreApplication::translate(
                   "CopySlotWindow", "This is the number of the alarm that you copy. Pick another number.")
             : QCoreApplication::translate(
                   "CopySlotWindow",
                   "This is the number of the exception that you copy. Pick another number.");
}

QString NoneInUseText(acts::SlotKind kind) {
  return IsAlarm(kind) ? QCoreApplication::translate("CopySlotWindow", "No alarm in use is overwritten.")
                       : QCoreApplication::translate("CopySlotWindow", "No exception in use is overwritten.");
}

}  // namespace

CopySlotWindow::CopySlotWindow(const Bindings& bindings, acts::SlotKind kind, QWidget* parent)
    : QDialog(parent),
      bindings_(bindings),
      kind_(kind),
      from_(acts::SlotList(bindings.Model(), kind).position + 1),
      first_(MakeNumber("CopyFirst", QCoreApplication::translate("CopySlotWindow", "First target"))),
      last_(MakeNumber("CopyLast", QCoreApplication::translate("CopySlotWindow", "Last target"))),
      effect_(new QLabel),
      copy_(new QPushButton(QCoreApplication::translate("CopySlotWindow", "Copy"))) {
  setObjectName(IsAlarm(kind) ? QStringLiteral("CopyAlarm") : QStringLiteral("CopyException"));
  setWindowTitle(IsAlarm(kind) ? QCoreApplication::translate("CopySlotWindow", "Copy alarm")
                               : QCoreApplication::translate("CopySlotWindow", "Copy exception"));
  setWindowModality(Qt::WindowModal);
  setAttribute(Qt::WA_DeleteOnClose);
  StayOnScreen(*this);
  copy_->setObjectName(QStringLiteral("CopyNow"));
  LayOut();
  const int next = from_ < acts::SlotCount(kind) ? from_ + 1 : std::max(from_ - 1, 1);
  first_->setValue(next);
  last_->setRange(next, acts::SlotCount(kind));
  last_->setValue(next);
  connect(first_, &QSpinBox::valueChanged, this, [this](int first) {
    last_->setMinimum(first);
    ShowEffect();
  });
  connect(last_, &QSpinBox::valueChanged, this, &CopySlotWindow::ShowEffect);
  ShowEffect();
  first_->setFocus();
  first_->selectAll();  // a number that is typed replaces it
}

void CopySlotWindow::LayOut() {
  const auto source = IsAlarm(kind_) ? QCoreApplication::translate("CopySlotWindow", "Copy alarm %1 to")
                                     : QCoreApplication::translate("CopySlotWindow", "Copy exception %1 to");
  auto* numbers = new QHBoxLayout;
  numbers->setSpacing(kFieldGap);
  numbers->addWidget(new QLabel(source.arg(from_)));
  numbers->addWidget(first_);
  numbers->addWidget(new QLabel(QCoreApplication::translate("CopySlotWindow", "up to")));
  numbers->addWidget(last_);
  numbers->addStretch(1);
  effect_->setObjectName(QStringLiteral("CopyEffect"));
  effect_->setWordWrap(true);
  effect_->setMinimumHeight(2 * fontMetrics().lineSpacing());
  effect_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  buttons->addButton(copy_, QDialogButtonBox::AcceptRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(buttons, &QDialogButtonBox::accepted, this, &CopySlotWindow::Copy);
  auto* down = new QVBoxLayout(this);
  down->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  down->setSpacing(kSectionGap);
  down->addLayout(numbers);
  down->addWidget(effect_);
  down->addWidget(buttons);
  // Only a button that is already in the dialog can be the one that Enter presses.
  buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
  copy_->setDefault(true);
  AssignPageMnemonics(*this, {});
}

QSpinBox* CopySlotWindow::MakeNumber(const char* name, const QString& label) {
  auto* number = new QSpinBox;
  number->setObjectName(QString::fromLatin1(name));
  number->setAccessibleName(label);
  number->setRange(1, acts::SlotCount(kind_));
  number->setFocusPolicy(Qt::StrongFocus);
  return number;
}

acts::SlotCopy CopySlotWindow::Wanted() const {
  return {kind_, from_, first_->value(), last_->value()};
}

void CopySlotWindow::ShowEffect() {
  const auto wanted = Wanted();
  const bool only_itself = wanted.first == from_ && wanted.last == from_;
  const auto warning = Shown(acts::OverwriteWarning(bindings_.Model(), wanted));
  effect_->setText(only_itself ? ItselfText(kind_) : warning.isEmpty() ? NoneInUseText(kind_) : warning);
  copy_->setEnabled(!only_itself);
}

void CopySlotWindow::Copy() {
  auto& app = bindings_.Model();
  const auto wanted = Wanted();
  if (acts::CanCopySlot(app, wanted) && bindings_.RunOwn(acts::NameOfCopy(kind_), [&] {
        acts::CopySlot(app, wanted);
      }) == core::Outcome::kDone) {
    return accept();
  }
  effect_->setText(QCoreApplication::translate(
      "CopySlotWindow", "Nothing was copied, because another window is open. Close it first."));
}

void OpenCopySlotWindow(const Bindings& bindings, acts::SlotKind kind, QWidget& parent) {
  const auto& app = bindings.Model();
  if (!app.frmMain.form.enabled || acts::SlotList(bindings.Model(), kind).position < 0) return;
  (new CopySlotWindow(bindings, kind, parent.window()))->show();
}

QPushButton* BuildCopySlotButton(const Bindings& bindings, acts::SlotKind kind) {
  auto* button = new QPushButton(QCoreApplication::translate("CopySlotWindow", "Copy to..."));
  button->setObjectName(IsAlarm(kind) ? QStringLiteral("CopyAlarmTo") : QStringLiteral("CopyExceptionTo"));
  button->setToolTip(
      IsAlarm(kind)
          ? QCoreApplication::translate("CopySlotWindow", "Copies the shown alarm to other numbers")
          : QCoreApplication::translate("CopySlotWindow", "Copies the shown exception to other numbers"));
  button->setAccessibleName(IsAlarm(kind) ? QCoreApplication::translate("CopySlotWindow", "Copy alarm")
                                          : QCoreApplication::translate("CopySlotWindow", "Copy exception"));
  button->setProperty(kReachedByMenu, true);
  button->setAutoDefault(false);
  QObject::connect(button, &QPushButton::clicked, button,
                   [&bindings, kind, button] { OpenCopySlotWindow(bindings, kind, *button); });
  return button;
}

void AddCopySlotItems(const Bindings& bindings, QMenu& menu, QWidget& window) {
  const auto add = [&](const QString& text, acts::SlotKind kind) {
    menu.addAction(text, &window, [&bindings, kind, &window] { OpenCopySlotWindow(bindings, kind, window); });
  };
  add(QCoreApplication::translate("CopySlotWindow", "Copy Exception..."), acts::SlotKind::kException);
  add(QCoreApplication::translate("CopySlotWindow", "Copy Alarm..."), acts::SlotKind::kAlarm);
}

}  // namespace ovl::ui
