// The help window: contents at the left, a page at the right, a search over all pages.
#pragma once

#include <QDialog>
#include <QTextBrowser>

#include "ui/help/help_pages.h"

class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace ovl::ui {

// Shows pages by their address, such as "help:/remote.md#the-clock", with a history.
class HelpBrowser : public QTextBrowser {
 public:
  HelpBrowser(const HelpPages& pages, QWidget* parent);

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void OnSourceChanged(const QUrl& source);
  void ScrollTo(const QString& anchor);

  const HelpPages& pages_;
};

class HelpWindow : public QDialog {
 public:
  // The pages must outlive the window.
  HelpWindow(const HelpPages& pages, QWidget* parent);

  // Opens a page such as "remote.md", or "remote.md#the-clock" to begin at a heading.
  void Open(const QString& page);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* BuildSide();
  QWidget* BuildPage();
  void ListContents();
  void ListHits();
  void OpenEntry(const QListWidgetItem* entry);
  void MarkEntry();

  const HelpPages& pages_;
  QLineEdit* search_;
  QListWidget* list_;
  HelpBrowser* browser_;
  QString shown_;  // the file of the current page
};

}  // namespace ovl::ui
