// The conditions of the advice table about settings that do not do what they look like.
#pragma once

#include "acts/advice.h"

namespace ovl::acts {

Advice RangeOrder(const core::Application& app, const Observed& observed);
Advice AlarmWithoutException(const core::Application& app, const Observed& observed);
Advice BlankText(const core::Application& app, const Observed& observed);

}  // namespace ovl::acts
