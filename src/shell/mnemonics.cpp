#include "shell/mnemonics.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>

namespace ovl {
namespace {

constexpr QLatin1Char kSign('&');

// The text without its letter; "&&" stays, being a plain "&".
QString Bare(const QString& text) {
  QString bare;
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (text[at] != kSign) {
      bare += text[at];
    } else if (text.mid(at, 2) == QLatin1String("&&")) {
      bare += QLatin1String("&&");
      ++at;
    }
  }
  return bare;
}

bool StartsWord(const QString& text, qsizetype at) {
  return at == 0 || !text[at - 1].isLetterOrNumber();
}

// First letters of words are tried before others.
QString WithMnemonic(const QString& text, Letters& taken) {
  for (const bool starts : {true, false}) {
    for (qsizetype at = 0; at < text.size(); ++at) {
      const auto letter = text[at].toLower();
      if (!letter.isLetterOrNumber() || StartsWord(text, at) != starts || taken.contains(letter)) continue;
      taken.insert(letter);
      return text.left(at) + kSign + text.mid(at);
    }
  }
  return text;
}

void AssignItems(const QMenu& menu) {
  Letters taken;
  for (auto* action : menu.actions()) {
    if (!action->isVisible() || action->isSeparator()) continue;
    action->setText(WithMnemonic(Bare(action->text()), taken));
    if (action->menu() != nullptr) AssignItems(*action->menu());
  }
}

}  // namespace

Letters AssignMenuMnemonics(QMenuBar& bar) {
  Letters taken;
  for (auto* action : bar.actions()) {
    if (!action->isVisible() || action->menu() == nullptr) continue;
    action->setText(WithMnemonic(Bare(action->text()), taken));
    AssignItems(*action->menu());
  }
  return taken;
}

void AssignPageMnemonics(QWidget& page, const Letters& taken) {
  auto letters = taken;
  for (auto* widget : page.findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(&page)) continue;
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
      if (qobject_cast<QRadioButton*>(button) != nullptr || button->text().isEmpty()) continue;
      button->setText(WithMnemonic(Bare(button->text()), letters));
    } else if (auto* label = qobject_cast<QLabel*>(widget)) {
      if (label->buddy() == nullptr) continue;
      label->setText(WithMnemonic(Bare(label->text()), letters));
    }
  }
}

}  // namespace ovl
