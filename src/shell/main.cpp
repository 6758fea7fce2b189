#include <QApplication>
#include <QStringList>
#include <iostream>
#include <optional>

#include "shell/pictures.h"
#include "shell/program.h"
#include "shell/program_folder.h"
#include "shell/theme.h"

namespace {

constexpr const char* kHelp =
    "ovl [--folder PATH] [--store FOLDER]\n"
    "\n"
    "Configures an overlay unit over a serial line.\n"
    "\n"
    "  --folder PATH      the program folder, with default images, uploads and links to ports\n"
    "  --store FOLDER     keeps the settings below this folder instead of the machine's place for them\n"
    "  --pictures FOLDER  writes pictures of all windows into the folder and ends\n"
    "  --help             shows this text\n"
    "\n"
    "Exit status: 0 done; 1 the program could not start or a picture could not be written; 2 wrong usage.\n";

constexpr int kWrongUsage = 2;

struct Options {
  QString folder, store, pictures;
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
  QApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("OVL Software"));
  QApplication::setQuitOnLastWindowClosed(false);
  ovl::ApplyTheme(ovl::Theme::kDesktop);
  ovl::Program program(ovl::ProgramFolder(options->folder), options->store);
  if (!options->pictures.isEmpty()) {
    return ovl::SavePictures(program, options->pictures) ? EXIT_SUCCESS : EXIT_FAILURE;
  }
  if (program.Start() == ovl::Outcome::kEnded) return EXIT_FAILURE;
  return QApplication::exec();
}
