// Message boxes and file dialogs that the model asks for. Each function returns when the user closes the
// window; the event loop runs in the meantime.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "core/platform.h"

class QWidget;

namespace ovl::ui {

// The property of a message box that contains its topic in the help.
inline constexpr const char* kBoxTopic = "topic";

void ShowBox(QWidget* parent, const core::MessageBox& box, const QString& detail = {});

// Empty when the user cancels. A start name with "*" is a pattern, so the name field stays empty. A name that
// the user types without a suffix gets that of the chosen filter, or else of the start name.
std::optional<core::FileAnswer> AskFile(QWidget* parent, const core::FileDialog& request);

// Asks whether to open a file. True for "Open anyway"; Enter and Escape are "Cancel".
bool AskWhetherToOpen(QWidget* parent, const QString& text, const QString& detail);

// What is wrong in a text form, one line each.
void ShowProblems(QWidget* parent, const QString& text, const QStringList& lines);

// Lists what a text form of another firmware has too much. True for the button, such as "Import the Rest".
bool AskWhetherToTakeTheRest(QWidget* parent, const QString& text, const QStringList& lines,
                             const QString& button);

}  // namespace ovl::ui
