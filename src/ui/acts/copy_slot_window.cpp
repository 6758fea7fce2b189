#include "ui/acts/copy_slot_window.h"

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

}  // namespace

CopySlotWindow::CopySlotWindow(const Bindings& bindings, acts::SlotKind kind, QWidget* parent)
    : QDialog(parent),
      bindings_(bindings),
      kind_(kind),
      from_(acts::SlotList(bindings.Model(), kind).position + 1),
      first_(MakeNumber("CopyFirst", QStringLiteral("First target"))),
      last_(MakeNumber("CopyLast", QStringLiteral("Last target"))),
      effect_(new QLabel),
      copy_(new QPushButton(QStringLiteral("Copy"))) {
  setObjectName(IsAlarm(kind) ? QStringLiteral("CopyAlarm") : QStringLiteral("CopyException"));
  setWindowTitle(IsAlarm(kind) ? QStringLiteral("Copy alarm") : QStringLiteral("Copy exception"));
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
}

void CopySlotWindow::LayOut() {
  const auto source =
      IsAlarm(kind_) ? QStringLiteral("Copy alarm %1 to") : QStringLiteral("Copy exception %1 to");
  auto* numbers = new QHBoxLayout;
  numbers->setSpacing(kFieldGap);
  numbers->addWidget(new QLabel(source.arg(from_)));
  numbers->addWidget(first_);
  numbers->addWidget(new QLabel(QStringLiteral("up to")));
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
  const auto warning = host::FromWindows1252(acts::OverwriteWarning(bindings_.Model(), wanted));
  const auto what = IsAlarm(kind_) ? QStringLiteral("alarm") : QStringLiteral("exception");
  effect_->setText(only_itself ? QStringLiteral("This is the %1 itself. Pick another number.").arg(what)
                   : warning.isEmpty() ? QStringLiteral("No %1 in use is overwritten.").arg(what)
                                       : warning);
  copy_->setEnabled(!only_itself);
}

void CopySlotWindow::Copy() {
  auto& app = bindings_.Model();
  const auto wanted = Wanted();
  const auto* name = IsAlarm(kind_) ? "Copy alarm" : "Copy exception";
  if (acts::CanCopySlot(app, wanted) &&
      bindings_.RunOwn(name, [&] { acts::CopySlot(app, wanted); }) == core::Outcome::kDone) {
    return accept();
  }
  effect_->setText(QStringLiteral("Nothing was copied, because another window is open. Close it first."));
}

void OpenCopySlotWindow(const Bindings& bindings, acts::SlotKind kind, QWidget& parent) {
  const auto& app = bindings.Model();
  if (!app.frmMain.form.enabled || acts::SlotList(bindings.Model(), kind).position < 0) return;
  (new CopySlotWindow(bindings, kind, parent.window()))->show();
}

QPushButton* BuildCopySlotButton(const Bindings& bindings, acts::SlotKind kind) {
  auto* button = new QPushButton(QStringLiteral("Copy to..."));
  button->setObjectName(IsAlarm(kind) ? QStringLiteral("CopyAlarmTo") : QStringLiteral("CopyExceptionTo"));
  button->setToolTip(IsAlarm(kind) ? QStringLiteral("Copies the shown alarm to other numbers")
                                   : QStringLiteral("Copies the shown exception to other numbers"));
  button->setAccessibleName(IsAlarm(kind) ? QStringLiteral("Copy alarm") : QStringLiteral("Copy exception"));
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
  add(QStringLiteral("Copy Exception..."), acts::SlotKind::kException);
  add(QStringLiteral("Copy Alarm..."), acts::SlotKind::kAlarm);
}

}  // namespace ovl::ui
