#include "ui/app/launch.h"

#include <QGuiApplication>
#include <cstdlib>
#include <iostream>

namespace ovl::ui {
namespace {

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

void CommandLine::AddArgument(const QString& word, const QString& description, Need need) {
  const bool required = need == Need::kRequired;
  parser_.addPositionalArgument(word, description,
                                required ? word : QLatin1Char('[') + word + QLatin1Char(']'));
  ++(required ? required_ : optional_);
}

std::optional<int> CommandLine::Read(int& argc, char** argv) {
  const bool understood = parser_.parse(WordsOf(argc, argv));
  const bool help = understood && parser_.isSet(QStringLiteral("help"));
  const auto given = parser_.positionalArguments().size();
  const bool fits = given >= required_ && given <= required_ + optional_;
  if (understood && !help && fits) return std::nullopt;
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

void NameApplication() {
  QCoreApplication::setApplicationName(QStringLiteral("OVL Software"));
  QGuiApplication::setDesktopFileName(QStringLiteral("ovl-software"));
}

}  // namespace ovl::ui
