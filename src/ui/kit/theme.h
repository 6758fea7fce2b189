// How the program looks: Fusion with a few pieces of our own, one light and one dark palette, one accent.
#pragma once

#include <QColor>
#include <QPalette>

class QLabel;
class QWidget;

namespace ovl::ui {

enum class Theme {
  kDesktop,  // light or dark, whichever the desktop's own palette is
  kLight,
  kDark,
};

// Sets style and palette of the whole application. It can be called again while windows stand.
void ApplyTheme(Theme theme);

// What is live: remote mode held, characters on the line.
QColor AccentColor(const QPalette& palette);
QColor MutedColor(const QPalette& palette);
QColor HairlineColor(const QPalette& palette);

// Our own words beside the system's: hints, column heads, explanations.
QLabel* MutedLabel(const QString& text);

QLabel* TitleLabel(const QString& text);
QWidget* Hairline();

// Distances of the layout in device-independent pixels.
inline constexpr int kMargin = 20;
inline constexpr int kColumnGap = 32;
inline constexpr int kSectionGap = 20;
inline constexpr int kRowGap = 8;
inline constexpr int kFieldGap = 10;

}  // namespace ovl::ui
