// What every program with windows does before it opens its first window: it reads the command line and the
// theme that the user has chosen, and it prints a message when there is no display.
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>
#include <optional>

#include "core/failure.h"
#include "ui/kit/theme.h"

namespace ovl::ui {

inline constexpr int kWrongUsage = 2;  // exit status

// The command line of a program. The options `--folder`, `--store`, `--help`, `-h` and `--version` always
// exist.
class CommandLine {
 public:
  // `--help` prints the description above the options and the exit status below them. The manual page and the
  // completion of the shell are made from this text.
  CommandLine(const QString& name, const QString& description, const QString& exit_status);

  void AddOption(const QString& option, const QString& value, const QString& description);
  enum class Need { kRequired, kOptional };

  // Adds an argument, such as "FOLDER". Those that can be left out are last.
  void AddArgument(const QString& word, const QString& description, Need need = Need::kRequired);

  // Reads the command line. Returns the exit status when the program must end: help or version were asked
  // for, or the arguments are wrong. Needs no application object.
  std::optional<int> Read(int argc, char** argv);

  // Prints what is wrong with the command line. Returns the exit status.
  int Refuse(const QString& problem) const;

  QString Folder() const { return parser_.value(QStringLiteral("folder")); }
  QString Store() const { return parser_.value(QStringLiteral("store")); }
  // Empty if the option is not given.
  QString Value(const QString& option) const { return parser_.value(option); }
  QString Argument() const { return parser_.positionalArguments().value(0); }

 private:
  void PrintHelp() const;
  // What is wrong with the command line that was read; empty if nothing is.
  QString Problem(bool understood) const;

  QCommandLineParser parser_;
  QString name_, exit_status_;
  QStringList required_, optional_;
};

// Without a display Qt ends the process while the application object is made. As long as this object lives,
// the program prints the reason to standard error first.
class DisplayMessage {
 public:
  DisplayMessage();
  ~DisplayMessage();
  DisplayMessage(const DisplayMessage&) = delete;
  DisplayMessage& operator=(const DisplayMessage&) = delete;
};

// For a run that only writes a file: whether there is a display does not matter. To be called before the
// application object is made.
void DrawWithoutDisplay();

// Sets the names that Qt uses for the desktop and for folders.
void NameApplication();

}  // namespace ovl::ui
