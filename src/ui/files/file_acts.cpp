#include "ui/files/file_acts.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <optional>
#include <utility>

#include "acts/backup.h"
#include "acts/inspection.h"
#include "files/files.h"
#include "host/text_codec.h"
#include "ui/dialogs/boxes.h"
#include "ui/language/model_texts.h"

namespace ovl::ui {
namespace {

std::string Encoded(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

QString Decoded(const std::string& path) {
  return QFile::decodeName(path.c_str());
}

// The one file that is dragged; empty for anything else.
QString DraggedFile(const QDropEvent& event) {
  const auto urls = event.mimeData()->urls();
  return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

// As long as this object lives, file dialogs are answered with the path and not shown.
class OneAnswer {
 public:
  OneAnswer(core::Application& app, const std::string& path)
      : app_(app), usual_(std::exchange(app.platform.ask_file, [path](const core::FileDialog&) {
          return std::optional(core::FileAnswer{path});
        })) {}
  ~OneAnswer() { app_.platform.ask_file = std::move(usual_); }
  OneAnswer(const OneAnswer&) = delete;
  OneAnswer& operator=(const OneAnswer&) = delete;

 private:
  core::Application& app_;
  decltype(core::Platform::ask_file) usual_;
};

}  // namespace

FileActs::FileActs(core::Application& app, QMainWindow& main, Hooks hooks)
    : app_(app), hooks_(std::move(hooks)), recent_(Decoded(app.platform.program_folder)) {
  AddMenuItems(main);
  main.setAcceptDrops(true);
  main.installEventFilter(this);
}

void FileActs::AddMenuItems(QMainWindow& main) {
  auto* file = main.findChild<QMenu*>(QStringLiteral("FileMenu"));
  auto* save = main.findChild<QAction*>(QStringLiteral("menuSave"));
  auto* recent = new QMenu(QCoreApplication::translate("FileActs", "Open Recent"), file);
  recent->setObjectName(QStringLiteral("menuRecent"));
  recent_.FillWhenOpened(*recent, [this](const QString& path) { Open(path); });
  file->insertMenu(save, recent);
  auto* backup = new QAction(QCoreApplication::translate("FileActs", "Save Backup..."), file);
  backup->setObjectName(QStringLiteral("menuBackup"));
  backup->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
  connect(backup, &QAction::triggered, this, &FileActs::SaveBackup);
  const auto items = file->actions();
  file->insertAction(items.value(items.indexOf(save) + 1), backup);
}

bool FileActs::CanAct() const {
  return !app_.ended && !app_.handling && app_.frmMain.form.enabled;
}

std::optional<std::string> FileActs::StreamOf(const QString& path, QString& problem) const {
  try {
    return files::ReadJoined(app_.platform.files, Encoded(path));
  } catch (const core::Failure& failure) {
    problem = FailureText(failure);
    return std::nullopt;
  }
}

bool FileActs::MayOpen(const QString& path, const std::string& stream) const {
  const auto question = acts::QuestionBeforeOpening(stream, Encoded(QFileInfo(path).fileName()), app_);
  return !question ||
         AskWhetherToOpen(hooks_.front(), Shown(question->text, host::FromSystem), Shown(question->detail));
}

void FileActs::Open(const QString& path) {
  if (!CanAct()) return;
  QString problem;
  const auto stream = StreamOf(path, problem);
  if (!stream)
    return hooks_.show_failure(QCoreApplication::translate("FileActs", "Not opened: %1").arg(problem));
  // While the question is on the screen, the unit can start something else.
  if (!MayOpen(path, *stream) || !CanAct()) return;
  const OneAnswer answer(app_, Encoded(path));
  hooks_.act(core::ClickEvent{&app_.frmMain.OpenMenu});
  if (!app_.ended) recent_.Add(path);
}

std::optional<core::FileAnswer> FileActs::AskForFileToOpen(const core::FileDialog& request) {
  const auto answer = AskFile(hooks_.front(), request);
  if (!answer) return answer;
  const auto path = Decoded(answer->file_name);
  QString problem;
  const auto stream = StreamOf(path, problem);
  // A file that cannot be read is reported by Open itself.
  if (!stream) return answer;
  if (!MayOpen(path, *stream)) return std::nullopt;
  recent_.Add(path);
  return answer;
}

void FileActs::SaveBackup() {
  if (!CanAct()) return;
  core::FileDialog request;
  request.kind = core::FileDialog::Kind::kSave;
  request.file_name =
      files::PathBelow(app_.platform.program_folder, std::string("\\").append(acts::BackupName(app_)));
  request.filter = QT_TRANSLATE_NOOP("Filter", "Backups(*.bin)|*.bin|All Files(*.*)|*.*");
  const auto answer = AskFile(hooks_.front(), request);
  if (!answer || app_.ended) return;
  const auto written = acts::SaveBackup(app_, answer->file_name);
  if (!written.Ok())
    return hooks_.show_failure(QCoreApplication::translate("FileActs", "Backup not written: %1")
                                   .arg(FailureText(written.Problem())));
  const auto path = Decoded(answer->file_name);
  recent_.Add(path);
  hooks_.backup_written();
  hooks_.show_done(
      QCoreApplication::translate("FileActs", "Backup written: %1").arg(QDir::toNativeSeparators(path)));
}

// A drop is handled after its event, because the program that the file comes from waits for the end of that.
bool FileActs::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop) return false;
  auto& drop = *static_cast<QDropEvent*>(event);
  const auto path = DraggedFile(drop);
  if (path.isEmpty() || !CanAct()) return false;
  drop.acceptProposedAction();
  if (event->type() == QEvent::Drop) QTimer::singleShot(0, this, [this, path] { Open(path); });
  return true;
}

}  // namespace ovl::ui
