// The video recorder that receives the history data of the unit, and the two addresses for it.
#pragma once

#include "core/application.h"
#include "core/editor.h"

namespace ovl::panels {

void ApplyDvr(core::Application& app);
void OpDVR_Click(core::Application& app, int element);
void ComboKLM4011_Click(core::Application& app, int index);

// The recorder and its addresses as the lists show them, into the image. Only the families before V1400 do it
// with each download.
void StoreRecorder(core::Application& app);

std::span<const core::Editor> DvrEditors();

}  // namespace ovl::panels
