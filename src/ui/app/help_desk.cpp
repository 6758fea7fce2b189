#include "ui/app/help_desk.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QTabWidget>

#include "ui/dialogs/boxes.h"
#include "ui/help/help_topics.h"
#include "ui/window/main_window.h"

namespace ovl::ui {
namespace {

// An empty folder must not hide the pages of the program.
QString PagesFolder(const QString& program_folder) {
  const auto own = QDir(program_folder).filePath(QStringLiteral("Help"));
  return QDir(own).exists(QStringLiteral("contents.md")) ? own : kEmbeddedHelp;
}

}  // namespace

HelpDesk::HelpDesk(MainWindow& main, const QString& program_folder)
    : main_(main), pages_(PagesFolder(program_folder)) {
  qApp->installEventFilter(this);
}

QString HelpDesk::PageInFront() const {
  const auto* modal = QApplication::activeModalWidget();
  const auto* front = modal != nullptr ? modal : QApplication::activeWindow();
  if (front == nullptr || front == &main_) return HelpPageOfTab(main_.Tabs().currentIndex());
  const auto topic = front->property(kBoxTopic).toString();
  if (!topic.isEmpty()) return HelpPageOfBox(topic);
  const auto page = HelpPageOfWindow(front->objectName());
  return page.isEmpty() ? HelpPageOfWindow(main_.objectName()) : page;
}

void HelpDesk::OpenPageInFront() {
  const auto page = PageInFront();
  // A message box blocks all windows but those that it owns.
  auto* modal = QApplication::activeModalWidget();
  QWidget* parent = modal != nullptr ? modal : &main_;
  if (window_ == nullptr || window_->parentWidget() != parent) {
    window_ = new HelpWindow(pages_, parent);
    window_->setAttribute(Qt::WA_DeleteOnClose);
  }
  // The page needs its width to know where a heading is.
  window_->show();
  window_->Open(page);
  window_->raise();
  window_->activateWindow();
}

bool HelpDesk::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const auto* press = static_cast<QKeyEvent*>(event);
  if (press->key() != Qt::Key_F1 || press->modifiers() != Qt::NoModifier) return false;
  OpenPageInFront();
  return true;
}

}  // namespace ovl::ui
