#include "ui/pages/pages.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <algorithm>
#include <array>

#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "host/text_codec.h"
#include "image/slot_records.h"
#include "panels/exceptions/exceptions.h"
#include "ui/acts/copy_slot_window.h"
#include "ui/pages/text_rows.h"

namespace ovl::ui {
namespace {

constexpr Em kRangeBoxWidth(8);
constexpr Em kBoxPadding(0.33);
constexpr Em kBelowOption(1.67);
constexpr Em kShortRowWidth(17.5);

// An act that an exception can start: its list, its bit in the flags of the slot, and how the overview shows
// it.
struct Act {
  std::size_t list;
  int bit;
  char letter;
  const char* word;
};
constexpr std::array kActs = {
    Act{1, image::kDisplayBit, 'D', QT_TRANSLATE_NOOP("ExceptionPage", "D display")},
    Act{2, image::kOutputBit, 'O', QT_TRANSLATE_NOOP("ExceptionPage", "O output")},
    Act{3, image::kHistoryBit, 'H', QT_TRANSLATE_NOOP("ExceptionPage", "H history")},
    Act{4, image::kScrollBit, 'S', QT_TRANSLATE_NOOP("ExceptionPage", "S scroll matching")}};
constexpr std::size_t kScrollMatching = 4;

// Scroll matching is listed even when the panel has no list for it, because it prevents the other acts.
bool IsListed(const controls::MainForm& form, const Act& act) {
  return act.list == kScrollMatching || form.ComboExcp[act.list].visible;
}

QString ValueText(const core::Application& app, const std::string& slot, std::size_t value) {
  auto [integers, decimals] = image::RangeValueOf(slot, app.image_firmware, value);
  integers.erase(0, std::min(integers.find_first_not_of('0'),
                             integers.size() - std::min<std::size_t>(1, integers.size())));
  return QString::fromStdString(integers + panels::DecimalSeparator(app) + decimals);
}

QString RangeText(const core::Application& app, const std::string& slot) {
  constexpr std::array kOperators = {"", "IN", "OUT", "IN OUT"};
  const auto operation = static_cast<std::size_t>(image::OperatorOf(codecs::HexToInt(slot)));
  if (operation == 0) return {};
  return FormText(kOperators[operation]) + QLatin1Char(' ') + ValueText(app, slot, 0) +
         QStringLiteral(" - ") + ValueText(app, slot, 1);
}

QString TextOf(const core::Application& app, const std::string& slot) {
  auto text = image::ExceptionText(slot, app.image_firmware);
  text.erase(text.find_last_not_of(' ') + 1);
  return host::FromWindows1252(text);
}

bool IsTriggeredBy(const core::Application& app, int alarm, int exception) {
  const int trigger = image::AlarmTrigger(app.image.at(image::FieldId::ALMSTRUCT_BAK, alarm));
  const auto [first, last] = image::ExceptionsOfTrigger(trigger);
  return first <= exception && exception <= last;
}

// The alarms that an exception triggers: "1-3, 7".
QString AlarmsText(const core::Application& app, int exception) {
  QStringList runs;
  for (int alarm = 1; alarm <= image::kAlarms; ++alarm) {
    const int first = alarm;
    while (alarm <= image::kAlarms && IsTriggeredBy(app, alarm, exception)) ++alarm;
    const int last = alarm - 1;
    if (first == last) runs.append(QString::number(first));
    if (first < last) runs.append(QStringLiteral("%1-%2").arg(first).arg(last));
  }
  return runs.join(QStringLiteral(", "));
}

QString ActsText(const core::Application& app, int flags, const QString& alarms) {
  QStringList letters;
  for (const auto& act : kActs) {
    if (IsListed(app.frmMain, act) && codecs::HasBit(flags, act.bit))
      letters.append(QChar::fromLatin1(act.letter));
  }
  if (!alarms.isEmpty()) letters.append(QLatin1Char('A') + alarms);
  return letters.join(QLatin1Char(' '));
}

QString Legend(const core::Application& app) {
  QStringList words;
  for (const auto& act : kActs) {
    if (IsListed(app.frmMain, act)) words.append(QCoreApplication::translate("ExceptionPage", act.word));
  }
  words.append(QCoreApplication::translate("ExceptionPage", "A alarms"));
  return words.join(QStringLiteral("   "));
}

QWidget* ExceptionOverview(Bindings& bindings) {
  const auto& app = bindings.Model();
  return BuildOverview(
      bindings, bindings.Model().frmMain.ComboExcp[controls::Excp::kNumber],
      {QStringLiteral("ExceptionOverview"),
       QCoreApplication::translate("ExceptionPage", "Overview of the exceptions"),
       {{QCoreApplication::translate("ExceptionPage", "No."), QStringLiteral("24")},
        {QCoreApplication::translate("ExceptionPage", "Text"), {}},
        {QCoreApplication::translate("ExceptionPage", "Range"),
         FormText("IN") + QStringLiteral(" 0.00 - 9.99"), true},
        {QCoreApplication::translate("ExceptionPage", "Actions"), QStringLiteral("D O H A1-3")}},
       [&app] { return ExceptionLines(app); },
       [&app] { return Legend(app); },
       BuildCopySlotButton(bindings, acts::SlotKind::kException)});
}

// The two values of the range, in the look of fields that cannot be edited.
void AddRange(Bindings& bindings, PageColumn& column) {
  column.Row("RANGE", {"TextRANGE(0)", "TextRANGE(1)", "cmdSetRange"});
  auto& form = bindings.Model().frmMain;
  auto* button = bindings.WidgetOf(form.cmdSetRange);
  WidenSetButton(*button);
  const int height = button->sizeHint().height();
  for (const auto& value : form.TextRANGE) {
    auto* box = static_cast<QLabel*>(bindings.WidgetOf(value));
    box->setFrameShape(QFrame::StyledPanel);
    box->setBackgroundRole(QPalette::Window);
    box->setAutoFillBackground(true);
    box->setIndent(kBoxPadding);
    box->setFixedSize(kRangeBoxWidth, height);
    OpenWithButton(bindings, *box, form.cmdSetRange);
  }
  auto* row = button->parentWidget()->parentWidget();
  auto* dash = new QLabel(QStringLiteral("-"));
  dash->setAlignment(Qt::AlignCenter);
  dash->setFixedWidth(kStoredTextWidth - 2 * (kRangeBoxWidth + kFieldGap));
  static_cast<QHBoxLayout*>(row->layout())->insertWidget(1, dash);
  for (auto* label : column.Holder().findChildren<QLabel*>()) {
    if (label->text() == FormText("RANGE")) label->setMinimumHeight(height);
  }
}

void AddEditor(Bindings& bindings, PageColumn& column) {
  column.Section("Frame6").Row("ComboExcp(0)");
  AddTextRow(bindings, column, "TextException", "cmdSetExcpstr", ButtonPlace::kBeside);
  column.Row("ComboExcp(1)").Row("ComboExcp(2)").Row("ComboExcp(3)").Row("ComboExcp(4)").Row("ComboExcp(5)");
  AddRange(bindings, column);
}

// For lists on this tab that have the same caption. A screen reader does not say under which title a list is.
void NameWithGroup(Bindings& bindings, const controls::List& list, const std::string& group) {
  bindings.WidgetOf(list)->setAccessibleName(FormText(group) + QLatin1Char(' ') + FormText(list.caption));
}

void AddRecorder(Bindings& bindings, PageColumn& column) {
  column.Section("Frame5")
      .Unlabelled("OpDVR(0)")
      .Unlabelled("OpDVR(1)")
      .Row(RowLabel::FromModel("Label1(12)"), "ComboKLM4011(0)")
      .Row(RowLabel::FromModel("Label1(13)"), "ComboKLM4011(1)")
      .Unlabelled("OpDVR(2)")
      .Row(RowLabel::FromModel("Label1(14)"), "ComboKLM4011(2)")
      .Row(RowLabel::FromModel("Label1(15)"), "ComboKLM4011(3)");
  const auto& form = bindings.Model().frmMain;
  for (std::size_t list = 0; list < form.ComboKLM4011.size(); ++list) {
    NameWithGroup(bindings, form.ComboKLM4011[list], form.OpDVR.elements.at(1 + list / 2).caption);
    for (auto* label : column.Holder().findChildren<QLabel*>()) {
      if (label->buddy() == bindings.WidgetOf(form.ComboKLM4011[list])) label->setIndent(kBelowOption);
    }
  }
}

// Puts report and scroll matching beside the recorder, so that the whole tab is visible.
QWidget* LowerPart(Bindings& bindings, int labels) {
  auto* holder = new QWidget;
  auto* across = new QHBoxLayout(holder);
  across->setContentsMargins(0, kSectionGap - kRowGap, 0, 0);
  across->setSpacing(kColumnGap);
  const auto& form = bindings.Model().frmMain.form;
  auto* left = new QWidget;
  left->setMinimumWidth(kShortRowWidth);
  PageColumn(bindings, form, *left)
      .LabelsAtLeast(labels)
      .Section("Frame7")
      .Row("ComboExcepRe(0)")
      .Row("ComboExcepRe(1)")
      .Row("ComboExcepRe(2)")
      .Section("Frame14")
      .Row("ComboScroll(0)")
      .Row("ComboScroll(1)");
  const auto& main = bindings.Model().frmMain;
  NameWithGroup(bindings, main.ComboExcepRe[0], main.Frame7.caption);
  auto* right = new QWidget;
  PageColumn recorder(bindings, form, *right);
  AddRecorder(bindings, recorder);
  across->addWidget(left, 1);
  across->addWidget(right, 1);
  return holder;
}

}  // namespace

std::vector<OverviewLine> ExceptionLines(const core::Application& app) {
  std::vector<OverviewLine> lines;
  for (int number = 1; number <= image::kExceptions; ++number) {
    const auto& slot = app.image.at(image::FieldId::EXCPSTRS, number);
    const auto text = TextOf(app, slot);
    const bool used = !image::IsFreeException(slot) && !text.trimmed().isEmpty();
    // A free exception does not occur, so a group that contains it says nothing about it.
    const auto alarms = used ? AlarmsText(app, number) : QString();
    lines.push_back(
        {{QString::number(number), used ? text : QCoreApplication::translate("ExceptionPage", "free"),
          RangeText(app, slot), ActsText(app, codecs::HexToInt(slot), alarms)},
         used});
  }
  return lines;
}

QWidget* BuildExceptionPage(Bindings& bindings) {
  const auto& form = bindings.Model().frmMain;
  Page page(bindings, form.form, kColumnGap);
  auto& column = page.Column();
  const int labels = CaptionWidth({&form.TextException, &form.ComboExcp[controls::Excp::kHistory],
                                   &form.ComboExcp[controls::Excp::kScroll],
                                   &form.ComboExcepRe[controls::ExcepRe::kDuplicateLine],
                                   &form.ComboScroll[controls::Scroll::kMatching]});
  column.LabelsAtLeast(labels);
  AddEditor(bindings, column);
  column.FullWidth(LowerPart(bindings, labels));
  return OverviewWithEditor(bindings, ExceptionOverview(bindings), page.Finish({}));
}

}  // namespace ovl::ui
