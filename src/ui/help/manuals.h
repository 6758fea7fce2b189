// The manuals: PDF files of the folder "Manual" in the program folder, opened with the desktop's reader.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QMenu;
class QObject;

namespace ovl::ui {

QString ManualFolder(const QString& program_folder);

// The PDF files of the folder, by name.
QStringList ListManuals(const QString& folder);

// Opens a file of the folder; where the desktop knows no reader, or with an empty name, the folder in the
// file browser. The desktop is asked first, so it happens a little later, unless the owner is gone by then.
// `tell` gets a text with path and reason when neither opens.
void OpenManual(QObject& owner, const QString& folder, const QString& file,
                std::function<void(const QString&)> tell);

// Lists the manuals anew whenever the menu opens. `tell` shows what went wrong.
void FillManualMenu(QMenu& menu, const QString& folder, std::function<void(const QString&)> tell);

}  // namespace ovl::ui
