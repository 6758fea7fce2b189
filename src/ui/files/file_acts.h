// Our own acts on configuration files: the backup, and Open without its dialog for a file that is dropped on
// the window, named on the command line or picked in "Open Recent". Before a file is opened, the user is
// asked if it would end the program or put settings in the wrong place.
#pragma once

#include <QObject>
#include <functional>
#include <optional>

#include "ui/files/recent_files.h"
#include "ui/kit/bindings.h"

class QMainWindow;

namespace ovl::ui {

class FileActs : public QObject {
 public:
  struct Hooks {
    ActFunction act;
    std::function<QWidget*()> front;                              // the window that boxes belong to
    std::function<void(const QString&)> show_done, show_failure;  // in the status bar
    std::function<void()> backup_written;
  };

  // Adds the items to the File menu of the window, which must outlive this object, and takes files that are
  // dropped on the window.
  FileActs(core::Application& app, QMainWindow& main, Hooks hooks);

  // Opens a file as Open does. A file that cannot be read is not opened; the status bar shows the reason.
  void Open(const QString& path);

  // Asks for a file and writes the backup into it.
  void SaveBackup();

  // The dialog of Open. A file that the user does not want to open after the question counts as cancelled.
  std::optional<core::FileAnswer> AskForFileToOpen(const core::FileDialog& request);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool CanAct() const;
  void AddMenuItems(QMainWindow& main);
  std::optional<std::string> StreamOf(const QString& path, QString& problem) const;
  bool MayOpen(const QString& path, const std::string& stream) const;

  core::Application& app_;
  Hooks hooks_;
  RecentFiles recent_;
};

}  // namespace ovl::ui
