// The program's state variables by name.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/application.h"

namespace ovl::script {

// The value as text, "true" or "false" for a flag. Nothing if there is no such variable.
std::optional<std::string> VariableValue(const core::Application& app, std::string_view name);

}  // namespace ovl::script
