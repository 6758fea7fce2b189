// Which bits of the fields some settings store.
#pragma once

#include <map>
#include <span>
#include <vector>

#include "text_form/settings.h"

namespace ovl::text_form {

class Coverage {
 public:
  void Add(const Setting& setting, const firmware::FirmwareId& firmware);

  // The digits without the bits that are covered, or only these.
  std::string Outside(image::FieldId field, int entry, std::string_view digits) const;
  std::string Inside(image::FieldId field, int entry, std::string_view digits) const;

 private:
  std::string Masked(image::FieldId field, int entry, std::string_view digits, bool inside) const;

  std::map<std::pair<image::FieldId, int>, std::vector<int>> bits_;  // of each byte
};

bool IsZero(std::string_view digits);

// Whether a load can have left these characters in a field: any others than the end of a stream and of a
// line.
bool CanBeLoaded(std::string_view digits);

// Gives the value the bits of the mask from the digits; the others stay.
void Merge(std::string& value, const std::string& digits, const std::string& mask);

}  // namespace ovl::text_form
