// The one dialog for three kinds of text, and the titles and triggered texts that it edits.
#pragma once

#include <string>
#include <string_view>

#include "core/application.h"

namespace ovl::panels {

enum class TextTarget { kTrigger = 0, kException = 1, kTitle = 2 };

// Opens the dialog for a text.
void EnterText(core::Application& app, TextTarget target);

// The text that a row of digits holds: up to the first NUL, 40 characters at most.
std::string StoredText(std::string_view digits);

// The digits of a text without the blanks at its ends, with 00 up to 40 characters.
std::string PaddedText(std::string_view text);

void frmSetEXCPSTR_Load(core::Application& app, int index);
void frmSetEXCPSTR_Unload(core::Application& app, int index);
void TextEntrySet_Click(core::Application& app, int index);
void TextEntryClear_Click(core::Application& app, int index);
void TextEntry_Escape(core::Application& app, int index);

// The title of the picture
void ApplyTitle(core::Application& app);
void Title_Text_Change(core::Application& app, int index);
void cmdTitle_Click(core::Application& app, int index);

}  // namespace ovl::panels
