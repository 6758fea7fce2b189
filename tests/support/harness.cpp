#include "support/harness.h"

#include <random>
#include <stdexcept>
#include <utility>

#include "host/files.h"
#include "image/record_stream.h"
#include "start/start_up.h"
#include "support/control_characters.h"
#include "support/firmware_facts.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

constexpr const char* kDevice = "line of the test";

template <class Thing>
Thing TakeFrom(std::deque<Thing>& things) {
  if (things.empty()) return {};
  auto first = std::move(things.front());
  things.pop_front();
  return first;
}

std::string PatternDigits(const firmware::FirmwareId& firmware, int seed, int register_code) {
  const auto& stream = FactsOf(firmware).stream;
  std::string digits;
  for (int byte = seed; digits.size() < stream.digits; byte = (byte * 5 + 3) % 256)
    digits += codecs::ByteToHex(byte);
  if (!firmware.IsV1400()) {
    const bool without_ip = firmware.version == "V1324" && firmware.Number() < 19;
    const std::size_t used = stream.digits != 4066 ? 160 : (without_ip ? 146 : 154);
    digits.replace(64, 32, 32, '0');
    digits.replace(96 + used, 192 - used, 192 - used, '0');
  }
  return digits.replace(stream.syscfg, 2, codecs::ByteToHex(register_code));
}

// Puts the records that a load shows into the form in which the panels store them.
void PutInOrder(const firmware::FirmwareId& firmware, std::string& digits) {
  const bool v1400 = firmware.IsV1400();
  const std::size_t size = digits.size();
  const auto& stream = FactsOf(firmware).stream;
  const std::size_t fixed = stream.syscfg + ((v1400 ? size >= 4322 : size == 4098) ? 36 : 32);
  const std::size_t strings = stream.syscfg + stream.sysfixed;
  const std::size_t slot = v1400 ? 106 : 98, record = v1400 ? 8 : 6;
  const auto put = [&](std::size_t at, const std::string& value) { digits.replace(at, value.size(), value); };
  put(fixed, "10");
  const auto text = "VOID" + std::string(36, ' ');
  const std::string rest(72, '0');
  for (std::size_t shown = 0; shown < 2; ++shown) {
    put(fixed + 2 + shown * record, v1400 ? "01FF0000" : "01FF00");
    put(strings + 82 + shown * slot,
        "01" + std::string(v1400 ? 20 : 12, '1') + codecs::TextToCountedHex(text));
    put(strings + 82 + 24 * slot + shown * 84, "01" + codecs::TextToHex("ALARM") + rest);
  }
  put(strings, codecs::TextToHex("TITLE") + rest);
}

}  // namespace

// The name has slashes on every system, like those of File.
TemporaryFolder::TemporaryFolder() {
  std::random_device number;
  do {
    path_ = (fs::temp_directory_path() / ("ovl-test-" + std::to_string(number()))).generic_string();
  } while (!fs::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

std::string RawPatternStream(const firmware::FirmwareId& firmware, int seed, int register_code) {
  return image::BlockRecords(PatternDigits(firmware, seed, register_code), image::WriteRegion(firmware));
}

std::string PatternStream(const firmware::FirmwareId& firmware, int seed, int register_code) {
  auto digits = PatternDigits(firmware, seed, register_code);
  PutInOrder(firmware, digits);
  return image::BlockRecords(digits, image::WriteRegion(firmware));
}

std::string ReadFile(const std::string& path) {
  return host::ReadFile(path);
}

void WriteFile(const std::string& path, std::string_view bytes) {
  host::ReplaceFile(path, bytes, host::Flush::kNo);
}

Harness::Harness(const firmware::FirmwareId& firmware, const std::vector<std::string>& further_registers) {
  settings["Version"] = firmware.version;
  settings["Release"] = firmware.release;
  const auto images = folder.Path() / firmware.version / firmware.release;
  fs::create_directories(images);
  auto names = further_registers;
  names.insert(names.begin(), "GENERIC");
  int code = 0;
  for (const auto& name : names) {
    WriteFile((images / (name + ".bin")).string(), PatternStream(firmware, code + 1, code) + "\r\n");
    ++code;
  }
  FillPlatform();
}

void Harness::FillPlatform() {
  auto& platform = app.platform;
  platform.program_folder = folder.Path().string();
  platform.show_message = [this](const core::MessageBox& box) { boxes.push_back(box); };
  platform.ask_file = [this](const core::FileDialog& dialog) -> std::optional<core::FileAnswer> {
    dialogs.push_back(dialog);
    const auto answer = TakeFrom(file_answers);
    return answer ? std::optional(core::FileAnswer{*answer, 0}) : std::nullopt;
  };
  platform.read_setting = [this](auto key, auto value) -> std::optional<core::SettingValue> {
    const auto found = settings.find(value);
    if (key != "SOFTWARE\\ORB\\OVL Software" || found == settings.end()) return std::nullopt;
    return found->second;
  };
  platform.write_setting = [this](std::string_view, std::string_view value, std::string_view text) {
    settings[std::string(value)] = std::string(text);
    return true;
  };
  platform.clock = [this] { return now; };
  platform.SetWindowPos = [](std::string_view) {};

  platform.files = host::DiskFiles(host::Flush::kNo);

  auto& serial = platform.serial;
  serial.open = [this](const core::LineSettings& line) -> core::Result {
    if (open_error) return core::Failure(kDevice, *open_error);
    line_open_ = true;
    opened.push_back("COM" + std::to_string(line.port) + ":" + line.text);
    return {};
  };
  serial.close = [this] {
    line_open_ = false;
    incoming_.clear();
  };
  serial.write = [this](std::string_view text) -> core::Result {
    if (line_error) return core::Failure(kDevice, *line_error);
    sent_ += text;
    wrote_ = true;
    return {};
  };
  serial.read = [this] { return TakeFrom(incoming_); };
  serial.clear_input = [this] { incoming_.clear(); };
  serial.clear_output = [] {};
}

core::Outcome Harness::Start() {
  return start::StartProgram(app);
}

void Harness::OpenAndHold() {
  for (const auto* button : {"cmdConnect", "cmdSET", "CmdUpDow(4)"}) Click(button);
  Unit(kAck);
  Tick(app.frmMain.General_timer);
  TakeSent();
}

const controls::ControlRef& Harness::Known(std::string_view name) const {
  const auto* found = app.registry.Find(name);
  if (found == nullptr) throw std::invalid_argument("no control " + std::string(name));
  return found->control;
}

core::Outcome Harness::Tick(controls::Timer& timer, int count) {
  auto outcome = core::Outcome::kDone;
  for (int tick = 0; tick < count; ++tick) outcome = Dispatch(app, core::TickEvent{&timer});
  return outcome;
}

void Harness::Unit(std::string_view text) {
  for (const char character : text) {
    if (!line_open_) return;
    incoming_.emplace_back(1, character);
    Dispatch(app, core::ReceivedEvent{});
  }
}

void Harness::Drain(int count) {
  for (int event = 0; event < count; ++event) Dispatch(app, core::DrainedEvent{});
}

void Harness::DrainAll() {
  do {
    wrote_ = false;
    Dispatch(app, core::DrainedEvent{});
  } while (wrote_);
}

core::MessageBox Harness::TakeBox() {
  return TakeFrom(boxes);
}

}  // namespace ovl::testing
