#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "unit/descriptor.h"

namespace unit {

// The unit's end of a pseudo-terminal. The tool opens the other end as its serial port, as often as it likes.
class PtyLine {
 public:
  // Null on failure. `error` then has the reason.
  static std::unique_ptr<PtyLine> Open(std::string& error);
  ~PtyLine();
  PtyLine(const PtyLine&) = delete;
  PtyLine& operator=(const PtyLine&) = delete;

  // The device that the tool opens.
  const std::string& Path() const { return path_; }

  // Makes the symbolic link `link` to the device, and the folders above it. Replaces an old link, but nothing
  // else at that place. The link is removed with this object. Returns what went wrong, or an empty text.
  std::string MakeLink(const std::string& link);

  // Readable when bytes arrived.
  int Arrivals() const { return master_.Get(); }
  // Readable when the tool opened or closed the device. -1 if the system cannot watch that.
  int Openings() const { return watch_.Get(); }

  // Notes when the tool opens and closes. Bytes that the tool has not read when it closes are lost, as on a
  // real line.
  void FollowOpenings();

  // The bytes that have arrived, or an empty text.
  std::string Read();

  // The speed at which the bytes just read were sent. A tool that closes its port may restore other settings
  // before its last bytes are read here. These bytes count as sent at the speed seen before.
  unsigned SpeedOfArrivals();

  // The speed at which the tool reads now.
  unsigned Speed() const;

  // False if bytes were lost because the tool has left too many unread.
  bool Write(std::string_view bytes);

 private:
  PtyLine() = default;

  std::string OpenEnds();
  void WatchOpenings();
  void ForgetLastHolder();
  bool TakeOpenings();  // true when the last holder left
  bool HolderLeaves();

  Descriptor master_;
  Descriptor keeper_;  // of the tool's end, so that the line stays when the tool closes it
  Descriptor watch_;
  std::string path_;
  std::string link_;
  int holders_ = 0;
  unsigned seen_speed_ = 0;  // set by the present holder
  unsigned left_speed_ = 0;  // of bytes that a holder who left has sent and that are not read yet
};

}  // namespace unit
