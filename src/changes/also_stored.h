// What an act stored beyond itself: found by comparing the image before and after, so that no rule of the
// panels is written twice.
#pragma once

#include <string>

#include "core/gate.h"

namespace ovl::changes {

// Whether the event is a person's act on a control. Others leave standing what was told last.
bool IsAct(const core::Event& event);

// One line of the model's own captions and entries, such as "Also stored: RX BAUDRATE AUTO, TX BAUDRATE
// 9600."; empty if the act stored nothing beyond itself. What brings in a whole image tells nothing.
std::string AlsoStored(const core::Application& app, const core::Event& event,
                       const image::ConfigImage& before);

}  // namespace ovl::changes
