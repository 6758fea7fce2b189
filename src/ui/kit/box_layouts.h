// Layouts for a widget that only holds other widgets. They have no margins; without a spacing they use that
// of the style.
#pragma once

class QHBoxLayout;
class QVBoxLayout;
class QWidget;

namespace ovl::ui {

// Lays out what is added from left to right.
QHBoxLayout* LayOutAcross(QWidget& holder, int spacing = -1);

// Lays out what is added from top to bottom.
QVBoxLayout* LayOutDown(QWidget& holder, int spacing = -1);

}  // namespace ovl::ui
