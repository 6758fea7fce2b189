// Everything that the model asks of the world outside: the screen's boxes, the settings store, the clock,
// files and the serial line. The window program, the script tool and the tests each fill it in their own way.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "core/failure.h"

namespace ovl::core {

enum class BoxIcon { kNone, kInformation };

struct MessageBox {
  std::string title;  // empty: no title of its own
  std::string text;   // lines are separated by \n
  BoxIcon icon = BoxIcon::kNone;
  std::string_view topic = {};  // under which the help explains it
  bool shows_note = false;      // the box also shows the text of the status bar
  std::string detail = {};      // what is already in the text in place of "%1"
};

// A filter is a row of "description|pattern" pairs joined by "|"; filter_index counts the pairs from 1.
struct FileDialog {
  enum class Kind { kOpen, kSave };
  Kind kind = Kind::kOpen;
  std::string file_name;
  std::string filter;
  int filter_index = 1;
};

struct FileAnswer {
  std::string file_name;
  unsigned flags = 0;
};

// A value of the settings store as it is kept: a text, or a 32-bit number.
using SettingValue = std::variant<std::string, std::uint32_t>;

struct ClockTime {
  int year = 2000;  // four digits
  int month = 1;
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

struct LineSettings {
  int port = 0;      // 1 to 16
  std::string text;  // baud, parity, data bits, stop bits: "9600,N,8,1"
};

// The serial line. A failure has the system's own description of the error; its subject is the device, which
// the model replaces by the port's number. `write` returns at once and never calls back; when the transmitter
// has run empty, one drained event is dispatched. `read` gives one received character, or nothing. `close`
// never fails and drops every event that is still queued.
struct SerialLine {
  std::function<Result(const LineSettings&)> open;
  std::function<void()> close;
  std::function<Result(std::string_view)> write;
  std::function<std::string()> read;
  std::function<void()> clear_input;
  std::function<void()> clear_output;
  // Why the device of the open port is lost; null while it works or the port is closed. The failure lives
  // until the next operation. A line that is never lost can leave this function out.
  std::function<const Failure*()> lost;
};

// Files, each read or replaced as a whole. A failure throws Failure, which names the path and gives the
// system's reason.
struct FileAccess {
  // All bytes of a regular file of at most 64 MiB.
  std::function<std::string(const std::string& path)> read;
  // In one step: after a failure the old file is unchanged.
  std::function<void(const std::string& path, std::string_view bytes)> replace;
};

struct Platform {
  std::string program_folder;                                            // without a separator at its end
  std::function<void(const MessageBox&)> show_message;                   // returns when the box is closed
  std::function<std::optional<FileAnswer>(const FileDialog&)> ask_file;  // nothing: cancelled
  std::function<std::optional<SettingValue>(std::string_view key, std::string_view value)> read_setting;
  std::function<bool(std::string_view key, std::string_view value, std::string_view text)> write_setting;
  std::function<ClockTime()> clock;
  std::function<void(std::string_view form)> SetWindowPos;  // keep this form above all others
  FileAccess files;
  SerialLine serial;
};

}  // namespace ovl::core
