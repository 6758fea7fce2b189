#include "files/files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <system_error>

#include "core/failure.h"

namespace ovl::files {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kLargestFile = 64U * 1024U * 1024U;
constexpr std::size_t kPart = 16U * 1024U;

[[noreturn]] void Fail(const std::string& path, std::errc reason) {
  throw core::Failure(path, std::make_error_code(reason).message());
}

// The stream library tells the reason only through errno.
[[noreturn]] void FailWithErrno(const std::string& path) {
  throw core::Failure(path, std::generic_category().message(errno != 0 ? errno : EIO));
}

// Where the bytes really go: the end of a chain of links, also if nothing is there yet.
fs::path TargetOf(const std::string& path) {
  constexpr int kLongestChain = 40;
  fs::path target = path;
  std::error_code error;
  for (int link = 0; fs::is_symlink(target, error); ++link) {
    if (link == kLongestChain) Fail(path, std::errc::too_many_symbolic_link_levels);
    const auto next = fs::read_symlink(target, error);
    if (error) throw core::Failure(path, error.message());
    target = next.is_absolute() ? next : target.parent_path() / next;
  }
  return target;
}

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// A file that stands in the target's place must be one that could be written itself: renaming over it would
// not ask.
void RequireWritable(const fs::path& target) {
  std::error_code error;
  const auto status = fs::status(target, error);
  if (fs::is_directory(status)) Fail(target.string(), std::errc::is_a_directory);
  if (!fs::exists(status)) return;
  if (!fs::is_regular_file(status)) Fail(target.string(), std::errc::invalid_argument);
  if (!File{std::fopen(target.c_str(), "r+b")}) FailWithErrno(target.string());
}

// A new file in the target's folder, under a name that nothing has yet. A name that is as long as names can
// be has no room for an ending.
File CreateBeside(const fs::path& target, fs::path& beside) {
  constexpr int kNamesToTry = 100;
  constexpr std::size_t kLongestStem = 240;
  const auto stem = target.filename().string().substr(0, kLongestStem);
  for (int number = 0; number < kNamesToTry; ++number) {
    beside = target.parent_path() / (stem + "." + std::to_string(number) + ".new");
    if (File file{std::fopen(beside.c_str(), "wbx")}) return file;
    if (errno != EEXIST) break;
  }
  const auto reason = errno;
  beside.clear();
  errno = reason;
  FailWithErrno(target.string());
}

void WriteInto(File file, const fs::path& beside, std::string_view bytes) {
  errno = 0;
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
  if (!written || std::fflush(file.get()) != 0) FailWithErrno(beside.string());
  if (std::fclose(file.release()) != 0) FailWithErrno(beside.string());
}

}  // namespace

std::string PathBelow(std::string_view folder, std::string_view written) {
  std::string path(folder);
  for (const char character : written) path += character == '\\' ? '/' : character;
  return path;
}

std::string ReadWhole(const std::string& path) {
  std::error_code error;
  const auto status = fs::status(path, error);
  if (fs::is_directory(status)) Fail(path, std::errc::is_a_directory);
  if (fs::exists(status) && !fs::is_regular_file(status)) Fail(path, std::errc::invalid_argument);
  if (const auto size = fs::file_size(path, error); !error && size > kLargestFile) {
    Fail(path, std::errc::file_too_large);
  }
  std::ifstream file(path, std::ios::binary);
  if (!file) FailWithErrno(path);
  std::string bytes;
  for (std::array<char, kPart> part; file;) {
    file.read(part.data(), part.size());
    bytes.append(part.data(), static_cast<std::size_t>(file.gcount()));
    if (bytes.size() > kLargestFile) Fail(path, std::errc::file_too_large);
  }
  if (file.bad()) FailWithErrno(path);
  return bytes;
}

std::vector<std::string> ReadLines(const std::string& path) {
  const auto bytes = ReadWhole(path);
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin < bytes.size();) {
    const auto end = std::min(bytes.find('\r', begin), bytes.size());
    lines.push_back(bytes.substr(begin, end - begin));
    begin = end + 1;
    if (begin < bytes.size() && bytes[begin] == '\n') ++begin;
  }
  return lines;
}

std::string ReadJoined(const std::string& path) {
  std::string joined;
  for (const auto& line : ReadLines(path)) joined += line;
  return joined;
}

void WriteWhole(const std::string& path, std::string_view bytes) {
  const auto target = TargetOf(path);
  std::error_code error;
  fs::path beside;
  try {
    RequireWritable(target);
    WriteInto(CreateBeside(target, beside), beside, bytes);
    if (const auto old = fs::status(target, error); fs::exists(old)) {
      fs::permissions(beside, old.permissions(), error);
    }
    fs::rename(beside, target);
  } catch (const fs::filesystem_error& reason) {
    fs::remove(beside, error);
    throw core::Failure(path, reason.code().message());
  } catch (const core::Failure& reason) {
    fs::remove(beside, error);
    throw core::Failure(path, reason.what());
  }
}

void OutliveSizeLimit() {
#ifdef SIGXFSZ
  std::signal(SIGXFSZ, SIG_IGN);
#endif
}

}  // namespace ovl::files
