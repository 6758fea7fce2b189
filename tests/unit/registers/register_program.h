// The programs of tests whose rows are about several firmware.
#pragma once

#include <memory>

#include "support/installed.h"

namespace ovl::testing {

using F = image::FieldId;

// Writing all default images takes longer than a row, so rows about the same firmware share a program. Get it
// ahead of SCOPED_TRACE, because the program has a trace of its own.
class ProgramForRows {
 public:
  Installed& Of(const firmware::FirmwareId& firmware) {
    if (program_ == nullptr || program_->app.firmware != firmware) {
      program_.reset();
      program_ = std::make_unique<Installed>(firmware);
    }
    return *program_;
  }

 private:
  std::unique_ptr<Installed> program_;
};

}  // namespace ovl::testing
