#include "ui/dialogs/link_windows.h"

#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>
#include <vector>

#include "host/comports.h"
#include "ui/kit/layout.h"
#include "ui/kit/theme.h"
#include "ui/kit/widgets.h"

namespace ovl::ui {
namespace {

constexpr int kButtonWidth = 112;
constexpr int kBaudColumns = 2;
constexpr int kDialogWidth = 400;
constexpr int kSmallWidth = 320;

QString DetailOf(const host::Comport& comport) {
  auto detail = comport.device;
  if (!comport.description.isEmpty()) detail += QStringLiteral(", ") + comport.description;
  return detail + (comport.present ? QStringLiteral(", present") : QStringLiteral(", not present"));
}

QPushButton* MakePush(Bindings& bindings, const controls::Form& form, std::string_view name) {
  auto* button = static_cast<QPushButton*>(bindings.Make(bindings.Named(form, name)));
  button->setMinimumWidth(kButtonWidth);
  return button;
}

QVBoxLayout* WindowLayout(FormWindow& window, int width) {
  auto* down = new QVBoxLayout(&window);
  down->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  down->setSpacing(kSectionGap);
  window.setMinimumWidth(width);
  return down;
}

// Ports come and go while the program runs: they are looked up whenever the window opens.
void FollowPorts(Bindings& bindings, PickList& list, QLabel& detail) {
  auto& app = bindings.Model();
  auto& dialog = app.frmSettSR;
  bindings.Follow([&app, &dialog, &list, &detail, open = ChangeDetector<bool>(),
                   picked = ChangeDetector<int>(), ports = std::vector<host::Comport>()]() mutable {
    const bool opened = open.Update(dialog.form.visible) && dialog.form.visible;
    if (opened) {
      ports = host::ListComports(QFile::decodeName(app.platform.program_folder.c_str()));
      for (int row = 0; row < list.count(); ++row) {
        list.setItemData(row, DetailOf(ports.at(static_cast<std::size_t>(row))), PickList::kDetailRole);
      }
    }
    const int position = dialog.Comport_Select.position;
    if ((picked.Update(position) || opened) && position >= 0 && !ports.empty()) {
      detail.setText(DetailOf(ports.at(static_cast<std::size_t>(position))));
    }
    return opened;
  });
}

QWidget* PortField(Bindings& bindings, const controls::Form& form) {
  auto* holder = new QWidget;
  auto* across = new QHBoxLayout(holder);
  across->setContentsMargins(0, 0, 0, 0);
  across->setSpacing(kFieldGap);
  auto* list = static_cast<PickList*>(
      bindings.Make(bindings.Named(form, "Comport_Select"), QStringLiteral("Comport")));
  list->ShowDetails();
  auto* detail = MutedLabel({});
  detail->setObjectName(QStringLiteral("ComportDetail"));
  across->addWidget(list);
  across->addWidget(detail, 1);
  FollowPorts(bindings, *list, *detail);
  return holder;
}

// Columns of option buttons below one another begin at the same places.
void AlignOptions(Bindings& bindings, std::initializer_list<const controls::OptionArray*> arrays) {
  std::vector<QWidget*> buttons;
  int widest = 0;
  for (const auto* array : arrays) {
    for (const auto& element : array->elements) {
      buttons.push_back(bindings.WidgetOf(element));
      widest = std::max(widest, buttons.back()->sizeHint().width());
    }
  }
  for (auto* button : buttons) button->setMinimumWidth(widest);
}

}  // namespace

FormWindow* BuildPortSettingsWindow(Bindings& bindings, QWidget* parent) {
  auto& model = bindings.Model().frmSettSR;
  auto* window = new FormWindow(bindings, model.form, parent);
  auto* down = WindowLayout(*window, kDialogWidth);
  auto* settings = new QWidget;
  PageColumn column(bindings, model.form, *settings);
  const auto title = [](const controls::Frame& frame) { return QString::fromStdString(frame.caption); };
  column.OwnSection(title(model.comport_frame)).Wide(PortField(bindings, model.form));
  column.OwnSection(title(model.baudrate_frame)).Options("OpBaud", kBaudColumns);
  column.OwnSection(title(model.data_bits_frame)).Options("OpDataBits", 2);
  column.OwnSection(title(model.parity_frame)).Options("OpParity", 3);
  AlignOptions(bindings, {&model.OpBaud, &model.OpDataBits, &model.OpParity});
  down->addWidget(settings);
  auto* advice = bindings.Make(bindings.Named(model.form, "Label1"));
  advice->setForegroundRole(QPalette::PlaceholderText);
  down->addWidget(advice);

  auto* buttons = new QHBoxLayout;
  auto* set = MakePush(bindings, model.form, "cmdSET");
  set->setDefault(true);
  buttons->addWidget(MakePush(bindings, model.form, "BaudrateCMD"));
  buttons->addStretch(1);
  buttons->addWidget(set);
  down->addLayout(buttons);
  return window;
}

FormWindow* BuildScanProgressWindow(Bindings& bindings, QWidget* parent) {
  auto& model = bindings.Model().frmScanBProgress;
  auto* window = new FormWindow(bindings, model.form, parent);
  auto* down = WindowLayout(*window, kSmallWidth);
  auto* words = new QHBoxLayout;
  words->addWidget(bindings.Make(bindings.Named(model.form, "Label1")), 1);
  auto* rate = MutedLabel({});
  rate->setObjectName(QStringLiteral("ScanRate"));
  words->addWidget(rate);
  down->addLayout(words);
  down->addWidget(bindings.Make(bindings.Named(model.form, "ScanProgressBar1"),
                                QStringLiteral("Progress of the baud rate scan")));
  bindings.Follow([rate, &app = bindings.Model(), shown = ChangeDetector<std::string>()]() mutable {
    if (shown.Update(app.PortBaud)) rate->setText(QStringLiteral("%1 baud").arg(app.PortBaud.c_str()));
    return false;
  });
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  auto* cancel = MakePush(bindings, model.form, "Command1");
  cancel->setDefault(true);
  buttons->addWidget(cancel);
  down->addLayout(buttons);
  return window;
}

FormWindow* BuildTransferEndWindow(Bindings& bindings, QWidget* parent) {
  auto& model = bindings.Model().frmOK_buttom;
  auto* window = new FormWindow(bindings, model.form, parent);
  auto* down = WindowLayout(*window, kSmallWidth);
  down->addWidget(bindings.Make(bindings.Named(model.form, "Label1")));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  auto* ok = MakePush(bindings, model.form, "Command1");
  ok->setDefault(true);
  buttons->addWidget(ok);
  down->addLayout(buttons);
  return window;
}

}  // namespace ovl::ui
