#include "script/reports.h"

#include <ostream>

#include "acts/inspection.h"
#include "files/files.h"
#include "host/files.h"
#include "image/report.h"
#include "script/session.h"
#include "script/stop.h"

namespace ovl::script {
namespace {

const char* WordsFor(image::OpenOutcome outcome) {
  switch (outcome) {
    case image::OpenOutcome::kLoads:
      return "loads it";
    case image::OpenOutcome::kShifts:
      return "loads it with settings in the wrong place";
    case image::OpenOutcome::kRefused:
      return "refuses it and keeps the image";
    default:
      return "ends the program";
  }
}

}  // namespace

void Dump(Session& session, Arguments& arguments) {
  const auto& app = session.App();
  const auto path = arguments.AtEnd() ? files::PathBelow(app.platform.program_folder,
                                                         "\\" + app.firmware.version + "\\SaveReport.Bin")
                                      : arguments.Next("PATH");
  arguments.End();
  app.platform.files.replace(path, image::LabelledDump(app.image, app.firmware));
}

void Inspect(Session& session, Arguments& arguments) {
  const auto path = arguments.Next("PATH");
  arguments.End();
  const auto stream = files::ReadJoined(host::DiskFiles(), path);
  const auto& firmware = session.App().firmware;
  const auto [fits, outcome] = acts::Inspect(stream, firmware);
  for (const auto& fit : fits) {
    session.Output() << "fits " << fit.firmware.Joined() << ": register " << fit.register_code << ' '
                     << (fit.register_name.empty() ? "is not in its list" : Quoted(fit.register_name))
                     << '\n';
  }
  if (fits.empty()) session.Output() << "fits no firmware\n";
  session.Output() << "opening it under " << firmware.Joined() << ' ' << WordsFor(outcome) << '\n';
}

}  // namespace ovl::script
