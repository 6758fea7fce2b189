// What a screen reader says for a window.
#pragma once

#include <QString>

class QWidget;

namespace ovl::pictures {

// The visible controls in their order, one a line: the role, the name in quotes, the value and the
// description. Without the entries of lists and tables.
QString SpokenText(QWidget& window);

}  // namespace ovl::pictures
