// The site sheet as a document.
#include <QAction>
#include <QFile>
#include <QTextDocument>
#include <QTimer>

#include "firmware/firmware_table.h"
#include "image/slot_records.h"
#include "screen.h"
#include "sheet/site_sheet.h"
#include "start/start_up.h"
#include "text_form/encoding.h"
#include "ui/print/printer.h"
#include "ui/print/site_sheet.h"

namespace ovl::testing {
namespace {

using image::FieldId;

// Everything is in use, with texts of the widest letters and the longest entries of the lists.
image::ConfigImage FullImage(const firmware::FirmwareId& firmware) {
  constexpr int kSecondHalf = 26, kPulse = 255, kMinute = 9;
  const std::string text(40, 'W');
  auto image = text_form::FilledImage(firmware, '0');
  image[FieldId::REGTYPE] = "01";  // TCPIP has the most options
  for (int number = 1; number <= image::kExceptions; ++number) {
    auto& slot = image.at(FieldId::EXCPSTRS, number);
    image::StoreExceptionText(slot, firmware, text);
    image::StoreRange(slot, firmware, std::string(image::RangeDigits(firmware).count, '9'));
  }
  for (int number = 1; number <= image::kAlarms; ++number) {
    auto& record = image.at(FieldId::ALMSTRUCT_BAK, number);
    image::StoreAlarmTrigger(record, kSecondHalf);
    image::StoreAlarmDuration(record, firmware, kPulse, 0);
    image::StoreAlarmVideoLoss(record, kMinute);
    auto& triggered = image.at(FieldId::TRIGGER_TEXT, number);
    triggered = triggered.substr(0, image::kTriggeredDigits.first) + image::PaddedText(text) + "00";
  }
  return image;
}

// In a PDF file each page is an object of this type.
int PagesOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return static_cast<int>(file.readAll().count("/Type /Page\n"));
}

class SiteSheetFile : public ::testing::TestWithParam<std::string> {};

TEST_P(SiteSheetFile, OfAFullConfigurationHasTwoPages) {
  core::Application app;
  const auto firmware = firmware::ServedFirmware(GetParam());
  start::ServeFirmware(app, firmware);
  checks::Finding finding;
  finding.words = std::string(
      "Exception 24, \"24 AMOUNT & WIDE <VOID> MW@#%WWWWWWWWWWW\", is not displayed, put out or kept in the "
      "history, and it triggers no alarm.");
  const std::vector<checks::Finding> findings(40, finding);
  const TemporaryFolder folder;
  const auto file = QString::fromStdString(folder.File("sheet.pdf"));
  for (const auto& image : {FullImage(firmware), text_form::FilledImage(firmware, 'C')}) {
    const sheet::SiteSheet sheet(app, image, findings, sheet::Changes::kNotDownloaded);
    for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
      ASSERT_TRUE(ui::WriteSiteSheet(sheet, file, ui::SheetFormat::kPdf, paper).Ok());
      EXPECT_EQ(PagesOf(file), 2) << QPageSize::name(paper).toStdString();
    }
  }
}

TEST(SiteSheetLayout, HasAsManyFindingsAsFitAndCountsTheOthers) {
  core::Application app;
  start::ServeFirmware(app, {"V1400", "R12"});
  const auto image = text_form::FilledImage(app.image_firmware, '0');
  checks::Finding finding;
  finding.words = std::string("Words");
  for (const std::size_t count : {5, 200}) {
    const std::vector<checks::Finding> findings(count, finding);
    const sheet::SiteSheet sheet(app, image, findings);
    QTextDocument document;
    ui::LayOutSiteSheet(sheet, QPageSize::size(QPageSize::A4, QPageSize::Point), document);
    EXPECT_EQ(document.pageCount(), 2);
    const auto text = document.toPlainText();
    const auto shown = static_cast<std::size_t>(text.count(QStringLiteral("Words")));
    EXPECT_EQ(shown == count, count == 5);
    if (shown == count) continue;
    EXPECT_TRUE(text.contains(QStringLiteral("And %1 more.").arg(count - shown)));
    document.setHtml(QString::fromStdString(sheet.Html(shown + 1)));
    EXPECT_GT(document.pageCount(), 2) << "there was room for one more";
  }
}

TEST_F(ScreenTest, TheDialogOfThePrinterOpensOnlyWhileTheMainWindowCanBeUsed) {
  if (!ui::HasPrinting()) GTEST_SKIP() << "Qt was built without printers";
  int dialogs = 0;
  QTimer closing;
  closing.callOnTimeout([&] {
    auto* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) return;
    if (dialog->windowTitle() == "Print Site Sheet") ++dialogs;
    dialog->close();
  });
  closing.start(1);
  auto& item = Find<QAction>("menuPrintSheet");
  item.trigger();
  EXPECT_EQ(dialogs, 1);
  EXPECT_EQ(Note("StatusFile"), "") << "it was cancelled";
  App().frmMain.form.enabled = false;
  item.trigger();
  EXPECT_EQ(dialogs, 1);
}

INSTANTIATE_TEST_SUITE_P(Families, SiteSheetFile, ::testing::Values("V1400R12", "V1300R14"),
                         [](const auto& each) { return each.param; });

}  // namespace
}  // namespace ovl::testing
