#include "unit/memory.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "unit/descriptor.h"
#include "unit/stream.h"
#include "unit/text.h"

namespace unit {
namespace {

std::string Failure(const std::string& what, const std::string& path) {
  return what + " " + path + ": " + SystemReason(errno);
}

bool WriteAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool FlushFolderOf(const std::string& path) {
  const auto folder = std::filesystem::absolute(path).parent_path();
  const Descriptor names(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!names.Open()) return errno == EACCES;  // it may be written and not read
  return ::fsync(names.Get()) == 0 || errno == EINVAL;
}

}  // namespace

Loaded ReadFile(const std::string& path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.Open()) return {{}, Failure("cannot open", path)};
  std::string text;
  std::array<char, 4096> part{};
  for (;;) {
    const ssize_t count = ::read(file.Get(), part.data(), part.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return {{}, Failure("cannot read", path)};
    if (count == 0) return {std::move(text), {}};
    text.append(part.data(), static_cast<std::size_t>(count));
  }
}

std::string WriteFile(const std::string& path, std::string_view text) {
  std::string beside = path + ".XXXXXX";
  {
    const Descriptor file(::mkostemp(beside.data(), O_CLOEXEC));
    if (!file.Open()) return Failure("cannot write", path);
    if (!WriteAll(file.Get(), text) || ::fsync(file.Get()) != 0) {
      std::string error = Failure("cannot write", beside);
      ::unlink(beside.c_str());
      return error;
    }
  }
  if (std::rename(beside.c_str(), path.c_str()) == 0)
    return FlushFolderOf(path) ? std::string() : Failure("cannot save the name of", path);
  std::string error = Failure("cannot replace", path);
  ::unlink(beside.c_str());
  return error;
}

bool FileExists(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 || errno != ENOENT;
}

Loaded LoadImage(const std::string& path, const Firmware& firmware) {
  Loaded file = ReadFile(path);
  if (!file.error.empty()) return file;
  StreamText stream = ReadStreamText(RegionOf(firmware), file.text);
  if (stream.errors.empty()) return {std::move(stream.image), {}};
  return {{},
          path + " is not a configuration of " + std::string(firmware.name) + ": " + stream.errors.front()};
}

std::string SaveImage(const std::string& path, const Firmware& firmware, std::string_view image) {
  return WriteFile(path, ComposeStream(RegionOf(firmware), image) + "\r\n");
}

std::string MadeUpHistory(unsigned lines) {
  std::string text;
  for (unsigned n = 1; n <= lines; ++n) {
    std::array<char, 64> line{};
    const unsigned day = (n - 1) / 24 % 28 + 1;
    std::snprintf(line.data(), line.size(), "%05u 01-%02u-26 %02u:00:00 NO SALE\r\n", n, day, (n - 1) % 24);
    text += line.data();
  }
  return text;
}

Loaded LoadHistory(const std::string& path) {
  Loaded file = ReadFile(path);
  if (!file.error.empty()) return file;
  std::string text;
  for (const char c : file.text) {
    if (c == kAck) return {{}, path + " contains the byte ACK, which would end the history"};
    if (c == '\n' && (text.empty() || text.back() != '\r')) text += '\r';
    text += c;
  }
  return {std::move(text), {}};
}

}  // namespace unit
