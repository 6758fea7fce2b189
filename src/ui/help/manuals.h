// The manuals: PDF files of the folder "Manual" in the program folder. The desktop opens them with its own
// reader.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QMenu;
class QObject;

namespace ovl::ui {

QString ManualFolder(const QString& program_folder);

// The PDF files of the folder, sorted by name.
QStringList ListManuals(const QString& folder);

// Opens a file of the folder. If the desktop has no reader, or if the name is empty, it opens the folder in
// the file manager. It asks the desktop first, so the file opens a little later, and only if the owner still
// exists. `report` gets a text with path and reason when neither opens.
void OpenManual(QObject& owner, const QString& folder, const QString& file,
                std::function<void(const QString&)> report);

// Lists the manuals again whenever the menu opens. `report` gets the text of a failure.
void FillManualMenu(QMenu& menu, const QString& folder, std::function<void(const QString&)> report);

}  // namespace ovl::ui
