// The pages of the help: Markdown files, in the program itself or in a folder. The page "contents.md" lists
// them: groups as headings, pages as links.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace ovl::ui {

inline const QString kEmbeddedHelp = QStringLiteral(":/help");

struct HelpEntry {
  QString title;
  QString file;  // empty for the heading of a group
};

// A line that contains all words of a search.
struct HelpHit {
  QString file;
  QString title;
  QString line;
};

class HelpPages {
 public:
  // Reads the list of the pages. For a missing page, Text returns an explanation.
  explicit HelpPages(QString folder);

  const QString& Folder() const { return folder_; }
  const std::vector<HelpEntry>& Contents() const { return contents_; }

  // The text of a page, without the pictures that are not in the folder `pictures`. For a page that cannot be
  // read it is an explanation.
  QString Text(const QString& file, const QString& pictures) const;
  QString Text(const QString& file) const { return Text(file, folder_); }

  // Empty when there are no words.
  std::vector<HelpHit> Search(const QString& words) const;

 private:
  QString folder_;
  std::vector<HelpEntry> contents_;
};

// The anchor of a heading in a link: "A file of its own" becomes "a-file-of-its-own".
QString AnchorOf(const QString& heading);

// A line of Markdown without its markup.
QString PlainLine(const QString& line);

}  // namespace ovl::ui
