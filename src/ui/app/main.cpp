#include <QApplication>
#include <QFileInfo>
#include <QTimer>
#include <cstdlib>
#include <iostream>
#include <optional>

#include "core/failure.h"
#include "host/program_folder.h"
#include "host/system/console.h"
#include "host/system/disk.h"
#include "ui/app/launch.h"
#include "ui/app/program.h"
#include "ui/app/sheet_file.h"
#include "ui/dialogs/boxes.h"
#include "ui/help/guide.h"
#include "ui/help/help_pages.h"
#include "ui/kit/theme.h"
#include "ui/language/language.h"
#include "ui/language/model_texts.h"
#include "ui/window/view_menu.h"

namespace {

const QString kDescription = QStringLiteral(
    "\nConnects to a unit that writes register text over a CCTV picture, reads its\n"
    "configuration, shows it on a tabbed form and writes it back.");

const QString kExitStatus = QStringLiteral(
    "Exit status:\n"
    "  0  done\n"
    "  1  the program could not start, or the file could not be written\n"
    "  2  wrong usage\n");

// Empty when there is no folder to work in.
std::optional<QString> FindFolder(const QString& given) {
  try {
    return ovl::host::ProgramFolder(given);
  } catch (const ovl::core::Failure& failure) {
    std::cerr << "ovl: The program folder could not be created.\n\n" << failure.Text() << std::endl;
    const auto text = QCoreApplication::translate("Program", "The program folder could not be created.\n\n%1")
                          .arg(ovl::ui::FailureText(failure));
    ovl::ui::ShowBox(nullptr, {{}, text.toStdString()});
    return std::nullopt;
  }
}

int SaveGuide(const QString& file) {
  const auto written = ovl::ui::WriteGuide(ovl::ui::HelpPages(ovl::ui::kEmbeddedHelp), {}, file);
  if (written.Ok()) return EXIT_SUCCESS;
  std::cerr << "ovl: the guide cannot be written: " << written.Problem().Text() << "\n";
  return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  std::optional<ovl::host::ParentConsole> console(std::in_place);
  const auto guide_option = QStringLiteral("guide"), sheet_option = QStringLiteral("sheet");
  const auto paper_option = QStringLiteral("paper"), firmware_option = QStringLiteral("firmware");
  ovl::ui::CommandLine command_line(QStringLiteral("ovl"), kDescription, kExitStatus);
  command_line.AddOption(guide_option, QStringLiteral("FILE"),
                         QStringLiteral("writes the installer's guide as a PDF and ends"));
  command_line.AddOption(
      sheet_option, QStringLiteral("FILE"),
      QStringLiteral("writes the site sheet of a configuration as .pdf or .html and ends"));
  command_line.AddOption(paper_option, QStringLiteral("A4|Letter"),
                         QStringLiteral("the paper of the sheet; A4 by default"));
  command_line.AddOption(
      firmware_option, QStringLiteral("NAME"),
      QStringLiteral("the firmware of the sheet, such as V1400R12, if the configuration fits several"));
  command_line.AddArgument(QStringLiteral("FILE"),
                           QStringLiteral("a configuration to open at the start, as with \"File\", \"Open\". "
                                          "With --sheet it can also be a text form"),
                           ovl::ui::CommandLine::Need::kOptional);
  if (const auto status = command_line.Read(argc, argv)) return *status;
  const ovl::ui::SheetRequest sheet{command_line.Value(sheet_option), command_line.Argument(),
                                    command_line.Value(paper_option), command_line.Value(firmware_option),
                                    command_line.Folder()};
  if (const auto problem = WrongUsageOf(sheet); !problem.isEmpty()) return command_line.Refuse(problem);
  const auto guide = command_line.Value(guide_option);
  if (!guide.isEmpty() && !sheet.file.isEmpty())
    return command_line.Refuse(QStringLiteral("--guide and --sheet cannot be used together"));
  if (!guide.isEmpty() || !sheet.file.isEmpty()) ovl::ui::DrawWithoutDisplay();
  ovl::host::OutliveSizeLimit();
  std::optional<ovl::ui::DisplayMessage> no_display(std::in_place);
  QApplication application(argc, argv);
  no_display.reset();
  ovl::ui::NameApplication();
  QApplication::setQuitOnLastWindowClosed(false);
  ovl::ui::ApplyTheme(ovl::ui::Theme::kDesktop);
  if (!guide.isEmpty()) return SaveGuide(guide);
  if (!sheet.file.isEmpty()) return WriteSheetFile(sheet);
  console.reset();
  ovl::ui::UseLanguage({});
  const auto folder = FindFolder(command_line.Folder());
  if (!folder) return EXIT_FAILURE;
  ovl::ui::UseLanguage(ovl::ui::ChosenLanguage(*folder));
  ovl::ui::ApplyTheme(ovl::ui::ChosenTheme(*folder));
  ovl::ui::Program program(*folder, command_line.Store());
  if (program.Start() == ovl::core::Outcome::kEnded) return EXIT_FAILURE;
  program.GuardUnsaved();
  // The file can end the program, which takes effect only while the event loop runs.
  if (const auto file = command_line.Argument(); !file.isEmpty())
    QTimer::singleShot(0, &application,
                       [&program, file] { program.OpenFile(QFileInfo(file).absoluteFilePath()); });
  return QApplication::exec();
}
