#include <share.h>

#include <cstdio>
#include <stdexcept>

#include "support/harness.h"

namespace ovl::testing {

// There are no permissions to take away, so the file is kept open for nobody else.
Locked::Locked(const std::string& path) {
  auto* const file = ::_fsopen(path.c_str(), "r+b", _SH_DENYRW);
  if (file == nullptr) throw std::runtime_error(path + " cannot be locked");
  lock_ = std::shared_ptr<void>(file, [file](void*) { std::fclose(file); });
}

}  // namespace ovl::testing
