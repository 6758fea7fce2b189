#include "ui/pages/pages.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QScrollArea>

#include "host/text_codec.h"
#include "image/slot_records.h"
#include "ui/acts/copy_slot_window.h"
#include "ui/pages/text_rows.h"

namespace ovl::ui {
namespace {

using enum image::FieldId;

QString EntryText(const controls::List& list, int position) {
  const bool known = position >= 0 && position < static_cast<int>(list.items.size());
  return known ? FormText(list.items[static_cast<std::size_t>(position)]) : QStringLiteral("?");
}

QString TriggerText(const controls::MainForm& form, int trigger) {
  if (trigger == image::kNoTrigger) return QCoreApplication::translate("AlarmPage", "free");
  const auto entry = EntryText(form.ComboALM[controls::Alm::kTrigger], trigger);
  return trigger < image::kRtsTrigger ? FormText(form.lbAlmTrig.caption) + QLatin1Char(' ') + entry : entry;
}

// The trigger with the text of its exception; nothing for a group or another trigger.
QString TriggerTip(const QString& trigger, int exception, const std::vector<OverviewLine>& exceptions) {
  if (exception < 1 || exception > image::kExceptions) return {};
  return trigger + QStringLiteral(": ") + exceptions[static_cast<std::size_t>(exception - 1)].cells[1];
}

// The last entry is the pulse.
QString DurationText(const controls::MainForm& form, int counter) {
  const auto& list = form.ComboALM[controls::Alm::kDuration];
  const auto time = image::AlarmTime(counter);
  return time ? QString::number(*time) : EntryText(list, static_cast<int>(list.items.size()) - 1);
}

QString TriggeredText(const std::string& record) {
  return host::FromWindows1252(image::StoredText(image::TriggeredDigits(record)));
}

QWidget* AlarmOverview(Bindings& bindings) {
  const auto& app = bindings.Model();
  return BuildOverview(
      bindings, bindings.Model().frmMain.ComboALM[controls::Alm::kNumber],
      {QStringLiteral("AlarmOverview"),
       QCoreApplication::translate("AlarmPage", "Overview of the alarms"),
       {{QCoreApplication::translate("AlarmPage", "No."), QStringLiteral("16")},
        {QCoreApplication::translate("AlarmPage", "Trigger"), FormText("EX.") + QStringLiteral(" 13-24")},
        {QCoreApplication::translate("AlarmPage", "Duration"), FormText("PLUSE")},
        {QCoreApplication::translate("AlarmPage", "Normal"), QStringLiteral("NC")},
        {QCoreApplication::translate("AlarmPage", "Text"), {}}},
       [&app] { return AlarmLines(app); },
       [] {
         return QCoreApplication::translate("AlarmPage",
                                            "EX. exceptions   NO normally open   NC normally closed");
       },
       BuildCopySlotButton(bindings, acts::SlotKind::kAlarm)});
}

void AddEditor(PageColumn& column, const controls::MainForm& form) {
  column.Section("Frame8")
      .Row("ComboALM(0)")
      .Row("ComboALM(1)")
      .FieldPrefix("lbAlmTrig")
      .Row("ComboALM(2)")
      .Row("ComboALM(3)")
      .Row("ComboALM(6)")
      .Row("ComboALM(7)")
      .Note(QCoreApplication::translate("AlarmPage", "All alarms"),
            [&form] {
              return form.ComboALM[controls::Alm::kFlagType].visible ||
                     form.ComboALM[controls::Alm::kFlagDuration].visible;
            })
      .Row("ComboALM(4)")
      .Row("ComboALM(5)");
}

}  // namespace

std::vector<OverviewLine> AlarmLines(const core::Application& app) {
  const auto& form = app.frmMain;
  const auto exceptions = ExceptionLines(app);
  std::vector<OverviewLine> lines;
  for (int number = 1; number <= image::kAlarms; ++number) {
    const auto& record = app.image.at(ALMSTRUCT_BAK, number);
    const int trigger = image::AlarmTrigger(record);
    const auto trigger_text = TriggerText(form, trigger);
    const int counter = image::AlarmCounter(record);
    lines.push_back({{QString::number(number), trigger_text, DurationText(form, counter),
                      EntryText(form.ComboALM[controls::Alm::kNormalState],
                                image::IsNormallyClosed(app.image, number) ? 1 : 0),
                      TriggeredText(app.image.at(TRIGGER_TEXT, number))},
                     trigger != image::kNoTrigger,
                     {QString(), TriggerTip(trigger_text, trigger, exceptions)}});
  }
  return lines;
}

QWidget* BuildAlarmPage(Bindings& bindings) {
  const auto& form = bindings.Model().frmMain;
  Page page(bindings, form.form, kColumnGap);
  auto& column = page.Column();
  column.LabelsAtLeast(CaptionWidth({&form.ComboALM[controls::Alm::kTrigger]}) + kFieldGap +
                       CaptionWidth({&form.lbAlmTrig}));
  AddEditor(column, form);
  column.Section("Frame15");
  AddTextRow(bindings, column, "TextTrigger", "cmdSetTrigger", ButtonPlace::kBelow);
  column.Row("ComboTrigger(0)").Row("ComboTrigger(1)").Row("ComboTrigger(2)");
  return OverviewWithEditor(bindings, AlarmOverview(bindings), page.Finish({}));
}

}  // namespace ovl::ui
