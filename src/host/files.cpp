#include "host/files.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <system_error>

#include "host/system/disk.h"

namespace ovl::host {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kLargestFile = 64U * 1024U * 1024U;
constexpr std::size_t kPart = 16U * 1024U;

[[noreturn]] void Fail(const std::string& path, std::errc reason) {
  throw core::Failure(path, std::make_error_code(reason));
}

// The stream library gives the reason only through errno.
[[noreturn]] void FailWithErrno(const std::string& path) {
  throw core::Failure(path, std::error_code(errno != 0 ? errno : EIO, std::generic_category()));
}

// The end of a chain of links: where the file is, or where it is going to be.
fs::path TargetOf(const std::string& path) {
  constexpr int kLongestChain = 40;
  auto target = PathOf(path);
  std::error_code error;
  for (int link = 0; fs::is_symlink(target, error); ++link) {
    if (link == kLongestChain) Fail(path, std::errc::too_many_symbolic_link_levels);
    const auto next = fs::read_symlink(target, error);
    if (error) throw core::Failure(path, error);
    target = next.is_absolute() ? next : target.parent_path() / next;
  }
  return target;
}

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// Renaming over a file does not need the right to write that file, so the right is checked here.
void RequireWritable(const fs::path& target) {
  std::error_code error;
  const auto status = fs::status(target, error);
  if (fs::is_directory(status)) Fail(TextOf(target), std::errc::is_a_directory);
  if (!fs::exists(status)) return;
  if (!fs::is_regular_file(status)) Fail(TextOf(target), std::errc::invalid_argument);
  if (!File{OpenFile(target, "r+b")}) FailWithErrno(TextOf(target));
}

// A new file in the target's folder, under a free name. The stem is cut, since a name of the greatest length
// has no room for an ending.
File CreateBeside(const fs::path& target, fs::path& beside) {
  constexpr int kNamesToTry = 100;
  constexpr std::size_t kLongestStem = 240;
  const auto stem = target.filename().native().substr(0, kLongestStem);
  for (int number = 0; number < kNamesToTry; ++number) {
    beside = target.parent_path() / stem;
    beside += "." + std::to_string(number) + ".new";
    if (File file{OpenFile(beside, "wbx")}) return file;
    if (errno != EEXIST) break;
  }
  const auto reason = errno;
  beside.clear();
  errno = reason;
  FailWithErrno(TextOf(target));
}

void CopyPermissions(const fs::path& target, const fs::path& beside) {
  std::error_code ignored;
  const auto old = fs::status(target, ignored);
  if (fs::exists(old)) fs::permissions(beside, old.permissions(), ignored);
}

void RequireFlushed(int error, const fs::path& path) {
  if (error != 0) throw core::Failure(TextOf(path), std::error_code(error, std::generic_category()));
}

void WriteInto(File file, const fs::path& beside, std::string_view bytes, Flush flush) {
  errno = 0;
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
  if (!written || std::fflush(file.get()) != 0) FailWithErrno(TextOf(beside));
  if (flush == Flush::kYes) RequireFlushed(FlushFile(*file), beside);
  if (std::fclose(file.release()) != 0) FailWithErrno(TextOf(beside));
}

}  // namespace

fs::path PathOf(std::string_view text) {
  return std::u8string(text.begin(), text.end());
}

std::string TextOf(const fs::path& path) {
  const auto text = path.u8string();
  return {text.begin(), text.end()};
}

std::string ReadFile(const std::string& path) {
  const auto file_path = PathOf(path);
  std::error_code error;
  const auto status = fs::status(file_path, error);
  if (fs::is_directory(status)) Fail(path, std::errc::is_a_directory);
  if (fs::exists(status) && !fs::is_regular_file(status)) Fail(path, std::errc::invalid_argument);
  if (const auto size = fs::file_size(file_path, error); !error && size > kLargestFile) {
    Fail(path, std::errc::file_too_large);
  }
  std::ifstream file(file_path, std::ios::binary);
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

// QSaveFile covers the writing and the renaming alone: it does not flush the folder, refuses names of the
// greatest length, replaces what is no regular file, and words its errors itself. Without it there is less
// code.
void ReplaceFile(const std::string& path, std::string_view bytes, Flush flush) {
  const auto target = TargetOf(path);
  std::error_code ignored;
  fs::path beside;
  try {
    RequireWritable(target);
    auto file = CreateBeside(target, beside);
    CopyPermissions(target, beside);
    WriteInto(std::move(file), beside, bytes, flush);
    if (const auto error = TakeName(beside, target)) throw core::Failure(path, error);
    if (flush == Flush::kYes) RequireFlushed(FlushFolder(target.parent_path() / "."), target);
  } catch (const fs::filesystem_error& reason) {
    fs::remove(beside, ignored);
    throw core::Failure(path, reason.code());
  } catch (const core::Failure& reason) {
    fs::remove(beside, ignored);
    throw core::Failure(path, reason);
  }
}

core::FileAccess DiskFiles(Flush flush) {
  return {.read = ReadFile, .replace = [flush](const std::string& path, std::string_view bytes) {
            ReplaceFile(path, bytes, flush);
          }};
}

}  // namespace ovl::host
