
#include <QCoreApplication>
#include <QScrollArea>
#include <array>
#include <string>

#include "ui/kit/layout.h"
#include "ui/pages/pages.h"
#include "ui/pages/text_rows.h"

namespace ovl::ui {
namespace {

QString CarriedThrough() {
  return QCoreApplication::translate("Pages", "The program keeps the settings of this tab unchanged.");
}

// A row for each list of an array.
void AddListRows(PageColumn& column, const std::string& array, std::size_t count) {
  for (std::size_t list = 0; list < count; ++list) {
    column.Row((array + "(" + std::to_string(list) + ")").c_str());
  }
}

QWidget* TextSetupPage(Bindings& bindings) {
  Page page(bindings, bindings.Model().frmMain.form);
  auto& column = page.Column();
  column.Section("Frame3");
  AddListRows(column, "ComboDIP", bindings.Model().frmMain.ComboDIP.size());
  return page.Finish(CarriedThrough());
}

QWidget* CommunicationPage(Bindings& bindings) {
  Page page(bindings, bindings.Model().frmMain.form);
  page.Column()
      .Section("Frame4")
      .Row("ComboCOMM(0)")
      .Row("ComboCOMM(1)")
      .Row("ComboCOMM(2)")
      .Row(RowLabel::OfField(), {Field::WithSubstitute("ComboCOMM(7)", "ComboNone(0)")})
      .Row("ComboCOMM(3)")
      .Row("ComboCOMM(4)")
      .Row("ComboCOMM(5)")
      .Row("ComboCOMM(8)")
      .Row("ComboCOMM(6)");
  page.Column()
      .Section("Frame13")
      .Row("ComboCOMM(9)")
      .Row(RowLabel::OfField(), {Field::WithSubstitute("ComboCOMM(10)", "ComboNone(1)")})
      .Row(RowLabel::OfField(), {Field::WithSubstitute("ComboCOMM(11)", "ComboNone(2)")})
      .Row("ComboCOMM(12)");
  return page.Finish(CarriedThrough());
}

QWidget* TimeLanguagePage(Bindings& bindings) {
  Page page(bindings, bindings.Model().frmMain.form);
  auto& column = page.Column();
  column.Section("Frame2");
  AddListRows(column, "ComboTD", bindings.Model().frmMain.ComboTD.size());
  AddTitleRows(bindings, column);
  page.Column().Section("Frame12").Row("ComboLang");
  return page.Finish(CarriedThrough());
}

}  // namespace

const std::array<PageBuilder, 7> kPages = {BuildRegisterPage, TextSetupPage,      BuildAlarmPage,
                                           CommunicationPage, BuildExceptionPage, TimeLanguagePage,
                                           BuildRemotePage};

}  // namespace ovl::ui
