// Conditions of a single exception or alarm that the checks and the advice share, and numbers in words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "firmware/firmware_id.h"
#include "image/config_image.h"
#include "phrases/phrases.h"

namespace ovl::checks {

// The first value of the range is above the second.
bool FirstIsAboveSecond(std::string_view slot, const firmware::FirmwareId& firmware);

// The trigger of an alarm means exceptions, and all of them are free.
bool WaitsForFreeExceptions(const image::ConfigImage& image, int trigger);

// An exception that has an action or an operator, and only blanks to look for.
bool IsBlankException(std::string_view slot, const firmware::FirmwareId& firmware);

// A triggered text of blanks, or one that is shown or sent and is empty.
bool IsBlankTrigger(std::string_view record);

bool IsBlank(std::string_view text);

// The numbers of three and more neighbours are "3 to 7".
std::vector<phrases::Words> InWords(const std::vector<int>& numbers);

// "exception 3", "exceptions 3 and 7".
phrases::Words NumberedExceptions(const std::vector<int>& numbers);

// "alarm 3", "alarms 3 and 7"; the numbers are those of `count` alarms.
phrases::Words NumberedAlarms(const std::vector<phrases::Words>& numbers, std::size_t count);
phrases::Words NumberedAlarms(const std::vector<int>& numbers);

}  // namespace ovl::checks
