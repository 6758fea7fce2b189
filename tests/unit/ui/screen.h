// A program with windows, for tests of what they show and how a user works with them.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>

#include "firmware/firmware_table.h"
#include "images/default_images.h"
#include "support/harness.h"
#include "ui/app/program.h"
#include "ui/kit/theme.h"
#include "ui/window/status_strip.h"

namespace ovl::testing {

enum class Pages { kAll, kFirst };
enum Tab { kRegisterTab, kTextTab, kAlarmTab, kLineTab, kExceptionTab, kTitleTab, kRemoteTab };

template <class... Kinds>
bool IsOne(const QWidget* widget) {
  return (... || (qobject_cast<const Kinds*>(widget) != nullptr));
}

// The visible widgets of these kinds, without the parts of lists.
template <class... Kinds>
std::vector<QWidget*> VisibleIn(const QWidget& page) {
  std::vector<QWidget*> visible;
  for (auto* widget : page.findChildren<QWidget*>()) {
    const bool part = widget->objectName().startsWith("qt_") || IsOne<QComboBox>(widget->parentWidget());
    if (widget->isVisible() && !part && IsOne<Kinds...>(widget)) visible.push_back(widget);
  }
  return visible;
}

// Every widget with a text has room for it. A text box may show a part of its text.
inline void ExpectRoom(const QWidget& page) {
  for (const auto* widget : VisibleIn<QLabel, QAbstractButton, QComboBox, QLineEdit, QListView>(page)) {
    SCOPED_TRACE((widget->objectName() + ' ' + widget->property("text").toString()).toStdString());
    const auto* label = qobject_cast<const QLabel*>(widget);
    const auto* list = qobject_cast<const QListView*>(widget);
    if (list != nullptr) {
      EXPECT_GE(list->viewport()->width(), list->sizeHintForColumn(0));
    } else if (label != nullptr && label->wordWrap()) {
      EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    } else {
      const bool part = IsOne<QLineEdit>(widget);
      EXPECT_GE(widget->width(), part ? 0 : widget->sizeHint().width());
      EXPECT_GE(widget->height(), widget->sizeHint().height());
    }
  }
}

// The contrast as accessibility rules define it.
inline double Contrast(const QColor& one, const QColor& other) {
  const auto luminance = [](const QColor& color) {
    const auto linear = [](double part) { return std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
  };
  const auto [less, more] = std::minmax({luminance(one), luminance(other)});
  return (more + 0.05) / (less + 0.05);
}

// A program folder with the image of the first register, and settings that name its firmware.
inline void MakeSite(const TemporaryFolder& folder, const firmware::FirmwareId& firmware) {
  const auto images = folder.Path() / firmware.version / firmware.release;
  std::filesystem::create_directories(images);
  std::filesystem::create_directories(folder.Path() / "ORB");
  WriteFile((images / "GENERIC.bin").string(), PatternStream(firmware) + "\r\n");
  WriteFile(folder.File("ORB/OVL Software.conf"),
            "[General]\nVersion=" + firmware.version + "\nRelease=" + firmware.release + "\n");
}

// A program with its windows, the default images of its firmware, and a serial port that accepts everything.
class Screen {
 public:
  explicit Screen(const firmware::FirmwareId& firmware = {"V1400", "R12"}, Pages pages = Pages::kAll) {
    StayOpen();
    ui::ApplyTheme(ui::Theme::kLight);
    MakeSite(folder, firmware);
    images::WriteDefaultImages(folder.Path().string(), firmware::ServedFirmware(firmware.Joined()));
    const auto path = QString::fromStdString(folder.Path().string());
    program = std::make_unique<ui::Program>(path, path);
    App().platform.show_message = [this](const core::MessageBox& box) {
      boxes.push_back(box.text);
      while_box();
    };
    auto& serial = App().platform.serial;
    serial.open = [](const core::LineSettings&) { return core::Result(); };
    serial.write = [](std::string_view) { return core::Result(); };
    serial.close = serial.clear_input = serial.clear_output = [] {};
    if (program->Start() != core::Outcome::kDone)
      throw std::runtime_error("no start: " + (boxes.empty() ? App().StatusNote : boxes.front()));
    if (pages == Pages::kAll) OnScreen().BuildAll();
    start_size = Main().size();
    Main().resize(960, 600);
  }

  core::Application& App() { return program->Model(); }
  ui::MainWindow& Main() { return program->OnScreen().Main(); }
  ui::Windows& OnScreen() { return program->OnScreen(); }
  ui::FormWindow& Window(const controls::Form& form) { return *OnScreen().WindowOf(form); }

  void Select(std::string_view register_name) {
    auto& list = App().frmMain.ComboReg;
    const auto found = std::find(list.items.begin(), list.items.end(), register_name);
    program->Act(core::PickEvent{&list, static_cast<int>(found - list.items.begin())});
    Show();
  }

  void Show() {
    program->RefreshNow();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
  template <class Kind = QWidget>
  Kind& Find(const std::string& name) {
    auto* found = Main().findChild<Kind*>(QString::fromStdString(name));
    if (found == nullptr) throw std::runtime_error("no widget " + name);
    return *found;
  }
  bool IsShown(const std::string& name) { return Find(name).isVisible(); }
  void Click(const std::string& name) {
    Find<QAbstractButton>(name).click();
    Show();
  }
  void Pick(const std::string& name, int position) {
    emit Find<QComboBox>(name).activated(position);
    Show();
  }

  static void Press(QWidget& widget, int key, const QString& text = {}, QEvent::Type way = QEvent::KeyPress) {
    QKeyEvent press(way, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &press);
  }
  // Presses the keys in the active window.
  void Keys(std::initializer_list<int> keys) {
    for (const int key : keys) PressInFront(key, key == Qt::Key_Space ? " " : "");
  }
  void Type(const QString& text) {
    for (const QChar letter : text) PressInFront(letter.toUpper().unicode(), letter);
  }
  std::string Focus() { return FocusWidget().objectName().toStdString(); }
  // The widgets that the Tab key reaches, once around the active window.
  std::vector<QWidget*> Round() {
    std::vector<QWidget*> round;
    while (std::find(round.begin(), round.end(), &FocusWidget()) == round.end()) {
      round.push_back(&FocusWidget());
      Keys({Qt::Key_Tab});
    }
    return round;
  }
  std::string NamesOfRound() {
    std::string names;
    for (const auto* stop : Round()) names += stop->objectName().toStdString() + " ";
    return names;
  }
  void FocusOn(const std::string& name, int tab) {
    Main().Tabs().setCurrentIndex(tab);
    Find(name).setFocus();
  }

  // A message of the status bar: what went wrong, or that of the source named.
  std::string Note(const std::string& source = "StatusNote") {
    return dynamic_cast<ui::CutLabel&>(Find(source)).Text().toStdString();
  }
  std::string QuietLine() {
    const auto* line = Main().Tabs().currentWidget()->findChild<QLabel*>("QuietLine");
    return line->isVisible() ? line->text().toStdString() : std::string();
  }

  TemporaryFolder folder;
  QSize start_size;
  std::vector<std::string> boxes;
  std::function<void()> while_box = [] {};
  std::unique_ptr<ui::Program> program;

 private:
  // A program that ended earlier in this process has also ended the event loop. Until the loop has run once
  // more, each dialog would close at once.
  static void StayOpen() {
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
  }

  QWidget& FocusWidget() {
    auto* window = OnScreen().Front();
    return window->focusWidget() == nullptr ? *window : *window->focusWidget();
  }
  void PressInFront(int key, const QString& text) {
    OnScreen().Front()->activateWindow();
    Show();
    Press(FocusWidget(), key, text);
    Press(FocusWidget(), key, text, QEvent::KeyRelease);
    Show();
  }
};

// For tests that each need such a program.
class ScreenTest : public ::testing::Test, protected Screen {};

}  // namespace ovl::testing
