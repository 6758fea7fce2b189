#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <array>

#include "ui/kit/box_layouts.h"
#include "ui/kit/icons.h"
#include "ui/kit/layout.h"
#include "ui/kit/theme.h"
#include "ui/pages/link_drawing.h"
#include "ui/pages/pages.h"
#include "ui/pages/transfer_progress.h"

namespace ovl::ui {
namespace {

constexpr int kActionHeight = 40;
constexpr QSize kActionIcon(23, 18);
constexpr int kSetTimeWidth = 236;
constexpr int kLinkWidth = 440;

constexpr std::array kGlyphs{Glyph::kUpload,  Glyph::kDownload, Glyph::kClock,
                             Glyph::kHistory, Glyph::kRemote,   Glyph::kReset};

QWidget* MakeByName(Bindings& bindings, std::string_view name) {
  return bindings.Make(bindings.Named(bindings.Model().frmMain.form, name));
}

QPushButton* ActionButton(Bindings& bindings, controls::LinkAction action) {
  auto& form = bindings.Model().frmMain;
  auto* button = static_cast<QPushButton*>(MakeByName(bindings, "CmdUpDow(" + std::to_string(action) + ")"));
  button->setIcon(GlyphIcon(kGlyphs.at(static_cast<std::size_t>(action))));
  button->setIconSize(kActionIcon);
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

QWidget* Actions(Bindings& bindings) {
  auto* holder = new QWidget;
  auto* down = LayOutDown(*holder, kFieldGap);
  down->addWidget(ActionButton(bindings, controls::kRemote));
  const std::array<std::array<controls::LinkAction, 2>, 2> pairs{
      {{controls::kUpload, controls::kDownload}, {controls::kLoadHistory, controls::kMasterReset}}};
  for (const auto& pair : pairs) {
    auto* across = new QHBoxLayout;
    across->setSpacing(kFieldGap);
    for (const auto action : pair) across->addWidget(ActionButton(bindings, action), 1);
    down->addLayout(across);
  }
  return holder;
}

QWidget* Progress(Bindings& bindings) {
  auto* holder = new QWidget;
  auto* down = LayOutDown(*holder, kRowGap);
  auto* across = new QHBoxLayout;
  across->addWidget(MakeByName(bindings, "Label64(0)"));
  across->addWidget(MakeByName(bindings, "Label64(1)"));
  across->addStretch(1);
  auto* passed = MutedLabel({});
  passed->setObjectName(QStringLiteral("TransferProgress"));
  across->addWidget(passed);
  down->addLayout(across);
  auto* bar = bindings.Make(bindings.Named(bindings.Model().frmMain.form, "vbalProgressBar1"),
                            QStringLiteral("Progress of the transfer"));
  down->addWidget(bar);
  bindings.OnRefresh([passed, &app = bindings.Model(), shown = ChangeDetector<QString>()]() mutable {
    const auto text = TransferProgressText(app);
    if (shown.Update(text)) passed->setText(text);
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

void LinkColumn(Bindings& bindings, PageColumn& column) {
  auto& form = bindings.Model().frmMain;
  const auto transfer_shows = [&form] {
    return form.vbalProgressBar1.visible || form.Label64[0].visible || form.Label64[1].visible;
  };
  column.Section("Frame11")
      .FullWidth(Drawing(bindings))
      .FullWidth(PortLine(bindings))
      .FullWidth(Actions(bindings))
      .FullWidth(Progress(bindings), transfer_shows);
}

void ClockColumn(Bindings& bindings, PageColumn& column) {
  column.OwnSection(QStringLiteral("Clock of the unit"))
      .Unlabelled("CheckTD")
      .Row("Date", {{{"ComboMonth"}, "month"},
                    {{"ComboDay(0)", "ComboDay(1)", "ComboDay(2)", "ComboDay(3)"}, "day"},
                    {{"ComboYear"}, "year"}})
      .Row("Time", {{{"ComboHR"}, "hour"}, {{"ComboMin"}, "minute"}, {{"ComboSec"}, "second"}})
      .FullWidth(SetTime(bindings));
  column.Section("FrameDemo").Unlabelled("DemoMode").Row("CharacterList").Row("DemoType").Row("DemoSpeed");
}

}  // namespace

QWidget* BuildRemotePage(Bindings& bindings) {
  Page page(bindings, bindings.Model().frmMain.form);
  LinkColumn(bindings, page.Column(5, kLinkWidth));
  ClockColumn(bindings, page.Column(4));
  return page.Finish({});
}

}  // namespace ovl::ui
