// One dialog for three kinds of text, and the title of the picture.
#pragma once

#include "core/application.h"

namespace ovl::panels {

enum class TextTarget { kTrigger = 0, kException = 1, kTitle = 2 };

// Opens the dialog for one kind of text.
void EnterText(core::Application& app, TextTarget target);

void frmSetEXCPSTR_Load(core::Application& app, int index);
void frmSetEXCPSTR_Unload(core::Application& app, int index);
void TextEntrySet_Click(core::Application& app, int index);
void TextEntryClear_Click(core::Application& app, int index);
void TextEntry_Escape(core::Application& app, int index);

// The title of the picture.
void ApplyTitle(core::Application& app);
void Title_Text_Change(core::Application& app, int index);
void cmdTitle_Click(core::Application& app, int index);

}  // namespace ovl::panels
