#include "ui/acts/changes_list.h"

#include <QCoreApplication>
#include <QHeaderView>

namespace ovl::ui {
namespace {

enum Column { kSetting, kBefore, kNow, kBytes, kBytesBefore, kBytesNow };

QString Joined(const std::vector<changes::ByteChange>& bytes,
               const std::function<std::string(const changes::ByteChange&)>& part) {
  QStringList parts;
  for (const auto& change : bytes) parts.append(QString::fromStdString(part(change)));
  return parts.join(QStringLiteral("; "));
}

QStringList CellsOf(const changes::SettingChange& row) {
  return {PrintableText(row.caption),
          PrintableText(row.before),
          PrintableText(row.after),
          Joined(row.bytes,
                 [](const changes::ByteChange& bytes) {
                   return bytes.field + ", " + bytes.section + " " + std::to_string(bytes.byte);
                 }),
          Joined(row.bytes, [](const changes::ByteChange& bytes) { return bytes.before; }),
          Joined(row.bytes, [](const changes::ByteChange& bytes) { return bytes.after; })};
}

}  // namespace

ChangesList::ChangesList(QWidget* parent)
    : SettingList({QCoreApplication::translate("ChangesWindow", "Setting"),
                   QCoreApplication::translate("ChangesWindow", "Before"),
                   QCoreApplication::translate("ChangesWindow", "Now"),
                   QCoreApplication::translate("ChangesWindow", "Bytes"),
                   QCoreApplication::translate("ChangesWindow", "Bytes before"),
                   QCoreApplication::translate("ChangesWindow", "Bytes now")},
                  parent) {
  ShowBytes(false);
}

// The values share the room of the window. Beside the bytes they take what they need, and the list scrolls.
void ChangesList::ShowBytes(bool shown) {
  const auto mode = shown ? QHeaderView::ResizeToContents : QHeaderView::Stretch;
  for (const int column : {kBefore, kNow}) header()->setSectionResizeMode(column, mode);
  for (const int column : {kBytes, kBytesBefore, kBytesNow}) setColumnHidden(column, !shown);
  FitColumns();
}

void ChangesList::SetSides(const QString& before, const QString& now) {
  headerItem()->setText(kBefore, before);
  headerItem()->setText(kNow, now);
}

void ChangesList::Show(const std::vector<changes::SettingChange>& rows) {
  std::vector<SettingRow> shown;
  for (const auto& row : rows) {
    const auto place = PrintableText(row.place);
    shown.push_back({place, place, CellsOf(row), {row.tab, row.control, row.list, row.slot}});
  }
  ShowRows(std::move(shown));
}

}  // namespace ovl::ui
