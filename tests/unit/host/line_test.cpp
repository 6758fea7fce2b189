#include "host/system/line.h"

#include <cerrno>

#include "pseudo_terminal.h"

namespace ovl {
namespace {

class Line : public testing::Test {
 protected:
  ~Line() override { ::close(line_); }

  PseudoTerminal terminal_;
  int line_ = ::open(terminal_.Device().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
};

TEST_F(Line, ALostDeviceIsAnErrorAndNoEmptyTransmitter) {
  EXPECT_EQ(host::WaitingCharacters(line_).error, 0);
  terminal_.HangUp();
  EXPECT_EQ(host::WaitingCharacters(line_).error, EIO);
}

TEST_F(Line, ADriverThatCannotCountCharactersIsNoLoss) {
  std::array<int, 2> ends = {};
  ASSERT_EQ(::pipe(ends.data()), 0);
  const auto waiting = host::WaitingCharacters(ends[1]);
  EXPECT_EQ(waiting.error, 0);
  EXPECT_FALSE(waiting.characters);
  for (const int end : ends) ::close(end);
}

TEST_F(Line, IsAliveUntilNothingCanBeReadAnyMore) {
  EXPECT_TRUE(host::LineAlive(line_));
  const host::LinePreset preset(QString::fromStdString(terminal_.Device()), 9600, 8, 'N');
  terminal_.Send("a");
  EXPECT_TRUE(host::LineAlive(line_)) << "a character waits";
  terminal_.HangUp();
  EXPECT_FALSE(host::LineAlive(line_));
}

TEST_F(Line, APresetChangesNoCharacterAndEchoesNone) {
  const host::LinePreset preset(QString::fromStdString(terminal_.Device()), 14400, 8, 'N');
  EXPECT_EQ(terminal_.Speed(), 14400U);
  terminal_.Send("\x03\r");
  std::array<char, 3> received = {};
  EXPECT_EQ(::read(line_, received.data(), received.size()), 2);
  EXPECT_STREQ(received.data(), "\x03\r");
  EXPECT_EQ(terminal_.Receive(), "") << "an echo would answer the unit";
  const auto taken = host::WriteAtOnce(line_, "a\nb");
  EXPECT_EQ(taken.taken, 3U);
  EXPECT_EQ(terminal_.Receive(), "a\nb");
}

// A pseudo-terminal itself always has 8 bits and no parity.
TEST_F(Line, APresetAsksForTheBitsAndTheParity) {
  struct Row {
    int bits;
    char parity;
    tcflag_t flags;
  };
  for (const auto& row : {Row{8, 'N', CS8}, {7, 'O', CS7 | PARENB | PARODD}, {8, 'E', CS8 | PARENB}}) {
    const host::LinePreset preset(QString::fromStdString(terminal_.Device()), 9600, row.bits, row.parity);
    EXPECT_EQ(driver.asked_flags & (CSIZE | PARENB | PARODD), row.flags) << row.parity;
  }
}

}  // namespace
}  // namespace ovl
