#include "shell/pages.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "shell/alarm_page.h"
#include "shell/exception_page.h"
#include "shell/layout.h"
#include "shell/platform/text_codec.h"
#include "shell/text_rows.h"
#include "shell/theme.h"
#include "shell/widgets.h"

namespace ovl {
namespace {

const QString kCarriedThrough =
    QStringLiteral("This firmware's settings of this tab are carried through unchanged.");

constexpr int kRegisterListWidth = 270;

QWidget* RegisterList(Bindings& bindings) {
  auto& form = bindings.Model().frmMain;
  auto* side = new QWidget;
  auto* down = new QVBoxLayout(side);
  down->setContentsMargins(kMargin, kMargin, 0, kMargin);
  down->setSpacing(kRowGap);
  auto* title = TitleLabel(QStringLiteral("Register"));
  auto* list = bindings.Tall(bindings.Named(form.form, "ComboReg"), title->text());
  title->setBuddy(list);
  auto* count = MutedLabel({});
  down->addWidget(title);
  down->addWidget(list, 1);
  down->addWidget(count);
  side->setFixedWidth(kMargin + kRegisterListWidth);
  bindings.Follow([count, &form, entries = Shadow<std::size_t>()]() mutable {
    if (!entries.Update(form.ComboReg.items.size())) return false;
    count->setText(
        QStringLiteral("Type to find, Enter picks. %1 registers.").arg(form.ComboReg.items.size()));
    return true;
  });
  return side;
}

// The options of the selected register, or the calm line of one that has none.
QWidget* RegisterOptions(Bindings& bindings) {
  auto& form = bindings.Model().frmMain;
  Page page(bindings, form.form, kColumnGap);
  auto& column = page.Column();
  const auto without_options = [&form] {
    return std::none_of(form.frmAddress.begin(), form.frmAddress.end(),
                        [](const Frame& frame) { return frame.visible; });
  };
  column.OwnSection([&form] { return FromWindows1252(form.ComboReg.Text()); },
                    [&form, without_options] { return form.ComboReg.position >= 0 && without_options(); });
  column.Note(QStringLiteral("This register has no options of its own."));
  return page.Finish(QStringLiteral("No register is selected."));
}

QWidget* RegisterSelectPage(Bindings& bindings) {
  auto* page = new QWidget;
  auto* across = new QHBoxLayout(page);
  across->setContentsMargins(0, 0, 0, 0);
  across->setSpacing(0);
  across->addWidget(RegisterList(bindings));
  across->addWidget(RegisterOptions(bindings), 1);
  return page;
}

QWidget* TextSetupPage(Bindings& bindings) {
  Page page(bindings, bindings.Model().frmMain.form);
  page.Column().Section("Frame3");
  return page.Finish(kCarriedThrough);
}

QWidget* CommunicationPage(Bindings& bindings) {
  Page page(bindings, bindings.Model().frmMain.form);
  page.Column().Section("Frame4");
  page.Column().Section("Frame13");
  return page.Finish(kCarriedThrough);
}

QWidget* TimeLanguagePage(Bindings& bindings) {
  Page page(bindings, bindings.Model().frmMain.form);
  auto& column = page.Column();
  column.Section("Frame2");
  AddTitleRows(bindings, column);
  page.Column().Section("Frame12");
  return page.Finish(kCarriedThrough);
}

}  // namespace

std::vector<QWidget*> BuildPages(Bindings& bindings) {
  return {RegisterSelectPage(bindings), TextSetupPage(bindings),      BuildAlarmPage(bindings),
          CommunicationPage(bindings),  BuildExceptionPage(bindings), TimeLanguagePage(bindings),
          BuildRemotePage(bindings)};
}

}  // namespace ovl
