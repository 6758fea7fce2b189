
#include <QScrollArea>
#include <string>

#include "ui/kit/layout.h"
#include "ui/pages/pages.h"
#include "ui/pages/text_rows.h"

namespace ovl::ui {
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

QWidget* TimeLanguagePage(Bindings& bindings) {
  Page page(bindings, bindings.Model().frmMain.form);
  auto& column = page.Column();
  column.Section("Frame2");
  const auto& lists = bindings.Model().frmMain.ComboTD;
  for (std::size_t list = 0; list < lists.size(); ++list) column.Row(Member("ComboTD", list).c_str());
  AddTitleRows(bindings, column);
  page.Column().Section("Frame12").Row("ComboLang");
  return page.Finish(kCarriedThrough);
}

}  // namespace

const std::array<PageBuilder, 7> kPages = {BuildRegisterPage, TextSetupPage,      BuildAlarmPage,
                                           CommunicationPage, BuildExceptionPage, TimeLanguagePage,
                                           BuildRemotePage};

}  // namespace ovl::ui
