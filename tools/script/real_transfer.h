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

// The machine's ports for a session, which must outlive it. Time passes only while one of the functions below
// runs: between statements timers stand still and received characters wait.
class RealLine {
 public:
  RealLine(Session& session, const std::string& program_folder);
  ~RealLine();
  RealLine(const RealLine&) = delete;
  RealLine& operator=(const RealLine&) = delete;

  core::SerialLine Operations();

  // After each handler: what the line has to tell meanwhile is told again.
  void Resume();

  // Until `done` holds, the program has ended, or the time is over. `done` is asked after every event.
  void RunUntil(const std::function<bool()>& done, std::optional<SimulatedTime::Milliseconds> limit = {});
  void RunFor(SimulatedTime::Milliseconds duration);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

// Each asks for remote mode first if it is not held, works the program's own buttons, and returns when the
// transfer's closing window was confirmed. A transfer that does not come so far throws Stop with
// kTransferFailed and the text of the program's box. The port must be open.

// An upload; then, if a path is given, the image as a stream into that file.
void UploadTo(Session& session, const std::string& path);

// A download of the image, or, if a path is given, of that file, which is opened first.
void DownloadFrom(Session& session, const std::string& path);

}  // namespace ovl::script
