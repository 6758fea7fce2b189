// The pages of the help: plain Markdown, in the program itself or in a folder. The page "contents.md" lists
// them: groups as headings, pages as links.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace ovl::ui {

inline const QString kEmbeddedHelp = QStringLiteral(":/help");

struct HelpEntry {
  QString title;
  QString file;  // empty: the head of a group
};

// A line that has all the words of a search.
struct HelpHit {
  QString file;
  QString title;
  QString line;
};

class HelpPages {
 public:
  // Reads all pages. What is missing is told by the text of the page itself.
  explicit HelpPages(QString folder);

  const QString& Folder() const { return folder_; }
  const std::vector<HelpEntry>& Contents() const { return contents_; }

  // The text of a page, without those of its pictures that do not stand in the folder `pictures`. A sentence
  // for a page that is not there.
  QString Text(const QString& file, const QString& pictures) const;
  QString Text(const QString& file) const { return Text(file, folder_); }

  // Empty for no words.
  std::vector<HelpHit> Search(const QString& words) const;

 private:
  QString folder_;
  std::vector<HelpEntry> contents_;
};

// The part of a link that leads to a heading: "A file of its own" is "a-file-of-its-own".
QString AnchorOf(const QString& heading);

// A line of Markdown as one reads it.
QString PlainLine(const QString& line);

}  // namespace ovl::ui
