#include "files/history.h"

#include <span>

#include "core/actions.h"
#include "core/failure.h"
#include "files/files.h"

namespace ovl::files {
namespace {

constexpr const char* kTag = "OVLH";
constexpr const char* kFilter = "Text Files(*.txt)|*.txt|All Files(*.*)|*.*";
constexpr int kAllFiles = 2;

// With this answer of the dialog the viewer is not shown.
constexpr unsigned kDoNotShow = 4096;

core::FileDialog Dialog(const core::Application& app, core::FileDialog::Kind kind, const char* name) {
  core::FileDialog dialog;
  dialog.kind = kind;
  dialog.file_name = PathBelow(app.platform.program_folder, name);
  dialog.filter = kFilter;
  dialog.filter_index = kAllFiles;
  return dialog;
}

std::string WithLineEnds(std::span<const std::string> lines) {
  std::string text;
  for (const auto& line : lines) text.append(line).append("\r\n");
  return text;
}

void FillViewer(core::Application& app, const std::string& caption, std::string text) {
  app.frmView.form.caption = caption;
  app.frmView.Text.text = std::move(text);
}

void OpenHistory(core::Application& app, const core::FileAnswer& answer) {
  app.CurrentFilePath = answer.file_name;
  const auto lines = ReadLines(app.platform.files, answer.file_name);
  if (lines.empty() || lines.front() != kTag) {
    MsgBox(app, core::Box::kNotHistory);
    return;
  }
  FillViewer(app, answer.file_name, WithLineEnds(std::span(lines).subspan(1)));
  if (answer.flags != kDoNotShow) ShowForm(app, app.frmView.form);
}

}  // namespace

void SaveHistory(core::Application& app) {
  const auto dialog = Dialog(app, core::FileDialog::Kind::kSave, "\\History.txt");
  const auto answer = app.platform.ask_file(dialog);
  app.CurrentFilePath = answer ? answer->file_name : dialog.file_name;
  app.history_path.clear();
  try {
    app.platform.files.replace(app.CurrentFilePath, std::string(kTag) + "\r\n" + app.HistoryText + "\r\n");
    app.history_path = app.CurrentFilePath;
  } catch (const core::Failure& failure) {
    NoteFailure(app, failure);
  }
}

void OpenHistory_menu_Click(core::Application& app, int) {
  const auto answer = app.platform.ask_file(Dialog(app, core::FileDialog::Kind::kOpen, "\\*.txt"));
  if (!answer) return;
  try {
    OpenHistory(app, *answer);
  } catch (const core::Failure& failure) {
    NoteFailure(app, failure);
  }
}

void ShowDataDump(core::Application& app) {
  const auto lines = ReadLines(app.platform.files, PathBelow(app.platform.program_folder, "\\DataDump.log"));
  FillViewer(app, "Debuging Windwos", WithLineEnds(lines));
  ShowForm(app, app.frmView.form);
}

}  // namespace ovl::files
