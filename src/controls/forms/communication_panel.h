// The panels "Register Settings" and "Network Settings": the serial line between unit and register, and the
// network of several units. The caption of a list is its label.
#pragma once

#include <array>

#include "controls/controls.h"

namespace ovl::controls {

class Registry;

// The members of the arrays of lists below, by what they set.
struct Comm {
  enum Member {
    kInterface,
    kReceiveSpeed,
    kSendSpeed,
    kParity,
    kDataBits,
    kHandshake,
    kLinefeed,
    kProtocol,
    kSoftHandshake,
    kNetType,
    kNetAddress,
    kNetProtocol,
    kNetSpeed,
    kCount
  };
};

struct CommunicationPanel {
  std::array<List, Comm::kCount> ComboCOMM;
  std::array<TextBox, 3> ComboNone;  // fixed texts in place of a list that has no meaning at present

  CommunicationPanel();
  void Register(Registry& registry, Form& form);
};

}  // namespace ovl::controls
