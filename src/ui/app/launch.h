// What every program with windows does on its way to the first one: the options that say where it works, and
// the words for a machine without a display.
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <optional>

namespace ovl::ui {

inline constexpr int kWrongUsage = 2;  // exit status

// The command line of a program. `--folder` and `--store` are there from the start.
class CommandLine {
 public:
  // `name` stands in front of error messages.
  CommandLine(const QString& name, const QString& description);

  void AddOption(const QString& option, const QString& value, const QString& description);
  // A word that must be there, such as "FOLDER".
  void AddWord(const QString& word, const QString& description);

  // The exit status when the program has nothing more to do: help was asked for, or the words are wrong.
  // Needs no application object.
  std::optional<int> Read(int& argc, char** argv);

  QString Folder() const { return parser_.value(QStringLiteral("folder")); }
  QString Store() const { return parser_.value(QStringLiteral("store")); }
  // Empty if the option was not given.
  QString Value(const QString& option) const { return parser_.value(option); }
  QString Word() const { return parser_.positionalArguments().value(0); }

 private:
  QCommandLineParser parser_;
  QString name_;
  qsizetype words_ = 0;
};

// For the time in which the application object is made: without a display Qt ends the process, and the reason
// goes to standard error in words of our own.
class DisplayMessage {
 public:
  DisplayMessage();
  ~DisplayMessage();
  DisplayMessage(const DisplayMessage&) = delete;
  DisplayMessage& operator=(const DisplayMessage&) = delete;
};

// Sets the names that Qt looks up for the desktop and for folders.
void NameApplication();

}  // namespace ovl::ui
