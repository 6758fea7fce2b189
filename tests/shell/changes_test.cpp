// What a download would change, beside the panels that changed it.
#include <QPushButton>
#include <QTreeWidget>

#include "link/transfer.h"
#include "shell/changes_window.h"
#include "shell/screen.h"

namespace ovl::testing {
namespace {

std::string Listed(Screen& screen) {
  std::string lines;
  const auto& list = screen.Find<QTreeWidget>("ChangesList");
  for (int line = 0; line < list.topLevelItemCount(); ++line) {
    for (int column = 0; column < list.columnCount(); ++column) {
      lines += list.topLevelItem(line)->text(column).toStdString() + (column < 4 ? "|" : "\n");
    }
  }
  return lines;
}

TEST(Changes, AreListedByFieldPlaceAndLabelWithTheBytesThenAndNow) {
  Screen screen({"V1400", "R12"});
  auto& app = screen.App();
  const auto& button = screen.Find<QPushButton>("StatusChanges");
  EXPECT_FALSE(button.isVisible());

  const auto line = app.image[FieldId::COMMCFG_BAK];
  screen.Pick("ComboCOMM(3)", app.frmMain.ComboCOMM[3].position == 0 ? 1 : 0);
  EXPECT_EQ(button.text(), "1 change");
  screen.Click("StatusChanges");
  EXPECT_EQ(Listed(screen), "COMMCFG_BAK|SYSCFG 1|COMMUNICATION: PARITY|" + line + "|" +
                                app.image[FieldId::COMMCFG_BAK] + "\n");

  app.image.at(FieldId::EXCPSTRS, 2).replace(0, 2, "55");
  screen.Show();
  EXPECT_EQ(button.text(), "2 changes");
  EXPECT_NE(Listed(screen).find("EXCPSTRS(2)|SYSSTR "), std::string::npos);

  StartDownload(app);
  const auto sent = app.image;
  screen.Pick("ComboTD(2)", app.frmMain.ComboTD[2].position == 0 ? 1 : 0);
  FinishDownload(app);
  screen.Show();
  EXPECT_EQ(button.text(), "1 change") << "the unit holds what was sent, not what was picked meanwhile";
  EXPECT_TRUE(app.known_image == sent);
  EXPECT_NE(Listed(screen).find("DATE_FORMAT_BAK|SYSFIXED "), std::string::npos);
}

}  // namespace
}  // namespace ovl::testing
