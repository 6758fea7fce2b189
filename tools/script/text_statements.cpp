#include "script/text_statements.h"

#include <array>

#include "core/configuration.h"
#include "host/configurations/configurations.h"
#include "script/change_statements.h"
#include "script/stop.h"
#include "sheet/checksum.h"
#include "text_form/export.h"

namespace ovl::script {
namespace {

void Export(Session& session, Arguments& arguments) {
  const auto path = arguments.Next("PATH");
  arguments.End();
  const auto& app = session.App();
  host::Viewer viewer(app.image_firmware);
  app.platform.files.replace(path, text_form::Export(viewer.catalogue, app.image));
}

void Import(Session& session, Arguments& arguments) {
  const bool partial_first = arguments.Take("--partial");
  const auto path = arguments.Next("PATH");
  const bool partial = arguments.Take("--partial") || partial_first;
  arguments.End();
  auto& app = session.App();
  host::Viewer viewer(app.image_firmware);
  std::string left_out;
  const auto image =
      host::ReadTextForm(viewer.catalogue, app.image, path, app.platform.files.read(path),
                         partial ? text_form::Strictness::kPartial : text_form::Strictness::kWhole, left_out);
  session.Output() << left_out;
  if (!app.frmMain.form.enabled) {
    session.Output() << "refused import\n";
    return;
  }
  session.History().Run(std::string("Import text"), [&] { core::TakeImage(app, image); });
}

void Diff(Session& session, Arguments& arguments) {
  const auto first = arguments.Next("PATH");
  const auto second = arguments.AtEnd() ? std::string() : arguments.Next("PATH");
  arguments.End();
  const auto& app = session.App();
  const auto& read = app.platform.files.read;
  host::Viewer viewer(app.image_firmware);
  auto before = host::ReadConfiguration(viewer, app.image, first, read(first));
  auto after = app.image;
  if (second.empty()) {
    std::swap(before, after);
  } else {
    after = host::ReadConfiguration(viewer, before, second, read(second));
  }
  if (!PrintDifferences(session.Output(), *viewer.whole, before, after))
    session.Output() << "no difference\n";
}

void Checksum(Session& session, Arguments& arguments) {
  const auto path = arguments.AtEnd() ? std::string() : arguments.Next("PATH");
  arguments.End();
  const auto& app = session.App();
  auto image = app.image;
  if (!path.empty()) {
    host::Viewer viewer(app.image_firmware);
    image = host::ReadConfiguration(viewer, app.image, path, app.platform.files.read(path));
  }
  session.Output() << ChecksumOf(image, app.image_firmware) << '\n';
}

constexpr auto kStatements = std::to_array<Statement>({
    {"export", "export PATH", "writes the configuration as text, one setting a line", Export},
    {"import", "import PATH [--partial]",
     "loads the settings of a text; with --partial only those that this firmware has", Import},
    {"diff", "diff PATH [PATH]", "prints the settings that differ from a file, or between two files", Diff},
    {"checksum", "checksum [PATH]", "prints the checksum of the site sheet, of the configuration or a file",
     Checksum},
});

}  // namespace

std::span<const Statement> TextStatements() {
  return kStatements;
}

bool PrintDifferences(std::ostream& output, const core::Application& app, const image::ConfigImage& before,
                      const image::ConfigImage& after) {
  auto rows = changes::ReadableChanges(app, before, after);
  const auto is_no_line = [](const auto& row) { return text_form::IsDecidedByAnother(row.control); };
  rows.erase(std::remove_if(rows.begin(), rows.end(), is_no_line), rows.end());
  for (const auto& row : rows) output << ChangeLine(row);
  return !rows.empty();
}

std::string ChecksumOf(const image::ConfigImage& image, const firmware::FirmwareId& firmware) {
  const auto sum = sheet::Checksum(image, firmware);
  if (!sum) Wrong("the configuration is not complete");
  return *sum;
}

}  // namespace ovl::script
