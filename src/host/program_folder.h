// Where the program keeps its files: default images, the last upload, links to ports.
#pragma once

#include <QString>

namespace ovl::host {

// The given folder. If none is given, the folder of the executable, provided that it has images and can be
// written. Otherwise the user's data folder, with links to the installed images and manuals; throws Failure
// if that folder cannot be made.
QString ProgramFolder(const QString& given);

// Links every release below `shipped`/images and the folder `shipped`/Manual into `folder`. Families become
// real folders, since uploads are stored in them. A broken link is made anew. A folder that cannot be linked
// is copied.
void LinkShipped(const QString& shipped, const QString& folder);

}  // namespace ovl::host
