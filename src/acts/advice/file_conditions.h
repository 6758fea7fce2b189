// The conditions of the advice table about files, the firmware and the register list.
#pragma once

#include "acts/advice.h"

namespace ovl::acts {

Advice UploadNotTaken(const core::Application& app, const Observed& observed);
Advice RegisterReset(const core::Application& app, const Observed& observed);
Advice FileMisread(const core::Application& app, const Observed& observed);
Advice FileRefused(const core::Application& app, const Observed& observed);
Advice PickSwallowed(const core::Application& app, const Observed& observed);
Advice NextPickSwallowed(const core::Application& app, const Observed& observed);
Advice UnknownFirmware(const core::Application& app, const Observed& observed);
Advice OptionsHidden(const core::Application& app, const Observed& observed);
Advice SavedFile(const core::Application& app, const Observed& observed);
Advice OtherTabsChanged(const core::Application& app, const Observed& observed);
Advice FirstSteps(const core::Application& app, const Observed& observed);

}  // namespace ovl::acts
