// A program without a screen: the model over a platform that records what it is asked for and plays the line.
#pragma once

#include <deque>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/gate.h"

namespace ovl::testing {

// A program folder of its own, removed at the end of the test.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(TemporaryFolder&&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  std::string File(std::string_view below) const { return (path_ / below).string(); }

 private:
  std::filesystem::path path_;
};

// For its life nobody may read or write the file or folder, the superuser included, who acts as an ordinary
// user meanwhile.
class Locked {
 public:
  explicit Locked(std::string path);
  ~Locked();
  Locked(Locked&&) = delete;

 private:
  std::string path_;
};

// The digits that each firmware's image has, written down apart from the field table.
std::size_t DigitsOfImage(const firmware::FirmwareId& firmware);

// A stream of the firmware whose digits differ from byte to byte by the seed, with the register code given.
std::string RawPatternStream(const firmware::FirmwareId& firmware, int seed = 1, int register_code = 0);

// The same with a title, exceptions and alarms that the panels find in order, so that taking it in changes
// nothing.
std::string PatternStream(const firmware::FirmwareId& firmware, int seed = 1, int register_code = 0);

// As the program reads and replaces files, but without flushing them.
std::string ReadFile(const std::string& path);
void WriteFile(const std::string& path, std::string_view bytes);

class Harness {
 public:
  // Writes a default image for the first register (and the further ones named) and fills the settings store.
  explicit Harness(const firmware::FirmwareId& firmware,
                   const std::vector<std::string>& further_registers = {});

  core::Outcome Start();
  // A port opened, remote mode held, and its first tick over.
  void OpenAndHold();

  core::Outcome Click(std::string_view name) { return Dispatch(app, core::ClickEvent{Known(name)}); }
  core::Outcome Pick(std::string_view name, int position) {
    return Dispatch(app, core::PickEvent{Known(name), position});
  }
  core::Outcome Tick(controls::Timer& timer, int count = 1);
  // Characters arrive one by one; those for a closed port are lost.
  void Unit(std::string_view text);
  // The transmitter runs empty: `count` times, or as long as each time something is written.
  void Drain(int count);
  void DrainAll();

  // What was written since it was last asked.
  std::string TakeSent() { return std::exchange(sent_, {}); }
  // The oldest box not yet asked for; an empty text if there is none.
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
  bool wrote_ = false;  // since the transmitter last ran empty

 private:
  void FillPlatform();

  std::deque<std::string> incoming_;
  bool line_open_ = false;
};

}  // namespace ovl::testing
