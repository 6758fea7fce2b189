#include "ui/kit/theme.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFontInfo>
#include <QLabel>
#include <QPainter>
#include <QPolygonF>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>

#include "ui/kit/icons.h"

namespace ovl::ui {
namespace {

struct Scheme {
  QRgb window, base, alternate, button, text, muted, disabled, hairline, highlight, highlighted, accent;
};

constexpr Scheme kLightScheme{0xFFF4F5F7, 0xFFFFFFFF, 0xFFF7F8FA, 0xFFFDFDFE, 0xFF1C1F24, 0xFF5B626D,
                              0xFFA3A8B0, 0xFFD3D6DB, 0xFF2A6BB8, 0xFFFFFFFF, 0xFF1D7A4C};
constexpr Scheme kDarkScheme{0xFF22252A, 0xFF1A1C20, 0xFF1F2226, 0xFF33373D, 0xFFE6E8EB, 0xFFA2A8B2,
                             0xFF646A73, 0xFF3D4249, 0xFF3273C4, 0xFFFFFFFF, 0xFF4DBB7F};

constexpr QRgb kLightDanger = 0xFFB3201F, kDarkDanger = 0xFFFF8B85;
constexpr const char* kDangerous = "dangerous";

constexpr Em kLayoutSpacing(0.5);
constexpr Em kTabPadding(1.33);
constexpr Em kTabLine(0.25);
constexpr Em kHeaderPadding(0.5);
constexpr Em kFieldHeight(2.17);
constexpr Em kIndicatorSize(1.17);
constexpr Em kLeastListWidth(5.33);
constexpr Em kThumbInset(0.25);
constexpr int kFocusWidth = 2;
constexpr int kLighter = 140;

QPalette PaletteOf(const Scheme& scheme) {
  QPalette palette(QColor::fromRgb(scheme.button), QColor::fromRgb(scheme.window));
  const auto set = [&](QPalette::ColorRole role, QRgb color, QRgb disabled) {
    palette.setColor(QPalette::All, role, QColor::fromRgb(color));
    palette.setColor(QPalette::Disabled, role, QColor::fromRgb(disabled));
  };
  set(QPalette::Window, scheme.window, scheme.window);
  set(QPalette::Base, scheme.base, scheme.window);
  set(QPalette::AlternateBase, scheme.alternate, scheme.window);
  set(QPalette::Button, scheme.button, scheme.window);
  set(QPalette::WindowText, scheme.text, scheme.disabled);
  set(QPalette::Text, scheme.text, scheme.disabled);
  set(QPalette::ButtonText, scheme.text, scheme.disabled);
  set(QPalette::PlaceholderText, scheme.muted, scheme.disabled);
  set(QPalette::ToolTipBase, scheme.base, scheme.base);
  set(QPalette::ToolTipText, scheme.text, scheme.text);
  set(QPalette::Mid, scheme.hairline, scheme.hairline);
  set(QPalette::Highlight, scheme.highlight, scheme.hairline);
  set(QPalette::HighlightedText, scheme.highlighted, scheme.text);
  set(QPalette::Link, scheme.accent, scheme.disabled);
  set(QPalette::BrightText, scheme.highlighted, scheme.highlighted);
  return palette;
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

// Flat tabs with a line below the current one, and drop-down lists that show at most ten lines.
class OvlStyle : public QProxyStyle {
 public:
  OvlStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_ComboBox_Popup) return 0;
    if (hint == SH_EtchDisabledText || hint == SH_DitherDisabledText) return 0;
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    if (metric == PM_LayoutHorizontalSpacing || metric == PM_LayoutVerticalSpacing) return kLayoutSpacing;
    if (metric == PM_TabBarTabHSpace) return kTabPadding;
    if (metric == PM_TabBarTabShiftVertical || metric == PM_TabBarTabShiftHorizontal) return 0;
    if (metric == PM_HeaderMargin) return kHeaderPadding;
    if (metric == PM_IndicatorWidth || metric == PM_IndicatorHeight) return kIndicatorSize;
    if (metric == PM_ExclusiveIndicatorWidth || metric == PM_ExclusiveIndicatorHeight) return kIndicatorSize;
    return QProxyStyle::pixelMetric(metric, option, widget);
  }

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override {
    auto size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    // A tab is drawn without the blanks around its caption.
    if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option); tab != nullptr) {
      const QFontMetrics& metrics = option->fontMetrics;
      size.rwidth() -= metrics.horizontalAdvance(tab->text) - metrics.horizontalAdvance(tab->text.trimmed());
    }
    if (type == CT_ComboBox || type == CT_PushButton || type == CT_LineEdit) {
      size.setHeight(std::max<int>(size.height(), kFieldHeight));
    }
    const bool in_row =
        widget != nullptr && qobject_cast<QDialogButtonBox*>(widget->parentWidget()) != nullptr;
    if (type == CT_PushButton && in_row) size.setWidth(std::max<int>(size.width(), kButtonWidth));
    if (type == CT_ComboBox) size.setWidth(std::max<int>(size.width(), kLeastListWidth));
    return size;
  }

  QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override {
    switch (which) {
      case SP_MessageBoxInformation:
        return GlyphIcon(Glyph::kInformation);
      case SP_MessageBoxQuestion:
        return GlyphIcon(Glyph::kQuestion);
      case SP_MessageBoxWarning:
      case SP_MessageBoxCritical:
        return GlyphIcon(Glyph::kWarning);
      default:
        return QProxyStyle::standardIcon(which, option, widget);
    }
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (element == PE_FrameTabBarBase) {
      const auto row = option->rect;
      painter->fillRect(row.left(), row.bottom(), row.width(), 1, HairlineColor(option->palette));
      return;
    }
    if (element == PE_FrameStatusBarItem) return;
    // The focus is always visible, also after a click.
    if (element == PE_FrameFocusRect) return DrawRing(option->rect, FocusColor(option->palette), painter);
    if (element == PE_FrameLineEdit ||
        (element == PE_Frame && qobject_cast<const QLabel*>(widget) != nullptr)) {
      return DrawFieldEdge(*option, painter);
    }
    if (element == PE_PanelLineEdit && option->state.testFlag(State_ReadOnly)) {
      painter->fillRect(option->rect.adjusted(1, 1, -1, -1), option->palette.color(QPalette::Window));
      return DrawFieldEdge(*option, painter);
    }
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton) {
      return DrawIndicator(*option, element == PE_IndicatorRadioButton, painter);
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
    if (tab != nullptr && element == CE_TabBarTabShape) return DrawTab(*tab, painter);
    if (tab != nullptr && element == CE_TabBarTabLabel) {
      QStyleOptionTab centred(*tab);
      centred.text = tab->text.trimmed();
      return QProxyStyle::drawControl(element, &centred, painter, widget);
    }
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button != nullptr && element == CE_PushButtonBevel) return DrawBevel(*button, painter, widget);
    if (button != nullptr && element == CE_PushButtonLabel && IsDangerous(widget)) {
      auto red = *button;
      red.palette.setColor(QPalette::Active, QPalette::ButtonText, DangerColor(red.palette));
      red.palette.setColor(QPalette::Inactive, QPalette::ButtonText, DangerColor(red.palette));
      return QProxyStyle::drawControl(element, &red, painter, widget);
    }
    const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
    if (bar != nullptr && element == CE_ProgressBarGroove) {
      painter->fillRect(bar->rect, bar->palette.color(QPalette::Base));
      return DrawFieldEdge(*bar, painter);
    }
    if (bar != nullptr && element == CE_ProgressBarContents) return DrawProgress(*bar, painter);
    QProxyStyle::drawControl(element, option, painter, widget);
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && option->state.testFlag(State_HasFocus)) {
      DrawRing(option->rect, FocusColor(option->palette), painter, kFocusWidth);
    }
    if (control != CC_ScrollBar) return;
    const auto thumb = proxy()->subControlRect(control, option, SC_ScrollBarSlider, widget);
    painter->fillRect(thumb.adjusted(kThumbInset, kThumbInset, -kThumbInset, -kThumbInset),
                      EdgeColor(option->palette));
  }

 private:
  // The default button has a darker edge; only the button with the focus has the colour of the focus.
  void DrawBevel(const QStyleOptionButton& button, QPainter* painter, const QWidget* widget) const {
    auto plain = button;
    plain.features.setFlag(QStyleOptionButton::DefaultButton, false);
    plain.state.setFlag(State_HasFocus, false);
    QProxyStyle::drawControl(CE_PushButtonBevel, &plain, painter, widget);
    const auto edge = button.rect.adjusted(1, 1, -1, -1);
    if (button.state.testFlag(State_HasFocus)) {
      DrawRing(edge, FocusColor(button.palette), painter, kFocusWidth);
    } else if (IsDangerous(widget)) {
      DrawRing(
          edge,
          button.state.testFlag(State_Enabled) ? DangerColor(button.palette) : HairlineColor(button.palette),
          painter, kFocusWidth);
    } else if (button.features.testFlag(QStyleOptionButton::DefaultButton)) {
      DrawRing(edge, MutedColor(button.palette), painter);
    }
  }

  // Lighter on a dark background.
  static QColor FocusColor(const QPalette& palette) {
    const auto accent = palette.color(QPalette::Highlight);
    return IsDark(palette) ? accent.lighter(kLighter) : accent;
  }

  // Between the colour of lines and that of muted text: an outline that is visible on both backgrounds.
  static QColor EdgeColor(const QPalette& palette) {
    const auto line = HairlineColor(palette), text = MutedColor(palette);
    return QColor((line.red() + text.red()) / 2, (line.green() + text.green()) / 2,
                  (line.blue() + text.blue()) / 2);
  }

  static void DrawFieldEdge(const QStyleOption& option, QPainter* painter) {
    const bool focused = option.state.testFlag(State_HasFocus);
    const bool enabled = option.state.testFlag(State_Enabled);
    const auto& palette = option.palette;
    if (focused) return DrawRing(option.rect, FocusColor(palette), painter, kFocusWidth);
    DrawRing(option.rect, enabled ? EdgeColor(palette) : HairlineColor(palette), painter);
  }

  static void DrawRing(const QRect& around, const QColor& color, QPainter* painter, int width = 1) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(color, width));
    const auto inset = width / 2.0;
    painter->drawRoundedRect(QRectF(around).adjusted(inset, inset, -inset, -inset), 2, 2);
    painter->restore();
  }

  // One colour, so that the numbers on it can be read.
  static void DrawProgress(const QStyleOptionProgressBar& bar, QPainter* painter) {
    const auto room = bar.rect.adjusted(1, 1, -1, -1);
    const int span = std::max(bar.maximum - bar.minimum, 1);
    const auto width =
        static_cast<int>(static_cast<qint64>(room.width()) * (bar.progress - bar.minimum) / span);
    painter->fillRect(QRect(room.topLeft(), QSize(std::max(width, 0), room.height())),
                      bar.palette.color(QPalette::Highlight));
  }

  // The box of a check box or the ring of an option, with an outline that is visible on both backgrounds.
  static void DrawIndicator(const QStyleOption& option, bool round, QPainter* painter) {
    const auto& palette = option.palette;
    const bool enabled = option.state.testFlag(State_Enabled);
    const bool on = option.state.testFlag(State_On);
    const auto fill = palette.color(on && enabled ? QPalette::Highlight : QPalette::Base);
    const bool strong = (on && enabled) || option.state.testFlag(State_HasFocus);
    const auto edge = strong ? palette.color(QPalette::Highlight) : MutedColor(palette);
    const QRectF box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(edge);
    painter->setBrush(fill);
    painter->drawRoundedRect(box, round ? box.width() / 2 : 2, round ? box.height() / 2 : 2);
    if (on) DrawMark(box, round, enabled ? palette.color(QPalette::BrightText) : edge, painter);
    painter->restore();
  }

  static void DrawMark(const QRectF& box, bool round, const QColor& color, QPainter* painter) {
    if (round) {
      painter->setPen(Qt::NoPen);
      painter->setBrush(color);
      const qreal inset = box.width() * 0.3;
      painter->drawEllipse(box.adjusted(inset, inset, -inset, -inset));
      return;
    }
    const auto at = [&](qreal x, qreal y) {
      return box.topLeft() + QPointF(box.width() * x, box.height() * y);
    };
    painter->setPen(QPen(color, box.width() * 0.13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPolyline(QPolygonF({at(0.24, 0.52), at(0.43, 0.71), at(0.77, 0.31)}));
  }

  static void DrawTab(const QStyleOptionTab& tab, QPainter* painter) {
    const auto place = tab.rect;
    painter->fillRect(place.left(), place.bottom(), place.width(), 1, HairlineColor(tab.palette));
    if (tab.state.testFlag(State_Selected)) {
      painter->fillRect(place.left(), place.bottom() + 1 - kTabLine, place.width(), kTabLine,
                        tab.palette.color(QPalette::Highlight));
    } else if (tab.state.testFlag(State_MouseOver)) {
      painter->fillRect(place.adjusted(0, 0, 0, -1), tab.palette.color(QPalette::Button));
    }
    if (tab.state.testFlag(State_HasFocus)) {
      DrawRing(place.adjusted(kTabLine, kTabLine, -kTabLine, -2 * kTabLine), FocusColor(tab.palette),
               painter);
    }
  }
};

}  // namespace

void ApplyTheme(Theme theme) {
  if (dynamic_cast<OvlStyle*>(QApplication::style()) == nullptr) QApplication::setStyle(new OvlStyle);
  // Without colours of its own the application has the palette of the desktop.
  if (theme == Theme::kDesktop) QApplication::setPalette(QPalette());
  const bool dark = theme == Theme::kDark || (theme == Theme::kDesktop && IsDark(QApplication::palette()));
  QApplication::setPalette(PaletteOf(dark ? kDarkScheme : kLightScheme));
}

Em::operator int() const {
  return qRound(count_ * QFontInfo(QApplication::font()).pixelSize());
}

QColor AccentColor(const QPalette& palette) {
  return palette.color(QPalette::Link);
}

QColor MutedColor(const QPalette& palette) {
  return palette.color(QPalette::PlaceholderText);
}

QColor HairlineColor(const QPalette& palette) {
  return palette.color(QPalette::Mid);
}

QColor DangerColor(const QPalette& palette) {
  return QColor::fromRgb(IsDark(palette) ? kDarkDanger : kLightDanger);
}

void MarkDangerous(QWidget& button) {
  button.setProperty(kDangerous, true);
}

bool IsDangerous(const QWidget* widget) {
  return widget != nullptr && widget->property(kDangerous).toBool();
}

QLabel* MutedLabel(const QString& text) {
  auto* label = new QLabel(text);
  label->setForegroundRole(QPalette::PlaceholderText);
  label->setTextFormat(Qt::PlainText);
  return label;
}

QLabel* TitleLabel(const QString& text) {
  auto* label = new QLabel(text);
  auto font = label->font();
  font.setWeight(QFont::DemiBold);
  label->setFont(font);
  label->setTextFormat(Qt::PlainText);
  return label;
}

QWidget* Hairline() {
  auto* line = new QWidget;
  line->setFixedHeight(1);
  line->setAutoFillBackground(true);
  line->setBackgroundRole(QPalette::Mid);
  return line;
}

}  // namespace ovl::ui
