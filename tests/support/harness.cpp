#include "support/harness.h"

#include <stdlib.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>

#include "image/files.h"
#include "image/record_stream.h"
#include "start_up.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

std::size_t FirstDigitOfRegisterCode(const FirmwareId& firmware) {
  return firmware.version == "V1400" ? 64 : 96;
}

}  // namespace

std::size_t DigitsOfImage(const FirmwareId& firmware) {
  const int release = firmware.Number();
  if (firmware.version == "V1400") {
    if (release < 6) return 4272;
    if (release == 6) return 4304;
    return release == 7 ? 4322 : 4324;
  }
  const bool old =
      (firmware.version == "V1300" && release < 26) || (firmware.version == "V1324" && release < 25);
  return old ? 4066 : 4098;
}

TemporaryFolder::TemporaryFolder() {
  std::string name = (fs::temp_directory_path() / "ovl-test-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
  path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

Locked::Locked(std::string path) : path_(std::move(path)) {
  fs::permissions(path_, fs::perms::none);
  constexpr uid_t kNobody = 65534;
  if (geteuid() == 0 && seteuid(kNobody) != 0) throw std::runtime_error("no ordinary user");
}

Locked::~Locked() {
  if (getuid() == 0) static_cast<void>(!seteuid(0));
  std::error_code ignored;
  fs::permissions(path_, fs::perms::owner_all, ignored);
}

namespace {

std::string PatternDigits(const FirmwareId& firmware, int seed, int register_code) {
  std::string digits;
  int byte = seed;
  for (std::size_t place = 0; place < DigitsOfImage(firmware); place += 2) {
    digits += ByteToHex(byte);
    byte = (byte * 5 + 3) % 256;
  }
  if (firmware.version != "V1400") {
    for (std::size_t place = 64; place < 96; ++place) digits[place] = '0';
    const bool old = DigitsOfImage(firmware) == 4066;
    const bool without_ip = firmware.version == "V1324" && firmware.Number() < 19;
    const std::size_t used = old ? (without_ip ? 73 : 77) : 80;
    for (std::size_t place = 96 + 2 * used; place < 96 + 192; ++place) digits[place] = '0';
  }
  return digits.replace(FirstDigitOfRegisterCode(firmware), 2, ByteToHex(register_code));
}

std::string Filled(const std::string& text, std::size_t digits) {
  auto hex = TextToHex(text);
  hex.resize(digits, '0');
  return hex;
}

// What the panels show after a load, in the form in which they would store it themselves.
void PutInOrder(const FirmwareId& firmware, std::string& digits) {
  const bool v1400 = firmware.version == "V1400";
  const std::size_t size = digits.size();
  const bool extended = v1400 ? size >= 4322 : size == 4098;
  const std::size_t fixed = v1400 ? 64 : 96;
  const std::size_t strings = v1400 ? (size < 4322 ? 270 : (size == 4322 ? 288 : 290)) : 288;
  const std::size_t slot = v1400 ? 106 : 98;
  const std::size_t record = v1400 ? 8 : 6;
  const auto put = [&](std::size_t at, const std::string& value) { digits.replace(at, value.size(), value); };
  put(fixed + (extended ? 36 : 32), "10");
  std::string text = "VOID";
  text.resize(40, ' ');
  for (std::size_t shown = 0; shown < 2; ++shown) {
    put(fixed + (extended ? 38 : 34) + shown * record, v1400 ? "01FF0000" : "01FF00");
    put(strings + 82 + shown * slot, "01" + std::string(v1400 ? 20 : 12, '1') + TextToCountedHex(text));
    put(strings + 82 + 24 * slot + shown * 84, "01" + Filled("ALARM", 82));
  }
  put(strings, Filled("TITLE", 82));
}

}  // namespace

std::string RawPatternStream(const FirmwareId& firmware, int seed, int register_code) {
  return BlockRecords(PatternDigits(firmware, seed, register_code), WriteRegion(firmware));
}

std::string PatternStream(const FirmwareId& firmware, int seed, int register_code) {
  auto digits = PatternDigits(firmware, seed, register_code);
  PutInOrder(firmware, digits);
  return BlockRecords(digits, WriteRegion(firmware));
}

Harness::Harness(const FirmwareId& firmware, const std::vector<std::string>& further_registers) {
  settings["Version"] = firmware.version;
  settings["Release"] = firmware.release;
  const auto images = folder.Path() / firmware.version / firmware.release;
  fs::create_directories(images);
  WriteWhole((images / "GENERIC.bin").string(), PatternStream(firmware) + "\r\n");
  int code = 1;
  for (const auto& name : further_registers) {
    WriteWhole((images / (name + ".bin")).string(), PatternStream(firmware, code + 1, code) + "\r\n");
    ++code;
  }
  FillPlatform();
}

void Harness::FillPlatform() {
  auto& platform = app.platform;
  platform.program_folder = folder.Path().string();
  platform.show_message = [this](const MessageBox& box) { boxes.push_back(box); };
  platform.ask_file = [this](const FileDialog& dialog) -> std::optional<FileAnswer> {
    dialogs.push_back(dialog);
    if (file_answers.empty()) return std::nullopt;
    const auto answer = file_answers.front();
    file_answers.pop_front();
    if (!answer) return std::nullopt;
    return FileAnswer{*answer, 0};
  };
  platform.read_setting = [this](std::string_view key,
                                 std::string_view value) -> std::optional<SettingValue> {
    const auto found = settings.find(value);
    if (key != "SOFTWARE\\ORB\\OVL Software" || found == settings.end()) return std::nullopt;
    return found->second;
  };
  platform.write_setting = [this](std::string_view, std::string_view value, std::string_view text) {
    if (store_writable) settings[std::string(value)] = std::string(text);
    return store_writable;
  };
  platform.clock = [this] { return now; };
  platform.SetWindowPos = [](std::string_view) {};

  auto& serial = platform.serial;
  serial.open = [this](const LineSettings& line) -> SerialLine::Error {
    if (open_error) return open_error;
    line_open_ = true;
    opened.push_back("COM" + std::to_string(line.port) + ":" + line.text);
    return std::nullopt;
  };
  serial.close = [this] {
    line_open_ = false;
    incoming_.clear();
  };
  serial.write = [this](std::string_view text) -> SerialLine::Error {
    if (line_error) return line_error;
    sent_ += text;
    wrote_ = true;
    return std::nullopt;
  };
  serial.read = [this] {
    if (incoming_.empty()) return std::string();
    const std::string character(1, incoming_.front());
    incoming_.pop_front();
    return character;
  };
  serial.clear_input = [this] { incoming_.clear(); };
  serial.clear_output = [] {};
}

Outcome Harness::Start() {
  return StartProgram(app);
}

void Harness::OpenAndHold() {
  Click("cmdConnect");
  Click("cmdSET");
  Click("CmdUpDow(4)");
  Unit("\x06");
  Tick(app.frmMain.General_timer);
  TakeSent();
}

Face& Harness::Control(std::string_view name) {
  const auto* found = app.registry.Find(name);
  if (found == nullptr) throw std::invalid_argument("no control " + std::string(name));
  return FaceOf(found->control);
}

Outcome Harness::Click(std::string_view name) {
  Control(name);
  return Dispatch(app, ClickEvent{app.registry.Find(name)->control});
}

Outcome Harness::Pick(std::string_view name, int position) {
  Control(name);
  return Dispatch(app, PickEvent{app.registry.Find(name)->control, position});
}

Outcome Harness::Tick(Timer& timer, int count) {
  auto outcome = Outcome::kDone;
  for (int tick = 0; tick < count; ++tick) outcome = Dispatch(app, TickEvent{&timer});
  return outcome;
}

void Harness::Unit(std::string_view text) {
  for (const char character : text) {
    if (!line_open_) return;
    incoming_.push_back(character);
    Dispatch(app, ReceivedEvent{});
  }
}

void Harness::Drain(int count) {
  for (int event = 0; event < count; ++event) Dispatch(app, DrainedEvent{});
}

void Harness::DrainAll() {
  do {
    wrote_ = false;
    Dispatch(app, DrainedEvent{});
  } while (wrote_);
}

std::string Harness::TakeSent() {
  return std::exchange(sent_, {});
}

MessageBox Harness::TakeBox() {
  if (boxes.empty()) return {};
  auto box = boxes.front();
  boxes.pop_front();
  return box;
}

}  // namespace ovl::testing
