#include "ui/app/launch.h"

#include <QFile>
#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>

#include "host/files.h"

namespace ovl::ui {
namespace {

// The words of the file that keeps the choice.
struct ThemeWord {
  Theme theme;
  const char* text;
};
constexpr std::array kThemeWords = {ThemeWord{Theme::kDesktop, "theme=system"},
                                    ThemeWord{Theme::kLight, "theme=light"},
                                    ThemeWord{Theme::kDark, "theme=dark"}};

QString ThemeFile(const QString& program_folder) {
  return program_folder + QStringLiteral("/window.ini");
}

void ReportNoDisplay(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtFatalMsg) {
    std::cerr << "ovl: " << text.toLocal8Bit().constData() << std::endl;
    return;
  }
  std::cerr << "ovl: there is no display to open a window on; DISPLAY is \"" << qgetenv("DISPLAY").constData()
            << "\", WAYLAND_DISPLAY is \"" << qgetenv("WAYLAND_DISPLAY").constData() << "\"" << std::endl;
  std::_Exit(EXIT_FAILURE);
}

QStringList WordsOf(int argc, char** argv) {
  QStringList words;
  for (int at = 0; at < argc; ++at) words.append(QString::fromLocal8Bit(argv[at]));
  return words;
}

}  // namespace

CommandLine::CommandLine(const QString& name, const QString& description) : name_(name) {
  parser_.setApplicationDescription(description);
  parser_.addOption({QStringLiteral("help"), QStringLiteral("shows this text")});
  AddOption(QStringLiteral("folder"), QStringLiteral("PATH"),
            QStringLiteral("the program folder, with default images, uploads and links to ports"));
  AddOption(QStringLiteral("store"), QStringLiteral("FOLDER"),
            QStringLiteral("keeps the settings below this folder instead of the machine's place for them"));
}

void CommandLine::AddOption(const QString& option, const QString& value, const QString& description) {
  parser_.addOption({option, description, value});
}

void CommandLine::AddArgument(const QString& word, const QString& description) {
  parser_.addPositionalArgument(word, description);
  ++arguments_;
}

std::optional<int> CommandLine::Read(int& argc, char** argv) {
  const bool understood = parser_.parse(WordsOf(argc, argv));
  const bool help = understood && parser_.isSet(QStringLiteral("help"));
  if (understood && !help && parser_.positionalArguments().size() == arguments_) return std::nullopt;
  // The help text contains the name of the program, which only an application object knows.
  const QCoreApplication application(argc, argv);
  if (help) {
    std::cout << parser_.helpText().toLocal8Bit().constData();
    return EXIT_SUCCESS;
  }
  if (!understood)
    std::cerr << name_.toLocal8Bit().constData() << ": " << parser_.errorText().toLocal8Bit().constData()
              << "\n\n";
  std::cerr << parser_.helpText().toLocal8Bit().constData();
  return kWrongUsage;
}

DisplayMessage::DisplayMessage() {
  qInstallMessageHandler(ReportNoDisplay);
}

DisplayMessage::~DisplayMessage() {
  qInstallMessageHandler(nullptr);
}

Theme ChosenTheme(const QString& program_folder) {
  QFile file(ThemeFile(program_folder));
  const auto text = file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
  const auto found = std::find_if(kThemeWords.begin(), kThemeWords.end(),
                                  [&](const ThemeWord& word) { return text == word.text; });
  return found == kThemeWords.end() ? Theme::kDesktop : found->theme;
}

core::Result KeepTheme(const QString& program_folder, Theme theme) {
  const auto word = std::find_if(kThemeWords.begin(), kThemeWords.end(),
                                 [theme](const ThemeWord& at) { return at.theme == theme; });
  try {
    host::ReplaceFile(QFile::encodeName(ThemeFile(program_folder)).toStdString(),
                      std::string(word->text) + "\n", host::Flush::kNo);
  } catch (const core::Failure& failure) {
    return failure;
  }
  return {};
}

void NameApplication() {
  QCoreApplication::setApplicationName(QStringLiteral("OVL Software"));
  QGuiApplication::setDesktopFileName(QStringLiteral("ovl-software"));
}

}  // namespace ovl::ui
