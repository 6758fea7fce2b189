// Whole transfers on the machine's own ports, in real time.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/platform.h"
#include "script/simulated_time.h"

namespace ovl::script {

class Session;

// The machine's ports for a session, which must outlive this object. Time passes only while one of the
// functions below runs. Between statements, timers stop and received characters wait.
class RealLine {
 public:
  RealLine(Session& session, const std::string& program_folder);
  ~RealLine();
  RealLine(const RealLine&) = delete;
  RealLine& operator=(const RealLine&) = delete;

  core::SerialLine Operations();

  // To be called after each handler. The events that had to wait are dispatched again.
  void Resume();

  // Runs until `done` is true, the program has ended, or the time is over. `done` is called after every
  // event.
  void RunUntil(const std::function<bool()>& done, std::optional<SimulatedTime::Milliseconds> limit = {});
  void RunFor(SimulatedTime::Milliseconds duration);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

// Both ask for remote mode first if it is not held, press the program's own buttons, and return when the
// transfer's closing window is confirmed. A transfer that fails throws Stop with kTransferFailed and the text
// of the program's box. The port must be open.

// Uploads. If a path is given, writes the image as a stream into that file.
void UploadTo(Session& session, const std::string& path);

// Downloads the image. If a path is given, opens that file first.
void DownloadFrom(Session& session, const std::string& path);

}  // namespace ovl::script
