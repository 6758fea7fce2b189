// Pictures of the line of advice.
#pragma once

#include <QString>
#include <functional>

#include "pictures/simulated_port.h"

namespace ovl::pictures {

using TakePicture = std::function<void(const QString& name)>;

// Brings a program that has just started into the states in which it gives advice, one after the other, and
// lets each be taken. What only some firmware has is left out under the others.
void TakeAdvice(ui::Program& program, SimulatedPort& port, const TakePicture& take);

}  // namespace ovl::pictures
