#include "shell/pages.h"

#include <QScrollArea>
#include <string>

#include "shell/layout.h"
#include "shell/register_page.h"

namespace ovl {
namespace {

const QString kCarriedThrough =
    QStringLiteral("This firmware's settings of this tab are carried through unchanged.");

std::string Member(const char* array, std::size_t index) {
  return std::string(array) + "(" + std::to_string(index) + ")";
}

QWidget* TextSetupPage(Bindings& bindings) {
  Page page(bindings, bindings.Model().frmMain.form);
  auto& column = page.Column();
  column.Section("Frame3");
  const auto& lists = bindings.Model().frmMain.ComboDIP;
  for (std::size_t list = 0; list < lists.size(); ++list) column.Row(Member("ComboDIP", list).c_str());
  return page.Finish(kCarriedThrough);
}

QWidget* AlarmOutputsPage(Bindings& bindings) {
  Page page(bindings, bindings.Model().frmMain.form);
  page.Column().Section("Frame8");
  page.Column().Section("Frame15");
  return page.Finish(kCarriedThrough);
}

QWidget* CommunicationPage(Bindings& bindings) {
  Page page(bindings, bindings.Model().frmMain.form);
  page.Column()
      .Section("Frame4")
      .Row("ComboCOMM(0)")
      .Row("ComboCOMM(1)")
      .Row("ComboCOMM(2)")
      .Row(RowLabel::OfField(), {Field::Covered("ComboCOMM(7)", "ComboNone(0)")})
      .Row("ComboCOMM(3)")
      .Row("ComboCOMM(4)")
      .Row("ComboCOMM(5)")
      .Row("ComboCOMM(8)")
      .Row("ComboCOMM(6)");
  page.Column()
      .Section("Frame13")
      .Row("ComboCOMM(9)")
      .Row(RowLabel::OfField(), {Field::Covered("ComboCOMM(10)", "ComboNone(1)")})
      .Row(RowLabel::OfField(), {Field::Covered("ComboCOMM(11)", "ComboNone(2)")})
      .Row("ComboCOMM(12)");
  return page.Finish(kCarriedThrough);
}

QWidget* ExceptionReportPage(Bindings& bindings) {
  Page page(bindings, bindings.Model().frmMain.form);
  auto& left = page.Column();
  left.Section("Frame6");
  left.Section("Frame10");
  auto& right = page.Column();
  right.Section("Frame7").Row("ComboExcepRe(0)").Row("ComboExcepRe(1)").Row("ComboExcepRe(2)");
  right.Section("Frame14");
  right.Section("Frame5")
      .Alone("OpDVR(0)")
      .Alone("OpDVR(1)")
      .Row("DEST ID", "ComboKLM4011(0)")
      .Row("SRC ID", "ComboKLM4011(1)")
      .Alone("OpDVR(2)")
      .Row("DEST ID", "ComboKLM4011(2)")
      .Row("SRC ID", "ComboKLM4011(3)");
  return page.Finish(kCarriedThrough);
}

QWidget* TimeLanguagePage(Bindings& bindings) {
  Page page(bindings, bindings.Model().frmMain.form);
  auto& column = page.Column();
  column.Section("Frame2");
  const auto& lists = bindings.Model().frmMain.ComboTD;
  for (std::size_t list = 0; list < lists.size(); ++list) column.Row(Member("ComboTD", list).c_str());
  page.Column().Section("Frame12").Row("ComboLang");
  return page.Finish(kCarriedThrough);
}

}  // namespace

std::vector<QWidget*> BuildPages(Bindings& bindings) {
  return {BuildRegisterPage(bindings), TextSetupPage(bindings),       AlarmOutputsPage(bindings),
          CommunicationPage(bindings), ExceptionReportPage(bindings), TimeLanguagePage(bindings),
          BuildRemotePage(bindings)};
}

}  // namespace ovl
