#include <QApplication>
#include <QDir>
#include <QStringList>
#include <cstdlib>
#include <iostream>
#include <optional>

#include "core/failure.h"
#include "image/files.h"
#include "shell/boxes.h"
#include "shell/guide.h"
#include "shell/help_pages.h"
#include "shell/pictures.h"
#include "shell/program.h"
#include "shell/program_folder.h"
#include "shell/theme.h"

namespace {

constexpr const char* kHelp =
    "ovl [--folder PATH] [--store FOLDER] [--pictures FOLDER] [--guide FILE]\n"
    "\n"
    "Configures an overlay unit over a serial line.\n"
    "\n"
    "  --folder PATH      the program folder, with default images, uploads and links to ports\n"
    "  --store FOLDER     keeps the settings below this folder instead of the machine's place for them\n"
    "  --pictures FOLDER  writes pictures of all windows into the folder and ends\n"
    "  --guide FILE       writes the installer's guide as a PDF and ends; with --pictures, with these in it\n"
    "  --help             shows this text\n"
    "\n"
    "Exit status: 0 done; 1 the program could not start or a picture or the guide could not be written; 2 "
    "wrong usage.\n";

constexpr int kWrongUsage = 2;

struct Options {
  QString folder, store, pictures, guide;
  bool help = false;
};

// Nothing for words that are not understood.
std::optional<Options> ReadOptions(const QStringList& words) {
  Options options;
  for (qsizetype at = 0; at < words.size(); ++at) {
    if (words[at] == QLatin1String("--help")) {
      options.help = true;
      continue;
    }
    QString* value = nullptr;
    if (words[at] == QLatin1String("--folder")) value = &options.folder;
    if (words[at] == QLatin1String("--store")) value = &options.store;
    if (words[at] == QLatin1String("--pictures")) value = &options.pictures;
    if (words[at] == QLatin1String("--guide")) value = &options.guide;
    if (value == nullptr || at + 1 == words.size()) return std::nullopt;
    *value = words[++at];
  }
  return options;
}

QStringList Words(int argc, char** argv) {
  QStringList words;
  for (int at = 1; at < argc; ++at) words.append(QString::fromLocal8Bit(argv[at]));
  return words;
}

// The toolkit aborts when it finds no display, and advises to install it again.
void TellNoDisplay(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtFatalMsg) {
    std::cerr << "ovl: " << text.toLocal8Bit().constData() << std::endl;
    return;
  }
  std::cerr << "ovl: there is no display to open a window on; DISPLAY is \"" << qgetenv("DISPLAY").constData()
            << "\", WAYLAND_DISPLAY is \"" << qgetenv("WAYLAND_DISPLAY").constData() << "\"" << std::endl;
  std::_Exit(EXIT_FAILURE);
}

// Nothing when there is no folder to work in; a run that only writes pictures has nobody to close a box.
std::optional<QString> FindFolder(const Options& options) {
  try {
    return ovl::ProgramFolder(options.folder);
  } catch (const ovl::Failure& failure) {
    const auto text = "The program's folder cannot be made.\n\n" + failure.Subject() + ": " + failure.what();
    std::cerr << "ovl: " << text << std::endl;
    if (options.pictures.isEmpty()) ovl::ShowBox(nullptr, {{}, text});
    return std::nullopt;
  }
}

int SaveGuide(const Options& options) {
  ovl::ApplyTheme(ovl::Theme::kLight);  // it is printed on white paper
  const auto pictures =
      options.pictures.isEmpty() ? QString() : QDir(options.pictures).filePath(QStringLiteral("light"));
  const auto problem = ovl::WriteGuide(ovl::HelpPages(ovl::kEmbeddedHelp), pictures, options.guide);
  if (problem.isEmpty()) return EXIT_SUCCESS;
  std::cerr << "ovl: the guide cannot be written: " << problem.toLocal8Bit().constData() << "\n";
  return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  const auto options = ReadOptions(Words(argc, argv));
  if (!options) {
    std::cerr << kHelp;
    return kWrongUsage;
  }
  if (options->help) {
    std::cout << kHelp;
    return EXIT_SUCCESS;
  }
  ovl::OutliveSizeLimit();
  const auto toolkits_own = qInstallMessageHandler(TellNoDisplay);
  QApplication application(argc, argv);
  qInstallMessageHandler(toolkits_own);
  QCoreApplication::setApplicationName(QStringLiteral("OVL Software"));
  QGuiApplication::setDesktopFileName(QStringLiteral("ovl-software"));
  QApplication::setQuitOnLastWindowClosed(false);
  ovl::ApplyTheme(ovl::Theme::kDesktop);
  const auto folder = FindFolder(*options);
  if (!folder) return EXIT_FAILURE;
  if (!options->pictures.isEmpty()) {
    const auto problem = ovl::SavePictures(*folder, options->store, options->pictures);
    if (!problem.isEmpty()) {
      std::cerr << "ovl: the pictures cannot be taken: " << problem.toLocal8Bit().constData() << "\n";
      return EXIT_FAILURE;
    }
  }
  if (!options->guide.isEmpty()) return SaveGuide(*options);
  if (!options->pictures.isEmpty()) return EXIT_SUCCESS;
  ovl::Program program(*folder, options->store);
  if (program.Start() == ovl::Outcome::kEnded) return EXIT_FAILURE;
  program.GuardUnsaved();
  return QApplication::exec();
}
