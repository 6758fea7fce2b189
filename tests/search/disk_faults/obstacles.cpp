#include "obstacles.h"

#include <fcntl.h>
#include <grp.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "host/system/disk.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;
using Path = const fs::path&;

// The superuser may write everything, so the process becomes an ordinary user until it ends.
bool BecomeOrdinaryUser(Path file, bool own_folder) {
  constexpr uid_t kNobody = 65534;
  if (geteuid() != 0) return true;
  const auto folder = file.parent_path();
  for (auto above = folder; above != fs::temp_directory_path(); above = above.parent_path()) {
    fs::permissions(above, fs::perms::others_read | fs::perms::others_exec, fs::perm_options::add);
  }
  return chown(file.c_str(), kNobody, kNobody) == 0 &&
         (!own_folder || chown(folder.c_str(), kNobody, kNobody) == 0) && setgroups(0, nullptr) == 0 &&
         setresgid(kNobody, kNobody, kNobody) == 0 && setresuid(kNobody, kNobody, kNobody) == 0;
}

// A small file system, full to the last byte. It disappears with this process.
bool FillFileSystem(Path file) {
  if (unshare(CLONE_NEWNS) != 0) return false;
  const auto before = ReadFile(file.string());
  const auto folder = file.parent_path();
  const bool mounted = mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                       mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
  if (!mounted) return false;
  WriteFile(file.string(), before);
  std::ofstream filler(folder / "filler", std::ios::binary);
  while (filler.put('x').flush()) continue;
  return true;
}

bool LimitFileSize(Path) {
  host::OutliveSizeLimit();
  const rlimit limit{10, 10};
  return setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

bool MakeFolderReadOnly(Path file) {
  fs::permissions(file.parent_path(), fs::perms::owner_write, fs::perm_options::remove);
  return BecomeOrdinaryUser(file, false);
}

bool ProtectFile(Path file) {
  fs::permissions(file, fs::perms::owner_read);
  return BecomeOrdinaryUser(file, true);
}

bool ReplaceByLink(Path file, Path target) {
  return fs::remove(file) && symlink(target.c_str(), file.c_str()) == 0;
}

bool ReplaceByCircle(Path file) {
  const auto other = file.parent_path() / "other";
  return symlink(file.c_str(), other.c_str()) == 0 && ReplaceByLink(file, other);
}

// The descriptor stays open as long as this process.
bool LockFile(Path file) {
  const int descriptor = open(file.c_str(), O_RDWR | O_CLOEXEC);
  return descriptor >= 0 && flock(descriptor, LOCK_EX) == 0;
}

}  // namespace

std::vector<Obstacle> AllObstacles() {
  constexpr bool kWritten = true, kRefused = false, kNoStore = false;
  const auto nothing = [](Path) { return true; };
  return {
      {"nothing", kWritten, nothing},
      {"no file there yet", kWritten, [](Path file) { return fs::remove(file); }},
      {"full file system", kRefused, FillFileSystem},
      {"limit on file size", kRefused, LimitFileSize},
      {"read-only folder", kRefused, MakeFolderReadOnly},
      {"write-protected file", kRefused, ProtectFile},
      {"folder in its place", kRefused,
       [](Path file) { return fs::remove(file) && fs::create_directory(file); }},
      {"pipe in its place", kRefused,
       [](Path file) { return fs::remove(file) && mkfifo(file.c_str(), 0600) == 0; }, kNoStore},
      {"link to nothing", kWritten, [](Path file) { return ReplaceByLink(file, "missing"); }},
      {"link into no folder", kRefused, [](Path file) { return ReplaceByLink(file, "missing/file"); },
       kNoStore},
      {"links in a circle", kRefused, ReplaceByCircle, kNoStore},
      {"locked by another", kWritten, LockFile},
      {"folder gone", kRefused, [](Path file) { return fs::remove_all(file.parent_path()) > 0; }, kNoStore},
      {"name of 255 bytes", kWritten, nothing, true, std::string(255, 'n')},
      {"name of 300 bytes", kRefused, nothing, true, std::string(300, 'n')},
  };
}

}  // namespace ovl::testing
