// A copy of what is in the program and perhaps nowhere else, for the case that the program is ended from
// outside: its display goes away, the machine is switched off, somebody kills it.
#pragma once

#include <QDir>
#include <QLockFile>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <memory>

#include "core/failure.h"
#include "ui/kit/bindings.h"

namespace ovl::ui {

// Gives the copies that ended programs left in the folder lasting names ("rescued V1400R12 1.bin": the
// firmware under which File > Open reads them). Copies of programs that still run are locked. Returns the new
// names.
QStringList RescueCopies(const QString& folder);

class UnsavedCopy {
 public:
  // The copy stands in the folder under a name that is this object's as long as it is locked. The application
  // object must outlive this.
  UnsavedCopy(const core::Application& app, const QString& folder);

  // Has the copy written soon if the image is another one by now, or taken away once nothing differs from
  // what was last loaded.
  void Follow();

  // Writes the copy at once, or takes it away.
  void Keep();

  // The program ends as the person wanted: no copy is left.
  void Drop();

  // Called after every attempt to write the copy.
  std::function<void(const core::Result& written)> report;

 private:
  bool TakeName();
  void Report(const core::Result& written) const;

  const core::Application& app_;
  QDir folder_;
  QString path_;
  std::unique_ptr<QLockFile> lock_;
  QTimer soon_;
  ChangeDetector<image::ConfigImage> seen_;
};

}  // namespace ovl::ui
