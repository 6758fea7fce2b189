// Keeps a copy of unsaved changes in case the program is ended from outside: the display closes, the machine
// is switched off, the process is killed.
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

// Renames the copies that ended programs have left in the folder to lasting names, such as "rescued V1400R12
// 1.bin" with the firmware that can open it. The copies of running programs are locked and stay. Returns the
// new names.
QStringList RescueCopies(const QString& folder);

class UnsavedCopy {
 public:
  // The copy has a name of its own in the folder, which a lock protects. The application object must outlive
  // this object.
  UnsavedCopy(const core::Application& app, const QString& folder);

  // Starts the timer for writing when the image has changed. The copy is removed instead when the image
  // equals what was last loaded.
  void WriteSoonIfChanged();

  // Writes the copy now; removes it when there are no unsaved changes.
  void WriteNow();

  // Removes the copy, because the user has ended the program.
  void Remove();

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
