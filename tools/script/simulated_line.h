// A serial line without a device. The script supplies the received characters and empties the transmitter.
#pragma once

#include <deque>
#include <string>

#include "core/platform.h"

namespace ovl::script {

class SimulatedLine {
 public:
  // For Platform::serial. This object must outlive the operations.
  core::SerialLine Operations();

  // The port opens (Restore), does not open for a reason (Refuse), or is lost (Unplug). A port that is lost
  // while open stays dead until it is opened again. Its last drained event still comes: a sender then goes
  // on, and its next write fails.
  void Restore();
  void Refuse(const std::string& reason);
  void Unplug();

  // A character from the unit. It is lost if the port is closed or dead.
  void Arrive(char character);

  // True if such an event is due; it then counts as delivered. Each received character is one event, and so
  // is each time that the transmitter runs empty, even after several writes.
  bool TakeReceived();
  bool TakeDrained();
  // The program was busy: the event of the last character is due again.
  void KeepReceived() { ++undelivered_; }

 private:
  core::Result Open();
  void Close();
  core::Result Write(std::string_view text);
  std::string Read();
  void ClearInput();

  core::Result opening_;  // the result of opening a port
  core::Failure lost_{"simulated line", "No such device"};
  bool open_ = false;
  bool dead_ = false;
  std::deque<char> received_;
  std::size_t undelivered_ = 0;
  bool draining_ = false;
};

}  // namespace ovl::script
