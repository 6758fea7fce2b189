// What an action of the user stored in addition to its own field. The image before and after is compared, so
// that the rules of the panels are not repeated here.
#pragma once

#include <string>

#include "core/gate.h"
#include "phrases/phrases.h"

namespace ovl::changes {

// Whether the event is an action of the user on a control. The line stays unchanged after all other events.
bool IsAct(const core::Event& event);

// One line with captions and list entries, such as "Also stored: RX BAUDRATE AUTO, TX BAUDRATE 9600."; empty
// if the action stored nothing else. If a list now shows another entry than it has stored, the line says that
// instead: "Stored: AUTO LINEFEED ON, not OFF." It is also empty for an action that loads a whole image.
// After a pick in the register list it names what is on the other tabs, and the tab in front of it.
phrases::Words AlsoStored(const core::Application& app, const core::Event& event,
                          const image::ConfigImage& before);

// What a pick in the register list stored on the other tabs: "COMMUNICATION: PARITY NONE; EXCEPTION REPORT:
// OUTPUT OFF". Empty if nothing there differs.
phrases::Words OtherTabsStored(const core::Application& app, const image::ConfigImage& before);

}  // namespace ovl::changes
