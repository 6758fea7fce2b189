#include <unistd.h>

#include <stdexcept>

#include "support/harness.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

void Unlock(const std::string& path) {
  if (getuid() == 0) static_cast<void>(!seteuid(0));
  std::error_code ignored;
  fs::permissions(path, fs::perms::owner_all, ignored);
}

}  // namespace

Locked::Locked(const std::string& path) {
  fs::permissions(path, fs::perms::none);
  constexpr uid_t kNobody = 65534;
  if (geteuid() == 0 && seteuid(kNobody) != 0) throw std::runtime_error("no ordinary user");
  lock_ = std::shared_ptr<void>(nullptr, [path](void*) { Unlock(path); });
}

}  // namespace ovl::testing
