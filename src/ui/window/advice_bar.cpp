#include "ui/window/advice_bar.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include "host/text_codec.h"
#include "ui/kit/theme.h"
#include "ui/language/model_texts.h"

namespace ovl::ui {

AdviceBar::AdviceBar(Bindings& bindings, const OwnActs& acts)
    : acts_(acts), words_(new QLabel), action_(new QPushButton), close_(new QToolButton) {
  setObjectName(QStringLiteral("Advice"));
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::AlternateBase);
  setVisible(false);
  auto* across = new QHBoxLayout(this);
  across->setContentsMargins(kMargin, kRowGap / 2, kRowGap, kRowGap / 2);
  across->setSpacing(kRowGap);
  words_->setObjectName(QStringLiteral("AdviceWords"));
  words_->setTextFormat(Qt::PlainText);  // it can have names of files
  words_->setWordWrap(true);
  words_->installEventFilter(this);
  action_->setObjectName(QStringLiteral("AdviceAction"));
  action_->setToolTip(QCoreApplication::translate("AdviceBar", "Does the next step of the advice."));
  close_->setObjectName(QStringLiteral("AdviceClose"));
  close_->setText(QCoreApplication::translate("AdviceBar", "Hide"));
  close_->setAccessibleName(QCoreApplication::translate("AdviceBar", "Hide this advice"));
  close_->setToolTip(QCoreApplication::translate(
      "AdviceBar", "Hides this advice until its condition has ended and is true again."));
  close_->setAutoRaise(true);
  close_->setFocusPolicy(Qt::TabFocus);
  across->addWidget(words_, 1);
  across->addWidget(action_);
  across->addWidget(close_);
  connect(action_, &QPushButton::clicked, this, [this] { acts_.follow(acts::Advice(shown_)); });
  connect(close_, &QToolButton::clicked, this, [this] {
    acts_.advisor->Dismiss(shown_.id);
    ShowFirst();
  });
  bindings.OnRefresh([this] { return ShowFirst(); });
}

// A label with text that can be selected lays it out as a document, which takes time that a start does not
// need.
bool AdviceBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Enter) words_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return QWidget::eventFilter(watched, event);
}

bool AdviceBar::ShowFirst() {
  auto lines = acts_.advisor->Lines();
  const bool was_shown = !shown_.words.empty();
  const auto before = std::exchange(shown_, lines.empty() ? acts::Advice() : std::move(lines.front()));
  if (before.words == shown_.words && before.caption == shown_.caption) return false;
  words_->setText(Shown(shown_.words, host::FromSystem));
  action_->setText(Shown(shown_.caption));
  action_->setVisible(!shown_.caption.empty());
  setVisible(!shown_.words.empty());
  return was_shown == shown_.words.empty();
}

}  // namespace ovl::ui
