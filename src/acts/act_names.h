// How the menu names an act of the installer.
#pragma once

#include <string>

#include "core/gate.h"
#include "phrases/phrases.h"

namespace ovl::acts {

// In the words of the form: "ALARM DURATION", "Register", "Open". To be called before the event is
// dispatched.
phrases::Words NameOf(const core::Application& app, const core::Event& event);

// A pick in the register list, and what selects another register in its place.
inline constexpr const char* kRegisterAct = phrases::Marked("Form", "Register");

// The last part of a path.
std::string FileNameOf(const std::string& path);

// "11:08"
std::string TimeOfDay(const core::Application& app);

}  // namespace ovl::acts
