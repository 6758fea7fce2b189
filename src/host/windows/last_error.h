// Errors of Windows as the error numbers of the standard library, which the other systems use.
#pragma once

#include <windows.h>

#include <cerrno>
#include <system_error>

namespace ovl::host {

inline int ErrorNumber(DWORD error) {
  const auto condition =
      std::error_code(static_cast<int>(error), std::system_category()).default_error_condition();
  return condition.category() == std::generic_category() ? condition.value() : EIO;
}

}  // namespace ovl::host
