// What a configuration file is, before it is opened.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/application.h"
#include "image/report.h"
#include "phrases/phrases.h"

namespace ovl::acts {

struct Inspection {
  std::vector<image::FirmwareFit> fits;
  image::OpenOutcome outcome = image::OpenOutcome::kLoads;  // under the firmware that was asked for
};

// The stream has no line ends.
Inspection Inspect(std::string_view stream, const firmware::FirmwareId& firmware);

struct Question {
  phrases::Words text, detail;
};

// What to ask the user before the file is opened. Nothing for a file that opens as it should, and for one
// that is refused: the program says that itself.
std::optional<Question> QuestionBeforeOpening(std::string_view stream, std::string_view file_name,
                                              const core::Application& app);

}  // namespace ovl::acts
