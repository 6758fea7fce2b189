// "ovl --sheet": the site sheet of a configuration file.
#pragma once

#include <QString>

namespace ovl::ui {

struct SheetRequest {
  QString file;           // that is written
  QString configuration;  // a record stream or a text form
  QString paper;          // empty: A4
  QString firmware;       // "V1400R12"; empty: what the configuration says
  QString folder;         // with the default images, for the checks; may be empty
};

// What is wrong with the request; empty if nothing is.
QString WrongUsageOf(const SheetRequest& request);

// Returns the exit status. The reason of a failure goes to standard error.
int WriteSheetFile(const SheetRequest& request);

}  // namespace ovl::ui
