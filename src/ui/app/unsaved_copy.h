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
// 1.bin" with the firmware that can open it. The copies of running programs are locked and stay. So does a
// file that does not open under the firmware of its name. Returns the new names.
QStringList RescueCopies(const QString& folder);

class UnsavedCopy {
 public:
  // The copy has a name of its own in the folder, which a lock protects. The application object must outlive
  // this object.
  UnsavedCopy(const core::Application& app, const QString& folder);

  // Starts the timer for writing when the image has changed, or what the unit is known to contain. The copy
  // is removed instead when the image equals what was last loaded. While a handler runs, the timer waits for
  // its end: the image can be between two states, and the handler can end the program.
  void WriteSoonIfChanged();

  // Writes the copy now if the timer runs. Called before a file dialog, which can stay open for long.
  void WritePending();

  // Writes the changes now, under a lasting name, for another program to open. Returns the path; empty when
  // there are no changes. Throws Failure; the last copy then stays as it is.
  QString Keep();

  // The program has ended. The last copy stays as it is, or is removed. Nothing is written any more.
  void End(bool remove);

  // Called after every attempt to write the copy.
  std::function<void(const core::Result& written)> report;

 private:
  void WriteNow();
  core::Result Write();
  void Remove();
  bool TakeName();
  void Report(const core::Result& written) const;

  const core::Application& app_;
  QDir folder_;
  QString path_;
  std::unique_ptr<QLockFile> lock_;
  QTimer soon_;
  ChangeDetector<image::ConfigImage> seen_, known_;
};

}  // namespace ovl::ui
