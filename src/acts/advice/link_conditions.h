// The conditions of the advice table about the port, the unit and the transfers.
#pragma once

#include "acts/advice.h"

namespace ovl::acts {

Advice UploadBroke(const core::Application& app, const Observed& observed);
Advice UploadMixed(const core::Application& app, const Observed& observed);
Advice DeviceLost(const core::Application& app, const Observed& observed);
Advice DownloadBroke(const core::Application& app, const Observed& observed);
Advice PortRefused(const core::Application& app, const Observed& observed);
Advice NoAnswer(const core::Application& app, const Observed& observed);
Advice ScanCannotHear(const core::Application& app, const Observed& observed);
Advice ScanFoundNothing(const core::Application& app, const Observed& observed);

// What to press on REMOTE until the unit obeys, without the steps that are done: "Set Comport, Remote". It
// ends with the caption of `last`, if any.
phrases::Words StepsOnRemote(const core::Application& app, const phrases::Words& last);

}  // namespace ovl::acts
