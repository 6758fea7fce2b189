// What a hand can do at random: mouse, keys, wheel, windows, menus, files; and what happens meanwhile.
#pragma once

#include <QPointer>
#include <memory>
#include <string>

#include "line.h"
#include "unit/ui/screen.h"

namespace ovl::testing {

struct Site {
  explicit Site(const firmware::FirmwareId& firmware);

  Screen screen;
  Line line;
};

// One act that depends on nothing but the site and the seed. Returns its words.
std::string DoAtRandom(Site& site, std::uint32_t seed);

// Answers the boxes and dialogs that wait for a user, from now on. The application object owns it.
void AnswerAtRandom(Random& random);

}  // namespace ovl::testing
