// Message boxes and file dialogs as the model asks for them. Each returns when it is closed; meanwhile the
// event loop goes on.
#pragma once

#include <QString>
#include <optional>

#include "core/platform.h"

class QWidget;

namespace ovl::ui {

// The name of the property under which a box on the screen keeps its topic in the help.
inline constexpr const char* kBoxTopic = "topic";

void ShowBox(QWidget* parent, const core::MessageBox& box, const QString& detail = {});

// Nothing when the person cancels.
std::optional<core::FileAnswer> AskFile(QWidget* parent, const core::FileDialog& request);

}  // namespace ovl::ui
