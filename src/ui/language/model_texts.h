// The texts of the model in the language of the windows. The model keeps its own, and events go back to it by
// position or by what the user typed, never by a translated text.
#pragma once

#include <QString>
#include <string>

#include "core/application.h"
#include "host/text_codec.h"
#include "phrases/phrases.h"

namespace ovl::ui {

// A caption or an entry of a list. What the list of texts does not have, such as the name of a register,
// stays as it is.
QString FormText(const std::string& caption);

// The same for a menu or a button: a "&" of the caption does not underline a letter.
QString CaptionText(const std::string& caption);

// `data` converts what is the same in every language.
using FromModel = QString (*)(std::string_view);
QString Shown(const phrases::Words& words, FromModel data = host::FromWindows1252);

struct BoxTexts {
  QString title, text;
};
BoxTexts TextsOf(const core::MessageBox& box);

// "SUBJECT: REASON". Only reasons of the program itself are translated, the system has its own words.
QString FailureText(const core::Failure& failure);

// What last went wrong, for the status bar.
QString StatusNoteText(const core::Application& app);

}  // namespace ovl::ui
