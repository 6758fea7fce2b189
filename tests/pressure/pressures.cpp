#include "pressures.h"

#include <fcntl.h>
#include <grp.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "image/files.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

constexpr uid_t kNobody = 65534;
constexpr std::size_t kLongestName = 255;

// The superuser would be refused nothing. The process stays an ordinary user to its end.
bool BecomeOrdinary(const fs::path& file, bool own_folder) {
  if (geteuid() != 0) return true;
  const auto folder = file.parent_path();
  for (auto above = folder; above != fs::temp_directory_path(); above = above.parent_path()) {
    fs::permissions(above, fs::perms::others_read | fs::perms::others_exec, fs::perm_options::add);
  }
  return chown(file.c_str(), kNobody, kNobody) == 0 &&
         (!own_folder || chown(folder.c_str(), kNobody, kNobody) == 0) && setgroups(0, nullptr) == 0 &&
         setresgid(kNobody, kNobody, kNobody) == 0 && setresuid(kNobody, kNobody, kNobody) == 0;
}

// A file system of a few pages, gone with this process, filled to the last byte.
bool FillFileSystem(const fs::path& file) {
  if (unshare(CLONE_NEWNS) != 0) return false;
  const auto before = ReadWhole(file.string());
  const auto folder = file.parent_path();
  const bool mounted = mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                       mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
  if (!mounted) return false;
  WriteWhole(file.string(), before);
  std::ofstream filler(folder / "filler", std::ios::binary);
  while (filler.put('x').flush()) continue;
  return true;
}

bool LimitFileSize(const fs::path&) {
  OutliveSizeLimit();
  const rlimit limit{10, 10};
  return setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

bool MakeFolderReadOnly(const fs::path& file) {
  fs::permissions(file.parent_path(), fs::perms::owner_write, fs::perm_options::remove);
  return BecomeOrdinary(file, false);
}

bool ProtectFile(const fs::path& file) {
  fs::permissions(file, fs::perms::owner_read);
  return BecomeOrdinary(file, true);
}

bool PutFolder(const fs::path& file) {
  fs::remove(file);
  return fs::create_directory(file);
}

bool PutPipe(const fs::path& file) {
  fs::remove(file);
  return mkfifo(file.c_str(), 0600) == 0;
}

bool PutLink(const fs::path& file, const fs::path& target) {
  fs::remove(file);
  fs::create_symlink(target, file);
  return true;
}

bool PutCircle(const fs::path& file) {
  const auto other = file.parent_path() / "other";
  fs::create_symlink(file, other);
  return PutLink(file, other);
}

// The descriptor stays open as long as this process.
bool Hold(const fs::path& file) {
  const int descriptor = open(file.c_str(), O_RDWR | O_CLOEXEC);
  return descriptor >= 0 && flock(descriptor, LOCK_EX) == 0;
}

bool RemoveFolder(const fs::path& file) {
  return fs::remove_all(file.parent_path()) > 0;
}

}  // namespace

std::vector<Pressure> AllPressures() {
  const auto link_to = [](const char* target) {
    return [target](const fs::path& file) { return PutLink(file, target); };
  };
  return {
      {"nothing", End::kWritten, [](const fs::path&) { return true; }},
      {"no file there yet", End::kWritten, [](const fs::path& file) { return fs::remove(file); }},
      {"full file system", End::kRefused, FillFileSystem},
      {"limit on file size", End::kRefused, LimitFileSize},
      {"read-only folder", End::kRefused, MakeFolderReadOnly},
      {"write-protected file", End::kRefused, ProtectFile},
      {"folder in its place", End::kRefused, PutFolder},
      {"pipe in its place", End::kRefused, PutPipe, {}, true},
      {"link to nothing", End::kWritten, link_to("missing")},
      {"link into no folder", End::kRefused, link_to("missing/file"), {}, true},
      {"links in a circle", End::kRefused, PutCircle, {}, true},
      {"another holds it", End::kWritten, Hold},
      {"folder gone", End::kRefused, RemoveFolder, {}, true},
      {"name of 255 bytes", End::kWritten, [](const fs::path&) { return true; },
       std::string(kLongestName, 'n')},
      {"name of 300 bytes", End::kRefused, [](const fs::path&) { return true; }, std::string(300, 'n')},
  };
}

}  // namespace ovl::testing
