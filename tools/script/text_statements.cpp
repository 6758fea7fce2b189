#include "script/text_statements.h"

#include <array>

#include "acts/backup.h"
#include "core/configuration.h"
#include "host/configurations/configurations.h"
#include "host/files.h"
#include "script/change_statements.h"
#include "sheet/checksum.h"
#include "text_form/export.h"

namespace ovl::script {
namespace {

void Export(Session& session, Arguments& arguments) {
  const auto path = arguments.Next("PATH");
  arguments.End();
  const auto& app = session.App();
  text_form::Catalogue catalogue(app);
  app.platform.files.replace(path, text_form::Export(catalogue, app.image));
}

void Import(Session& session, Arguments& arguments) {
  const auto path = arguments.Next("PATH");
  const bool partial = arguments.Take("--partial");
  arguments.End();
  auto& app = session.App();
  text_form::Catalogue catalogue(app);
  std::string left_out;
  const auto image =
      host::ReadTextForm(catalogue, app.image, path, app.platform.files.read(path),
                         partial ? text_form::Strictness::kPartial : text_form::Strictness::kWhole, left_out);
  session.Output() << left_out;
  session.History().Run("Import text", [&] { core::TakeImage(app, image); });
}

// Whether there are any.
bool PrintDifferences(std::ostream& output, const host::Viewer& viewer, const image::ConfigImage& before,
                      const image::ConfigImage& after) {
  const auto rows = changes::ReadableChanges(*viewer.app, before, after);
  for (const auto& row : rows) output << ChangeLine(row);
  return !rows.empty();
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
  if (!PrintDifferences(session.Output(), viewer, before, after)) session.Output() << "no difference\n";
}

std::string ChecksumOf(const image::ConfigImage& image, const firmware::FirmwareId& firmware) {
  const auto sum = sheet::Checksum(image, firmware);
  if (!sum) Wrong("the configuration is not complete");
  return *sum;
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
     "takes the settings of a text; with --partial those that this firmware has", Import},
    {"diff", "diff PATH [PATH]",
     "compares the configuration with a file, or two files, in the words of the form", Diff},
    {"checksum", "checksum [PATH]", "prints the checksum of the site sheet, of the configuration or a file",
     Checksum},
});

struct File {
  std::string path, bytes;
};

File ReadFile(const std::string& path) {
  return {path, host::DiskFiles().read(path)};
}

ExitStatus DiffFiles(const File& one, const File& other, const std::string& firmware, std::ostream& output) {
  const auto& with_firmware =
      text_form::IsTextForm(other.bytes) && !text_form::IsTextForm(one.bytes) ? other : one;
  host::Viewer viewer(host::FirmwareOf(with_firmware.path, with_firmware.bytes, firmware));
  const auto before = host::ReadConfiguration(viewer, one.path, one.bytes);
  const auto after = host::ReadConfiguration(viewer, before, other.path, other.bytes);
  const bool differ = PrintDifferences(output, viewer, before, after);
  return differ ? ExitStatus::kExpectationFailed : ExitStatus::kDone;
}

ExitStatus ExportFile(const File& file, const std::string& firmware, std::ostream& output) {
  host::Viewer viewer(host::FirmwareOf(file.path, file.bytes, firmware));
  output << text_form::Export(viewer.catalogue, host::ReadConfiguration(viewer, file.path, file.bytes));
  return ExitStatus::kDone;
}

ExitStatus ImportFile(const File& text, const std::string& target, const std::string& firmware) {
  host::Viewer viewer(host::FirmwareOf(text.path, text.bytes, firmware));
  const auto image = host::ReadConfiguration(viewer, text.path, text.bytes);
  const auto file = acts::ReopenableFile(image, viewer.catalogue.Firmware());
  if (!file) Wrong(text.path + ": no file gives this configuration back");
  host::DiskFiles().replace(target, *file);
  return ExitStatus::kDone;
}

ExitStatus PrintChecksum(const File& file, const std::string& firmware, std::ostream& output) {
  host::Viewer viewer(host::FirmwareOf(file.path, file.bytes, firmware));
  const auto image = host::ReadConfiguration(viewer, file.path, file.bytes);
  output << ChecksumOf(image, viewer.catalogue.Firmware()) << '\n';
  return ExitStatus::kDone;
}

}  // namespace

std::span<const Statement> TextStatements() {
  return kStatements;
}

std::optional<ExitStatus> RunTextCommand(const std::vector<std::string>& words, const std::string& firmware,
                                         std::ostream& output, std::ostream& errors) {
  try {
    if (words.size() == 3 && words[0] == "diff")
      return DiffFiles(ReadFile(words[1]), ReadFile(words[2]), firmware, output);
    if (words.size() == 2 && words[0] == "export") return ExportFile(ReadFile(words[1]), firmware, output);
    if (words.size() == 3 && words[0] == "import") return ImportFile(ReadFile(words[1]), words[2], firmware);
    if (words.size() == 2 && words[0] == "checksum")
      return PrintChecksum(ReadFile(words[1]), firmware, output);
    return std::nullopt;
  } catch (const Stop& stop) {
    errors << stop.what() << '\n';
  } catch (const host::NoConfiguration& problem) {
    errors << problem.what() << '\n';
  } catch (const core::Failure& failure) {
    errors << failure.Text() << '\n';
  }
  return ExitStatus::kWrongStatement;
}

}  // namespace ovl::script
