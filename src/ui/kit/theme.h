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

// A text that is not a caption of the model: a hint, a column head, an explanation.
QLabel* MutedLabel(const QString& text);

QLabel* TitleLabel(const QString& text);
QWidget* Hairline();

// Sizes of the layout in device-independent pixels.
inline constexpr int kMargin = 20;
inline constexpr int kColumnGap = 32;
inline constexpr int kSectionGap = 20;
inline constexpr int kRowGap = 8;
inline constexpr int kFieldGap = 10;
inline constexpr int kButtonWidth = 112;

}  // namespace ovl::ui
