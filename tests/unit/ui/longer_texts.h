// A language in which every word is a third longer, for tests of the room of texts.
#pragma once

#include <QTranslator>

namespace ovl::testing {

class LongerTexts : public QTranslator {
 public:
  bool isEmpty() const override { return false; }

  QString translate(const char* context, const char* text, const char*, int) const override {
    constexpr qsizetype kLeast = 3;
    const auto source = QString::fromUtf8(text);
    // Those of Qt, and the patterns of files.
    if (*context == 'Q' || source.contains('|')) return {};
    QString longer;
    qsizetype word = 0;
    for (qsizetype at = 0; at <= source.size(); ++at) {
      const bool letter = at < source.size() && source[at].isLetter();
      if (!letter && word >= kLeast) longer += QString(word / kLeast, source[at - 1]);
      word = letter ? word + 1 : 0;
      if (at < source.size()) longer += source[at];
    }
    return longer;
  }
};

}  // namespace ovl::testing
