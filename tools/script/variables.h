// The program's state variables by name.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/application.h"

namespace ovl::script {

// The value as text; flags read true or false. Nothing if no variable has the name.
std::optional<std::string> VariableValue(const core::Application& app, std::string_view name);

}  // namespace ovl::script
