// A copy of what is in the program and perhaps nowhere else, for the case that the program is ended from
// outside: its display goes away, the machine is switched off, somebody kills it.
#pragma once

#include <QString>
#include <QTimer>
#include <functional>

#include "shell/bindings.h"

namespace ovl {

// Gives the copies that ended programs left in the folder lasting names ("rescued 1.bin") under which File >
// Open finds them. The paths, one to a line; empty if there is none.
QString RescueCopies(const QString& folder);

class UnsavedCopy {
 public:
  // The copy stands in the folder under a name of this process. The application object must outlive this.
  UnsavedCopy(const Application& app, const QString& folder);

  // Has the copy written soon if the image is another one by now, or taken away once nothing differs from
  // what was last loaded.
  void Follow();

  // Writes the copy at once, or takes it away.
  void Keep();

  // The program ends as the person wanted: no copy is left.
  void Drop();

  // Is told why the copy cannot be kept.
  std::function<void(const QString& reason)> problem;

 private:
  const Application& app_;
  QString path_;
  QTimer soon_;
  Shadow<ConfigImage> seen_;
};

}  // namespace ovl
