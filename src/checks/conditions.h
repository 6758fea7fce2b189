// Conditions of a single exception or alarm that the checks and the advice share, and numbers in words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "firmware/firmware_id.h"
#include "image/config_image.h"

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

// "3", "3 and 7", "3, 7 and 9".
std::string Listed(const std::vector<std::string>& words);

// "exception 3", "exceptions 3 and 7".
std::string Numbered(const std::string& kind, const std::vector<std::string>& numbers);

// The same with the numbers of three and more neighbours as "3 to 7".
std::string Numbered(const std::string& kind, const std::vector<int>& numbers);

}  // namespace ovl::checks
