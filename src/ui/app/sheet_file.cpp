#include "ui/app/sheet_file.h"

#include <QFile>
#include <cstdlib>
#include <iostream>

#include "host/configurations/configurations.h"
#include "host/files.h"
#include "ui/print/site_sheet.h"

namespace ovl::ui {
namespace {

std::optional<QPageSize::PageSizeId> PaperOf(const QString& name) {
  if (name.isEmpty() || name.compare(QLatin1String("A4"), Qt::CaseInsensitive) == 0) return QPageSize::A4;
  if (name.compare(QLatin1String("Letter"), Qt::CaseInsensitive) == 0) return QPageSize::Letter;
  return std::nullopt;
}

// Throws NoConfiguration or Failure.
sheet::SiteSheet SheetOfFile(const SheetRequest& request) {
  const auto path = QFile::encodeName(request.configuration).toStdString();
  const auto bytes = host::DiskFiles().read(path);
  host::Viewer viewer(host::FirmwareOf(path, bytes, request.firmware.toStdString()));
  if (!request.folder.isEmpty()) {
    viewer.app->platform.files = host::DiskFiles();
    viewer.app->platform.program_folder = QFile::encodeName(request.folder).toStdString();
  }
  return SiteSheetOf(*viewer.app, host::ReadConfiguration(viewer, path, bytes));
}

}  // namespace

QString WrongUsageOf(const SheetRequest& request) {
  if (request.file.isEmpty()) {
    return request.paper.isEmpty() && request.firmware.isEmpty()
               ? QString()
               : QStringLiteral("--paper and --firmware are for --sheet");
  }
  if (!SheetFormatOf(request.file)) return request.file + QStringLiteral(": it must end with .pdf or .html");
  if (!PaperOf(request.paper)) return request.paper + QStringLiteral(": the paper is A4 or Letter");
  return request.configuration.isEmpty() ? QStringLiteral("--sheet needs a configuration") : QString();
}

int WriteSheetFile(const SheetRequest& request) {
  std::string problem;
  try {
    const auto written = WriteSiteSheet(SheetOfFile(request), request.file, *SheetFormatOf(request.file),
                                        *PaperOf(request.paper));
    if (written.Ok()) return EXIT_SUCCESS;
    problem = written.Problem().Text();
  } catch (const host::NoConfiguration& none) {
    problem = none.what();
  } catch (const core::Failure& failure) {
    problem = failure.Text();
  }
  std::cerr << "ovl: the sheet cannot be written: " << problem << "\n";
  return EXIT_FAILURE;
}

}  // namespace ovl::ui
