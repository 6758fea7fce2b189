#include "power_cut.h"

#include <set>

namespace ovl::testing {
namespace {

struct FileOnDisk {
  std::string flushed;
  std::string written;
};

class Disk {
 public:
  Disk(const Recording& recording, const std::filesystem::path& file, FlushesCount count)
      : folder_(std::filesystem::canonical(file.parent_path()).string()), count_(count) {
    const auto first = recording.names.find(folder_);
    names_.push_back(first == recording.names.end() ? Names() : first->second);
    for (const auto& [id, bytes] : recording.content) files_[id] = {bytes, bytes};
  }

  void operator()(const NamesChanged& event) {
    if (event.folder == folder_) names_.push_back(event.names);
  }
  void operator()(const ContentChanged& event) { files_[event.file].written = event.bytes; }
  void operator()(const FileFlushed& event) {
    if (count_.files) files_[event.file] = {event.bytes, event.bytes};
  }
  void operator()(const FolderFlushed& event) {
    if (count_.folders && event.folder == folder_) names_ = {names_.back()};
  }

  std::set<std::optional<std::string>> ContentsOf(const std::string& name) const {
    std::set<std::optional<std::string>> contents;
    for (const auto& names : names_) {
      const auto found = names.find(name);
      if (found == names.end()) {
        contents.insert(std::nullopt);
        continue;
      }
      const auto& [flushed, written] = files_.at(found->second);
      contents.insert(flushed);
      if (written == flushed) continue;
      contents.insert(written);
      contents.insert(written.substr(0, written.size() / 2));
      contents.insert(std::string(written.size(), '\0'));
    }
    return contents;
  }

 private:
  std::string folder_;
  FlushesCount count_;
  std::vector<Names> names_;  // all that the folder may have now, the newest last
  std::map<FileId, FileOnDisk> files_;
};

}  // namespace

std::vector<std::optional<std::string>> AfterPowerCut(const Recording& recording, std::size_t events,
                                                      const std::filesystem::path& file, FlushesCount count) {
  Disk disk(recording, file, count);
  for (std::size_t event = 0; event < events; ++event) std::visit(disk, recording.events.at(event));
  const auto contents = disk.ContentsOf(file.filename().string());
  return {contents.begin(), contents.end()};
}

}  // namespace ovl::testing
