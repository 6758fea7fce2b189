#include "shell/platform/serial_port.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <functional>
#include <string>
#include <variant>

#include "platform/event_loop.h"
#include "platform/pseudo_terminal.h"

namespace ovl {
namespace {

using namespace std::string_literals;

// Comport 1 is a pseudo-terminal, the program a stub that notes what it is told.
class SerialPortTest : public testing::Test {
 protected:
  SerialPortTest() {
    NeedEventLoop();
    Link(1, terminal_.Device());
    port_.emplace(folder_.path(), [this](const Event& event) { return Take(event); });
    line_ = port_->Operations();
  }

  void Link(int number, const std::string& target) const {
    QDir(folder_.path()).mkpath("ports");
    ASSERT_TRUE(
        QFile::link(QString::fromStdString(target), folder_.filePath(QString("ports/com%1").arg(number))));
  }

  Outcome Take(const Event& event) {
    ++offers_;
    if (busy_) return Outcome::kBusy;
    if (std::holds_alternative<DrainedEvent>(event)) {
      told_ += "<drained>";
      if (on_drained_) on_drained_();
      return Outcome::kDone;
    }
    const auto character = line_.read();
    EXPECT_EQ(character.size(), 1U);
    told_ += character;
    if (on_received_) on_received_(character);
    return Outcome::kDone;
  }

  bool Tells(const std::string& text) const {
    return RunUntil([&] { return told_.size() >= text.size(); }) && told_ == text;
  }

  void Open(const char* settings = "115200,N,8,1") const {
    ASSERT_EQ(line_.open({1, settings}), std::nullopt);
  }

  QTemporaryDir folder_;
  PseudoTerminal terminal_;
  std::optional<SerialPort> port_;
  SerialLine line_;
  std::string told_;
  int offers_ = 0;
  bool busy_ = false;
  std::function<void()> on_drained_;
  std::function<void(const std::string&)> on_received_;
};

TEST_F(SerialPortTest, OpeningSetsTheSpeed) {
  for (const char* speed : {"1200", "14400", "28800", "115200"}) {
    ASSERT_EQ(line_.open({1, speed + ",E,7,1"s}), std::nullopt);
    EXPECT_EQ(std::to_string(terminal_.Speed()), speed);
    EXPECT_TRUE(terminal_.MarksParityErrors());
  }
  Open("9600,N,8,1");
  EXPECT_FALSE(terminal_.MarksParityErrors());
}

TEST_F(SerialPortTest, OpeningFailsInTheSystemsWords) {
  Link(2, "/dev/no-such-device");
  Link(3, folder_.path().toStdString());
  Link(4, "/dev/null");
  EXPECT_EQ(line_.open({2, "9600,N,8,1"}), "No such file or directory");
  EXPECT_EQ(port_->LastProblem(), "Comport 2, /dev/no-such-device: No such file or directory.");
  EXPECT_EQ(line_.open({3, "9600,N,8,1"}), "Is a directory");
  EXPECT_EQ(line_.open({4, "9600,N,8,1"}), "Inappropriate ioctl for device");
  EXPECT_EQ(line_.open({1, "9600,N,9,1"}), "Invalid argument");
  EXPECT_NE(line_.write("x"), std::nullopt);

  Open();
  EXPECT_EQ(port_->LastProblem(), "");
  SerialPort second(folder_.path(), [](const Event&) { return Outcome::kDone; });
  EXPECT_EQ(second.Operations().open({1, "9600,N,8,1"}), "Device or resource busy");
}

TEST_F(SerialPortTest, EveryCharacterIsAnEventOfItsOwn) {
  Open();
  terminal_.Send("abc\0\xFF"s);
  EXPECT_TRUE(Tells("abc\0\xFF"s));
  EXPECT_EQ(offers_, 5);
  EXPECT_EQ(line_.read(), "");
}

TEST_F(SerialPortTest, WritingNeverCallsBackAndDrainsOnce) {
  Open();
  EXPECT_EQ(line_.write("x"), std::nullopt);
  EXPECT_EQ(line_.write("request"), std::nullopt);
  port_->DeliverPending();
  EXPECT_EQ(told_, "");
  EXPECT_EQ(terminal_.Receive(), "xrequest");
  EXPECT_TRUE(Tells("<drained>"));
  RunForAWhile();
  EXPECT_EQ(told_, "<drained>");
}

TEST_F(SerialPortTest, AStreamGoesOutCharacterByCharacter) {
  for (const char* speed : {"4800", "115200"}) {
    ASSERT_EQ(line_.open({1, speed + ",N,8,1"s}), std::nullopt);
    std::string left = "/LD\r$2000";
    std::string arrived;
    on_drained_ = [&] {
      arrived += terminal_.Receive();
      if (left.empty()) return;
      EXPECT_EQ(line_.write(left.substr(0, 1)), std::nullopt);
      left.erase(0, 1);
    };
    line_.write("*");
    EXPECT_TRUE(RunUntil([&] { return arrived.size() == 10; }));
    EXPECT_EQ(arrived, "*/LD\r$2000");
  }
}

TEST_F(SerialPortTest, ALineThatIsNotReadKeepsWhatItCouldNotTake) {
  Open();
  const std::string stream(200'000, 'x');
  EXPECT_EQ(line_.write(stream), std::nullopt);
  auto arrived = terminal_.Receive();
  EXPECT_EQ(line_.write("end"), std::nullopt);
  EXPECT_TRUE(RunUntil([&] {
    arrived += terminal_.Receive();
    return arrived.size() >= stream.size() + 3;
  }));
  EXPECT_EQ(arrived, stream + "end");
}

TEST_F(SerialPortTest, ClosingDropsWhatIsOutstanding) {
  Open();
  line_.write("x");
  line_.close();
  RunForAWhile();
  EXPECT_EQ(offers_, 0);

  Open();
  busy_ = true;
  line_.write("y");
  terminal_.Send("old");
  EXPECT_TRUE(RunUntil([&] { return offers_ > 0; }));
  RunForAWhile();
  line_.close();
  busy_ = false;
  Open();
  port_->Resume();
  terminal_.Send("new");
  EXPECT_TRUE(Tells("new"));
}

TEST_F(SerialPortTest, AHandlerThatClosesHearsNoMore) {
  Open();
  on_received_ = [&](const std::string& character) {
    if (character == "?") line_.close();
  };
  terminal_.Send("a?bc");
  EXPECT_TRUE(RunUntil([&] { return told_.size() >= 2; }));
  RunForAWhile();
  EXPECT_EQ(told_, "a?");
}

TEST_F(SerialPortTest, EventsWaitInOrderWhileTheProgramIsBusy) {
  Open();
  busy_ = true;
  line_.write("x");
  std::string sent;
  for (int part = 0; part < 20; ++part) {
    const auto text = std::to_string(part) + std::string(500, '.');
    terminal_.Send(text);
    sent += text;
    EXPECT_TRUE(RunUntil([&, offers = offers_] { return offers_ > offers; }));
  }
  RunForAWhile();
  EXPECT_EQ(told_, "");
  EXPECT_TRUE(BecomesIdle());
  busy_ = false;
  port_->Resume();
  EXPECT_TRUE(Tells("<drained>" + sent));
}

TEST_F(SerialPortTest, ATickFindsEverythingTold) {
  Open();
  busy_ = true;
  const std::string sent(3000, 'a');
  terminal_.Send(sent);
  EXPECT_TRUE(RunUntil([&] { return offers_ > 0; }));
  RunForAWhile();
  busy_ = false;
  port_->DeliverPending();
  EXPECT_EQ(told_, sent);
}

TEST_F(SerialPortTest, ClearingThrowsAwayWhatWaits) {
  Open();
  busy_ = true;
  terminal_.Send("old");
  EXPECT_TRUE(RunUntil([&] { return offers_ > 0; }));
  terminal_.Send("older still");
  line_.clear_input();
  line_.clear_output();
  EXPECT_EQ(line_.read(), "");
  busy_ = false;
  port_->Resume();
  RunForAWhile();
  terminal_.Send("new");
  EXPECT_TRUE(Tells("new"));
}

TEST_F(SerialPortTest, BadCharactersBecomeQuestionMarks) {
  Open("9600,E,7,1");
  terminal_.Send("a\xFF"s);
  EXPECT_TRUE(Tells("a\xFF"));
  terminal_.SendRaw("b\xFF"s);
  RunForAWhile();
  terminal_.SendRaw("\0c\xFF\xFF\xFF\0\xFFz"s);
  EXPECT_TRUE(Tells("a\xFF\x62?\xFF?z"));
}

TEST_F(SerialPortTest, AHalfMarkIsForgottenByTheNextOpening) {
  Open("9600,O,8,1");
  terminal_.SendRaw("a\xFF"s);
  EXPECT_TRUE(Tells("a"));
  Open("9600,O,8,1");
  terminal_.SendRaw("\0b"s);
  EXPECT_TRUE(Tells("a\0b"s));
}

TEST_F(SerialPortTest, ALostPortIsQuietAndFailsTheNextWrite) {
  Open("1200,N,8,1");
  SerialLine::Error failure;
  on_drained_ = [&] { failure = line_.write("y"); };
  line_.write("x");
  terminal_.HangUp();
  EXPECT_TRUE(Tells("<drained>"));
  EXPECT_EQ(failure, "No such device");
  EXPECT_TRUE(BecomesIdle());
  EXPECT_EQ(line_.write("z"), failure);
  EXPECT_EQ(told_, "<drained>");
  EXPECT_EQ(port_->LastProblem(),
            QString("Comport 1, %1: No such device.").arg(QString::fromStdString(terminal_.Device())));
}

TEST_F(SerialPortTest, WhatCameBeforeTheLossIsStillTold) {
  Open();
  busy_ = true;
  terminal_.Send("last");
  EXPECT_TRUE(RunUntil([&] { return offers_ > 0; }));
  RunForAWhile();
  terminal_.HangUp();
  EXPECT_TRUE(RunUntil([&] { return !port_->LastProblem().isEmpty(); }));
  EXPECT_TRUE(BecomesIdle());
  busy_ = false;
  port_->Resume();
  EXPECT_TRUE(Tells("last"));
}

}  // namespace
}  // namespace ovl
