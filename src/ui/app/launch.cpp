#include "ui/app/launch.h"

#include <QByteArrayView>
#include <QCoreApplication>
#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>

#include "host/system/display.h"

namespace ovl::ui {
namespace {

bool NamesDisplay() {
  constexpr std::array kNames = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
  return !std::all_of(kNames.begin(), kNames.end(), qEnvironmentVariableIsEmpty);
}

// What the platform plug-ins say is the reason, but only if there is a name that can be wrong.
void ReportNoDisplay(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type != QtFatalMsg) {
    if (NamesDisplay() && QByteArrayView(context.category).startsWith("qt.qpa"))
      std::cerr << "ovl: " << text.toLocal8Bit().constData() << std::endl;
    return;
  }
  std::cerr << "ovl: OVL Software needs a display for its window; DISPLAY is \""
            << qgetenv("DISPLAY").constData() << "\", WAYLAND_DISPLAY is \""
            << qgetenv("WAYLAND_DISPLAY").constData() << "\"" << std::endl;
  std::_Exit(EXIT_FAILURE);
}

QStringList WordsOf(int argc, char** argv) {
  QStringList words;
  for (int at = 0; at < argc; ++at) words.append(QString::fromLocal8Bit(argv[at]));
  return words;
}

}  // namespace

CommandLine::CommandLine(const QString& name, const QString& description, const QString& exit_status)
    : name_(name), exit_status_(exit_status) {
  parser_.setApplicationDescription(description);
  AddOption(QStringLiteral("folder"), QStringLiteral("FOLDER"),
            QStringLiteral("the program folder, with default images, uploads and links to ports"));
  AddOption(
      QStringLiteral("store"), QStringLiteral("FOLDER"),
      QStringLiteral(
          "keeps the settings in ORB/OVL Software.conf below this folder, not in the file of the computer"));
}

void CommandLine::AddOption(const QString& option, const QString& value, const QString& description) {
  parser_.addOption({option, description, value});
}

void CommandLine::AddArgument(const QString& word, const QString& description, Need need) {
  const bool required = need == Need::kRequired;
  parser_.addPositionalArgument(word, description,
                                required ? word : QLatin1Char('[') + word + QLatin1Char(']'));
  (required ? required_ : optional_).append(word);
}

std::optional<int> CommandLine::Read(int argc, char** argv) {
  const auto help = QStringLiteral("help"), version = QStringLiteral("version");
  parser_.addOption({{QStringLiteral("h"), help}, QStringLiteral("shows this text")});
  parser_.addOption({version, QStringLiteral("shows the version")});
  const bool understood = parser_.parse(WordsOf(argc, argv));
  if (understood && parser_.isSet(help)) {
    PrintHelp();
    return EXIT_SUCCESS;
  }
  const auto name = name_.toStdString();
  if (understood && parser_.isSet(version)) {
    std::cout << name << " " OVL_VERSION "\n";
    return EXIT_SUCCESS;
  }
  const auto problem = Problem(understood);
  return problem.isEmpty() ? std::nullopt : std::optional(Refuse(problem));
}

int CommandLine::Refuse(const QString& problem) const {
  const auto name = name_.toStdString();
  std::cerr << name << ": " << problem.toLocal8Bit().constData() << "\nTry \"" << name << " --help\".\n";
  return kWrongUsage;
}

// The parser takes the name of the program from the application object.
void CommandLine::PrintHelp() const {
  auto name = name_.toLocal8Bit();
  std::array<char*, 2> words{name.data(), nullptr};
  int count = 1;
  const QCoreApplication application(count, words.data());
  std::cout << parser_.helpText().toLocal8Bit().constData() << '\n' << exit_status_.toLocal8Bit().constData();
}

QString CommandLine::Problem(bool understood) const {
  if (!understood) return parser_.errorText();
  const auto given = parser_.positionalArguments();
  if (given.size() < required_.size()) return required_.at(given.size()) + QStringLiteral(" is missing");
  const auto most = required_.size() + optional_.size();
  return given.size() > most ? given.at(most) + QStringLiteral(": there is one argument too many")
                             : QString();
}

DisplayMessage::DisplayMessage() {
  qInstallMessageHandler(ReportNoDisplay);
}

DisplayMessage::~DisplayMessage() {
  qInstallMessageHandler(nullptr);
}

void DrawWithoutDisplay() {
  if (host::DisplayHasName()) qputenv("QT_QPA_PLATFORM", "offscreen");
}

void NameApplication() {
  QCoreApplication::setApplicationName(QStringLiteral("OVL Software"));
  QGuiApplication::setDesktopFileName(QStringLiteral("ovl-software"));
}

}  // namespace ovl::ui
