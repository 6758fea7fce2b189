// What a screen reader says, and whether texts can be read in both themes.
#include <QImage>
#include <QPushButton>
#include <QRegularExpression>
#include <map>

#include "pictures/spoken_text.h"
#include "screen.h"

namespace ovl::testing {
namespace {

void ExpectNamesAndPurposes(const QString& spoken) {
  static const QRegularExpression control(
      QStringLiteral("^(Button|CheckBox|RadioButton|ComboBox|EditableText|List|Tree) (.*)$"));
  for (const auto& line : spoken.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
    const auto found = control.match(line);
    if (!found.hasMatch()) continue;
    EXPECT_FALSE(found.captured(2).startsWith(QLatin1String("\"\""))) << line.toStdString();
    EXPECT_TRUE(line.contains(QLatin1String(": "))) << line.toStdString();
  }
}

TEST(Accessibility, EachControlHasANameAndAPurpose) {
  Screen screen;
  for (const auto* name : {"GENERIC", "TCPIP", "IBM"}) {
    screen.Select(name);
    for (int tab = kRegisterTab; tab <= kRemoteTab; ++tab) {
      screen.Main().Tabs().setCurrentIndex(tab);
      screen.Show();
      ExpectNamesAndPurposes(pictures::SpokenText(screen.Main()));
    }
  }
  screen.Main().Tabs().setCurrentIndex(kRegisterTab);
  screen.Show();
  EXPECT_TRUE(pictures::SpokenText(screen.Main())
                  .contains(QStringLiteral("\nRadioButton \"IBM3151 TERMINAL\", checked: ")));
  screen.App().frmMain.ComboCOMM[controls::Comm::kParity].position = 1;
  screen.Main().Tabs().setCurrentIndex(kLineTab);
  screen.Show();
  const auto spoken = pictures::SpokenText(screen.Main());
  EXPECT_TRUE(spoken.contains(QStringLiteral("\nPageTab \"COMMUNICATION\": Alt+4\n")))
      << spoken.toStdString();
  EXPECT_TRUE(spoken.contains(
      QStringLiteral("\nComboBox \"PARITY\", \"EVEN\": The parity of a character on the register line.\n")))
      << spoken.toStdString();
}

// Of the most frequent color of a picture with the one that differs most from it.
double ContrastIn(const QImage& image) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
  }
  const auto by_count = [](const auto& one, const auto& other) { return one.second < other.second; };
  const auto ground = std::max_element(counts.begin(), counts.end(), by_count)->first;
  double most = 1;
  for (const auto& [color, count] : counts) most = std::max(most, Contrast(color, ground));
  return most;
}

TEST(Accessibility, TextsCanBeReadInPicturesOfBothThemes) {
  Screen screen;
  screen.Select("TCPIP");
  for (const auto theme : {ui::Theme::kLight, ui::Theme::kDark}) {
    ui::ApplyTheme(theme);
    for (int tab = kRegisterTab; tab <= kRemoteTab; ++tab) {
      screen.Main().Tabs().setCurrentIndex(tab);
      screen.Show();
      const auto picture = screen.Main().grab().toImage();
      for (const auto* widget : VisibleIn<QLabel, QAbstractButton>(screen.Main())) {
        const auto text = widget->property("text").toString().trimmed();
        const bool is_scrolled_away = widget->visibleRegion().boundingRect() != widget->rect();
        if (!widget->isEnabled() || text.isEmpty() || is_scrolled_away) continue;
        // The frame of a button is no text.
        const QRect inside(widget->mapTo(&screen.Main(), QPoint()), widget->size());
        const auto frame = IsOne<QPushButton>(widget) ? 3 : 0;
        EXPECT_GE(ContrastIn(picture.copy(inside.adjusted(frame, frame, -frame, -frame))), 4.5)
            << text.toStdString() << (theme == ui::Theme::kDark ? " in the dark" : "");
      }
    }
  }
  ui::ApplyTheme(ui::Theme::kLight);
}

}  // namespace
}  // namespace ovl::testing
