#include "ui/files/text_acts.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <utility>

#include "acts/backup.h"
#include "core/configuration.h"
#include "files/files.h"
#include "host/configurations/configurations.h"
#include "host/text_codec.h"
#include "host/toml/toml_reader.h"
#include "image/report.h"
#include "text_form/export.h"
#include "ui/dialogs/boxes.h"
#include "ui/language/model_texts.h"

namespace ovl::ui {
namespace {

using text_form::Problem;
using text_form::Strictness;

constexpr const char* kTextFilter =
    QT_TRANSLATE_NOOP("Filter", "Text Forms(*.toml)|*.toml|All Files(*.*)|*.*");
constexpr const char* kEveryFilter =
    QT_TRANSLATE_NOOP("Filter", "Configurations(*.bin;*.toml)|*.bin;*.toml|All Files(*.*)|*.*");

QString Decoded(const std::string& path) {
  return QFile::decodeName(path.c_str());
}

QString NameOf(const std::string& path) {
  return QFileInfo(Decoded(path)).fileName();
}

// For the name of an act. Characters without a code are question marks.
std::string InWindows1252(const QString& text) {
  std::string bytes;
  for (const auto character : text) bytes += host::ToWindows1252(QStringView(&character, 1)).value_or("?");
  return bytes;
}

QStringList Lines(const std::vector<Problem>& problems) {
  QStringList lines;
  for (const auto& problem : problems)
    lines.append(QCoreApplication::translate("TextActs", "Line %1, column %2: %3")
                     .arg(problem.at.line)
                     .arg(problem.at.column)
                     .arg(host::FromSystem(problem.words)));
  return lines;
}

}  // namespace

TextActs::TextActs(core::Application& app, QMainWindow& main, Hooks hooks)
    : app_(app), hooks_(std::move(hooks)) {
  // Each item goes behind that of the backup, so the last one comes first.
  AddItem(main, "menuCompare", QCoreApplication::translate("TextActs", "Compare with File..."),
          Qt::CTRL | Qt::SHIFT | Qt::Key_D, &TextActs::Compare);
  AddItem(main, "menuImport", QCoreApplication::translate("TextActs", "Import Text..."), Qt::CTRL | Qt::Key_I,
          &TextActs::Import);
  AddItem(main, "menuExport", QCoreApplication::translate("TextActs", "Export Text..."), Qt::CTRL | Qt::Key_E,
          &TextActs::Export);
}

void TextActs::AddItem(QMainWindow& main, const char* name, const QString& caption, const QKeySequence& keys,
                       void (TextActs::*act)()) {
  auto* file = main.findChild<QMenu*>(QStringLiteral("FileMenu"));
  auto* backup = main.findChild<QAction*>(QStringLiteral("menuBackup"));
  auto* item = new QAction(caption, file);
  item->setObjectName(QLatin1String(name));
  item->setShortcut(keys);
  connect(item, &QAction::triggered, this, act);
  const auto items = file->actions();
  file->insertAction(items.value(items.indexOf(backup) + 1), item);
}

bool TextActs::CanAct() const {
  return !app_.ended && !app_.handling && app_.frmMain.form.enabled;
}

std::string TextActs::AskForPath(core::FileDialog::Kind kind, const std::string& name,
                                 const std::string& filter) {
  core::FileDialog request;
  request.kind = kind;
  request.file_name = files::PathBelow(app_.platform.program_folder, "\\" + name);
  request.filter = filter;
  const auto answer = AskFile(hooks_.front(), request);
  if (!answer || !CanAct()) return {};
  hooks_.show_done({});  // what the status bar says of another file is outdated
  return answer->file_name;
}

std::optional<std::string> TextActs::BytesOf(const std::string& path, const QString& refusal) {
  try {
    return app_.platform.files.read(path);
  } catch (const core::Failure& failure) {
    hooks_.show_failure(refusal.arg(FailureText(failure)));
    return std::nullopt;
  }
}

void TextActs::Export() {
  if (!CanAct()) return;
  auto name = acts::BackupName(app_);
  name = name.substr(0, name.rfind('.')) + ".toml";
  const auto path = AskForPath(core::FileDialog::Kind::kSave, name, kTextFilter);
  if (path.empty()) return;
  try {
    host::Viewer viewer(app_.image_firmware);
    app_.platform.files.replace(path, text_form::Export(viewer.catalogue, app_.image));
    hooks_.show_done(QCoreApplication::translate("TextActs", "Text written: %1")
                         .arg(QDir::toNativeSeparators(Decoded(path))));
  } catch (const core::Failure& failure) {
    hooks_.show_failure(
        QCoreApplication::translate("TextActs", "Text not written: %1").arg(FailureText(failure)));
  }
}

std::optional<image::ConfigImage> TextActs::ImageOfText(const std::string& path, const std::string& bytes,
                                                        Purpose purpose) {
  const bool imports = purpose == Purpose::kImport;
  host::Viewer viewer(app_.image_firmware);
  const auto document = host::ReadToml(bytes);
  auto imported = host::ImportText(viewer.catalogue, app_.image, document, Strictness::kPartial);
  if (!imported.problems.empty()) {
    const auto words =
        imports ? QCoreApplication::translate("TextActs", "The program did not use %1. Nothing has changed.")
                : QCoreApplication::translate("TextActs", "%1 has errors and cannot be compared.");
    ShowProblems(hooks_.front(), words.arg(NameOf(path)), Lines(imported.problems));
    return std::nullopt;
  }
  if (imported.left_out.empty()) return imported.image;
  const auto text =
      QCoreApplication::translate(
          "TextActs", "%1 is a text of %2. This program uses %3, which does not have all of its settings.")
          .arg(NameOf(path), host::FromSystem(text_form::FirmwareNamed(document)),
               host::FromWindows1252(acts::FirmwareName(app_)));
  const auto button = imports ? QCoreApplication::translate("TextActs", "Import the Rest")
                              : QCoreApplication::translate("TextActs", "Compare the Rest");
  const bool takes = AskWhetherToTakeTheRest(hooks_.front(), text, Lines(imported.left_out), button);
  return takes ? std::optional(imported.image) : std::nullopt;
}

void TextActs::Import() {
  if (!CanAct()) return;
  const auto path = AskForPath(core::FileDialog::Kind::kOpen, "*.toml", kTextFilter);
  if (path.empty()) return;
  const auto bytes = BytesOf(path, QCoreApplication::translate("TextActs", "Not imported: %1"));
  if (!bytes) return;
  const auto base = app_.image;
  const auto image = ImageOfText(path, *bytes, Purpose::kImport);
  // While the window is on the screen, the unit can start something else, or bring another configuration.
  if (!image || !CanAct()) return;
  if (app_.image != base)
    return hooks_.show_failure(
        QCoreApplication::translate("TextActs", "Not imported: the configuration has changed since"));
  hooks_.run(phrases::Sentence(phrases::Pattern("Act", "Import %1"), {InWindows1252(NameOf(path))}),
             [&] { core::TakeImage(app_, *image); });
  hooks_.show_done(QCoreApplication::translate("TextActs", "Text imported: %1")
                       .arg(QDir::toNativeSeparators(Decoded(path))));
}

std::optional<image::ConfigImage> TextActs::ImageOf(const std::string& path, const std::string& bytes) {
  if (text_form::IsTextForm(bytes)) return ImageOfText(path, bytes, Purpose::kCompare);
  const auto stream = files::JoinLines(bytes);
  auto image = image::DecodeStream(stream, app_.image_firmware);
  if (image && image::FitsFirmware(stream, app_.image_firmware)) return image;
  hooks_.show_failure(QCoreApplication::translate("TextActs", "Not compared: %1 is not a configuration of %2")
                          .arg(NameOf(path), host::FromWindows1252(acts::FirmwareName(app_))));
  return std::nullopt;
}

void TextActs::Compare() {
  if (!CanAct()) return;
  const auto path = AskForPath(core::FileDialog::Kind::kOpen, "*.bin", kEveryFilter);
  if (path.empty()) return;
  const auto bytes = BytesOf(path, QCoreApplication::translate("TextActs", "Not compared: %1"));
  if (!bytes) return;
  if (const auto image = ImageOf(path, *bytes)) hooks_.compare(NameOf(path), *image);
}

}  // namespace ovl::ui
