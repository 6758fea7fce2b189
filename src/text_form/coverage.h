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

}  // namespace ovl::text_form
