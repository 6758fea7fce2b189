#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "files/files.h"
#include "image/report.h"
#include "images/default_images.h"
#include "support/firmware_facts.h"
#include "support/simulated_unit.h"
#include "unit/factory.h"
#include "unit/faults.h"
#include "unit/firmware.h"
#include "unit/journal.h"
#include "unit/memory.h"
#include "unit/options.h"
#include "unit/stream.h"
#include "unit/unit.h"

namespace unit {
namespace {

using namespace std::chrono_literals;
using Texts = std::vector<std::string>;

using ovl::testing::kAck;
using ovl::testing::kCan;
using ovl::testing::kEnq;
using ovl::testing::kFormFeed;
using ovl::testing::kNak;
using ovl::testing::SimulatedUnit;

const std::string kEnterRemote = ovl::testing::kRemoteRequest;
const std::string kHistory = "one\r\ntwo\r\n";

const Firmware& Known(std::string_view name) {
  return *FindFirmware(name);
}

std::string FactoryStream(std::string_view name) {
  return ComposeStream(RegionOf(Known(name)), FactoryImage(Known(name)));
}

std::string Replaced(std::string text, std::string_view what, std::string_view by) {
  return text.replace(text.find(what), what.size(), by);
}

// ---- images and streams

// Unit and program share no code, so the default image of the program shows a mistake in either. A new unit
// of V1400 has a speed for its network, too.
TEST(UnitFirmware, ANewUnitHasTheDefaultImageOfTheProgram) {
  for (const auto& firmware : ovl::testing::EveryFirmware()) {
    const auto stream = ovl::files::JoinLines(FactoryStream(firmware.Joined()));
    const auto image = ovl::image::DecodeStream(stream, firmware).value();
    std::string different;
    for (const auto& field : ovl::image::Differences(ovl::images::FactoryImage(firmware), image, firmware))
      different += field.name;
    EXPECT_EQ(different, firmware.IsV1400() ? "NET_BAUDRATE" : "") << firmware.Joined();
  }
}

TEST(UnitStream, EachDamageIsReportedOnceWithItsPlace) {
  const std::string good = FactoryStream("V1400R12");
  const auto with = [&](std::string_view what, std::string_view by) { return Replaced(good, what, by); };
  const std::string hex = "an upper-case hexadecimal digit, found ";
  const std::string after = "found \"#\" after ";
  const std::string end = "\"#\", the end of the stream";
  const std::vector<std::tuple<std::string, std::string, std::string>> damages{
      {with("$2040", "$2060"), "3, address 2040, position 2", "address 2040, found 2060"},
      {with("$2040", "$20a0"), "3, address 2040, position 4", hex + "\"a\""},
      {with("0E0303", "0e0303"), "1, address 2000, position 11", hex + "\"e\""},
      {with("0E0303", "E0303"), "1, address 2000, position 69", hex + "<CR>"},
      {with("0E0303", "00E0303"), "1, address 2000, position 70", "<CR>, found \"1\""},
      {with("\r\n", "\n"), "1, address 2000, position 70", "<CR>, found <LF>"},
      {with("\r\n", "\r"), "1, address 2000, position 71", "<LF>, found \"$\""},
      {with("\r\n", ""), "1, address 2000, position 70", "<CR>, found \"$\""},
      {with("\r\n", "\r\n\r\n"), "2, address 2020, position 1", "\"$\", found <CR>"},
      {with("#", "00#"), "68, address 2860, position 42", end + ", found \"0\""},
      {with("00#", "#"), "68, address 2860, position 40", "36 digits in the last record, " + after + "34"},
      {good.substr(0, 162) + "#", "3, address 2040, position 21", "more, up to address 2860, found " + end},
      {std::string(good).erase(66 * 71, 71), "67, address 2840, position 2", "address 2840, found 2860"},
      {with("#", "\r\n#"), "68, address 2860, position 42", end + ", found <CR>"},
  };
  const Region& region = RegionOf(Known("V1400R12"));
  for (const auto& [stream, place, problem] : damages) {
    StreamChecker checker(region);
    for (const char c : stream) checker.Feed(c);
    EXPECT_EQ(checker.Errors(), Texts{"record " + place + ": expected " + problem});
    EXPECT_FALSE(checker.Correct());
  }
  EXPECT_EQ(ReadStreamText(region, with("#", "\r\n$2880#")).errors.size(), 2U);
  std::string many = good;
  std::ranges::replace(many, '2', 'g');
  const Texts errors = ReadStreamText(region, many).errors;
  ASSERT_EQ(errors.size(), 6U);
  EXPECT_TRUE(errors.back().ends_with("more errors"));
}

// ---- remote mode

TEST(UnitRemote, OnlyTheExactRequestStartsRemoteMode) {
  SimulatedUnit device;
  for (const std::string_view noise : {kEnq, "/LU\r", "TOTAL  12.50\r\n$#", "~~~SOH_REQUEST_EOT~~k",
                                       "~~~soh_request_eot~~~k", "~~~SOH_REQUEST_EOT~~~ k", "\x06\x15\x18"}) {
    EXPECT_EQ(device.WholeAnswer(noise), "") << noise;
    EXPECT_FALSE(device.program->Remote());
  }
  EXPECT_EQ(device.WholeAnswer("noise~~~SOH_~" + kEnterRemote + kEnterRemote + kEnq), "\x06\x06\x0C");
  EXPECT_TRUE(device.complaints.empty());
}

TEST(UnitRemote, EnqKeepsItAndCanOrSilenceEndsIt) {
  SimulatedUnit device;
  EXPECT_EQ(device.WholeAnswerInRemoteMode("\x18\x05"), "");
  device.WholeAnswerInRemoteMode("");
  for (const Time pause : {20s, 20s, 29s}) {
    device.Pass(pause);
    EXPECT_EQ(device.WholeAnswer(kEnq), kFormFeed);
  }
  device.Receive(kEnq);
  device.Pass(30s);
  EXPECT_FALSE(device.program->Remote());
  for (const auto* begun : {"/L", "/LD\r"}) {
    device.WholeAnswerInRemoteMode(begun);
    device.Pass(30s);
  }
  EXPECT_EQ(device.WholeAnswer(""), kNak);
  const std::string broken = "the stream stopped before its first character: the program sent nothing more";
  EXPECT_EQ(device.complaints, (Texts{"a command without its end: \"/L\"", broken}));
}

TEST(UnitRemote, AWrongOrRefusedCommandChangesNothing) {
  struct Row {
    std::string fault, sent;  // without a fault, what is sent is wrong
  };
  std::vector<Row> rows = {
      {"refuse:upload", "/LU\r"},
      {"silent:upload", "/LU\r"},
      {"refuse:download", "/LD\r"},
      {"silent:download-ack", "/LD\r"},
      {"refuse:history", "/LH\r\n\r"},
      {"silent:history", "/LH\r\n\r"},
      {"refuse:reset", "/MR\r\n\r"},
      {"silent:reset", "/MR\r\n\r"},
      {"refuse:clock", "/TD03-05-26 14:07:09\r\n\r"},
      {"silent:clock", "/TD03-05-26 14:07:09\r\n\r"},
      {"silent:enq", kEnq},
      {"refuse:request", kEnterRemote},
      {"silent:request", kEnterRemote},
      {"refuse", kEnterRemote},
      {"silent", kEnterRemote},
  };
  for (const std::string time :
       {"02-29-26 14:07:09", "04-31-26 14:07:09", "13-01-26 14:07:09", "00-01-26 14:07:09",
        "03-00-26 14:07:09", "03-05-26 24:00:00", "03-05-26 14:60:09", "03-05-26 14:07:60",
        " 03-05-26 14:07:09", "03-05-2026 14:07:09", "3-5-26 14:07:09", "03/05/26 14:07:09", "03-05-26 14:07",
        "03-05-26 14:07:09 ", ""})
    rows.push_back({"", "/TD" + time + "\r\n\r"});
  for (const std::string wrong : {"/XX\r", "/XX\r\n\r", "LU\r", "/lu\r", "/LUX\r", "\r", "/LH\rX", "/MR\r\r"})
    rows.push_back({"", wrong});
  rows.push_back({"", std::string(81, 'x')});
  for (const auto& [fault, sent] : rows) {
    SCOPED_TRACE(fault + " " + sent);
    SimulatedUnit device({.faults = fault});
    EXPECT_EQ(device.WholeAnswerInRemoteMode(sent), fault.starts_with("silent") ? "" : kNak);
    EXPECT_EQ(device.complaints.size(), fault.empty() ? 1U : 0U);
    EXPECT_EQ(device.kept_clock + device.kept_image, "");
    EXPECT_NE(device.program->Remote(), sent == kEnterRemote);
    EXPECT_TRUE(!fault.empty() || device.WholeAnswer("/LU\r").ends_with('#'));
  }
  SimulatedUnit device;
  EXPECT_EQ(device.WholeAnswerInRemoteMode("/L" + kEnterRemote + "/L\x05U\r"),
            "\x06\x0C" + FactoryStream("V1400R12"));
  const std::string ahead = "unexpected before the request for remote mode: \"/L\"";
  EXPECT_EQ(device.complaints, (Texts{ahead, "ENQ within \"/L\""}));
}

// ---- commands

// Microseconds that the unit needs for the expected answer.
std::size_t TimeFor(SimulatedUnit&& device, std::string_view command, std::string_view expected) {
  device.WholeAnswer(kEnterRemote);
  const Time begin = device.now;
  EXPECT_EQ(device.WholeAnswer(command), expected);
  return static_cast<std::size_t>((device.now - begin) / 1us);
}

TEST(UnitCommand, ATextTakesTheTimeOfTheLineAndOfItsFaults) {
  const std::string stream = FactoryStream("V1400R12");
  const std::size_t time = stream.size() * 10'000'000 / 9600;
  EXPECT_EQ(TimeFor(SimulatedUnit({.speed = 1200}), "/LU\r", stream), stream.size() * 10'000'000 / 1200);
  EXPECT_EQ(TimeFor(SimulatedUnit({.faults = "stall:500,7000"}), "/LU\r", stream), time + 7'000'000);
  EXPECT_EQ(TimeFor(SimulatedUnit({.faults = "late:400"}), "/LU\r", stream), time + 400'000);
  EXPECT_EQ(TimeFor(SimulatedUnit({.faults = "late:400"}), "/LH\r\n\r", kHistory + kAck),
            11U * 10'000'000 / 9600 + 400'000);
  EXPECT_EQ(TimeFor(SimulatedUnit({.faults = "late:400"}), "/MR\r\n\r", kAck), 10'000'000U / 9600 + 400'000);
}

TEST(UnitCommand, CanOrARequestStopsTheUpload) {
  SimulatedUnit device;
  device.WholeAnswer(kEnterRemote);
  device.Receive("/LU\r");
  device.Pass(100ms);
  EXPECT_EQ(std::exchange(device.sent, {}).size(), 96U);
  device.Receive(kCan + kEnterRemote);
  device.Pass(2ms);
  EXPECT_EQ(std::exchange(device.sent, {}), kAck);
  EXPECT_EQ(device.WholeAnswer("/LU\r" + kEnterRemote), kAck);
  EXPECT_EQ(device.WholeAnswer("/LU\r\n\r").back(), '#');
  EXPECT_EQ(device.complaints, Texts{"a character while the unit is sending: <LF>"});
}

TEST(UnitCommand, OnlyACompleteCommandIsKept) {
  const std::string factory = FactoryImage(Known("V1400R12"));
  const std::string image = Replaced(factory, "0E0303", "0E0808");
  const std::string load = "/LD\r" + Replaced(FactoryStream("V1400R12"), "0E0303", "0E0808");
  const std::string clock = "/TD03-05-26 14:07:09\r\n\r";
  const std::string reset = "/MR\r\n\r";
  struct Row {
    std::string faults, sent, answer, kept, complaint;
  };
  const std::vector<Row> rows{
      {"", load + kCan, "\x06\x06", image, ""},
      {"", load + "\r\n", "\x06\x06", image, "a character after the end mark of the stream: <CR>"},
      {"", load + kEnterRemote + reset, "\x06\x06\x06\x06", factory, ""},
      {"silent:final-ack", load, kAck, image, ""},
      {"", Replaced(load, "\r\n", "\r"), "\x06\x15", "",
       "record 1, address 2000, position 71: expected <LF>, found \"$\""},
      {"", "/LD\r$2000\x18", kAck, "", ""},
      {"", "/LD\r$2000" + kEnterRemote, "\x06\x06", "",
       "the stream stopped after 5 characters, in record 1, address 2000: the program asks for remote mode"},
      {"", clock, kAck, "03-05-26 14:07:09", ""},
      {"", "/TD02-29-00 00:00:00\r\n\r", kAck, "02-29-00 00:00:00", ""},
      {"", "/TD12-31-99 23:59:59\r\n\r", kAck, "12-31-99 23:59:59", ""}};
  for (const auto& [faults, sent, answer, kept, complaint] : rows) {
    SCOPED_TRACE(sent);
    SimulatedUnit device({.faults = faults});
    EXPECT_EQ(device.WholeAnswerInRemoteMode(sent), answer);
    EXPECT_EQ(device.kept_image + device.kept_clock, kept);
    EXPECT_EQ(device.program->Image(), device.kept_image.empty() ? factory : device.kept_image);
    EXPECT_EQ(device.program->Remote(), sent.ends_with(kEnterRemote));
    EXPECT_EQ(device.complaints, Texts(complaint.empty() ? 0 : 1, complaint));
  }
  for (const std::string& sent : {load, clock, reset}) {
    SimulatedUnit device;
    device.failure = "cannot write unit.bin: No space left on device";
    EXPECT_EQ(device.WholeAnswerInRemoteMode(sent).back(), '\x15');
    EXPECT_EQ(device.program->Image(), factory);
    EXPECT_EQ(device.complaints, Texts{device.failure});
  }
}

TEST(UnitCommand, ReleaseSevenAcceptsOneMoreByteWithAComplaint) {
  for (const std::string rest : {"0", "0A", "000"}) {
    SimulatedUnit device({.firmware = "V1400R7"});
    EXPECT_EQ(device.WholeAnswerInRemoteMode("/LD\r" + Replaced(FactoryStream("V1400R7"), "#", rest + "#")),
              rest == "0A" ? "\x06\x06" : "\x06\x15");
    EXPECT_EQ(device.complaints.size(), 1U);
    EXPECT_EQ(device.program->Image(), FactoryImage(Known("V1400R7")));
  }
}

// ---- faults

std::string AnswerUnder(const std::string& fault, std::uint64_t seed = 1,
                        std::string_view command = "/LU\r") {
  SimulatedUnit device({.faults = fault, .speed = 0, .seed = seed});
  const std::string answer = device.WholeAnswerInRemoteMode(command);
  EXPECT_EQ(device.program->Remote(), fault.starts_with("silent"));
  return answer;
}

TEST(UnitFaults, CutGarbleDropAndJunkChangeTheText) {
  const std::string stream = FactoryStream("V1400R12");
  EXPECT_EQ(AnswerUnder("cut:1000"), stream.substr(0, 1000));
  EXPECT_EQ(AnswerUnder("cut:99999"), stream.substr(0, stream.size() - 1));
  EXPECT_EQ(AnswerUnder("silent:after=11"), stream.substr(0, 10));
  EXPECT_EQ(AnswerUnder("drop:0"), stream);
  EXPECT_EQ(AnswerUnder("drop:1000", 1, "/LH\r\n\r"), kAck);
  const std::string junk = AnswerUnder("junk:4000");
  EXPECT_EQ(junk.find_first_of("$?"), 4000U);
  EXPECT_EQ(junk.substr(4000), stream);
  for (const auto* fault : {"drop:20", "garble:20", "junk:9"}) {
    EXPECT_EQ(AnswerUnder(fault, 7), AnswerUnder(fault, 7));
    EXPECT_NE(AnswerUnder(fault, 7), AnswerUnder(fault, 8));
  }
  const std::string garbled = AnswerUnder("garble:1000");
  ASSERT_EQ(garbled.size(), stream.size());
  for (std::size_t i = 0; i < stream.size(); ++i) {
    EXPECT_EQ(__builtin_popcount(static_cast<unsigned char>(garbled[i] ^ stream[i])), 1);
  }
  const std::size_t dropped = stream.size() - AnswerUnder("drop:20", 7).size();
  EXPECT_TRUE(dropped > 20 && dropped < 400) << dropped;
  SimulatedUnit once({.faults = "refuse:upload cut:100 once"});
  EXPECT_EQ(once.WholeAnswerInRemoteMode("/LU\r"), kNak);
  EXPECT_EQ(once.WholeAnswer("/LU\r").size(), 100U);
  EXPECT_EQ(once.WholeAnswerInRemoteMode("/LU\r"), stream);
  // The generator must give these on every machine, or recorded failures could not be replayed.
  EXPECT_EQ(Random(7).Below(1000), 389U);
}

// ---- command line, files, log

TEST(UnitOptions, AnErrorNamesTheWrongOptionAndItsValue) {
  const auto parse = [](const std::vector<std::string_view>& arguments) { return ParseOptions(arguments); };
  for (const std::string_view row :
       {"--speed 9601", "--firmware V1400R3", "--firmware v1400R12", "--pace slow", "--seed -1",
        "--history lines:x", "--history lines:100001", "--memory ", "--fault dorp:5", "--fault drop",
        "--fault drop:x", "--fault drop:1001", "--fault stall:5", "--fault refuse:enq", "--fault once:1",
        "--fault silent:after=x"}) {
    const std::string error = parse({row.substr(0, row.find(' ')), row.substr(row.find(' ') + 1)}).error;
    EXPECT_TRUE(error.starts_with(std::string(row) + ": ")) << row << " / " << error;
  }
  EXPECT_EQ(parse({"--seed"}).error, "--seed needs a value, N");
  EXPECT_EQ(parse({"--sped=9600"}).error, "--sped: there is no such option");
  EXPECT_EQ(parse({"--help=1"}).error, "--help takes no value");
  EXPECT_EQ(parse({"--pace=off", "--", "--help"}).error, "--help: only options are expected");
  const auto [options, wish, error] =
      parse({"--speed=115200", "--fault", "stall:5,100", "--pace", "off", "--history=lines:100000"});
  EXPECT_EQ(error, "");
  EXPECT_TRUE(options.speed == 115200U && !options.paced);
  EXPECT_EQ(MadeUpLines(options.history), 100000U);
}

TEST(UnitFiles, AnImageIsReadBackAndAForeignOneIsReported) {
  std::string place = (std::filesystem::temp_directory_path() / "ovl_unit_XXXXXX").string();
  ASSERT_NE(::mkdtemp(place.data()), nullptr);
  const std::string path = place + "/unit.bin";
  const Firmware& firmware = Known("V1310R1");
  const std::string image = FactoryImage(firmware);
  ASSERT_EQ(SaveImage(path, firmware, image), "");
  EXPECT_EQ(ReadFile(path).text, FactoryStream("V1310R1") + "\r\n");
  EXPECT_EQ(LoadImage(path, firmware).text, image);
  EXPECT_TRUE(LoadImage(path, Known("V1400R12")).error.starts_with(path));
  ASSERT_EQ(WriteFile(path, FactoryStream("V1310R1") + "\r\n$"), "");
  EXPECT_NE(LoadImage(path, firmware).error, "");
  EXPECT_EQ(LoadImage(place + "/none", firmware).error,
            "cannot open " + place + "/none: No such file or directory");
  EXPECT_NE(SaveImage(place + "/none/unit.bin", firmware, image), "");
  ASSERT_EQ(WriteFile(path, "a\nb\r\n"), "");
  EXPECT_EQ(LoadHistory(path).text, "a\r\nb\r\n");
  ASSERT_EQ(WriteFile(path, "a\x06"), "");
  EXPECT_NE(LoadHistory(path).error, "");
  std::filesystem::remove_all(place);
}

TEST(UnitJournal, EachTurnIsOneLineAndLongTextsAreShortened) {
  const std::string stream = FactoryStream("V1310R1");
  Texts lines;
  Journal journal([&lines](const std::string& line) { lines.push_back(line); });
  journal.Add(Journal::Side::kTool, "/L", 1s);
  journal.Add(Journal::Side::kTool, "U\r", 1s + 1ms);
  journal.Add(Journal::Side::kTool, kEnq, 1s + 501ms);
  journal.Add(Journal::Side::kUnit, stream, 2s);
  journal.Remark("over", 3s);
  EXPECT_EQ(lines, (Texts{"      1.000 > /LU<CR>", "      1.501 > <ENQ>",
                          "      2.000 < " + stream.substr(0, 69) +
                              "<CR><LF> ... $7FF000# (65 lines, 4552 characters)",
                          "      3.000 -- over"}));
}

}  // namespace
}  // namespace unit
