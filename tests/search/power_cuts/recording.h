// What a process does to the files of a folder, up to what a disk could tell after a power cut.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace ovl::testing {

// A number of its own, because the system gives the inode of a removed file to the next one.
using FileId = int;
using Names = std::map<std::string, FileId>;  // of the regular files in a folder

struct NamesChanged {
  std::string folder;
  Names names;
};
struct ContentChanged {
  FileId file;
  std::string bytes;
};
// Everything that was written to it reached the disk.
struct FileFlushed {
  FileId file;
  std::string bytes;
};
struct FolderFlushed {
  std::string folder;
};
using DiskEvent = std::variant<NamesChanged, ContentChanged, FileFlushed, FolderFlushed>;

// The files before the act, and what then happened to them in order.
struct Recording {
  std::map<std::string, Names> names;     // by folder
  std::map<FileId, std::string> content;  // at first
  std::vector<DiskEvent> events;
  bool done = false;  // the exit status of the process was 0
};

// Runs the act in a process of its own and looks at the folder and the folders in it after each system call
// of the process and of those that it starts. Throws std::system_error if the system does not allow that.
Recording Record(const std::filesystem::path& folder, const std::function<bool()>& act);

}  // namespace ovl::testing
