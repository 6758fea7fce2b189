#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "unit/descriptor.h"

namespace unit {

// The unit's end of a pseudo-terminal. The tool opens the other end as its serial port, as often as it likes.
class PtyLine {
 public:
  // Null on failure, and `error` says why.
  static std::unique_ptr<PtyLine> Open(std::string& error);
  ~PtyLine();
  PtyLine(const PtyLine&) = delete;
  PtyLine& operator=(const PtyLine&) = delete;

  // The device that the tool opens.
  const std::string& Path() const { return path_; }

  // Makes the symbolic link `link` to the device and the folders above it. An old link is replaced, anything
  // else at that place is left alone. The link goes with this object. What went wrong, empty when made.
  std::string MakeLink(const std::string& link);

  // Readable when bytes arrived.
  int Arrivals() const { return master_.Get(); }
  // Readable when the tool opened or closed the device; -1 when the system cannot tell.
  int Openings() const { return watch_.Get(); }

  // Takes note of opening and closing. What the tool has not read when it closes is lost, as on a real line.
  void FollowOpenings();

  // The bytes that have arrived; empty when there are none.
  std::string Read();

  // The speed at which the bytes just read were sent. A tool that closes its port may put other settings back
  // before its last bytes are read here: these count as sent at the speed seen before.
  unsigned SpeedOfArrivals();

  // The speed at which the tool reads now.
  unsigned Speed() const;

  // False when the tool has left so much unread that bytes were lost.
  bool Write(std::string_view bytes);

 private:
  PtyLine() = default;

  std::string OpenEnds();
  void WatchOpenings();
  void ForgetLastHolder();
  bool TakeOpenings();  // true when the last holder left
  bool HolderLeaves();

  Descriptor master_;
  Descriptor keeper_;  // of the tool's end, so that the line survives its closing
  Descriptor watch_;
  std::string path_;
  std::string link_;
  int holders_ = 0;
  unsigned seen_speed_ = 0;  // by the present holder
  unsigned left_speed_ = 0;  // of bytes that a holder who left has sent and that are not read yet
};

}  // namespace unit
