#include "script/commands.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <sstream>
#include <system_error>
#include <utility>

#include "acts/backup.h"
#include "checks/checks.h"
#include "core/failure.h"
#include "files/files.h"
#include "firmware/firmware_table.h"
#include "host/configurations/configurations.h"
#include "host/files.h"
#include "host/toml/toml_reader.h"
#include "image/report.h"
#include "script/finding_lines.h"
#include "script/text_statements.h"
#include "text_form/export.h"

namespace ovl::script {
namespace {

enum OptionAt : std::size_t { kFirmware, kJson, kFolder, kPartial };
constexpr std::array kOptions = {
    command_line::Option{"firmware", "NAME",
                         "for a command: the firmware of the files, such as V1400R12.\n"
                         "Without it, that of a text form, or the only one that fits"},
    command_line::Option{"json", "", "for check: prints JSON instead of lines"},
    command_line::Option{"folder", "FOLDER",
                         "for check: the program folder, for the default image of the\nregister"},
    command_line::Option{"partial", "",
                         "for import: the text may name only a part of the settings, or\nbe of another "
                         "firmware. FILE keeps its other settings"},
};

struct Wanted {
  std::string firmware, folder;
  bool json = false;
  bool partial = false;
  std::vector<std::string> paths;
};

struct File {
  std::string path, bytes;
};

File ReadFile(const std::string& path) {
  return {path, host::DiskFiles().read(path)};
}

// A text form that does not name every setting.
bool IsPart(const File& file) {
  return text_form::IsTextForm(file.bytes) && !text_form::IsComplete(host::ReadToml(file.bytes));
}

bool NamesFirmware(const File& file) {
  return text_form::IsTextForm(file.bytes) && !text_form::FirmwareNamed(host::ReadToml(file.bytes)).empty();
}

// That of a text form counts for the other file too.
firmware::FirmwareId FirmwareOf(const File& one, const File& other, const std::string& named) {
  const bool one_is_part = text_form::IsTextForm(one.bytes) && !NamesFirmware(one);
  const auto& file = !NamesFirmware(one) && (NamesFirmware(other) || one_is_part) ? other : one;
  return host::FirmwareOf(file.path, file.bytes, named);
}

// A part of a configuration is compared with the other file as if that held it.
ExitStatus Diff(const Wanted& wanted, std::ostream& output, std::ostream&) {
  const auto one = ReadFile(wanted.paths[0]), other = ReadFile(wanted.paths[1]);
  host::Viewer viewer(FirmwareOf(one, other, wanted.firmware));
  const bool part_is_first = IsPart(one);
  const auto& whole = part_is_first ? other : one;
  const auto& second = part_is_first ? one : other;
  auto before = host::ReadConfiguration(viewer, whole.path, whole.bytes);
  auto after = host::ReadConfiguration(viewer, before, second.path, second.bytes);
  if (part_is_first) std::swap(before, after);
  const bool differ = PrintDifferences(output, *viewer.whole, before, after);
  return differ ? ExitStatus::kExpectationFailed : ExitStatus::kDone;
}

ExitStatus Export(const Wanted& wanted, std::ostream& output, std::ostream&) {
  const auto file = ReadFile(wanted.paths[0]);
  host::Viewer viewer(host::FirmwareOf(file.path, file.bytes, wanted.firmware));
  output << text_form::Export(viewer.catalogue, host::ReadConfiguration(viewer, file.path, file.bytes));
  return ExitStatus::kDone;
}

// A text form keeps the words of a person, and "import" writes record streams.
void ExpectNoTextForm(const std::string& path) {
  std::error_code absent;
  const bool is_there = std::filesystem::is_regular_file(path, absent);
  if (is_there && text_form::IsTextForm(ReadFile(path).bytes))
    Wrong(path + ": this file is a text form. Name another file: import writes a record stream");
}

void WriteReopenable(const std::string& path, const image::ConfigImage& image,
                     const firmware::FirmwareId& firmware) {
  const auto file = acts::ReopenableFile(image, firmware);
  ExpectNoTextForm(path);
  if (!file) Wrong(path + ": this configuration cannot be written to a file that opens again");
  host::DiskFiles().replace(path, *file);
}

// A text form can name one of several firmware that a stream fits.
firmware::FirmwareId FirmwareOfFile(const File& file, const File& text, const std::string& named) {
  const auto of_text = firmware::FindFirmware(text_form::FirmwareNamed(host::ReadToml(text.bytes)));
  const bool fits = of_text && image::FitsFirmware(files::JoinLines(file.bytes), *of_text);
  return host::FirmwareOf(file.path, file.bytes, named.empty() && fits ? of_text->Joined() : named);
}

// What this firmware does not have is printed, and left out.
void ImportPart(const Wanted& wanted, std::ostream& output) {
  const auto text = ReadFile(wanted.paths[0]), file = ReadFile(wanted.paths[1]);
  ExpectNoTextForm(file.path);
  host::Viewer viewer(FirmwareOfFile(file, text, wanted.firmware));
  const auto base = host::ReadConfiguration(viewer, file.path, file.bytes);
  std::string left_out;
  const auto image = host::ReadTextForm(viewer.catalogue, base, text.path, text.bytes,
                                        text_form::Strictness::kPartial, left_out);
  WriteReopenable(file.path, image, viewer.catalogue.Firmware());
  output << left_out;
}

ExitStatus Import(const Wanted& wanted, std::ostream& output, std::ostream&) {
  if (wanted.partial) {
    ImportPart(wanted, output);
    return ExitStatus::kDone;
  }
  const auto text = ReadFile(wanted.paths[0]);
  host::Viewer viewer(host::FirmwareOf(text.path, text.bytes, wanted.firmware));
  WriteReopenable(wanted.paths[1], host::ReadConfiguration(viewer, text.path, text.bytes),
                  viewer.catalogue.Firmware());
  return ExitStatus::kDone;
}

ExitStatus Checksum(const Wanted& wanted, std::ostream& output, std::ostream&) {
  const auto file = ReadFile(wanted.paths[0]);
  host::Viewer viewer(host::FirmwareOf(file.path, file.bytes, wanted.firmware));
  const auto image = host::ReadConfiguration(viewer, file.path, file.bytes);
  output << ChecksumOf(image, viewer.catalogue.Firmware()) << '\n';
  return ExitStatus::kDone;
}

// Runs a step. False: it failed, and the reason is printed.
template <class Step>
bool Attempt(std::ostream& errors, const Step& step) {
  try {
    step();
    return true;
  } catch (const Stop& stop) {
    errors << stop.what() << '\n';
  } catch (const host::NoConfiguration& problem) {
    errors << problem.what() << '\n';
  } catch (const core::Failure& failure) {
    errors << failure.Text() << '\n';
  }
  return false;
}

// Files of one firmware share what shows them.
using Viewers = std::map<std::string, host::Viewer>;

CheckedFile Checked(const std::string& path, const Wanted& wanted, Viewers& viewers) {
  const auto file = ReadFile(path);
  const auto firmware = host::FirmwareOf(file.path, file.bytes, wanted.firmware);
  auto& viewer = viewers.try_emplace(firmware.Joined(), firmware).first->second;
  viewer.app->platform.files = host::DiskFiles();
  viewer.app->platform.program_folder = wanted.folder;
  const auto image = host::ReadConfiguration(viewer, file.path, file.bytes);
  return {path, viewer.catalogue.Firmware(), checks::FindingsOf(*viewer.app, image), {}};
}

bool HasMoreThanNotes(const CheckedFile& file) {
  const auto count = checks::CountOf(file.findings);
  return count.errors + count.warnings > 0;
}

// A file that cannot be checked does not keep the others from it.
ExitStatus Check(const Wanted& wanted, std::ostream& output, std::ostream& errors) {
  std::error_code absent;
  if (!wanted.folder.empty() && !std::filesystem::is_directory(wanted.folder, absent))
    Wrong(wanted.folder + ": there is no such folder");
  Viewers viewers;
  std::vector<CheckedFile> files;
  bool wrong = false;
  for (const auto& path : wanted.paths) {
    std::ostringstream problem;
    if (Attempt(problem, [&] { files.push_back(Checked(path, wanted, viewers)); })) continue;
    wrong = true;
    errors << problem.str();
    const auto words = problem.str();
    files.push_back({path, {}, {}, words.substr(0, words.find_last_not_of('\n') + 1)});
  }
  if (wanted.json) PrintJson(output, files);
  for (const auto& file : files) {
    for (const auto& finding : file.findings) {
      if (!wanted.json) output << file.path << ": " << LineOf(finding) << '\n';
    }
  }
  if (wrong) return ExitStatus::kWrongStatement;
  const bool found = std::any_of(files.begin(), files.end(), HasMoreThanNotes);
  return found ? ExitStatus::kExpectationFailed : ExitStatus::kDone;
}

struct Row {
  std::string_view word, form, help;
  std::size_t least, most;  // of the paths
  ExitStatus (*run)(const Wanted&, std::ostream&, std::ostream&);
};
constexpr std::size_t kAnyNumber = 1'000'000;
constexpr std::array kCommands = {
    Row{"check", "check FILE...", "prints the findings: FILE: error|warning|note: RULE: WORDS", 1, kAnyNumber,
        Check},
    Row{"checksum", "checksum FILE", "prints the checksum that is on the site sheet", 1, 1, Checksum},
    Row{"diff", "diff FILE FILE", "prints the settings that differ", 2, 2, Diff},
    Row{"export", "export FILE", "prints a file as text, one setting a line", 1, 1, Export},
    Row{"import", "import TEXT FILE", "writes the configuration of a text as a file", 2, 2, Import},
};

std::string MisusedOption(const command_line::CommandLine& read, const Row* row) {
  for (const auto& given : read.options) {
    const auto name = "--" + std::string(kOptions.at(given.option).name);
    if (row == nullptr) return name + " is for a command";
    const auto& needed = given.option == kPartial ? Import : Check;
    if (given.option != kFirmware && row->run != needed)
      return name + " is for " + (given.option == kPartial ? "import" : "check");
  }
  return {};
}

ExitStatus Run(const Row& row, const Wanted& wanted, std::ostream& output, std::ostream& errors) {
  auto status = ExitStatus::kWrongStatement;
  const bool done = Attempt(errors, [&] {
    status = row.run(wanted, output, errors);
    if (!output.flush()) Wrong("the output cannot be written");
  });
  return done ? status : ExitStatus::kWrongStatement;
}

}  // namespace

Command CommandOf(const command_line::CommandLine& read) {
  const auto& words = read.arguments;
  const auto row = std::find_if(kCommands.begin(), kCommands.end(), [&](const Row& command) {
    return !words.empty() && command.word == words.front();
  });
  const bool is_command = row != kCommands.end();
  if (const auto error = MisusedOption(read, is_command ? &*row : nullptr); !error.empty())
    return {{}, error};
  if (!is_command) return {};
  const auto paths = words.size() - 1;
  if (paths < row->least || paths > row->most) return {{}, "expected: " + std::string(row->form)};
  Wanted wanted;
  wanted.paths.assign(words.begin() + 1, words.end());
  for (const auto& [option, value] : read.options) {
    if (option == kFirmware) wanted.firmware = value;
    if (option == kFolder) wanted.folder = value;
    if (option == kJson) wanted.json = true;
    if (option == kPartial) wanted.partial = true;
  }
  return {
      [row, wanted](std::ostream& output, std::ostream& errors) { return Run(*row, wanted, output, errors); },
      {}};
}

std::span<const command_line::Option> CommandOptions() {
  return kOptions;
}

std::string CommandsHelp() {
  constexpr std::size_t kHelpColumn = 31;
  std::string text = "\nCommands, instead of a script. A file is a record stream or a text form:\n";
  for (const auto& row : kCommands) {
    auto form = "  " + std::string(row.form);
    form.resize(kHelpColumn, ' ');
    text += form.append(row.help) + "\n";
  }
  return text;
}

}  // namespace ovl::script
