// A serial line without a device: characters are put in by hand, and the transmitter runs empty when told to.
#pragma once

#include <deque>
#include <string>

#include "core/platform.h"

namespace ovl::script {

class SimulatedLine {
 public:
  // The operations for the platform record. They refer to this object, which must outlive them.
  core::SerialLine Operations();

  // What the machine has: a port that opens, one that refuses with this reason, or none any more. A port that
  // was open when it was lost stays dead until it is opened again; that the transmitter ran empty is still
  // told, so that a sender goes on and meets the failing write.
  void Restore();
  void Refuse(const std::string& reason);
  void Unplug();

  // A character from the unit. Lost, with the port closed or dead.
  void Arrive(char character);

  // Each received character, and each time the transmitter ran empty, is to be told once: true, and it counts
  // as told. Several writes make the transmitter run empty once.
  bool TakeReceived();
  bool TakeDrained();
  // The program was busy: the character is to be told again.
  void KeepReceived() { ++untold_; }

 private:
  core::Result Open();
  void Close();
  core::Result Write(std::string_view text);
  std::string Read();
  void ClearInput();

  core::Result opening_;  // what opening a port gives
  bool open_ = false;
  bool dead_ = false;
  std::deque<char> received_;
  std::size_t untold_ = 0;
  bool draining_ = false;
};

}  // namespace ovl::script
