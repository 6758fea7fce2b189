#include "ui/print/pdf_file.h"

#include <QPdfWriter>
#include <QSaveFile>

#include "host/text_codec.h"

namespace ovl::ui {

core::Result WritePdf(const QString& file, const QString& title, QPageSize::PageSizeId paper,
                      const std::function<void(QPagedPaintDevice&)>& print) {
  QSaveFile target(file);
  if (!target.open(QIODevice::WriteOnly)) return host::FailureOf(file, target.errorString());
  {
    QPdfWriter writer(&target);
    writer.setPageSize(QPageSize(paper));
    writer.setTitle(title);
    print(writer);
  }
  if (!target.commit()) return host::FailureOf(file, target.errorString());
  return {};
}

}  // namespace ovl::ui
