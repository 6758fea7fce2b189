// The icon of the windows: a screen with a receipt in front of it, as the icon of the desktop file.
#pragma once

#include <QIcon>

namespace ovl::ui {

QIcon WindowIcon();

}  // namespace ovl::ui
