// Writes pictures of all windows, for readers and for the documents.
#include <QApplication>
#include <QDir>
#include <cstdlib>
#include <iostream>

#include "core/failure.h"
#include "host/program_folder.h"
#include "pictures/camera_picture.h"
#include "pictures/pictures.h"
#include "ui/app/launch.h"
#include "ui/help/guide.h"
#include "ui/help/help_pages.h"
#include "ui/language/language.h"
#include "ui/window/main_window.h"

namespace {

const QString kDescription = QStringLiteral(
    "\nWrites pictures of all windows of OVL Software into the folder, light and dark. For each it also "
    "writes\nwhat a screen reader says. It draws what a unit writes over the picture of a camera.");

const QString kExitStatus = QStringLiteral(
    "Exit status:\n"
    "  0  done\n"
    "  1  a picture or the guide could not be written\n"
    "  2  wrong usage\n");

int Fail(const char* what, const ovl::core::Failure& failure) {
  std::cerr << "ovl-pictures: " << what << " cannot be written: " << failure.Text() << "\n";
  return EXIT_FAILURE;
}

void PrintMessage(QtMsgType, const QMessageLogContext&, const QString& text) {
  // The offscreen platform prints this for every window.
  if (text.startsWith(QStringLiteral("This plugin does not support"))) return;
  std::cerr << "ovl-pictures: " << text.toLocal8Bit().constData() << "\n";
}

}  // namespace

int main(int argc, char** argv) {
  const auto guide_option = QStringLiteral("guide");
  ovl::ui::CommandLine command_line(QStringLiteral("ovl-pictures"), kDescription, kExitStatus);
  command_line.AddArgument(QStringLiteral("FOLDER"), QStringLiteral("the folder of the pictures"));
  command_line.AddOption(guide_option, QStringLiteral("FILE"),
                         QStringLiteral("writes the installer's guide with the pictures as a PDF"));
  const auto size_option = QStringLiteral("size");
  command_line.AddOption(size_option, QStringLiteral("WIDTHxHEIGHT"),
                         QStringLiteral("the size of the main window; by default its size at the start"));
  const auto language_option = QStringLiteral("language");
  command_line.AddOption(language_option, QStringLiteral("CODE"),
                         QStringLiteral("the language of the windows, such as de; English by default"));
  if (const auto status = command_line.Read(argc, argv)) return *status;
  // With the offscreen platform the pictures are the same on every machine.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(PrintMessage);
  QApplication application(argc, argv);
  ovl::ui::NameApplication();
  QApplication::setQuitOnLastWindowClosed(false);
  const auto language = command_line.Value(language_option);
  ovl::ui::UseLanguage(language.isEmpty() ? QStringLiteral("en") : language);
  const auto pictures = command_line.Argument();
  try {
    const auto folder = ovl::host::ProgramFolder(command_line.Folder());
    const auto given = command_line.Value(size_option).split(QLatin1Char('x'));
    const QSize size(given.value(0).toInt(), given.value(1).toInt());
    const auto saved = ovl::pictures::SavePictures(folder, command_line.Store(), pictures,
                                                   size.isEmpty() ? ovl::ui::MainWindow::StartSize() : size);
    if (!saved.Ok()) return Fail("the pictures", saved.Problem());
    const auto camera =
        ovl::pictures::SaveCameraPicture(QDir(pictures).filePath(QStringLiteral("camera.png")));
    if (!camera.Ok()) return Fail("the picture of the camera", camera.Problem());
  } catch (const ovl::core::Failure& failure) {
    return Fail("the program's folder", failure);
  }
  const auto guide = command_line.Value(guide_option);
  if (guide.isEmpty()) return EXIT_SUCCESS;
  const auto written = ovl::ui::WriteGuide(ovl::ui::HelpPages(ovl::ui::kEmbeddedHelp),
                                           QDir(pictures).filePath(QStringLiteral("light")), guide);
  return written.Ok() ? EXIT_SUCCESS : Fail("the guide", written.Problem());
}
