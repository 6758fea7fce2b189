#include "host/serial_port.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <variant>

#include "pseudo_terminal.h"

namespace ovl {
namespace {

using namespace std::string_literals;

// Runs the event loop until the condition holds. Returns false if it takes too long.
bool RunUntil(const std::function<bool()>& condition, int patience = 10'000) {
  for (const QDeadlineTimer end(patience); !condition();) {
    if (end.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  }
  return true;
}

// Runs the event loop long enough for an event that must not come.
void RunForAWhile(int milliseconds = 50) {
  RunUntil([] { return false; }, milliseconds);
}

// Runs the event loop until it is idle. Returns false if it is never idle.
bool BecomesIdle() {
  int turns = 1000;
  while (turns > 0 && QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) --turns;
  return turns > 0;
}

// Is called before QSerialPort learns of a change of its line. Returns whether to keep the change from it.
class BeforeQt : public QObject {
 public:
  explicit BeforeQt(std::function<bool()> call) : call_(std::move(call)) {
    QCoreApplication::instance()->installEventFilter(this);
  }
  bool eventFilter(QObject* notifier, QEvent* event) override {
    return event->type() == QEvent::SockAct && qobject_cast<QSerialPort*>(notifier->parent()) && call_();
  }

 private:
  std::function<bool()> call_;
};

// Comport 1 is a pseudo-terminal. Instead of the program, a stub records the events.
class SerialPortTest : public testing::Test {
 protected:
  SerialPortTest() {
    Link(1, terminal_.Device());
    port_.emplace(folder_.path(), [this](const core::Event& event) { return Take(event); });
    line_ = port_->Operations();
  }
  ~SerialPortTest() override { driver = {}; }

  void Link(int number, const std::string& target) const {
    QDir(folder_.path()).mkpath("ports");
    ASSERT_TRUE(QFile::link(target.c_str(), folder_.filePath(QString("ports/com%1").arg(number))));
  }

  core::Outcome Take(const core::Event& event) {
    ++offers_;
    if (busy_) return core::Outcome::kBusy;
    if (std::exchange(refuses_, false)) return core::Outcome::kRefused;
    const auto now = std::holds_alternative<core::DrainedEvent>(event) ? "<drained>"s : line_.read();
    told_ += now;
    if (on_told_) on_told_(now);
    return core::Outcome::kDone;
  }

  bool ValueDisplay(const std::string& text) const {
    return RunUntil([&] { return told_.size() >= text.size(); }) && told_ == text;
  }

  void Open(const std::string& settings = "115200,N,8,1") const {
    ASSERT_TRUE(line_.open({1, settings}).Ok());
  }

  // Characters that arrive now wait in the port.
  void SendWhileBusy(std::string_view text) {
    busy_ = true;
    terminal_.Send(text);
    EXPECT_TRUE(RunUntil([&, offers = offers_] { return offers_ > offers; }));
    RunForAWhile();
  }
  void Resume() {
    busy_ = false;
    port_->Resume();
  }

  QTemporaryDir folder_;
  PseudoTerminal terminal_;
  std::optional<host::SerialPort> port_;
  core::SerialLine line_;
  std::string told_;
  int offers_ = 0;
  bool busy_ = false;
  bool refuses_ = false;  // the next event
  std::function<void(const std::string&)> on_told_;
};

TEST_F(SerialPortTest, OpeningSetsTheSpeed) {
  for (const char* speed : {"1200", "14400", "28800", "115200"}) {
    Open(speed + ",O,7,1"s);
    EXPECT_EQ(std::to_string(terminal_.Speed()), speed);
    EXPECT_TRUE(terminal_.MarksParityErrors());
  }
  Open("9600,N,8,1");
  EXPECT_FALSE(terminal_.MarksParityErrors());
}

TEST_F(SerialPortTest, ADriverMayRoundTheSpeedByThreePercent) {
  for (const auto& [speed, is_close] :
       {std::pair(9880U, true), {9320U, true}, {9900U, false}, {9300U, false}}) {
    driver.speed = speed;
    EXPECT_EQ(line_.open({1, "9600,N,8,1"}).Ok(), is_close) << speed;
  }
  EXPECT_EQ(port_->LastProblem(),
            QString("Comport 1, %1: Invalid argument.").arg(terminal_.Device().c_str()));
}

TEST_F(SerialPortTest, AWrongFormatOpensNothing) {
  for (const auto* format : {"9600,X,8,1", "0,N,8,1", "9600,N,6,1", "9600,N,8,2", "9600,N,8"})
    EXPECT_FALSE(line_.open({1, format}).Ok()) << format;
}

TEST_F(SerialPortTest, AFailedOpeningHasTheReasonOfTheSystem) {
  Link(2, "/dev/no-such-device");
  Link(3, folder_.path().toStdString());
  Link(4, "/dev/null");
  EXPECT_STREQ(line_.open({3, "9600,N,8,1"}).Problem().what(), "Is a directory");
  EXPECT_STREQ(line_.open({4, "9600,N,8,1"}).Problem().what(), "Inappropriate ioctl for device");
  EXPECT_STREQ(line_.open({1, "9600,N,9,1"}).Problem().what(), "Invalid argument");
  EXPECT_STREQ(line_.open({2, "9600,N,8,1"}).Problem().what(), "No such file or directory");
  EXPECT_EQ(port_->LastProblem(), "Comport 2, /dev/no-such-device: No such file or directory.");
  EXPECT_FALSE(line_.write("x").Ok());

  Open();
  EXPECT_EQ(port_->LastProblem(), "");
  host::SerialPort second(folder_.path(), [](const core::Event&) { return core::Outcome::kDone; });
  EXPECT_STREQ(second.Operations().open({1, "9600,N,8,1"}).Problem().what(), "Device or resource busy");
}

TEST_F(SerialPortTest, EveryCharacterIsOneEventAndEveryWriteDrainsOnceLater) {
  Open();
  terminal_.Send("abc\0\xFF"s);
  EXPECT_TRUE(ValueDisplay("abc\0\xFF"s));
  EXPECT_EQ(offers_, 5);
  EXPECT_EQ(line_.read(), "");

  Open("300,N,8,1");  // so slow that even a busy machine continues before the last character is sent
  told_.clear();
  EXPECT_TRUE(line_.write("x").Ok());
  EXPECT_TRUE(line_.write("request").Ok());
  port_->DeliverPending();
  EXPECT_EQ(told_, "");
  std::string arrived;
  for (const QDeadlineTimer late(10'000); arrived.size() < 8 && !late.hasExpired();)
    arrived += terminal_.Receive();
  EXPECT_EQ(arrived, "xrequest");
  EXPECT_TRUE(ValueDisplay("<drained>"));
  RunForAWhile();
  EXPECT_EQ(told_, "<drained>");
}

TEST_F(SerialPortTest, AStreamIsSentByCharactersAndNoneIsLostIfTheyAreNotRead) {
  std::string left, arrived;
  const auto arrives = [&](const std::string& stream) {
    return RunUntil([&] { return (arrived += terminal_.Receive()).size() >= stream.size(); }) &&
           arrived == stream;
  };
  on_told_ = [&](const std::string&) {
    EXPECT_TRUE(line_.write(left.substr(0, 1)).Ok());
    left.erase(0, 1);
  };
  for (const char* speed : {"4800", "115200"}) {
    Open(speed + ",N,8,1"s);
    left = "/LD\r$2000";
    arrived.clear();
    EXPECT_TRUE(line_.write("*").Ok());
    EXPECT_TRUE(arrives("*/LD\r$2000"));
  }

  arrived.clear();
  const std::string stream(200'000, 'x');
  EXPECT_TRUE(line_.write(stream).Ok());
  arrived = terminal_.Receive();
  EXPECT_TRUE(line_.write("end").Ok());
  EXPECT_TRUE(arrives(stream + "end"));
}

TEST_F(SerialPortTest, WhatTheSystemHasNotTakenIsNotSent) {
  Open("4000000,N,8,1");
  EXPECT_TRUE(line_.write(std::string(100'000, 'x')).Ok());
  RunForAWhile(400);  // longer than the line needs
  EXPECT_EQ(told_, "");
  EXPECT_TRUE(RunUntil([&] { return terminal_.Receive().empty() && !told_.empty(); }));
}

TEST_F(SerialPortTest, ATickComesAfterTheCharactersThatTheSystemHolds) {
  Open();
  terminal_.Send("ab");
  port_->DeliverPending();
  EXPECT_EQ(told_, "ab");
}

TEST_F(SerialPortTest, ACharacterThatWasReadEarlierHasNoEvent) {
  Open();
  SendWhileBusy("abcd");
  offers_ = 0;
  on_told_ = [&](const std::string&) { line_.read(); };
  Resume();
  EXPECT_TRUE(ValueDisplay("ac"));
  EXPECT_TRUE(BecomesIdle());
  EXPECT_EQ(offers_, 2);
}

TEST_F(SerialPortTest, ARefusedCharacterIsNotReadLater) {
  Open();
  refuses_ = true;
  terminal_.Send("ab");
  EXPECT_TRUE(ValueDisplay("b"));
}

TEST_F(SerialPortTest, ACharacterIsSentWhenTheDriverHoldsItNoMore) {
  Open();
  driver.waiting_characters = 1;
  EXPECT_TRUE(line_.write("x").Ok());
  RunForAWhile();
  EXPECT_EQ(told_, "");
  EXPECT_TRUE(BecomesIdle()) << "the program waits without using a core";
  driver.waiting_characters.reset();
  EXPECT_TRUE(ValueDisplay("<drained>"));
}

TEST_F(SerialPortTest, ClosingDropsPendingEvents) {
  Open();
  EXPECT_TRUE(line_.write("x").Ok());
  line_.close();
  RunForAWhile();
  EXPECT_EQ(offers_, 0);

  Open();
  EXPECT_TRUE(line_.write("y").Ok());
  SendWhileBusy("old");
  line_.close();
  Open();
  Resume();
  // A handler that closes the port does so, too.
  on_told_ = [&](const std::string& character) {
    if (character == "?") line_.close();
  };
  terminal_.Send("new?er");
  EXPECT_TRUE(ValueDisplay("new?"));
  RunForAWhile();
  EXPECT_EQ(told_, "new?");
}

TEST_F(SerialPortTest, EventsWaitInOrderWhileTheProgramIsBusy) {
  Open();
  EXPECT_TRUE(line_.write("x").Ok());
  std::string sent = "<drained>";
  for (int part = 0; part < 20; ++part) {
    const auto text = std::to_string(part) + std::string(500, '.');
    SendWhileBusy(text);
    sent += text;
  }
  EXPECT_EQ(told_, "");
  EXPECT_TRUE(BecomesIdle());
  Resume();
  EXPECT_TRUE(ValueDisplay(sent));

  // At a tick everything is reported already.
  const std::string ahead(3000, 'a');
  SendWhileBusy(ahead);
  busy_ = false;
  port_->DeliverPending();
  EXPECT_EQ(told_, sent + ahead);
}

TEST_F(SerialPortTest, ClearingDropsWaitingCharacters) {
  Open();
  SendWhileBusy("old");
  terminal_.Send("older still");
  line_.clear_input();
  line_.clear_output();
  EXPECT_EQ(line_.read(), "");
  Resume();
  RunForAWhile();
  terminal_.Send("new");
  EXPECT_TRUE(ValueDisplay("new"));
}

TEST_F(SerialPortTest, ParityErrorsBecomeQuestionMarksAndANewOpeningDropsHalfAMark) {
  Open("9600,E,7,1");
  terminal_.Send("a\xFF"s);
  EXPECT_TRUE(ValueDisplay("a\xFF"));
  terminal_.SendRaw("b\xFF"s);
  RunForAWhile();
  terminal_.SendRaw("\0c\xFF\xFF\xFF\0\xFFz\xFF"s);
  EXPECT_TRUE(ValueDisplay("a\xFF\x62?\xFF?z"));
  Open("9600,N,8,1");
  terminal_.SendRaw("\0d"s);
  EXPECT_TRUE(ValueDisplay("a\xFF\x62?\xFF?z\0d"s));
}

TEST_F(SerialPortTest, ALostPortSendsNoEventsAndFailsTheNextWrite) {
  Open("1200,N,8,1");
  int losses = 0;
  port_->on_loss = [&] { ++losses; };
  core::Result failure;
  on_told_ = [&](const std::string&) { failure = line_.write("y"); };
  EXPECT_TRUE(line_.write("x").Ok());
  EXPECT_EQ(line_.lost(), nullptr);
  terminal_.HangUp();
  EXPECT_TRUE(ValueDisplay("<drained>"));
  ASSERT_FALSE(failure.Ok());
  EXPECT_EQ(failure.Problem().Text(), terminal_.Device() + ": No such device");
  EXPECT_TRUE(BecomesIdle());
  EXPECT_EQ(line_.write("z").Problem().Text(), failure.Problem().Text());
  ASSERT_NE(line_.lost(), nullptr);
  EXPECT_EQ(line_.lost()->Text(), failure.Problem().Text());
  EXPECT_EQ(told_, "<drained>");
  EXPECT_EQ(port_->LastProblem(), QString("Comport 1, %1: No such device.").arg(terminal_.Device().c_str()));
  EXPECT_EQ(losses, 1);
  line_.close();
  EXPECT_EQ(line_.lost(), nullptr);
}

TEST_F(SerialPortTest, ALossInTheMiddleOfAWriteEndsTheWrite) {
  Open();
  EXPECT_TRUE(line_.write(std::string(200'000, 'x')).Ok());
  RunForAWhile();
  EXPECT_EQ(told_, "");
  const BeforeQt deaf([] { return true; });  // as some versions of Qt are
  terminal_.HangUp();
  EXPECT_TRUE(ValueDisplay("<drained>"));
  EXPECT_TRUE(BecomesIdle());
  EXPECT_EQ(line_.write("y").Problem().Text(), terminal_.Device() + ": No such device");
}

// The loop has seen the character, and Qt finds none and takes the reason of an earlier call for its own.
TEST_F(SerialPortTest, DiscardedInputIsNoLoss) {
  Open();
  int discarded = 0;
  const BeforeQt discard([&] {
    if (discarded++ == 0) line_.clear_input();
    errno = EAGAIN;
    return false;
  });
  terminal_.Send("a");
  EXPECT_TRUE(RunUntil([&] { return discarded > 0; }));
  RunForAWhile();
  EXPECT_EQ(line_.lost(), nullptr);
  terminal_.Send("b");
  EXPECT_TRUE(ValueDisplay("b"));
}

TEST_F(SerialPortTest, CharactersBeforeTheLossAreStillReported) {
  Open();
  SendWhileBusy("last");
  terminal_.HangUp();
  EXPECT_TRUE(RunUntil([&] { return !port_->LastProblem().isEmpty(); }));
  EXPECT_TRUE(BecomesIdle());
  Resume();
  EXPECT_TRUE(ValueDisplay("last"));
}

}  // namespace
}  // namespace ovl

// The application object of Qt exists as long as the tests run.
int main(int count, char** words) {
  const QCoreApplication application(count, words);
  ::testing::InitGoogleTest(&count, words);
  return RUN_ALL_TESTS();
}
