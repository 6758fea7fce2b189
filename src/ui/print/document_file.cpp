#include "ui/print/document_file.h"

#include <QBuffer>
#include <QFile>
#include <QPdfWriter>

#include "host/files.h"

namespace ovl::ui {

core::Result ReplaceFile(const QString& file, const QByteArray& bytes) {
  try {
    host::ReplaceFile(QFile::encodeName(file).toStdString(), bytes.toStdString());
  } catch (const core::Failure& failure) {
    return failure;
  }
  return {};
}

core::Result WritePdf(const QString& file, const QString& title, QPageSize::PageSizeId paper,
                      const std::function<void(QPagedPaintDevice&)>& print) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&bytes);
    writer.setPageSize(QPageSize(paper));
    writer.setTitle(title);
    print(writer);
  }
  return ReplaceFile(file, bytes.data());
}

}  // namespace ovl::ui
