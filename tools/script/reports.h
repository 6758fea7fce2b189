// Statements that show images and files by field names.
#pragma once

#include "script/parser.h"

namespace ovl::script {

class Session;

// dump [PATH]: the image's fields into a file; without a path into the report of the firmware's family.
void Dump(Session& session, Arguments& arguments);

// inspect PATH: which firmware the file fits, and what opening it here would do.
void Inspect(Session& session, Arguments& arguments);

}  // namespace ovl::script
