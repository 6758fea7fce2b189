// Histories are saved to a file and opened in the viewer.
#include <gtest/gtest.h>

#include "support/control_characters.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

struct Viewing : Installed {
  Viewing() : Installed({"V1400", "R12"}, Images::kFirstRegister) {}

  std::string Write(std::string_view bytes) const {
    WriteFile(folder.File("log.txt"), bytes);
    return folder.File("log.txt");
  }
  core::Outcome Open(const std::optional<std::string>& path) { return Answer("OpenHistory_menu", path); }
  // Lets the unit send a history that ends with its acknowledgement.
  void Receive(const std::string& text, const std::optional<std::string>& path) {
    OpenAndHold();
    EXPECT_EQ(Answer("CmdUpDow(3)", path), core::Outcome::kDone);
    Unit(text + kAck);
  }
  // The viewer shows the name and the text of the file.
  void ExpectShown(const std::string& caption, const std::string& text) {
    EXPECT_TRUE(app.frmView.form.visible);
    EXPECT_EQ(app.frmView.form.caption, caption);
    EXPECT_EQ(app.frmView.Text.text, text);
    EXPECT_TRUE(NoBoxLeft());
  }
};

TEST(History, IsSavedToTheChosenOrTheOfferedFileAndEndsEvenIfTheWriteFails) {
  Viewing program;
  const auto path = program.Write("an older and longer file that is replaced as a whole");
  program.Receive("one\r\n\r\n two ", path);
  EXPECT_EQ(ReadFile(path), "OVLH\r\none\r\n\r\n two \r\n");
  ASSERT_EQ(program.Open(path), core::Outcome::kDone);
  program.ExpectShown(path, "one\r\n\r\n two \r\n");
  program.Click("cmdDisConnect");
  program.Receive("kept\r\n", std::nullopt);
  EXPECT_EQ(ReadFile(program.folder.File("History.txt")), "OVLH\r\nkept\r\n\r\n");
  program.Click("cmdDisConnect");
  EXPECT_EQ(program.app.history_path, program.app.CurrentFilePath);
  program.Receive("lost", program.folder.File("no such folder/log.txt"));
  EXPECT_EQ(program.app.history_path, "");
  EXPECT_TRUE(program.app.StatusNote.ends_with("No such file or directory")) << program.app.StatusNote;
  EXPECT_FALSE(program.app.HistoryPending);
  EXPECT_EQ(program.app.frmMain.lbRemoteAccess.caption, "No Access");
}

TEST(History, OnlyAFileWithTheTagOpensAndAnUnreadableOneChangesNothing) {
  std::string line;
  for (int code = 0; code < 256; ++code) {
    if (code != '\r') line += static_cast<char>(code);
  }
  using namespace std::string_literals;
  struct ShownFile {
    std::string bytes, text;
  };
  const ShownFile shown[] = {
      {"OVLH", ""},
      {"OVLH\r\n", ""},
      {"OVLH\r", ""},
      {"OVLH\r\n" + line + "\r\n\r" + line, line + "\r\n\r\n" + line + "\r\n"},
  };
  struct RefusedFile {
    const char* first_line;
    std::string bytes;
  };
  const RefusedFile refused[] = {
      {"in lower case", "ovlh\r\nx"},
      {"with a blank at its end", "OVLH \r\nx"},
      {"with a NUL at its end", "OVLH\0\r\nx"s},
      {"with a byte order mark", "\xEF\xBB\xBFOVLH\r\nx"},
      {"cut off", "OVL\r\nx"},
      {"another, the tag in the second one", "$2000\r\nOVLH"},
      {"that ends with LF alone", "OVLH\nx\r\n"},
      {"of an empty file", ""},
  };
  Viewing program;
  const auto tested = program.folder.File("tested.txt");
  for (const auto& [bytes, text] : shown) {
    WriteFile(tested, bytes);
    ASSERT_EQ(program.Open(tested), core::Outcome::kDone);
    program.ExpectShown(tested, text);
  }
  const auto earlier = program.Write("OVLH\r\nearlier");
  ASSERT_EQ(program.Open(earlier), core::Outcome::kDone);
  for (const auto& [first_line, bytes] : refused) {
    SCOPED_TRACE(first_line);
    WriteFile(tested, bytes);
    ASSERT_EQ(program.Open(tested), core::Outcome::kDone);
    EXPECT_EQ(program.TakeBox().text, "Incompatible File !!!, try again.");
    program.ExpectShown(earlier, "earlier\r\n");
  }
  WriteFile(tested, "OVLH\r\nlater");
  const Locked file(tested);
  const auto folder = program.folder.Path().string();
  for (const auto& path :
       std::vector<std::optional<std::string>>{folder + "/missing.txt", folder, tested, {}}) {
    ASSERT_EQ(program.Open(path), core::Outcome::kDone);
    program.ExpectShown(earlier, "earlier\r\n");
  }
}

TEST(History, TheViewerIsReadOnly) {
  Viewing program;
  program.Open(program.Write("OVLH\r\nfirst"));
  EXPECT_EQ(core::Dispatch(program.app, core::TypeEvent{&program.app.frmView.Text, "typed"}),
            core::Outcome::kRefused);
}

}  // namespace
}  // namespace ovl::testing
