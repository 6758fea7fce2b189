#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "host/text_codec.h"
#include "ui/kit/box_layouts.h"
#include "ui/kit/icons.h"
#include "ui/kit/layout.h"
#include "ui/kit/theme.h"
#include "ui/pages/link_drawing.h"
#include "ui/pages/pages.h"
#include "ui/pages/transfer_progress.h"

namespace ovl::ui {
namespace {

constexpr Em kActionHeight(3.33);
constexpr Em kActionIconWidth(1.92);
constexpr Em kActionIconHeight(1.5);
constexpr Em kSetTimeWidth(19.67);
constexpr Em kLinkWidth(36.67);

constexpr std::array kGlyphs{Glyph::kUpload,  Glyph::kDownload, Glyph::kClock,
                             Glyph::kHistory, Glyph::kRemote,   Glyph::kWarning};

QWidget* MakeByName(Bindings& bindings, std::string_view name) {
  return bindings.Make(bindings.Named(bindings.Model().frmMain.form, name));
}

QPushButton* ActionButton(Bindings& bindings, controls::LinkAction action) {
  auto& form = bindings.Model().frmMain;
  auto* button = static_cast<QPushButton*>(MakeByName(bindings, "CmdUpDow(" + std::to_string(action) + ")"));
  button->setIcon(GlyphIcon(kGlyphs.at(static_cast<std::size_t>(action))));
  button->setIconSize({kActionIconWidth, kActionIconHeight});
  button->setMinimumHeight(kActionHeight);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  bindings.WatchPointer(*button, &form.CmdUpDow.at(static_cast<std::size_t>(action)), &form.Frame11);
  return button;
}

QWidget* Drawing(Bindings& bindings) {
  auto* access = static_cast<QLabel*>(MakeByName(bindings, "lbRemoteAccess"));
  auto* drawing = new LinkDrawing(bindings.Model(), *access);
  bindings.OnRefresh([drawing] {
    drawing->Refresh();
    return false;
  });
  auto* holder = new QWidget;
  auto* across = LayOutAcross(*holder);
  across->addWidget(drawing);
  across->addStretch(1);
  return holder;
}

QWidget* PortLine(Bindings& bindings) {
  auto* holder = new QWidget;
  auto* across = LayOutAcross(*holder);
  across->addWidget(MakeByName(bindings, "lbConnectting"), 1);
  for (const char* name : {"cmdConnect", "cmdDisConnect"}) {
    auto* button = MakeByName(bindings, name);
    button->setMinimumWidth(kButtonWidth);
    across->addWidget(button);
  }
  return holder;
}

// Where the last history was saved. One that could not be saved is named in the status bar.
QWidget* HistoryLine(Bindings& bindings) {
  auto* line = MutedLabel({});
  line->setObjectName(QStringLiteral("HistoryPlace"));
  line->setWordWrap(true);
  line->setVisible(false);
  bindings.OnRefresh(
      [line, &app = bindings.Model(), pending = ChangeDetector<bool>(), first = true]() mutable {
        if (!pending.Update(app.HistoryPending) || std::exchange(first, false)) return false;
        // "Disconnect" ends the wait for a history too.
        const bool saved = !app.HistoryPending && app.frmMain.MSComm1.PortOpen && !app.history_path.empty();
        line->setText(QCoreApplication::translate("RemotePage", "The history is in %1.")
                          .arg(host::FromSystem(app.history_path)));
        line->setVisible(saved);
        return true;
      });
  return line;
}

QWidget* Actions(Bindings& bindings) {
  auto* holder = new QWidget;
  auto* down = LayOutDown(*holder, kFieldGap);
  down->addWidget(ActionButton(bindings, controls::kRemote));
  auto* across = new QHBoxLayout;
  across->setSpacing(kFieldGap);
  for (const auto action : {controls::kUpload, controls::kDownload})
    across->addWidget(ActionButton(bindings, action), 1);
  down->addLayout(across);
  down->addWidget(ActionButton(bindings, controls::kLoadHistory));
  down->addWidget(HistoryLine(bindings));
  return holder;
}

// Apart from the other actions, because it cannot be taken back.
QWidget* MasterReset(Bindings& bindings) {
  auto* holder = new QWidget;
  auto* down = LayOutDown(*holder, kFieldGap);
  down->setContentsMargins(0, kSectionGap, 0, 0);
  down->addWidget(Hairline());
  auto* across = new QHBoxLayout;
  across->setSpacing(kFieldGap);
  auto* words = MutedLabel(
      QCoreApplication::translate("RemotePage", "Resets the unit to its factory settings at once."));
  words->setWordWrap(true);
  auto* button = ActionButton(bindings, controls::kMasterReset);
  button->setIcon(GlyphIcon(Glyph::kWarning, DangerColor));
  MarkDangerous(*button);
  across->addWidget(words, 1);
  across->addWidget(button, 1);
  down->addLayout(across);
  return holder;
}

QWidget* Progress(Bindings& bindings) {
  auto* holder = new QWidget;
  auto* down = LayOutDown(*holder, kRowGap);
  auto* across = new QHBoxLayout;
  const std::array directions = {MakeByName(bindings, "Label64(0)"), MakeByName(bindings, "Label64(1)")};
  for (auto* direction : directions) across->addWidget(direction);
  across->addStretch(1);
  auto* passed = MutedLabel({});
  passed->setObjectName(QStringLiteral("TransferProgress"));
  across->addWidget(passed);
  down->addLayout(across);
  auto* bar = bindings.Make(bindings.Named(bindings.Model().frmMain.form, "vbalProgressBar1"),
                            QCoreApplication::translate("RemotePage", "Progress of the transfer"));
  down->addWidget(bar);
  bindings.OnRefresh(
      [passed, directions, &app = bindings.Model(), shown = ChangeDetector<QString>()]() mutable {
        const auto text = TransferProgressText(app);
        if (shown.Update(text)) passed->setText(text);
        const bool stopped = TransferStopped(app);
        for (std::size_t at = 0; at < directions.size(); ++at)
          directions[at]->setVisible(app.frmMain.Label64[at].visible && !stopped);
        return false;
      });
  return holder;
}

QWidget* SetTime(Bindings& bindings) {
  auto* holder = new QWidget;
  auto* across = LayOutAcross(*holder);
  auto* button = ActionButton(bindings, controls::kSetTime);
  button->setFixedWidth(kSetTimeWidth);
  across->addWidget(button);
  across->addStretch(1);
  return holder;
}

// The focus when an action ends or disables its button. It goes to the bar while a transfer runs, and not to
// "Disconnect", where one more Enter would break the transfer off; otherwise to "Remote", the next step. A
// transfer that begins takes it from "Disconnect" too.
class ActionFocus {
 public:
  explicit ActionFocus(Bindings& bindings) : bindings_(bindings) {
    // Before the buttons are refreshed, because a disabled button loses the focus.
    bindings.OnRefresh([held = held_, &bindings] {
      *held = FocusIn(bindings);
      return false;
    });
  }

  // After all widgets were made.
  void KeepFocus() {
    auto& form = bindings_.Model().frmMain;
    auto* bar = bindings_.WidgetOf(form.vbalProgressBar1);
    auto* remote = bindings_.WidgetOf(form.CmdUpDow[controls::kRemote]);
    bar->setFocusPolicy(Qt::ClickFocus);
    // A widget that goes away passes the focus on in this order. Only one of the first two shows.
    QWidget::setTabOrder(bindings_.WidgetOf(form.cmdDisConnect), bindings_.WidgetOf(form.cmdConnect));
    QWidget::setTabOrder(bindings_.WidgetOf(form.cmdConnect), bar);
    auto* disconnect = bindings_.WidgetOf(form.cmdDisConnect);
    bindings_.OnRefresh([held = held_, bar, remote, disconnect, runs = ChangeDetector<bool>()]() mutable {
      const auto usable = [](const QWidget* widget) { return widget->isVisible() && widget->isEnabled(); };
      const bool began = runs.Update(usable(bar)) && usable(bar);
      if (began && disconnect->hasFocus()) bar->setFocus(Qt::OtherFocusReason);
      if (*held == nullptr || usable(*held)) return false;
      auto* next = usable(bar) ? bar : remote;
      if (usable(next)) next->setFocus(Qt::OtherFocusReason);
      return false;
    });
  }

 private:
  // The action button or the bar, if it has the focus of its window.
  static QWidget* FocusIn(const Bindings& bindings) {
    const auto& form = bindings.Model().frmMain;
    const auto* bar = bindings.WidgetOf(form.vbalProgressBar1);
    auto* focus = bar->window()->focusWidget();
    const bool acts = std::any_of(form.CmdUpDow.begin(), form.CmdUpDow.end(),
                                  [&](const auto& button) { return bindings.WidgetOf(button) == focus; });
    return acts || focus == bar ? focus : nullptr;
  }

  Bindings& bindings_;
  std::shared_ptr<QPointer<QWidget>> held_ = std::make_shared<QPointer<QWidget>>();
};

void LinkColumn(Bindings& bindings, PageColumn& column) {
  auto& form = bindings.Model().frmMain;
  const auto transfer_shows = [&form] {
    return form.vbalProgressBar1.visible || form.Label64[0].visible || form.Label64[1].visible;
  };
  column.Section("Frame11")
      .FullWidth(Drawing(bindings))
      .FullWidth(PortLine(bindings))
      .FullWidth(Actions(bindings))
      .FullWidth(Progress(bindings), transfer_shows)
      .FullWidth(MasterReset(bindings), [&form] { return form.CmdUpDow[controls::kMasterReset].visible; });
}

// While the unit's clock follows the computer, a pick would not last: the lists are disabled on the screen.
// The controls of the model stay enabled.
void LockClockLists(Bindings& bindings) {
  auto& form = bindings.Model().frmMain;
  std::vector<QWidget*> fields;
  const auto add = [&](const controls::List& list) {
    fields.push_back(bindings.WidgetOf(list)->parentWidget());
  };
  for (const auto* list : {&form.ComboMonth, &form.ComboYear, &form.ComboHR, &form.ComboMin, &form.ComboSec})
    add(*list);
  add(form.ComboDay.front());
  bindings.OnRefresh([fields, &form, follows = ChangeDetector<bool>()]() mutable {
    if (!follows.Update(form.CheckTD.checked)) return false;
    for (auto* field : fields) field->setEnabled(!form.CheckTD.checked);
    return false;
  });
}

void ClockColumn(Bindings& bindings, PageColumn& column) {
  column.OwnSection(QCoreApplication::translate("RemotePage", "Clock of the unit"))
      .Unlabelled("CheckTD")
      .Row(phrases::Marked("Form", "Date"),
           {{{"ComboMonth"}, phrases::Marked("Form", "month")},
            {{"ComboDay(0)", "ComboDay(1)", "ComboDay(2)", "ComboDay(3)"}, phrases::Marked("Form", "day")},
            {{"ComboYear"}, phrases::Marked("Form", "year")}})
      .Row(phrases::Marked("Form", "Time"), {{{"ComboHR"}, phrases::Marked("Form", "hour")},
                                             {{"ComboMin"}, phrases::Marked("Form", "minute")},
                                             {{"ComboSec"}, phrases::Marked("Form", "second")}})
      .FullWidth(SetTime(bindings));
  LockClockLists(bindings);
  column.Section("FrameDemo").Unlabelled("DemoMode").Row("CharacterList").Row("DemoType").Row("DemoSpeed");
}

}  // namespace

QWidget* BuildRemotePage(Bindings& bindings) {
  ActionFocus focus(bindings);
  Page page(bindings, bindings.Model().frmMain.form);
  LinkColumn(bindings, page.Column(5, kLinkWidth));
  ClockColumn(bindings, page.Column(4));
  focus.KeepFocus();
  return page.Finish({});
}

}  // namespace ovl::ui
