#include "ui/kit/mnemonics.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <algorithm>
#include <vector>

#include "ui/kit/theme.h"

namespace ovl::ui {
namespace {

constexpr QLatin1Char kSign('&');

// The text without its "&", and the letter behind it. "&&" stays: it shows a plain "&".
struct Parts {
  QString bare;
  QChar letter;
};

Parts PartsOf(const QString& text) {
  Parts parts;
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (text[at] != kSign) {
      parts.bare += text[at];
    } else if (text.mid(at, 2) == QLatin1String("&&")) {
      parts.bare += QLatin1String("&&");
      ++at;
    } else if (at + 1 < text.size()) {
      parts.letter = text[at + 1].toLower();
    }
  }
  return parts;
}

bool StartsWord(const QString& text, qsizetype at) {
  return at == 0 || !text[at - 1].isLetterOrNumber();
}

// The places for the "&": the first letters of words come before the other letters.
std::vector<qsizetype> PlacesIn(const QString& text, bool digits) {
  std::vector<qsizetype> places;
  for (const bool starts : {true, false}) {
    for (qsizetype at = 0; at < text.size(); ++at) {
      const bool fits = digits ? text[at].isLetterOrNumber() : text[at].isLetter();
      if (fits && StartsWord(text, at) == starts) places.push_back(at);
    }
  }
  return places;
}

// Finds a letter for each text. A text keeps the letter that it had, because users know it by heart. It gets
// another one only when a later text would get none.
class MnemonicAllocator {
 public:
  MnemonicAllocator(Letters taken, bool digits) : taken_(std::move(taken)), digits_(digits) {}

  void Add(const QString& text) {
    const auto parts = PartsOf(text);
    texts_.push_back({parts.bare, PlacesIn(parts.bare, digits_)});
    auto& added = texts_.back();
    const auto same = std::find_if(added.places.begin(), added.places.end(),
                                   [&](qsizetype at) { return parts.bare[at].toLower() == parts.letter; });
    if (same != added.places.end() && IsFree(parts.letter)) added.at = *same;
  }

  // The texts with their "&", in the order in which they were added. A text gets none when all of its letters
  // are taken.
  QStringList Allocate() {
    for (auto& text : texts_) {
      if (text.at < 0) text.at = FreePlace(text);
    }
    for (std::size_t text = 0; text < texts_.size(); ++text) {
      Letters tried = taken_;
      if (texts_[text].at < 0) MakeRoom(text, tried);
    }
    QStringList given;
    for (const auto& text : texts_) {
      given.append(text.at < 0 ? text.bare : text.bare.left(text.at) + kSign + text.bare.mid(text.at));
    }
    return given;
  }

 private:
  struct Text {
    QString bare;
    std::vector<qsizetype> places;
    qsizetype at = -1;

    QChar Letter(qsizetype place) const { return bare[place].toLower(); }
  };

  std::size_t HolderOf(QChar letter) const {
    const auto found = std::find_if(texts_.begin(), texts_.end(), [letter](const Text& text) {
      return text.at >= 0 && text.Letter(text.at) == letter;
    });
    return static_cast<std::size_t>(found - texts_.begin());
  }

  bool IsFree(QChar letter) const { return !taken_.contains(letter) && HolderOf(letter) == texts_.size(); }

  qsizetype FreePlace(const Text& text) const {
    const auto found = std::find_if(text.places.begin(), text.places.end(),
                                    [&](qsizetype place) { return IsFree(text.Letter(place)); });
    return found == text.places.end() ? -1 : *found;
  }

  // Frees a letter for a text: the text that has this letter moves to another of its own letters, if need be
  // after a third text has moved.
  bool MakeRoom(std::size_t wanting, Letters& tried) {
    auto& text = texts_[wanting];
    for (const auto place : text.places) {
      const auto letter = text.Letter(place);
      if (tried.contains(letter)) continue;
      tried.insert(letter);
      const auto holder = HolderOf(letter);
      if (holder != texts_.size() && !MakeRoom(holder, tried)) continue;
      text.at = place;
      return true;
    }
    return false;
  }

  std::vector<Text> texts_;
  Letters taken_;
  bool digits_;
};

template <class Owner>
Letters Renew(const std::vector<Owner*>& owners, const Letters& taken, bool digits) {
  MnemonicAllocator allocator(taken, digits);
  for (const auto* owner : owners) allocator.Add(owner->text());
  const auto texts = allocator.Allocate();
  Letters given;
  for (std::size_t at = 0; at < owners.size(); ++at) {
    const auto& text = texts[static_cast<qsizetype>(at)];
    if (text != owners[at]->text()) owners[at]->setText(text);
    given.insert(PartsOf(text).letter);
  }
  return given;
}

Letters RenewItems(const QList<QAction*>& actions) {
  std::vector<QAction*> items;
  for (auto* action : actions) {
    if (!action->isVisible() || action->isSeparator()) continue;
    items.push_back(action);
    if (action->menu() != nullptr) RenewItems(action->menu()->actions());
  }
  return Renew(items, {}, true);
}

// A button, or the label of a field.
struct CaptionedWidget {
  QAbstractButton* button;
  QLabel* label;

  QString text() const { return button != nullptr ? button->text() : label->text(); }
  void setText(const QString& text) { button != nullptr ? button->setText(text) : label->setText(text); }
};

}  // namespace

Letters AssignMenuMnemonics(QMenuBar& bar) {
  return RenewItems(bar.actions());
}

void AssignItemMnemonics(const QMenu& menu) {
  RenewItems(menu.actions());
}

void AssignPageMnemonics(QWidget& page, const Letters& taken) {
  std::vector<CaptionedWidget> captioned;
  for (auto* widget : page.findChildren<QWidget*>()) {
    const bool without = IsDangerous(widget) || widget->property(kReachedByMenu).toBool();
    if (without || !widget->isVisibleTo(&page)) continue;
    auto* button = qobject_cast<QAbstractButton*>(widget);
    if (qobject_cast<QRadioButton*>(button) != nullptr || (button != nullptr && button->text().isEmpty()))
      continue;
    auto* label = qobject_cast<QLabel*>(widget);
    if (button != nullptr || (label != nullptr && label->buddy() != nullptr))
      captioned.push_back({button, label});
  }
  std::vector<CaptionedWidget*> owners;
  for (auto& widget : captioned) owners.push_back(&widget);
  Renew(owners, taken, false);
}

}  // namespace ovl::ui
