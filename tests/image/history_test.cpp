// Histories as files: saved from the unit, opened in the viewer.
#include "image/history.h"

#include <gtest/gtest.h>

#include "support/installed.h"

namespace ovl::testing {
namespace {

constexpr const char* kIncompatible = "Incompatible File !!!, try again.";

class Viewing : public Installed {
 public:
  Viewing() : Installed({"V1400", "R12"}, Images::kFirstRegister) {}

  std::string Write(std::string_view bytes) const {
    WriteWhole(folder.File("log.txt"), bytes);
    return folder.File("log.txt");
  }
  Outcome Open(const std::optional<std::string>& path) {
    file_answers.push_back(path);
    return Click("OpenHistory_menu");
  }
  // Lets the unit send a history that ends with its acknowledgement.
  void Receive(const std::string& text, const std::optional<std::string>& path) {
    OpenAndHold();
    file_answers.push_back(path);
    EXPECT_EQ(Click("CmdUpDow(3)"), Outcome::kDone);
    Unit(text + "\x06");
  }
  ViewerForm& View() { return app.frmView; }
};

TEST(History, WhatIsSavedIsShownAgain) {
  const std::pair<const char*, const char*> rows[] = {{"", "\r\n"},
                                                      {"one\r\ntwo", "one\r\ntwo\r\n"},
                                                      {"one\r\n\r\n two \r\n", "one\r\n\r\n two \r\n\r\n"},
                                                      {"OVLH", "OVLH\r\n"}};
  for (const auto& [text, shown] : rows) {
    SCOPED_TRACE(text);
    Viewing program;
    const auto path = program.folder.File("saved.txt");
    WriteWhole(path, "an older and longer file that is replaced as a whole");
    program.Receive(text, path);
    EXPECT_EQ(ReadWhole(path), "OVLH\r\n" + std::string(text) + "\r\n");
    EXPECT_EQ(program.app.CurrentFilePath, path);
    ASSERT_EQ(program.Open(path), Outcome::kDone);
    EXPECT_EQ(program.View().Text.text, shown);
    EXPECT_EQ(program.View().form.caption, path);
    EXPECT_TRUE(program.View().form.visible);
    EXPECT_EQ(program.app.HistoryText, text);
    EXPECT_TRUE(program.NoBoxLeft());
  }
}

TEST(History, TheDialogsAskWithTheirNamesAndACancelledSaveWritesTheOfferedFile) {
  Viewing program;
  program.Receive("kept\r\n", std::nullopt);
  EXPECT_EQ(ReadWhole(program.folder.File("History.txt")), "OVLH\r\nkept\r\n\r\n");
  program.Open(std::nullopt);
  ASSERT_EQ(program.dialogs.size(), 2U);
  const char* names[] = {"History.txt", "*.txt"};
  for (std::size_t dialog = 0; dialog < 2; ++dialog) {
    auto& asked = program.dialogs[dialog];
    std::replace(asked.file_name.begin(), asked.file_name.end(), '\\', '/');
    EXPECT_EQ(asked.kind, dialog == 0 ? FileDialog::Kind::kSave : FileDialog::Kind::kOpen);
    EXPECT_EQ(asked.file_name, program.folder.File(names[dialog]));
    EXPECT_EQ(asked.filter, "Text Files(*.txt)|*.txt|All Files(*.*)|*.*");
    EXPECT_EQ(asked.filter_index, 2);
  }
}

TEST(History, ASaveThatFailsEndsTheReadingAllTheSame) {
  Viewing program;
  program.Receive("lost", program.folder.File("no such folder/log.txt"));
  EXPECT_FALSE(program.app.HistoryPending);
  EXPECT_FALSE(program.app.RemoteHeld);
  EXPECT_FALSE(program.Control("CmdUpDow(0)").enabled);
  EXPECT_EQ(program.app.frmMain.lbRemoteAccess.caption, "No Access");
}

TEST(History, OnlyTheTagOpensAFile) {
  const std::pair<std::string, bool> rows[] = {{"OVLH", true},
                                               {"OVLH\r\n", true},
                                               {"OVLH\r", true},
                                               {"ovlh\r\nx", false},
                                               {"OVLH \r\nx", false},
                                               {" OVLH\r\nx", false},
                                               {"OVLHX\r\nx", false},
                                               {"OVL\r\nx", false},
                                               {"\r\nOVLH\r\n", false},
                                               {"OVLH\nx\r\n", false},
                                               {"$2000\r\nOVLH", false},
                                               {std::string("OVLH\0\r\nx", 8), false},
                                               {"\xEF\xBB\xBFOVLH\r\nx", false}};
  for (const auto& [bytes, accepted] : rows) {
    SCOPED_TRACE(bytes);
    Viewing program;
    ASSERT_EQ(program.Open(program.Write("OVLH\r\nearlier")), Outcome::kDone);
    WriteWhole(program.folder.File("tested.txt"), bytes);
    ASSERT_EQ(program.Open(program.folder.File("tested.txt")), Outcome::kDone);
    EXPECT_EQ(program.TakeBox().text, accepted ? "" : kIncompatible);
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.View().Text.text, accepted ? "" : "earlier\r\n");
    EXPECT_EQ(program.View().form.caption, program.folder.File(accepted ? "tested.txt" : "log.txt"));
  }
}

TEST(History, WhatCannotBeReadLeavesTheViewerInSilence) {
  Viewing program;
  ASSERT_EQ(program.Open(program.Write("OVLH\r\nearlier")), Outcome::kDone);
  const auto kept_from_us = program.folder.File("locked.txt");
  WriteWhole(kept_from_us, "OVLH\r\nlater");
  const std::optional<std::string> sources[] = {program.folder.File("missing.txt"),
                                                program.folder.Path().string(), kept_from_us, std::nullopt};
  for (const auto& path : sources) {
    const Locked file(kept_from_us);
    ASSERT_EQ(program.Open(path), Outcome::kDone);
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.View().Text.text, "earlier\r\n");
    EXPECT_EQ(program.View().form.caption, program.folder.File("log.txt"));
  }
  ASSERT_EQ(program.Open(program.Write("")), Outcome::kDone);
  EXPECT_EQ(program.View().Text.text, "earlier\r\n") << "an empty file has no first line";
}

TEST(History, EveryByteOfALineIsShown) {
  std::string line;
  for (int code = 0; code < 256; ++code) {
    if (code != '\r') line += static_cast<char>(code);
  }
  Viewing program;
  ASSERT_EQ(program.Open(program.Write("OVLH\r\n" + line + "\r\n\r" + line)), Outcome::kDone);
  EXPECT_EQ(program.View().Text.text, line + "\r\n\r\n" + line + "\r\n");
}

TEST(History, TheViewerIsUsedAgain) {
  Viewing program;
  program.Open(program.Write("OVLH\r\nfirst"));
  program.Open(program.Write("OVLH\r\nsecond"));
  EXPECT_EQ(program.View().Text.text, "second\r\n");
  EXPECT_TRUE(program.View().form.visible);
  EXPECT_EQ(Dispatch(program.app, TypeEvent{&program.View().Text, "typed"}), Outcome::kRefused);
  EXPECT_EQ(Dispatch(program.app, CloseEvent{&program.View().form}), Outcome::kDone);
  EXPECT_FALSE(program.View().form.visible);
  program.Open(program.Write("OVLH\r\nthird"));
  EXPECT_EQ(program.View().Text.text, "third\r\n");
  EXPECT_TRUE(program.View().form.visible);
}

TEST(History, TheFlagsWordKeepsTheViewerFromBeingShown) {
  for (const unsigned flags : {0U, 4096U, 4097U, 4095U, 8192U}) {
    SCOPED_TRACE(flags);
    Viewing program;
    const auto path = program.Write("OVLH\r\nline");
    program.app.platform.ask_file = [&](const FileDialog&) { return FileAnswer{path, flags}; };
    ASSERT_EQ(program.Click("OpenHistory_menu"), Outcome::kDone);
    EXPECT_EQ(program.View().form.visible, flags != 4096);
    EXPECT_EQ(program.View().Text.text, "line\r\n");
    EXPECT_EQ(program.View().form.caption, path);
  }
}

TEST(History, TheDiagnosticLogHasTheSameViewer) {
  Viewing program;
  program.Open(program.Write("OVLH\r\nhistory"));
  EXPECT_EQ(DispatchStart(program.app, ShowDataDump), Outcome::kDone);
  EXPECT_EQ(program.View().Text.text, "history\r\n") << "there is no log yet";
  EXPECT_NE(program.app.StatusNote.find("DataDump.log"), std::string::npos);
  WriteWhole(program.folder.File("DataDump.log"), "any line\r\n\r\nlast");
  EXPECT_EQ(DispatchStart(program.app, ShowDataDump), Outcome::kDone);
  EXPECT_EQ(program.View().form.caption, "Debuging Windwos");
  EXPECT_EQ(program.View().Text.text, "any line\r\n\r\nlast\r\n");
  EXPECT_TRUE(program.View().form.visible);
}

}  // namespace
}  // namespace ovl::testing
