// How findings of a check are printed: one line each, or as JSON. Both are UTF-8.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "checks/checks.h"
#include "firmware/firmware_id.h"

namespace ovl::script {

// "SEVERITY: ID: WORDS"; control characters of a stored text become \xHH.
std::string LineOf(const checks::Finding& finding);

struct CheckedFile {
  std::string path;
  firmware::FirmwareId firmware;
  std::vector<checks::Finding> findings;
  std::string problem;  // why it could not be checked
};

// An array with an object for each file.
void PrintJson(std::ostream& output, const std::vector<CheckedFile>& files);

}  // namespace ovl::script
