// The lines of the table "Other bytes": bits of fields that no setting has.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "text_form/catalogue.h"
#include "text_form/document.h"

namespace ovl::text_form {

class OtherByteLines {
 public:
  // An option of the register and the line that names it.
  using OptionLine = std::pair<Setting, const Entry*>;

  // Takes places and words of what is wrong.
  using Say = std::function<void(Position at, std::string words)>;

  // `complete`: the form names everything, so it can give a field that is not regular.
  OtherByteLines(const Catalogue& catalogue, bool complete, Say say);

  // Stores the bits of the lines in the image. `named`: the settings that other lines store.
  void Take(const std::vector<const Entry*>& lines, const std::set<const Setting*>& named,
            image::ConfigImage& image);

  // Stores the fields that are not regular, after everything else.
  void StoreIrregular(image::ConfigImage& image) const;

  // The options are known last; none may store a bit that was taken from a line.
  void ExpectNoBitsOf(const std::vector<OptionLine>& options) const;

 private:
  struct Target {
    const image::FieldRow* row = nullptr;
    int entry = 1;
  };
  struct Taken {
    Target target;
    const Entry* line;
    std::string digits;
  };

  const Target* TargetOf(const Entry& line);
  bool IsRead(const image::FieldRow& row) const;
  void TakeIrregular(const Target& target, const Entry& line, const std::set<const Setting*>& named);
  std::optional<std::string> BytesOf(const Target& target, const Entry& line) const;

  const Catalogue& catalogue_;
  const firmware::FirmwareId& firmware_;
  bool complete_;
  Say say_;
  std::map<std::string, Target> targets_;  // by the names of the fields
  std::vector<Taken> bits_, irregular_;
};

// Digits of bytes can be written in small letters too.
std::string InCapitals(std::string digits);

}  // namespace ovl::text_form
