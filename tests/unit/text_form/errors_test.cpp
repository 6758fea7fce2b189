// Text forms with errors: every error has its place and says what is allowed, and nothing is taken.
#include "text_form_fixture.h"

namespace ovl::testing {
namespace {

struct Broken {
  std::string_view text;  // behind the line of the format, so the first line is line 2
  std::string_view said;
};

constexpr Broken kBroken[] = {
    {R"([COMMUNICATION]
PARITY = EVEN
X = Y)",
     R"(3:10 "EVEN" is not allowed; allowed: a text in quotes, or a whole number of a list
4:5 "Y" is not allowed; allowed: a text in quotes, or a whole number of a list)"},
    {"x = {\"\"\"a\nb\"\"\"}", R"(2:6 wrong syntax: a text over several lines is not allowed)"},
    {"A.\"\"\"\n\"\\\uFCFF\n\"\"\"", R"(2:3 wrong syntax: a text over several lines is not allowed)"},
    {"A = \"x\"\"\"\"\n\"\\\uFCFF\n\"\"\"", R"(2:8 wrong syntax: a text over several lines is not allowed)"},
    {"A = 7{\"\u034A", R"(2:8 wrong syntax: letters other than A to Z are allowed only within quotes)"},
    {R"(complete = yes)", R"(2:12 "yes" is not allowed; allowed: true, false)"},
    {R"([COMMUNICATION
PARITY = "EVEN")",
     R"(2:15 wrong syntax)"},
    {R"([COMMUNICATION]
PARITY = EVEN)",
     R"(3:10 "EVEN" is not allowed; allowed: a text in quotes, or a whole number of a list)"},
    {R"([COMMUNICATION]
PARITY = "EVEN)",
     R"(3:15 wrong syntax)"},
    {R"([COMMUNICATION]
PARITY = 'EVEN'
PARITY = "ODD")",
     R"(4:1 "PARITY" is already on line 3)"},
    {R"([COMMUNICATION]
PARITY "EVEN")",
     R"(3:8 wrong syntax)"},
    {R"([COMMUNICATION]
PARITY = 1
[COMMUNICATION])",
     R"(3:10 "1" is not allowed for "PARITY"; allowed: "NONE", "EVEN", "ODD"
4:2 [COMMUNICATION] is already on line 2)"},
    {R"([COMMUNICATION]
PARITY = 'EVEN'
PARITY = 'ODD'
"TX BAUDRATE" = "\q")",
     R"(4:1 "PARITY" is already on line 3
5:19 wrong syntax)"},
    {R"(["Exception 1"]
text = "A"
DISPLAY = ON
["Exception 1"]
OPERATR = "IN"
[COMMUNICATION]
PARITY = "EVN")",
     R"(4:11 "ON" is not allowed; allowed: a text in quotes, or a whole number of a list
5:2 [Exception 1] is already on line 2
6:1 "OPERATR" is not a setting of [Exception 1]. Did you mean "OPERATOR"?
8:10 "EVN" is not allowed for "PARITY"; allowed: "NONE", "EVEN", "ODD". Did you mean "EVEN"?)"},
    {R"(["A\nB"]
["A\nB"])",
     R"(2:2 there is no table [A\u000AB]; allowed: one of 47, from "REGISTER SELECT" to "REMOTE"
3:2 [A\u000AB] is already on line 2)"},
    {R"([COMMUNICATION]
PARITY = "\q")",
     R"(3:12 wrong syntax)"},
    {"[\"Exception 1\"]\ntext = \"\xFF\"", R"(3:8 wrong syntax)"},
    {R"(format = 1)", R"(2:1 "format" is already on line 1)"},
    {R"(formt = 2)", R"(2:1 "formt" is in no table. Did you mean "format"?)"},
    {R"(PARITY = "EVEN")", R"(2:1 "PARITY" is in no table; allowed: "format", "firmware", "complete")"},
    {R"(complete = 1)", R"(2:12 1 is not allowed here; allowed: true, false)"},
    {R"(firmware = 1400.5)",
     R"(2:12 "1400.5" is not allowed; allowed: a text in quotes, or a whole number of a list)"},
    {R"([COMUNICATION]
PARITY = "EVEN")",
     R"(2:2 there is no table [COMUNICATION]. Did you mean "COMMUNICATION"?)"},
    {R"([comunication]
PARITY = "EVEN"
X = 1)",
     R"(2:2 there is no table [comunication]. Did you mean "COMMUNICATION"?)"},
    {R"([Fantasy]
PARITY = "EVEN")",
     R"(2:2 there is no table [Fantasy]; allowed: one of 47, from "REGISTER SELECT" to "REMOTE")"},
    {R"([COMMUNICATION]
[COMUNICATION])",
     R"(3:2 there is no table [COMUNICATION]. Did you mean "COMMUNICATION"?)"},
    {R"(["Exception 03"])", R"(2:2 there is no table [Exception 03]. Did you mean "Exception 3"?)"},
    {R"(["Exception 25"]
text = "A")",
     R"(2:2 there is no table [Exception 25]. Did you mean "Exception 24"?)"},
    {R"(["Alarm 0"]
text = "A")",
     R"(2:2 there is no table [Alarm 0]. Did you mean "Alarm 1"?)"},
    {R"([COMMUNICATION]
PARTY = "EVEN")",
     R"(3:1 "PARTY" is not a setting of [COMMUNICATION]. Did you mean "PARITY"?)"},
    {R"([COMMUNICATION]
parity = "EVEN")",
     R"(3:1 "parity" is not a setting of [COMMUNICATION]. Did you mean "PARITY"?)"},
    {R"([COMMUNICATION]
"LINES PER PAGE" = "3")",
     R"(3:1 "LINES PER PAGE" is not a setting of [COMMUNICATION]; allowed: "PARITY", "DATA BITS", "HW HANDSHAKING", "AUTO LINEFEED", "INTERFACE TYPE", "RX BAUDRATE", "TX BAUDRATE", "Network Settings, ADDRESS", "Network Settings, TYPE", "Network Settings, PROTOCOL", "TX PROTOCOL", "Network Settings, BAUD RATE", "SW HANDSHAKING")"},
    {R"([COMMUNICATION]
PARITY = "EVENN")",
     R"(3:10 "EVENN" is not allowed for "PARITY"; allowed: "NONE", "EVEN", "ODD". Did you mean "EVEN"?)"},
    {R"([COMMUNICATION]
PARITY = "MARK")",
     R"(3:10 "MARK" is not allowed for "PARITY"; allowed: "NONE", "EVEN", "ODD")"},
    {R"([COMMUNICATION]
PARITY = true)",
     R"(3:10 true is not allowed for "PARITY"; allowed: a text in quotes, or { bytes = "..." })"},
    {R"([COMMUNICATION]
PARITY = 2026-01-01)",
     R"(3:10 "2026-01-01" is not allowed; allowed: a text in quotes, or a whole number of a list)"},
    {R"([COMMUNICATION]
PARITY = ["EVEN"])",
     R"(3:10 a list is not allowed; allowed: a text in quotes)"},
    {R"(PARITY = { bytes = { bytes = 1 } })", "2:20 a table within a table is not allowed"},
    {R"([COMMUNICATION]
PARITY = 1.5)",
     R"(3:10 "1.5" is not allowed; allowed: a text in quotes, or a whole number of a list)"},
    {R"([COMMUNICATION]
PARITY = { byte = "01" })",
     R"(3:10 a table is not allowed for "PARITY"; allowed: a text in quotes, or { bytes = "..." })"},
    {R"([COMMUNICATION]
PARITY = { bytes = 1 })",
     R"(3:10 a table is not allowed for "PARITY"; allowed: a text in quotes, or { bytes = "..." })"},
    {R"([COMMUNICATION]
PARITY = { bytes = "04" })",
     R"(3:10 { bytes = "04" } is not allowed for "PARITY"; allowed: bytes such as "00")"},
    {R"([COMMUNICATION]
PARITY = { bytes = "0" })",
     R"(3:10 { bytes = "0" } is not allowed for "PARITY"; allowed: bytes such as "00")"},
    {R"([COMMUNICATION]
PARITY = { bytes = "0g" })",
     R"(3:10 { bytes = "0g" } is not allowed for "PARITY"; allowed: bytes such as "00")"},
    {R"([COMMUNICATION]
PARITY = { digits = "01" })",
     R"(3:10 { digits = "01" } is not allowed for "PARITY"; allowed: a text in quotes, or { bytes = "..." })"},
    {R"([COMMUNICATION]
"RX BAUDRATE" = 1000000)",
     R"(3:17 "1000000" is not allowed for "RX BAUDRATE"; allowed: "1200", "2400", "4800", "9600", "14400", "19200", "28800", "38400", "57600", "115200", "AUTO")"},
    {R"([COMMUNICATION]
"RX BAUDRATE" = "9601")",
     R"(3:17 "9601" is not allowed for "RX BAUDRATE"; allowed: "1200", "2400", "4800", "9600", "14400", "19200", "28800", "38400", "57600", "115200", "AUTO". Did you mean "9600"?)"},
    {R"(["TEXT SETUP"]
"SCREEN BLANK" = { bytes = "FF" })",
     R"(3:18 { bytes = "FF" } is not allowed for "SCREEN BLANK"; allowed: bytes such as "56 B1 11")"},
    {R"(["TEXT SETUP"]
"DISPLAY CHARACTER / LINE" = 41)",
     R"(3:30 "41" is not allowed for "DISPLAY CHARACTER / LINE"; allowed: one of 31, from "10" to "40". Did you mean "40"?)"},
    {R"(["Exception 1"]
text = "12345678901234567890123456789012345678901")",
     R"(3:8 "12345678901234567890123456789012345678901" is not allowed for "text"; allowed: a text of at most 40 characters)"},
    {R"(["Exception 1"]
text = "A\u0000B")",
     R"(3:8 "A\u0000B" is not allowed for "text"; allowed: a text without the character 0)"},
    {R"(["Exception 1"]
text = "A\u009BB")",
     R"(3:8 "\u009B" is not a character of the unit; allowed: those of Windows-1252)"},
    {R"(["Exception 1"]
text = "\u4E2D")",
     R"(3:8 "中" is not a character of the unit; allowed: those of Windows-1252)"},
    {R"(["Exception 1"]
RANGE = "5")",
     R"(3:9 "5" is not allowed for "RANGE"; allowed: two values such as "0.00 - 100.00", with 8 digits at most before the separator and two after it)"},
    {R"(["Exception 1"]
RANGE = "1.0 - 2.00")",
     R"(3:9 "1.0 - 2.00" is not allowed for "RANGE"; allowed: two values such as "0.00 - 100.00", with 8 digits at most before the separator and two after it)"},
    {R"(["Exception 1"]
RANGE = "123456789.00 - 2.00")",
     R"(3:9 "123456789.00 - 2.00" is not allowed for "RANGE"; allowed: two values such as "0.00 - 100.00", with 8 digits at most before the separator and two after it)"},
    {R"(["Exception 1"]
RANGE = "-1.00 - 2.00")",
     R"(3:9 "-1.00 - 2.00" is not allowed for "RANGE"; allowed: two values such as "0.00 - 100.00", with 8 digits at most before the separator and two after it)"},
    {R"(["Exception 2"]
OPERATOR = "AND")",
     R"(3:12 "AND" is not allowed for "OPERATOR"; allowed: "NONE", "IN", "OUT". Did you mean "IN"?)"},
    {R"(["TIME / LANGUAGE"]
TITLE = "12345678901234567890123456789012345678901")",
     R"(3:9 "12345678901234567890123456789012345678901" is not allowed for "TITLE"; allowed: a text of at most 40 characters, without a blank at its ends)"},
    {R"(["REGISTER SELECT"]
Register = "GENRIC")",
     R"(3:12 "GENRIC" is not allowed for "Register"; allowed: one of 111, from "GENERIC" to "WEIGH SCALE". Did you mean "GENERIC"?)"},
    {R"(["REGISTER SELECT"]
Register = "ADS"
Display = "RECIEPT")",
     R"(4:11 "RECIEPT" is not allowed for "Display"; allowed: "RECEIPT", "JOURNAL". Did you mean "RECEIPT"?)"},
    {R"(["REGISTER SELECT"]
Register = "ADS"
Scale = "AVERY")",
     R"(4:1 "Scale" is not an option of this register, or does not fit its other options; allowed: "Register", "Display")"},
    {R"(["REGISTER SELECT"]
Register = "ADS"
Displai = "RECEIPT")",
     R"(4:1 "Displai" is not a setting of [REGISTER SELECT]. Did you mean "Display"?)"},
    {R"(["REGISTER SELECT"]
Register = "TCPIP"
"IP ADDRESS 1" = 256)",
     R"(4:18 "256" is not allowed for "IP ADDRESS 1"; allowed: one of 256, from "0" to "255". Did you mean "255"?)"},
    {R"(["REGISTER SELECT"]
Register = "DRESSER WAYNE"
"Point of sale" = "x"
Terminal = "y")",
     R"(4:19 "x" is not allowed for "Point of sale"; allowed: "JOURNAL PRINTER", "RECEIPT PRINTER"
5:12 "y" is not allowed for "Terminal"; allowed: "TERMINAL 1", "TERMINAL 2", "TERMINAL 3", "TERMINAL 4", "TERMINAL 5", "TERMINAL 6", "TERMINAL 7", "TERMINAL 8")"},
    {R"(["Other bytes"]
EXECENTRI = "00")",
     R"(3:1 "EXECENTRI" is not a field of V1400 R12. Did you mean "EXECENTRY"?)"},
    {R"(["Other bytes"]
EXECENTRY = "0000")",
     R"(3:13 "0000" is not allowed here; allowed: at most 1 byte of two digits 0 to 9 and A to F)"},
    {R"(["Other bytes"]
EXECENTRY = "0")",
     R"(3:13 "0" is not allowed here; allowed: at most 1 byte of two digits 0 to 9 and A to F)"},
    {R"(["Other bytes"]
EXECENTRY = "ag")",
     R"(3:13 "ag" is not allowed here; allowed: at most 1 byte of two digits 0 to 9 and A to F)"},
    {R"(["Other bytes"]
EXECENTRY = { bytes = "00" })",
     R"(3:13 { bytes = "00" } is not allowed here; allowed: at most 1 byte of two digits 0 to 9 and A to F)"},
    {R"(["Other bytes"]
RX_BAUDRATE = "03")",
     R"(3:15 "03" has bits that other lines store)"},
    {R"-(["Other bytes"]
"EXCPSTRS(25)" = "00")-",
     R"-(3:1 "EXCPSTRS(25)" is not a field of V1400 R12. Did you mean "EXCPSTRS(24)"?)-"},
    {R"(["Other bytes"]
"EXCPSTRS" = "00")",
     R"(3:1 "EXCPSTRS" is not a field of V1400 R12; allowed: one of 170, from "ALMCFG_BAK" to "XATMNOTX")"},
    {"[=COMMUNICATION]", "2:2 wrong syntax"},
    {"[ .]", "2:3 wrong syntax"},
    {"[[#", "2:2 wrong syntax"},
    {R"(Größe = 1)", "2:3 wrong syntax: letters other than A to Z are allowed only within quotes"},
    {R"(PARITY = "ö\"" # ö
EVEN = 'ö\' ü)",
     "2:1 \"PARITY\" is in no table; allowed: \"format\", \"firmware\", \"complete\"\n"
     "3:13 wrong syntax: letters other than A to Z are allowed only within quotes"},
    {R"(PARITY = 00"ö")", "2:13 wrong syntax: letters other than A to Z are allowed only within quotes"},
    {R"(["REGISTER SELECT"]
Register = "BLEP"
Model = "TS5000")",
     R"(3:12 "BLEP" is not allowed for "Register"; allowed: one of 111, from "GENERIC" to "WEIGH SCALE". Did you mean "BLEEP"?)"},
    {R"(X = 1
[COMMUNICATION]
PARITY = 'EVN'
"TX BAUDRATE" = 09600
["Other bytes"]
EXECENTRY = 'zz')",
     R"(2:1 "X" is in no table; allowed: "format", "firmware", "complete"
4:10 "EVN" is not allowed for "PARITY"; allowed: "NONE", "EVEN", "ODD". Did you mean "EVEN"?
5:17 "09600" is not allowed; allowed: a text in quotes, or a whole number of a list
7:13 "zz" is not allowed here; allowed: at most 1 byte of two digits 0 to 9 and A to F)"},
    {R"(PARITY = 0x1F)",
     R"(2:10 "0x1F" is not allowed; allowed: a text in quotes, or a whole number of a list)"},
    {R"(["Other bytes"]
EXECENTRY = 10)",
     R"(3:13 10 is not allowed here; allowed: at most 1 byte of two digits 0 to 9 and A to F)"},
    {R"(complete = true
["Other bytes"]
EXECENTRY = { digits = "$#" })",
     R"(4:13 { digits = "$#" } is not allowed here; allowed: at most 1000 characters of Windows-1252, without "#" and ends of lines)"},
    {R"(["TIME / LANGUAGE"]
TITLE = 7)",
     R"(3:9 7 is not allowed for "TITLE"; allowed: a text in quotes, or { bytes = "..." })"},
    {R"(PARITY = """EVEN""")", "2:10 wrong syntax: a text over several lines is not allowed"},
    {R"(["Other bytes"]
RX_BAUDRATE = "00")",
     R"(3:15 "00" has bits that other lines store)"},
    {R"(["Other bytes"]
COMMCFG_BAK = { digits = "00" })",
     R"(3:15 { digits = "00" } is allowed only with the line "complete = true")"},
    {R"(["REGISTER SELECT"]
Register = "BLEEP"
Model = "TS5000"
["Other bytes"]
REGTYPE_MINOR = "01")",
     R"(6:17 "01" has bits that an option stores)"},
    {R"(firmware = "V9999 R9")",
     R"(2:12 "V9999 R9" is not a firmware of this program; allowed: one of 29, from "V1400 R1" to "V1334 R1")"},
    {R"(firmware = "V1400 R13")",
     R"(2:12 "V1400 R13" is not a firmware of this program. Did you mean "V1400 R12"?)"},
    {R"(firmware = "V1300 R14"
[COMMUNICATION]
PARITY = { bytes = "00" })",
     R"(2:12 the text is of V1300 R14, this program uses V1400 R12
4:10 the program does not use the bytes of another firmware)"},
    {R"([""]
complete = true)",
     R"(2:2 there is no table [""]; allowed: one of 47, from "REGISTER SELECT" to "REMOTE")"},
    {R"(["Alarm 1"]
text = " DOOR")",
     R"(3:8 " DOOR" is not allowed for "text"; allowed: a text of at most 40 characters, without a blank at its ends)"},
    {R"(complete = true
[COMMUNICATION]
PARITY = "EVEN")",
     R"(2:1 "Register" of [REGISTER SELECT] and 330 others are missing. Without the line "complete = true", settings that the text does not name keep their values)"},
    {R"([COMMUNICATION]
PARITY = "MARK"
["Exception 1"]
txt = "A"
["Alarm 3"]
"ALARM TYPE" = "X")",
     R"(3:10 "MARK" is not allowed for "PARITY"; allowed: "NONE", "EVEN", "ODD"
5:1 "txt" is not a setting of [Exception 1]. Did you mean "text"?
7:16 "X" is not allowed for "ALARM TYPE"; allowed: "DWELL", "TIMED")"},
};

TEST_F(TextForm, EveryErrorHasItsPlaceAndWhatIsAllowed) {
  for (const auto& broken : kBroken) {
    const auto said = ProblemsIn("format = 1\n" + std::string(broken.text));
    // The library's own words for the syntax differ between its versions.
    if (broken.said.ends_with("wrong syntax")) {
      EXPECT_TRUE(said.starts_with(broken.said)) << broken.text << '\n' << said;
    } else {
      EXPECT_EQ(said, std::string(broken.said) + "\n") << broken.text;
    }
  }
  // A name of many parts, which would end the library, and many errors.
  std::string name = "a";
  for (int part = 0; part < 30'000; ++part) name += ".a";
  EXPECT_EQ(ProblemsIn("format = 1\n" + name + " = 1"), "2:1 the line has too many points\n");
  const auto longest = "format = 1\n#" + std::string(999'988, ' ');
  EXPECT_EQ(ProblemsIn(longest), "");
  EXPECT_EQ(ProblemsIn(longest + ' '), "1:1 the file is too large for a text form\n");
  std::string fields = "format = 1\n['Other bytes']\n";
  for (int field = 0; field < 1500; ++field) fields += "X" + std::to_string(field) + " = '00'\n";
  const auto many = Read(fields).problems;
  EXPECT_EQ(many.size(), 1001U);
  EXPECT_EQ(many.back().words, "and 500 more");
  EXPECT_EQ(ProblemsIn(""), "1:1 the line \"format = 1\" is missing\n");
  for (const std::string later : {"2", "+2"}) {
    EXPECT_EQ(ProblemsIn("format = " + later + "\nfuture = [1]"),
              "1:10 format " + later + " is not known; this program reads format 1\n");
  }
}

}  // namespace
}  // namespace ovl::testing
