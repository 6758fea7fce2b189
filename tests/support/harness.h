// A program without windows: the model with a platform that records all requests and simulates the serial
// port.
#pragma once

#include <deque>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/gate.h"

namespace ovl::testing {

// A temporary folder. It is removed at the end of the test.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(TemporaryFolder&&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  // With slashes on every system, as the program names its files.
  std::string File(std::string_view below) const { return (path_ / below).generic_string(); }

 private:
  std::filesystem::path path_;
};

// Denies access to the file as long as the object exists. A superuser becomes an ordinary user meanwhile.
class Locked {
 public:
  explicit Locked(const std::string& path);
  Locked(Locked&&) = delete;

 private:
  std::shared_ptr<void> lock_;
};

// A stream of the firmware with this register code. The seed decides all other bytes.
std::string RawPatternStream(const firmware::FirmwareId& firmware, int seed = 1, int register_code = 0);

// The same stream with a title, exceptions and alarms in the form in which the panels store them, so that a
// load changes nothing.
std::string PatternStream(const firmware::FirmwareId& firmware, int seed = 1, int register_code = 0);

// As the program reads and replaces files, but without flushing them.
std::string ReadFile(const std::string& path);
void WriteFile(const std::string& path, std::string_view bytes);

class Harness {
 public:
  // Writes default images for the first register and for the further ones, and the settings.
  explicit Harness(const firmware::FirmwareId& firmware,
                   const std::vector<std::string>& further_registers = {});

  core::Outcome Start();
  // Opens the port and enters remote mode.
  void OpenAndHold();

  core::Outcome Click(std::string_view name) { return Dispatch(app, core::ClickEvent{Known(name)}); }
  core::Outcome Pick(std::string_view name, int position) {
    return Dispatch(app, core::PickEvent{Known(name), position});
  }
  core::Outcome Tick(controls::Timer& timer, int count = 1);
  // The program receives the characters one by one. A closed port loses them.
  void Unit(std::string_view text);
  // The transmitter becomes empty: `count` times, or until the program writes nothing more.
  void Drain(int count);
  void DrainAll();

  // The characters written since the last call.
  std::string TakeSent() { return std::exchange(sent_, {}); }
  // The oldest message box that was not taken yet, or an empty one.
  core::MessageBox TakeBox();
  bool NoBoxLeft() const { return boxes.empty(); }

  controls::ControlState& Control(std::string_view name) { return controls::StateOf(Known(name)); }

  TemporaryFolder folder;
  core::Application app;
  std::map<std::string, core::SettingValue, std::less<>> settings;
  std::deque<core::MessageBox> boxes;
  std::deque<std::optional<std::string>> file_answers;
  std::vector<core::FileDialog> dialogs;
  std::vector<std::string> opened;  // the settings of every successful opening
  std::optional<std::string> open_error;
  std::optional<std::string> line_error;  // the device is lost: every write fails
  core::ClockTime now;

 protected:
  const controls::ControlRef& Known(std::string_view name) const;

  std::string sent_;
  bool wrote_ = false;  // since the transmitter was last empty

 private:
  void FillPlatform();

  std::deque<std::string> incoming_;
  bool line_open_ = false;
};

}  // namespace ovl::testing
