// The MICROS network: a window with one of three panels, whose fields change only by its Set button.
#pragma once

#include "core/application.h"
#include "core/editor.h"

namespace ovl::registers {

// Arranges the window for the chosen network mode and writes the mode. The window opens unless an upload is
// being taken in.
void ShowMicrosPanel(core::Application& app);

void OpMicros_Click(core::Application& app, int element);
void cmdMicros_Click(core::Application& app, int index);
void cmdSetMicros_Click(core::Application& app, int index);
void cmdISNset_Click(core::Application& app, int index);
void CMD3700Set_Click(core::Application& app, int index);
void ECRNumber_Leave(core::Application& app, int index);
void frmMicros_Unload(core::Application& app, int index);

std::span<const core::Editor> MicrosEditors();

}  // namespace ovl::registers
