// Our own acts on configurations as text: "Export Text...", "Import Text..." and "Compare with File...".
#pragma once

#include <QKeySequence>
#include <QObject>
#include <functional>
#include <string>

#include "core/application.h"
#include "phrases/phrases.h"
#include "text_form/import/import.h"

class QAction;
class QMainWindow;

namespace ovl::ui {

class TextActs : public QObject {
 public:
  struct Hooks {
    std::function<QWidget*()> front;                              // the window that boxes belong to
    std::function<void(const QString&)> show_done, show_failure;  // in the status bar
    // Runs an act of our own under the name by which it can be undone.
    std::function<void(const phrases::Words& name, const std::function<void()>& act)> run;
    // Shows how another image differs.
    std::function<void(const QString& file, const image::ConfigImage& other)> compare;
  };

  // Adds the items to the File menu of the window, behind the item of the backup. The window must outlive
  // this object.
  TextActs(core::Application& app, QMainWindow& main, Hooks hooks);

  void Export();
  void Import();
  void Compare();

 private:
  void AddItem(QMainWindow& main, const char* name, const QString& caption, const QKeySequence& keys,
               void (TextActs::*act)());
  bool CanAct() const;
  // Empty path: cancelled.
  std::string AskForPath(core::FileDialog::Kind kind, const std::string& name, const std::string& filter);
  // Nothing if the file cannot be read, which the status bar then says.
  std::optional<std::string> BytesOf(const std::string& path, const QString& refusal);
  std::optional<image::ConfigImage> ImageOf(const std::string& path, const std::string& bytes);
  // Nothing if the text is not taken. Shows what is wrong in it.
  enum class Purpose { kImport, kCompare };
  std::optional<image::ConfigImage> ImageOfText(const std::string& path, const std::string& bytes,
                                                Purpose purpose);

  core::Application& app_;
  Hooks hooks_;
};

}  // namespace ovl::ui
