#include "ui/dialogs/link_windows.h"

#include <QCoreApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>
#include <vector>

#include "host/comports.h"
#include "ui/dialogs/window_parts.h"
#include "ui/kit/box_layouts.h"
#include "ui/kit/layout.h"
#include "ui/kit/theme.h"
#include "ui/kit/widgets.h"

namespace ovl::ui {
namespace {

constexpr int kBaudColumns = 2;
constexpr Em kDialogWidth(33.33);
constexpr Em kSmallWidth(26.67);

QString DetailOf(const host::Comport& comport) {
  auto device = comport.device;
  if (!comport.description.isEmpty()) device += QStringLiteral(", ") + comport.description;
  return comport.present ? QCoreApplication::translate("LinkWindows", "%1, present", "a device").arg(device)
                         : QCoreApplication::translate("LinkWindows", "%1, not present").arg(device);
}

// Serial ports can appear and disappear, so they are listed again whenever the window opens.
void BindPortDetails(Bindings& bindings, PickList& list, QLabel& detail) {
  auto& app = bindings.Model();
  auto& dialog = app.frmSettSR;
  bindings.OnRefresh([&app, &dialog, &list, &detail, open = ChangeDetector<bool>(),
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
  auto* across = LayOutAcross(*holder, kFieldGap);
  auto* list = static_cast<PickList*>(bindings.Make(bindings.Named(form, "Comport_Select"),
                                                    QCoreApplication::translate("LinkWindows", "Comport")));
  list->ShowDetails();
  auto* detail = MutedLabel({});
  detail->setObjectName(QStringLiteral("ComportDetail"));
  across->addWidget(list);
  across->addWidget(detail, 1);
  BindPortDetails(bindings, *list, *detail);
  return holder;
}

// Aligns the columns of option buttons that are one below the other.
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
  window->setMinimumWidth(kDialogWidth);
  auto* down = WindowLayout(*window);
  auto* settings = new QWidget;
  PageColumn column(bindings, model.form, *settings);
  const auto title = [](const controls::Frame& frame) { return FormText(frame.caption); };
  column.OwnSection(title(model.comport_frame)).FullWidth(PortField(bindings, model.form));
  column.OwnSection(title(model.baudrate_frame)).Options("OpBaud", kBaudColumns);
  column.OwnSection(title(model.data_bits_frame)).Options("OpDataBits", 2);
  column.OwnSection(title(model.parity_frame)).Options("OpParity", 3);
  AlignOptions(bindings, {&model.OpBaud, &model.OpDataBits, &model.OpParity});
  down->addWidget(settings);
  auto* advice = bindings.Make(bindings.Named(model.form, "Label1"));
  advice->setForegroundRole(QPalette::PlaceholderText);
  down->addWidget(advice);
  down->addLayout(MakeButtonRow(bindings, model.form, "cmdSET", "BaudrateCMD"));
  return window;
}

FormWindow* BuildScanProgressWindow(Bindings& bindings, QWidget* parent) {
  auto& model = bindings.Model().frmScanBProgress;
  auto* window = new FormWindow(bindings, model.form, parent);
  window->setMinimumWidth(kSmallWidth);
  auto* down = WindowLayout(*window);
  auto* words = new QHBoxLayout;
  words->addWidget(bindings.Make(bindings.Named(model.form, "Label1")), 1);
  auto* rate = MutedLabel({});
  rate->setObjectName(QStringLiteral("ScanRate"));
  words->addWidget(rate);
  down->addLayout(words);
  down->addWidget(
      bindings.Make(bindings.Named(model.form, "ScanProgressBar1"),
                    QCoreApplication::translate("LinkWindows", "Progress of the baud rate scan")));
  bindings.OnRefresh([rate, &app = bindings.Model(), shown = ChangeDetector<std::string>()]() mutable {
    if (shown.Update(app.PortBaud))
      rate->setText(QCoreApplication::translate("LinkWindows", "%1 baud").arg(app.PortBaud.c_str()));
    return false;
  });
  down->addLayout(MakeButtonRow(bindings, model.form, "Command1"));
  return window;
}

FormWindow* BuildTransferEndWindow(Bindings& bindings, QWidget* parent) {
  auto& model = bindings.Model().frmOK_buttom;
  auto* window = new FormWindow(bindings, model.form, parent);
  window->setMinimumWidth(kSmallWidth);
  auto* down = WindowLayout(*window);
  down->addWidget(bindings.Make(bindings.Named(model.form, "Label1")));
  down->addLayout(MakeButtonRow(bindings, model.form, "Command1"));
  return window;
}

}  // namespace ovl::ui
