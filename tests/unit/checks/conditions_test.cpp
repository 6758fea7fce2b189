// The conditions of the rules, one by one: what else a rule finds, and what it leaves alone next to that.
#include <gtest/gtest.h>

#include "unit/checks/check_acts.h"

namespace ovl::testing {
namespace {

// Acts on a new configuration, and how many findings of the rule they bring.
struct Near {
  const char* id;
  std::size_t found;
  std::string acts;
  firmware::FirmwareId firmware = kLatest;
};

std::string Held(int number, int flags, const std::string& text, const std::string& range = kZeros) {
  return "set EXCPSTRS(" + std::to_string(number) + ") " + Slot(flags, range, text) + "\n";
}

std::vector<Near> NearRows() {
  const std::string falling = "00000002000000000100", first = "0000000100" + std::string(10, '0');
  const auto with_length = [](int number, std::string slot, const char* length) {
    return "set EXCPSTRS(" + std::to_string(number) + ") " + slot.replace(22, 2, length) + "\n";
  };
  const auto text = Text("cmdSetTrigger", "DOOR");
  const std::string shown = "pick ComboTrigger(0) 1\n", sent = "pick ComboTrigger(1) 1\n";
  const std::string by_rts = "pick ComboALM(1) \"RTS\"\n",
                    blanks = codecs::TextToHex(std::string(40, ' ')) + "00\n";
  return {
      {"range-order", 0, Held(3, 0x14, "", falling) + Held(4, 0x01, "VOID", falling)},
      {"range-digits", 1,
       Held(3, 0x10, "", "0000000A" + std::string(12, '0')) + Held(4, 0x01, "X", std::string(20, '9')) +
           Held(5, 0x01, "Y", std::string(10, '0') + "A" + std::string(9, '0'))},
      {"text-length", 1,
       with_length(3, Slot(0x10, kZeros, ""), "05") + with_length(4, Slot(0x01, kZeros, "VOID"), "03")},
      {"blank-exception", 5,
       Held(3, 0x12, "") + Held(4, 0x30, "") + Held(5, 0x50, "") + Held(6, 0x14, "") + Held(24, 0x00, "")},
      {"exception-without-effect", 0,
       Held(13, 0x01, "A") + Held(14, 0x02, "B") + Held(15, 0x40, "C") + Exception(12, "X") + Alarm(16) +
           "pick ComboALM(1) \"1-12\"\n"},
      {"exception-twice", 1,
       Held(1, 0x05, "A") + Held(2, 0x09, "A") + Held(3, 0x01, "B", first) + Held(4, 0x01, "B") +
           Held(5, 0x01, "C") + Held(6, 0x11, "C") + Held(7, 0x11, "D") + Held(8, 0x01, "D")},
      {"matches-everything", 1, Exception(3, "? ?")},
      {"blank-in-front", 0, Held(3, 0x11, " A")},
      {"scroll-matching-alone", 2, Held(3, 0x41, "A") + Held(4, 0x60, "B") + Held(5, 0x03, "C")},
      {"range-without-operator", 1, Held(3, 0x10, "", first) + Held(4, 0x01, "X", first)},
      {"operator-without-range", 0, Held(3, 0x14, "")},
      {"display-off", 0, Held(3, 0x01, "A")},
      {"display-off", 0, Held(3, 0x11, "") + "pick ComboDIP(6) \"OFF\"\n"},
      {"text-never-comes", 2,
       Alarm(1) + text + shown + Alarm(16) + text + shown + Alarm(3) + shown + Alarm(4) + text},
      {"text-never-comes", 1, Alarm(2) + text + sent + "set ALMSTRUCT_BAK(2) 00FF0101\n", kOld},
      {"text-unused", 0, Alarm(2) + by_rts + Alarm(3) + text},
      {"blank-trigger-text", 2, Alarm(2) + sent + "set TRIGGER_TEXT(3) 00" + blanks},
      {"trigger-text-display-off", 0, Alarm(2) + text + by_rts + shown},
      {"trigger-text-display-off", 0,
       Alarm(2) + text + shown + Alarm(3) + by_rts + shown + "pick ComboDIP(6) \"OFF\"\n"},
      {"delay-without-rts", 1, Alarm(2) + "pick ComboTrigger(2) 1\npick ComboALM(1) \"5\"\n"},
      {"flag-without-duration", 1, "pick ComboALM(4) 1\n"},
      {"flag-without-duration", 0, "pick ComboALM(4) 1\nset FLAGDWLIND F2\n"},
      {"slave-without-address", 0, "set NET_TYPE 02\nset NET_ADDRESS 40\n"},
      {"network-speed", 1, "set NET_TYPE 01\nset NET_PROTOCOL 01\nset NET_BAUDRATE 09\n"},
      {"no-ip-address", 0, "pick ComboReg \"TCPIP\"\nset IPADDRESS(1) 0A\n"},
      {"not-as-picked", 0, "pick ComboTD(0) \"ON\"\nset DSPLINES_BAK 01\n"},
      {"not-as-picked", 0, "set NET_TYPE 01\nset NET_ADDRESS 11\nset NET_BAUDRATE 03\n"},
      {"title-off", 0, "set ONSCRNTITL " + blanks},
      {"value-without-entry", 2, "set ALMSTRUCT_BAK(15) 1DFF0000\nset ALMSTRUCT_BAK(16) 1DFF0000\n"},
      {"value-without-entry", 1, "set BLNKVAL EE\nset BLNKIND EE\n"},
      {"download-shifted", 1, "set EXCPSTRS(5) 10\nset EXCPSTRS(6) 10\n"},
      {"image-of-other-register", 0,
       "pick ComboReg \"IBM\"\npick ComboCOMM(3) \"ODD\"\nset SITE_NO_BAK 07\n"},
  };
}

TEST(Checks, AskForEachConditionOfARule) {
  for (const auto& row : NearRows()) {
    AdviceProgram program(row.firmware);
    program.Run(row.acts);
    EXPECT_EQ(FindingsIn(program, row.id).size(), row.found) << row.id << "\n" << row.acts;
  }
}

}  // namespace
}  // namespace ovl::testing
