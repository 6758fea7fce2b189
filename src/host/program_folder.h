// Where the program keeps its files: default images, the last upload, links to ports.
#pragma once

#include <QString>

namespace ovl::host {

// The folder given; else the one of the executable if images lie there and it can be written; else the user's
// data folder, into which what was installed beside the program is linked. Throws Failure when that folder
// cannot be made.
QString ProgramFolder(const QString& given);

// Links every release below `shipped`/images, and the folder `shipped`/Manual, into `folder`. Families become
// real folders, since uploads are kept in them. Links that lead nowhere are renewed; what cannot be linked is
// copied.
void LinkShipped(const QString& shipped, const QString& folder);

}  // namespace ovl::host
