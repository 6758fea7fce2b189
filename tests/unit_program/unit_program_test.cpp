#include <gtest/gtest.h>
#include <stdlib.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "factory.h"
#include "faults.h"
#include "firmware.h"
#include "journal.h"
#include "memory.h"
#include "options.h"
#include "stream.h"
#include "unit.h"

namespace unit {
namespace {

using namespace std::chrono_literals;

const std::string kEnterRemote(kRequest);
const std::string kAcked = "\x06";
const std::string kRefused = "\x15";

const Firmware& Known(std::string_view name) {
  const Firmware* const firmware = FindFirmware(name);
  EXPECT_NE(firmware, nullptr) << name;
  return *firmware;
}

std::string FactoryStream(std::string_view name) {
  return ComposeStream(RegionOf(Known(name)), FactoryImage(Known(name)));
}

std::string Replaced(std::string text, std::string_view what, std::string_view by) {
  const std::size_t at = text.find(what);
  EXPECT_NE(at, std::string::npos) << what;
  return text.replace(at, what.size(), by);
}

// A unit with a tool's hands on it, in simulated time.
class Bench {
 public:
  explicit Bench(std::vector<std::string_view> faults = {}, std::string_view firmware = "V1400R12",
                 unsigned speed = 9600, std::uint64_t seed = 1) {
    std::vector<Fault> parsed;
    for (const std::string_view fault : faults) parsed.push_back(ParseFault(fault).fault.value());
    Surroundings surroundings;
    surroundings.complain = [this](const std::string& text) { complaints.push_back(text); };
    surroundings.note = [](const std::string&) {};
    surroundings.send = [this](const std::string& bytes) { sent += bytes; };
    surroundings.keep_image = [this](const std::string& image) { return kept_image = image, failure; };
    surroundings.keep_clock = [this](const std::string& clock) { return kept_clock = clock, failure; };
    UnitSetup setup{&Known(firmware), FactoryImage(Known(firmware)), "one\r\ntwo\r\n", speed,
                    Faults(std::move(parsed), seed)};
    unit.emplace(std::move(setup), std::move(surroundings));
  }

  // The tool sends `text`; what the unit sends until it has nothing more to send.
  std::string Say(std::string_view text) {
    for (const char c : text) unit->Receive(c, now);
    return Settle();
  }

  std::string Settle() {
    unit->Advance(now);
    for (auto due = unit->NextDue(); due && *due < now + kPatience - 1s; due = unit->NextDue()) {
      now = *due;
      unit->Advance(now);
    }
    return std::exchange(sent, {});
  }

  void Pass(Time time) {
    now += time;
    unit->Advance(now);
  }

  std::string Enter() { return Say(kEnterRemote); }

  Time now = 5s;
  std::string sent;
  std::string failure;
  std::string kept_image;
  std::string kept_clock;
  std::vector<std::string> complaints;
  std::optional<Unit> unit;
};

std::vector<std::string> ErrorsOf(std::string_view firmware, std::string_view stream) {
  StreamChecker checker(RegionOf(Known(firmware)));
  for (const char c : stream) {
    if (checker.Feed(c)) break;
  }
  EXPECT_EQ(checker.Correct(), checker.Errors().empty() && stream.find('#') != std::string_view::npos);
  return checker.Errors();
}

// ---- firmware and streams

struct ExpectedRegion {
  std::string_view prefix;
  std::vector<int> releases;
  std::string_view first;
  std::string_view last;
  std::size_t records;
  std::size_t digits;
};

const std::vector<ExpectedRegion> kExpectedRegions{
    {"V1400R", {1, 2, 4}, "$2000", "$2840", 67, 4272},
    {"V1400R", {6}, "$2000", "$2860", 68, 4304},
    {"V1400R", {7}, "$2000", "$2860", 68, 4322},
    {"V1400R", {11, 12}, "$2000", "$2860", 68, 4324},
    {"V1300R", {14, 15, 16, 17, 18, 19, 20, 21, 23}, "$7800", "$7FE0", 64, 4066},
    {"V1324R", {17, 18, 19, 20, 21, 23, 24}, "$7800", "$7FE0", 64, 4066},
    {"V1300R", {26, 27}, "$77F0", "$7FF0", 65, 4098},
    {"V1324R", {25, 26}, "$77F0", "$7FF0", 65, 4098},
    {"V1310R", {1}, "$77F0", "$7FF0", 65, 4098},
    {"V1334R", {1}, "$77F0", "$7FF0", 65, 4098},
};

TEST(UnitFirmware, EveryFactoryStreamFillsItsRegionAndIsAcceptedOnlyThere) {
  std::size_t count = 0;
  for (const ExpectedRegion& expected : kExpectedRegions) {
    for (const int release : expected.releases) {
      const std::string name = std::string(expected.prefix) + std::to_string(release);
      SCOPED_TRACE(name);
      ++count;
      EXPECT_EQ(FactoryImage(Known(name)).size(), expected.digits);
      const std::string stream = FactoryStream(name);
      EXPECT_TRUE(stream.starts_with(expected.first));
      EXPECT_EQ(stream.rfind('$'), (expected.records - 1) * 71);
      EXPECT_EQ(stream.substr(stream.rfind('$'), 5), expected.last);
      EXPECT_EQ(stream.size(), expected.digits + expected.records * 5 + (expected.records - 1) * 2 + 1);
      EXPECT_TRUE(ErrorsOf(name, stream).empty());
      const bool newest = name == "V1400R11" || name == "V1400R12";
      EXPECT_FALSE(ErrorsOf(newest ? "V1400R6" : "V1400R12", stream).empty());
    }
  }
  EXPECT_EQ(count, AllFirmware().size());
  EXPECT_EQ(FindFirmware("V1400R3"), nullptr);
  EXPECT_EQ(FindFirmware("v1400R12"), nullptr);
}

TEST(UnitFirmware, FactoryImageHoldsWhatDistinguishesTheFirmware) {
  const auto byte = [](std::string_view name, std::size_t at) {
    return FactoryImage(Known(name)).substr(2 * at, 2);
  };
  // Eight bits without parity, 9600 both ways.
  EXPECT_EQ(byte("V1400R6", 1) + byte("V1400R6", 3) + byte("V1400R6", 4), "040303");
  EXPECT_EQ(byte("V1400R6", 2), "0A");
  EXPECT_EQ(byte("V1400R7", 2), "0E");
  EXPECT_EQ(byte("V1324R24", 2), "0A");
  EXPECT_EQ(byte("V1324R25", 2), "0E");
  // Demonstration byte, behind the daylight saving that is switched off by 01.
  EXPECT_EQ(byte("V1400R1", 32 + 90) + byte("V1400R1", 32 + 91), "0101");
  EXPECT_EQ(byte("V1400R12", 32 + 92) + byte("V1400R12", 32 + 93), "0100");
  EXPECT_EQ(byte("V1324R18", 48 + 70) + byte("V1324R18", 48 + 71), "0101");
  EXPECT_EQ(byte("V1300R14", 48 + 74) + byte("V1300R14", 48 + 75), "0101");
  EXPECT_EQ(byte("V1300R26", 48 + 76) + byte("V1300R26", 48 + 77), "0101");
  EXPECT_EQ(byte("V1310R1", 48 + 76) + byte("V1310R1", 48 + 77), "0100");
  // The first free exception slot, behind the title.
  EXPECT_EQ(byte("V1400R12", 32 + 113 + 41), "10");
  EXPECT_EQ(byte("V1400R12", 32 + 113 + 41 + 12), "20");
  EXPECT_EQ(byte("V1334R1", 48 + 96 + 41), "10");
  EXPECT_EQ(byte("V1334R1", 48 + 96 + 41 + 8), "20");
}

struct Damage {
  std::string stream;
  std::string error;
};

TEST(UnitStream, EveryDamageIsToldOnceAndExactly) {
  const std::string good = FactoryStream("V1400R12");
  const std::string hex = "expected an upper-case hexadecimal digit, found ";
  const std::vector<Damage> damages{
      {Replaced(good, "$2040", "$2060"),
       "record 3, address 2040, position 2: expected address 2040, found 2060"},
      {Replaced(good, "$2040", "$20a0"), "record 3, address 2040, position 4: " + hex + "\"a\""},
      {Replaced(good, "$2860", "$2880"),
       "record 68, address 2860, position 2: expected address 2860, found 2880"},
      {Replaced(good, "0E0303", "0e0303"), "record 1, address 2000, position 11: " + hex + "\"e\""},
      {Replaced(good, "0E0303", "E0303"), "record 1, address 2000, position 69: " + hex + "<CR>"},
      {Replaced(good, "0E0303", "00E0303"),
       "record 1, address 2000, position 70: expected <CR>, found \"1\""},
      {Replaced(good, "\r\n", "\n"), "record 1, address 2000, position 70: expected <CR>, found <LF>"},
      {Replaced(good, "\r\n", "\r"), "record 1, address 2000, position 71: expected <LF>, found \"$\""},
      {Replaced(good, "\r\n$2020", "$2020"),
       "record 1, address 2000, position 70: expected <CR>, found \"$\""},
      {Replaced(good, "\r\n$2020", "\r\n\r\n$2020"),
       "record 2, address 2020, position 1: expected \"$\", found <CR>"},
      {"\n\r" + good, "record 1, address 2000, position 1: expected \"$\", found <LF>"},
      {Replaced(good, "#", "00#"),
       "record 68, address 2860, position 42: expected \"#\", the end of the stream, found \"0\""},
      {Replaced(good, "00#", "#"),
       "record 68, address 2860, position 40: expected 36 digits in the last record, found \"#\" after 34"},
      {good.substr(0, 2 * 71 + 20) + "#",
       "record 3, address 2040, position 21: expected more, up to address 2860, found \"#\", the end of the "
       "stream"},
      {good.substr(0, 71) + good.substr(2 * 71),
       "record 2, address 2020, position 2: expected address 2020, found 2040"},
      {good.substr(0, 2 * 71) + good.substr(71),
       "record 3, address 2040, position 2: expected address 2040, found 2020"},
      {Replaced(good, "#", "\r\n$2880#"),
       "record 68, address 2860, position 42: expected \"#\", the end of the stream, found <CR>"},
  };
  for (const Damage& damage : damages) {
    const auto errors = ErrorsOf("V1400R12", damage.stream);
    ASSERT_FALSE(errors.empty()) << damage.error;
    EXPECT_EQ(errors.front(), damage.error);
    const bool extra_record = damage.stream.ends_with("$2880#");
    EXPECT_EQ(errors.size(), extra_record ? 2U : 1U) << damage.error;
  }
}

TEST(UnitStream, ManyErrorsAreCountedAndASilentEndIsOne) {
  std::string lower = FactoryStream("V1310R1");
  for (char& c : lower) c = c == 'F' ? 'f' : c;
  const auto errors = ErrorsOf("V1310R1", lower);
  ASSERT_EQ(errors.size(), 6U);
  EXPECT_TRUE(errors.back().ends_with("more errors"));

  StreamChecker checker(RegionOf(Known("V1310R1")));
  for (const char c : std::string("$77F000")) checker.Feed(c);
  checker.BreakOff("silence");
  EXPECT_FALSE(checker.Correct());
  EXPECT_EQ(checker.Errors().front(),
            "the stream broke off after 7 characters, in record 1, address 77F0: silence");
}

// ---- remote mode

TEST(UnitRemote, OnlyTheExactRequestWakesIt) {
  Bench bench;
  for (const std::string_view noise : {"\x05", "/LU\r", "TOTAL  12.50\r\n$#", "~~~SOH_REQUEST_EOT~~k",
                                       "~~~soh_request_eot~~~k", "~~~SOH_REQUEST_EOT~~~ k", "\x06\x15\x18"}) {
    EXPECT_EQ(bench.Say(noise), "") << noise;
    EXPECT_FALSE(bench.unit->Remote());
  }
  EXPECT_EQ(bench.Say("noise~~~SOH_~" + kEnterRemote), kAcked);
  EXPECT_TRUE(bench.unit->Remote());
  EXPECT_TRUE(bench.complaints.empty());
}

TEST(UnitRemote, HoldsByEnqEndsByCanAndByPatience) {
  Bench bench;
  bench.Enter();
  EXPECT_EQ(bench.Enter(), kAcked);
  for (int i = 0; i < 3; ++i) {
    bench.Pass(20s);
    EXPECT_EQ(bench.Say("\x05"), "\x0C");
  }
  bench.Pass(29s);
  EXPECT_TRUE(bench.unit->Remote());
  bench.Pass(1s);
  EXPECT_FALSE(bench.unit->Remote());

  bench.Enter();
  EXPECT_EQ(bench.Say("\x18"), "");
  EXPECT_FALSE(bench.unit->Remote());
  EXPECT_EQ(bench.Say("\x18\x05"), "");
  EXPECT_TRUE(bench.complaints.empty());
}

TEST(UnitRemote, WrongCommandsAreRefusedOnceEach) {
  for (const std::string_view wrong :
       {"/XX\r", "/XX\r\n\r", "LU\r", "/lu\r", "/LUX\r", "\r", "/LH\rX", "/MR\r\r"}) {
    Bench bench;
    bench.Enter();
    EXPECT_EQ(bench.Say(wrong), kRefused) << wrong;
    EXPECT_EQ(bench.complaints.size(), 1U) << wrong;
    EXPECT_TRUE(bench.unit->Remote());
    EXPECT_EQ(bench.Say("/LU\r").back(), '#') << wrong;
  }
  Bench bench;
  bench.Enter();
  EXPECT_EQ(bench.Say(std::string(81, 'x')), kRefused);
  EXPECT_EQ(bench.Say("/L" + kEnterRemote), kAcked);
  EXPECT_EQ(bench.complaints.back(), "unexpected ahead of the request for remote mode: \"/L\"");
}

// ---- commands

TEST(UnitCommand, UploadSendsTheMemoryAtTheRateOfTheLine) {
  Bench bench({}, "V1324R18", 1200);
  bench.Enter();
  const Time begin = bench.now;
  const std::string stream = bench.Say("/LU\r");
  EXPECT_EQ(stream, FactoryStream("V1324R18"));
  EXPECT_EQ((bench.now - begin).count(), static_cast<long long>(stream.size()) * 1'000'000'000 / 120);
  EXPECT_FALSE(bench.unit->Remote());
  EXPECT_TRUE(bench.complaints.empty());
}

TEST(UnitCommand, UploadIsStoppedByCanAndByARequest) {
  Bench bench;
  bench.Enter();
  for (const char c : std::string("/LU\r")) bench.unit->Receive(c, bench.now);
  bench.Pass(100ms);
  EXPECT_EQ(bench.sent.size(), 96U);
  bench.sent.clear();
  EXPECT_EQ(bench.Say("\x18"), "");
  EXPECT_FALSE(bench.unit->Remote());

  bench.Enter();
  for (const char c : "/LU\r" + kEnterRemote) bench.unit->Receive(c, bench.now);
  EXPECT_EQ(bench.Settle(), kAcked);
  EXPECT_TRUE(bench.complaints.empty());

  EXPECT_EQ(bench.Say("/LU\r\n\r").back(), '#');
  EXPECT_EQ(bench.complaints, std::vector<std::string>{"a character while the unit is sending: <LF>"});
}

TEST(UnitCommand, DownloadStoresOnlyACorrectStream) {
  Bench bench;
  const std::string before = bench.unit->Image();
  const std::string stream = Replaced(FactoryStream("V1400R12"), "0E0303", "0E0808");
  bench.Enter();
  EXPECT_EQ(bench.Say("/LD\r"), kAcked);
  EXPECT_EQ(bench.Say(Replaced(stream, "\r\n", "\n")), kRefused);
  EXPECT_EQ(bench.unit->Image(), before);
  EXPECT_EQ(bench.kept_image, "");
  EXPECT_EQ(bench.complaints.size(), 1U);
  EXPECT_FALSE(bench.unit->Remote());

  bench.complaints.clear();
  bench.Enter();
  EXPECT_EQ(bench.Say("/LD\r"), kAcked);
  EXPECT_EQ(bench.Say(stream), kAcked);
  EXPECT_EQ(ComposeStream(RegionOf(Known("V1400R12")), bench.unit->Image()), stream);
  EXPECT_EQ(bench.kept_image, bench.unit->Image());
  EXPECT_TRUE(bench.complaints.empty());
  EXPECT_EQ(bench.Say("\r\n"), "");
  EXPECT_EQ(bench.complaints.size(), 1U);
}

TEST(UnitCommand, DownloadThatCannotBeKeptIsRefused) {
  Bench bench;
  const std::string before = bench.unit->Image();
  bench.failure = "cannot write unit.bin: No space left on device";
  bench.Enter();
  bench.Say("/LD\r");
  EXPECT_EQ(bench.Say(Replaced(FactoryStream("V1400R12"), "0303", "0808")), kRefused);
  EXPECT_EQ(bench.complaints, std::vector<std::string>{bench.failure});
  EXPECT_EQ(bench.unit->Image(), before);
}

TEST(UnitCommand, DownloadBrokenOffLeavesTheMemory) {
  const std::string half = FactoryStream("V1400R12").substr(0, 2000);
  Bench bench;
  const std::string before = bench.unit->Image();
  bench.Enter();
  bench.Say("/LD\r");
  EXPECT_EQ(bench.Say(half + "\x18"), "");
  EXPECT_FALSE(bench.unit->Remote());
  EXPECT_TRUE(bench.complaints.empty());

  bench.Enter();
  bench.Say("/LD\r");
  EXPECT_EQ(bench.Say(half + kEnterRemote), kAcked);
  EXPECT_EQ(bench.complaints,
            std::vector<std::string>{"the stream broke off after 2000 characters, in record 29, "
                                     "address 2380: the tool asks for remote mode"});
  bench.Say("/LD\r");
  bench.Say(half);
  bench.Pass(kPatience);
  EXPECT_EQ(bench.Settle(), kRefused);
  EXPECT_EQ(bench.complaints.size(), 2U);
  EXPECT_EQ(bench.unit->Image(), before);
}

TEST(UnitCommand, ReleaseSevenTakesOneByteMoreWithAComplaint) {
  Bench bench({}, "V1400R7");
  bench.Enter();
  bench.Say("/LD\r");
  EXPECT_EQ(bench.Say(Replaced(FactoryStream("V1400R7"), "#", "0A#")), kAcked);
  EXPECT_EQ(bench.complaints.size(), 1U);
  EXPECT_EQ(bench.unit->Image(), FactoryImage(Known("V1400R7")));
  EXPECT_FALSE(ErrorsOf("V1400R7", Replaced(FactoryStream("V1400R7"), "#", "0#")).empty());
  EXPECT_FALSE(ErrorsOf("V1400R7", Replaced(FactoryStream("V1400R7"), "#", "000#")).empty());
}

TEST(UnitCommand, ClockTakesOnlyTimesThatExist) {
  for (const std::string_view good : {"03-05-26 14:07:09", "02-29-00 00:00:00", "12-31-99 23:59:59"}) {
    Bench bench;
    bench.Enter();
    EXPECT_EQ(bench.Say("/TD" + std::string(good) + "\r\n\r"), kAcked);
    EXPECT_EQ(bench.kept_clock, good);
    EXPECT_FALSE(bench.unit->Remote());
  }
  for (const std::string_view bad :
       {"02-29-26 14:07:09", "04-31-26 14:07:09", "13-01-26 14:07:09", "00-01-26 14:07:09",
        "03-00-26 14:07:09", "03-05-26 24:00:00", "03-05-26 14:60:09", "03-05-26 14:07:60",
        " 03-05-26 14:07:09", "03-05-2026 14:07:09", "3-5-26 14:07:09", "03/05/26 14:07:09", "03-05-26 14:07",
        "03-05-26 14:07:09 ", ""}) {
    Bench bench;
    bench.Enter();
    EXPECT_EQ(bench.Say("/TD" + std::string(bad) + "\r\n\r"), kRefused) << bad;
    EXPECT_EQ(bench.complaints.size(), 1U) << bad;
    EXPECT_EQ(bench.kept_clock, "");
  }
}

TEST(UnitCommand, HistoryEndsWithAckAndResetBringsTheFactoryBack) {
  Bench bench;
  bench.Enter();
  EXPECT_EQ(bench.Say("/LH\r\n\r"), "one\r\ntwo\r\n" + kAcked);
  EXPECT_FALSE(bench.unit->Remote());

  bench.Enter();
  bench.Say("/LD\r");
  bench.Say(Replaced(FactoryStream("V1400R12"), "0303", "0808"));
  EXPECT_NE(bench.unit->Image(), FactoryImage(Known("V1400R12")));
  bench.Enter();
  EXPECT_EQ(bench.Say("/MR\r\n\r"), kAcked);
  EXPECT_EQ(bench.unit->Image(), FactoryImage(Known("V1400R12")));
  EXPECT_EQ(bench.kept_image, bench.unit->Image());
  EXPECT_FALSE(bench.unit->Remote());
}

// ---- faults

TEST(UnitFaults, RefusedAndUnheardOperationsChangeNothing) {
  const std::vector<std::pair<std::string, std::string>> operations{{"upload", "/LU\r"},
                                                                    {"clock", "/TD03-05-26 14:07:09\r\n\r"},
                                                                    {"history", "/LH\r\n\r"},
                                                                    {"reset", "/MR\r\n\r"}};
  for (const auto& [name, command] : operations) {
    SCOPED_TRACE(name);
    Bench refusing({"refuse:" + name});
    refusing.Enter();
    EXPECT_EQ(refusing.Say(command), kRefused);
    Bench silent({"silent:" + name});
    silent.Enter();
    EXPECT_EQ(silent.Say(command), "");
    for (const Bench* bench : {&refusing, &silent}) {
      EXPECT_TRUE(bench->unit->Remote());
      EXPECT_EQ(bench->kept_clock + bench->kept_image, "");
      EXPECT_TRUE(bench->complaints.empty());
    }
  }
  Bench asked_in_vain({"refuse:request"});
  EXPECT_EQ(asked_in_vain.Enter(), kRefused);
  EXPECT_FALSE(asked_in_vain.unit->Remote());
  Bench deaf({"silent"});
  EXPECT_EQ(deaf.Enter(), "");
  EXPECT_FALSE(deaf.unit->Remote());
  Bench no_keep_alive({"silent:enq"});
  no_keep_alive.Enter();
  EXPECT_EQ(no_keep_alive.Say("\x05"), "");
}

TEST(UnitFaults, DownloadWithoutItsAnswers) {
  Bench refusing({"refuse:download"});
  refusing.Enter();
  EXPECT_EQ(refusing.Say("/LD\r"), kRefused);
  Bench silent({"silent:download-ack"});
  silent.Enter();
  EXPECT_EQ(silent.Say("/LD\r"), "");
  Bench unconfirmed({"silent:final-ack"});
  unconfirmed.Enter();
  unconfirmed.Say("/LD\r");
  EXPECT_EQ(unconfirmed.Say(FactoryStream("V1400R12")), "");
  EXPECT_EQ(unconfirmed.kept_image, FactoryImage(Known("V1400R12")));
  EXPECT_FALSE(unconfirmed.unit->Remote());
}

TEST(UnitFaults, StreamsAreCutStalledAndHeadedByJunk) {
  const std::string stream = FactoryStream("V1400R12");
  Bench cut({"cut:1000"});
  cut.Enter();
  EXPECT_EQ(cut.Say("/LU\r"), stream.substr(0, 1000));
  EXPECT_FALSE(cut.unit->Remote());
  Bench cut_late({"cut:99999"});
  cut_late.Enter();
  EXPECT_EQ(cut_late.Say("/LU\r"), stream.substr(0, stream.size() - 1));

  Bench hanging({"silent:after=11"});
  hanging.Enter();
  EXPECT_EQ(hanging.Say("/LU\r"), stream.substr(0, 10));
  EXPECT_TRUE(hanging.unit->Remote());

  Bench stalled({"stall:500,7000"});
  stalled.Enter();
  const Time begin = stalled.now;
  EXPECT_EQ(stalled.Say("/LU\r"), stream);
  EXPECT_EQ((stalled.now - begin - 7s).count(), static_cast<long long>(stream.size()) * 1'000'000'000 / 960);

  Bench junk({"junk:40"});
  junk.Enter();
  const std::string with_junk = junk.Say("/LU\r");
  EXPECT_EQ(with_junk.size(), stream.size() + 40);
  EXPECT_EQ(with_junk.find('$'), 40U);
  EXPECT_TRUE(with_junk.ends_with(stream));

  Bench late({"late:400"});
  const Time asked = late.now;
  EXPECT_EQ(late.Enter(), kAcked);
  EXPECT_GE(late.now - asked, 400ms);
}

std::string UploadWith(std::string_view fault, std::uint64_t seed) {
  Bench bench({fault}, "V1400R12", 0, seed);
  bench.Enter();
  return bench.Say("/LU\r");
}

TEST(UnitFaults, ChanceFollowsTheSeed) {
  const std::string stream = FactoryStream("V1400R12");
  for (const std::string_view fault : {"drop:20", "garble:20", "junk:9"}) {
    EXPECT_EQ(UploadWith(fault, 7), UploadWith(fault, 7));
    EXPECT_NE(UploadWith(fault, 7), UploadWith(fault, 8));
  }
  EXPECT_LT(UploadWith("drop:20", 7).size(), stream.size());
  const std::string garbled = UploadWith("garble:20", 7);
  ASSERT_EQ(garbled.size(), stream.size());
  int changed = 0;
  for (std::size_t i = 0; i < stream.size(); ++i) {
    const int bits = __builtin_popcount(static_cast<unsigned char>(garbled[i] ^ stream[i]));
    EXPECT_LE(bits, 1);
    changed += bits;
  }
  EXPECT_GT(changed, 20);
  EXPECT_LT(changed, 400);
  EXPECT_EQ(UploadWith("drop:0", 7), stream);
  // The generator must give these on every machine, or recorded failures could not be replayed.
  Random random(7);
  EXPECT_EQ(random.Below(1000), 389U);
}

TEST(UnitFaults, OnceIsOver) {
  Bench bench({"refuse:upload", "cut:100", "once"});
  bench.Enter();
  EXPECT_EQ(bench.Say("/LU\r"), kRefused);
  EXPECT_EQ(bench.Say("/LU\r").size(), 100U);
  bench.Enter();
  EXPECT_EQ(bench.Say("/LU\r"), FactoryStream("V1400R12"));
}

// ---- command line, files, log

TEST(UnitOptions, WrongOnesNameOptionAndValue) {
  const std::vector<std::pair<std::vector<std::string_view>, std::string_view>> wrong{
      {{"--speed", "9601"}, "--speed 9601"},
      {{"--firmware", "V1400"}, "--firmware V1400"},
      {{"--speed"}, "--speed needs"},
      {{"--sped", "9600"}, "--sped: "},
      {{"--pace", "slow"}, "--pace slow"},
      {{"--help=1"}, "--help takes no value"},
      {{"--seed", "-1"}, "--seed -1"},
      {{"--history", "lines:x"}, "--history lines:x"},
      {{"--fault", "dorp:5"}, "--fault dorp:5"},
      {{"--fault", "drop"}, "--fault drop"},
      {{"--fault", "drop:x"}, "--fault drop:x"},
      {{"--fault", "drop:1001"}, "--fault drop:1001"},
      {{"--fault", "stall:5"}, "--fault stall:5"},
      {{"--fault", "refuse:enq"}, "--fault refuse:enq"},
      {{"--fault", "once:1"}, "--fault once:1"},
      {{"--fault", "silent:after=x"}, "--fault silent:after=x"},
      {{"--memory", ""}, "--memory : expected"},
      {{"extra"}, "extra: "},
  };
  for (const auto& [arguments, begin] : wrong) {
    const ParsedOptions parsed = ParseOptions(arguments);
    EXPECT_TRUE(parsed.error.starts_with(begin)) << begin << " / " << parsed.error;
  }
  const std::vector<std::string_view> right{"--speed=115200", "--fault", "stall:5,100", "--pace", "off"};
  const ParsedOptions parsed = ParseOptions(right);
  EXPECT_EQ(parsed.error, "");
  EXPECT_EQ(parsed.options.speed, 115200U);
  EXPECT_FALSE(parsed.options.paced);
  EXPECT_EQ(parsed.options.faults.size(), 1U);
}

TEST(UnitFiles, ImagesSurviveAndForeignOnesAreNamed) {
  std::string place = (std::filesystem::temp_directory_path() / "ovl_unit_XXXXXX").string();
  ASSERT_NE(::mkdtemp(place.data()), nullptr);
  const std::string path = place + "/unit.bin";
  const Firmware& firmware = Known("V1310R1");
  ASSERT_EQ(SaveImage(path, firmware, FactoryImage(firmware)), "");
  EXPECT_EQ(ReadFile(path).text, FactoryStream("V1310R1") + "\r\n");
  EXPECT_EQ(LoadImage(path, firmware).text, FactoryImage(firmware));
  EXPECT_TRUE(LoadImage(path, Known("V1400R12")).error.starts_with(path));
  ASSERT_EQ(WriteFile(path, FactoryStream("V1310R1") + "\r\n$"), "");
  EXPECT_NE(LoadImage(path, firmware).error, "");
  EXPECT_NE(LoadImage(place + "/none", firmware).error.find("/none: No such file"), std::string::npos);
  EXPECT_NE(SaveImage(place + "/none/unit.bin", firmware, FactoryImage(firmware)), "");
  ASSERT_EQ(WriteFile(path, "a\nb\r\n"), "");
  EXPECT_EQ(LoadHistory(path).text, "a\r\nb\r\n");
  ASSERT_EQ(WriteFile(path, "a\x06"), "");
  EXPECT_NE(LoadHistory(path).error, "");
  std::filesystem::remove_all(place);
}

TEST(UnitJournal, OneLineForEachTurnAndLongTextsShortened) {
  std::vector<std::string> lines;
  Journal journal([&lines](const std::string& line) { lines.push_back(line); });
  journal.Add(Journal::Side::kTool, "/L", 1s);
  journal.Add(Journal::Side::kTool, "U\r", 1s + 1ms);
  journal.Add(Journal::Side::kUnit, FactoryStream("V1310R1"), 2s);
  journal.Flush();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0], "      1.000 > /LU<CR>");
  EXPECT_TRUE(lines[1].starts_with("      2.000 < $77F0"));
  EXPECT_TRUE(lines[1].ends_with("<CR><LF> ... $7FF000# (65 lines, 4552 characters)"));
}

}  // namespace
}  // namespace unit
