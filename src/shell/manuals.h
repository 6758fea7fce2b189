// The manuals: PDF files of the folder "Manual" in the program folder, opened with the desktop's reader.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QMenu;

namespace ovl {

QString ManualFolder(const QString& program_folder);

// The PDF files of the folder, by name.
QStringList ListManuals(const QString& folder);

// Opens a file of the folder; without a reader, or with an empty name, the folder in the file browser. What
// is to be told when neither opens, else empty.
QString OpenManual(const QString& folder, const QString& file);

// Lists the manuals anew whenever the menu opens. `tell` shows what went wrong.
void FillManualMenu(QMenu& menu, const QString& folder, std::function<void(const QString&)> tell);

}  // namespace ovl
