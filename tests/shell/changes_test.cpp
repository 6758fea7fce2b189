// What a download would change, beside the panels that changed it.
#include <QPushButton>
#include <QTreeWidget>

#include "link/transfer.h"
#include "screen.h"

namespace ovl::testing {
namespace {

std::string Listed(Screen& screen) {
  QStringList cells;
  const auto& list = screen.Find<QTreeWidget>("ChangesList");
  for (int line = 0; line < list.topLevelItemCount(); ++line) {
    for (int at = 0; at < list.columnCount(); ++at) cells.append(list.topLevelItem(line)->text(at));
  }
  return cells.join('|').toStdString();
}

TEST_F(ScreenTest, ChangesAreListedByFieldPlaceAndLabelWithTheBytesThenAndNow) {
  auto& app = App();
  const auto& button = Find<QPushButton>("StatusChanges");
  EXPECT_FALSE(button.isVisible());
  const auto other = [&](const List& list) { return list.position == 0 ? 1 : 0; };
  const auto& line = app.image[FieldId::COMMCFG_BAK];
  const auto expected = "COMMCFG_BAK|SYSCFG 1|COMMUNICATION: PARITY|" + line + "|";
  Pick("ComboCOMM(3)", other(app.frmMain.ComboCOMM[3]));
  EXPECT_EQ(button.text(), "1 change since the last load");
  Click("StatusChanges");
  EXPECT_EQ(Listed(*this), expected + line);

  app.image.at(FieldId::EXCPSTRS, 2).replace(0, 2, "55");
  Show();
  EXPECT_EQ(button.text(), "2 changes since the last load");
  EXPECT_NE(Listed(*this).find("|EXCPSTRS(2)|SYSSTR "), std::string::npos);

  StartDownload(app);
  const auto sent = app.image;
  Pick("ComboTD(2)", other(app.frmMain.ComboTD[2]));
  FinishDownload(app);
  Show();
  EXPECT_EQ(button.text(), "1 change since the last load")
      << "the unit holds what was sent, not what was picked meanwhile";
  EXPECT_TRUE(app.known_image == sent);
  EXPECT_EQ(Listed(*this).find("DATE_FORMAT_BAK|SYSFIXED "), 0U);
}

}  // namespace
}  // namespace ovl::testing
