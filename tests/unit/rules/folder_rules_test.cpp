// Which folder may include which, and how large files and folders may become.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "unit/rules/source_files.h"

namespace ovl::testing {
namespace {

using Folders = std::set<std::string>;

// For each folder of the model those that it may include beside itself. They form no circle.
const std::map<std::string, Folders> kModel = {
    {"codecs", {}},
    {"phrases", {}},
    {"controls", {}},
    {"firmware", {"codecs", "controls"}},
    {"image", {"codecs", "firmware"}},
    {"core", {"codecs", "controls", "firmware", "image"}},
    {"files", {"codecs", "controls", "firmware", "image", "core"}},
    {"panels", {"codecs", "controls", "firmware", "image", "core", "phrases"}},
    {"registers", {"codecs", "controls", "firmware", "image", "core", "files", "phrases"}},
    {"changes",
     {"codecs", "controls", "firmware", "image", "core", "files", "panels", "registers", "phrases"}},
    {"text_form",
     {"codecs", "controls", "firmware", "image", "core", "files", "panels", "registers", "changes",
      "phrases"}},
    {"checks",
     {"codecs", "controls", "firmware", "image", "core", "files", "panels", "registers", "changes",
      "phrases"}},
    {"link", {"codecs", "controls", "firmware", "image", "core", "files", "phrases"}},
    {"acts",
     {"codecs", "controls", "firmware", "image", "core", "files", "panels", "registers", "changes", "checks",
      "link", "phrases"}},
    {"sheet",
     {"codecs", "controls", "firmware", "image", "core", "files", "panels", "registers", "changes", "checks",
      "text_form", "link", "acts", "phrases"}},
    {"start",
     {"codecs", "controls", "firmware", "image", "core", "files", "panels", "changes", "registers", "link",
      "phrases"}},
};

// The same for the windows, which may include all of the model and of the host.
const std::map<std::string, Folders> kWindows = {
    {"ui/tips", {}},
    {"ui/language", {}},
    {"ui/access", {}},
    {"ui/kit", {"ui/access", "ui/tips", "ui/language"}},
    {"ui/print", {}},
    {"ui/help", {"ui/kit", "ui/print"}},
    {"ui/acts", {"ui/kit", "ui/language"}},
    {"ui/pages", {"ui/kit", "ui/acts", "ui/language"}},
    {"ui/dialogs", {"ui/kit", "ui/pages", "ui/acts", "ui/language"}},
    {"ui/window", {"ui/kit", "ui/acts", "ui/pages", "ui/dialogs", "ui/print", "ui/language"}},
    {"ui/files", {"ui/kit", "ui/dialogs", "ui/language"}},
    {"ui/app",
     {"ui/kit", "ui/help", "ui/pages", "ui/dialogs", "ui/window", "ui/files", "ui/print", "ui/language"}},
};

std::string RoomOf(const std::string& path) {
  const auto first = path.find('/');
  if (path.substr(0, first) != "ui") return path.substr(0, first);
  return path.substr(0, path.find('/', first + 1));
}

void ExpectIncludes(const std::string& room, const Folders& allowed) {
  const auto files = SourceFilesBelow("src/" + room);
  EXPECT_FALSE(files.empty()) << room;
  for (const auto& file : files) {
    for (const auto& header : IncludesOf(file)) {
      if (header.front() == '<') continue;
      const auto target = RoomOf(header);
      EXPECT_TRUE(target == room || allowed.count(target) == 1) << file.path << " includes " << header;
    }
  }
}

TEST(FolderRules, FoldersOfTheModelBuildOnEachOtherInOneDirection) {
  for (const auto& [room, allowed] : kModel) ExpectIncludes(room, allowed);
}

TEST(FolderRules, FoldersOfTheWindowsBuildOnEachOtherInOneDirection) {
  Folders below = {"host"};
  for (const auto& [room, allowed] : kModel) below.insert(room);
  ExpectIncludes("host", below);
  for (const auto& [room, allowed] : kWindows) {
    auto targets = allowed;
    targets.insert(below.begin(), below.end());
    ExpectIncludes(room, targets);
  }
}

// A build takes the folder of its system, so nothing outside may depend on the system or on that folder.
TEST(FolderRules, OnlyTheFolderOfASystemDependsOnIt) {
  for (const auto& file : SourceFilesBelow("src")) {
    if (file.folder.starts_with("src/host/posix") || file.folder.starts_with("src/host/windows")) continue;
    for (const auto& line : file.lines) EXPECT_FALSE(line.starts_with("#if")) << file.path << ' ' << line;
    for (const auto& header : IncludesOf(file)) {
      EXPECT_FALSE(header.starts_with("host/posix/") || header.starts_with("host/windows/"))
          << file.path << " includes " << header;
    }
  }
}

TEST(FolderRules, TheModelUsesNothingButTheStandardLibrary) {
  for (const auto& [room, allowed] : kModel) {
    for (const auto& file : SourceFilesBelow("src/" + room)) {
      for (const auto& header : IncludesOf(file)) {
        EXPECT_FALSE(header.front() == '<' && (header[1] == 'Q' || header.find(".h>") != std::string::npos))
            << file.path << " includes " << header;
      }
    }
  }
}

// They share only how a command line is read.
TEST(FolderRules, TheUnitSharesNothingWithTheProgram) {
  for (const auto& file : SourceFilesBelow("tools/unit")) {
    for (const auto& header : IncludesOf(file)) {
      EXPECT_TRUE(header.front() == '<' || header.starts_with("unit/") || header.starts_with("command_line/"))
          << file.path << " includes " << header;
    }
  }
}

TEST(FolderRules, FilesAndFoldersStaySmall) {
  constexpr std::size_t kMostLines = 400, kMostFiles = 16;
  std::map<std::string, std::size_t> files_of_folder;
  for (const auto* top : {"src", "tools", "tests"}) {
    for (const auto& file : SourceFilesBelow(top)) {
      EXPECT_LE(file.lines.size(), kMostLines) << file.path;
      if (file.path.starts_with("src/")) ++files_of_folder[file.folder];
    }
  }
  for (const auto& [folder, files] : files_of_folder) EXPECT_LE(files, kMostFiles) << folder;
}

}  // namespace
}  // namespace ovl::testing
