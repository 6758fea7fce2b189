// The look of the program: the Fusion style with a few changes, a light and a dark palette, one accent
// colour.
#pragma once

#include <QColor>
#include <QPalette>

class QLabel;
class QWidget;

namespace ovl::ui {

enum class Theme {
  kDesktop,  // light or dark, like the palette of the desktop
  kLight,
  kDark,
};

// Sets the style and the palette of the whole application. It may be called again while windows are open.
void ApplyTheme(Theme theme);

// For what is active: remote mode, characters on the line.
QColor AccentColor(const QPalette& palette);
QColor MutedColor(const QPalette& palette);
QColor HairlineColor(const QPalette& palette);
// For what cannot be taken back.
QColor DangerColor(const QPalette& palette);

// Gives a button a thick edge in the colour of danger. It gets no underlined letter, so that no single key
// presses it.
void MarkDangerous(QWidget& button);
bool IsDangerous(const QWidget* widget);

// A text that is not a caption of the model: a hint, a column head, an explanation.
QLabel* MutedLabel(const QString& text);

QLabel* TitleLabel(const QString& text);
QWidget* Hairline();

// A length in sizes of the font of the application, so that the windows grow with the font. Where it is used
// it becomes a number of device-independent pixels.
class Em {
 public:
  constexpr explicit Em(qreal count) : count_(count) {}
  operator int() const;

 private:
  qreal count_;
};

// Sizes of the layout.
inline constexpr Em kMargin(1.67);
inline constexpr Em kColumnGap(2.67);
inline constexpr Em kSectionGap(1.67);
inline constexpr Em kRowGap(0.67);
inline constexpr Em kFieldGap(0.83);
inline constexpr Em kButtonWidth(9.33);

}  // namespace ovl::ui
