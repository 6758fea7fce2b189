// What the user is asked before a file is opened.
#include "acts/inspection.h"

#include <gtest/gtest.h>

#include "support/firmware_facts.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

std::string Joined(std::string file) {
  std::erase_if(file, [](char character) { return character == '\r' || character == '\n'; });
  return file;
}

std::string QuestionOf(const std::string& file, const Installed& program) {
  const auto question = acts::QuestionBeforeOpening(Joined(file), "shop.bin", program.app);
  return question ? question->text.English() + "|" + question->detail.English() : "";
}

// Every stream under every firmware: there is a question exactly if the program ends or the fields shift.
TEST(Inspection, AsksBeforeEveryOpenThatEndsTheProgramOrShiftsFields) {
  const auto all = EveryFirmware();
  int ends = 0, shifts = 0;
  for (const auto& served : all) {
    for (const auto& of_file : all) {
      SCOPED_TRACE(of_file.Joined() + " under " + served.Joined());
      const auto &here = FactsOf(served).stream, &there = FactsOf(of_file).stream;
      Installed program(served, Images::kFirstRegister);
      const auto path = program.folder.File("shop.bin");
      WriteFile(path, PatternStream(of_file) + "\r\n");
      const auto question = QuestionOf(ReadFile(path), program);
      const bool ended = program.Open(path) == core::Outcome::kEnded;
      const bool refused = here.first_record != there.first_record;
      EXPECT_EQ(ended, !refused && here.last_record != there.last_record);
      EXPECT_EQ(question.find("Opening shop.bin ends the program.") == 0, ended) << question;
      const bool shifted = !ended && !refused && !(here == there);
      EXPECT_EQ(question.find("Opening shop.bin puts settings in the wrong place.") == 0, shifted)
          << question;
      EXPECT_TRUE(question.empty() || question.find(of_file.Joined()) != std::string::npos) << question;
      ends += ended ? 1 : 0;
      shifts += shifted ? 1 : 0;
    }
  }
  EXPECT_GT(ends, 0);
  EXPECT_GT(shifts, 0);
}

TEST(Inspection, SaysWhatToDo) {
  Installed program(kLatest);
  const auto saved = program.folder.File("saved.bin");
  program.Answer("menuSave", saved);
  EXPECT_EQ(
      QuestionOf(ReadFile(saved), program),
      "Opening shop.bin puts settings in the wrong place.|The file fits V1400R6. This program uses V1400R12 "
      "and reads the file as a file of this firmware. \"Save\" under V1400R12 writes such files. Open a "
      "backup instead.");
  EXPECT_EQ(QuestionOf(PatternStream({"V1400", "R4"}), program),
            "Opening shop.bin ends the program.|The file fits V1400R1, V1400R2, V1400R4. This program uses "
            "V1400R12. Pick the firmware of the file in the Version menu first.");
  const auto cut = PatternStream(kLatest).substr(0, 3000);
  EXPECT_EQ(QuestionOf(cut, program),
            "Opening shop.bin ends the program.|The file does not fit any firmware: it is not complete, "
            "damaged, or not "
            "a configuration. This program uses V1400R12.");
  EXPECT_EQ(QuestionOf("noise", program), "") << "the program refuses it with its own box";
}

}  // namespace
}  // namespace ovl::testing
