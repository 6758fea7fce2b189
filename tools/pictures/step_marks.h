// Marks the controls of the steps on a help page.
#pragma once

#include <QPixmap>
#include <QString>

namespace ovl::pictures {

// The picture of the window with a frame and a number for the control of each step; null if the help page
// with the picture of this name has no steps.
QPixmap WithStepMarks(const QString& name, const QPixmap& picture, const QWidget& window);

}  // namespace ovl::pictures
