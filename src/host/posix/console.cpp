#include "host/system/console.h"

namespace ovl::host {

// Every program has the streams of the program that started it.
ParentConsole::ParentConsole() = default;

ParentConsole::~ParentConsole() = default;

}  // namespace ovl::host
