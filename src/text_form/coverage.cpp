#include "text_form/coverage.h"

#include <algorithm>

#include "codecs/bytes.h"
#include "codecs/codecs.h"

namespace ovl::text_form {
namespace {

constexpr std::size_t kByte = 2;

}  // namespace

void Coverage::Add(const Setting& setting, const firmware::FirmwareId& firmware) {
  for (const auto& part : setting.parts) {
    auto& bits = bits_[{part.field, part.entry}];
    bits.resize(DigitsOfField(part.field, firmware) / kByte);
    const auto first = part.digits.first / kByte;
    const auto count = std::min(part.digits.count / kByte, bits.size() - std::min(first, bits.size()));
    for (auto byte = first; byte < first + count; ++byte) bits[byte] |= part.bits;
  }
}

std::string Coverage::Outside(image::FieldId field, int entry, std::string_view digits) const {
  return Masked(field, entry, digits, false);
}

std::string Coverage::Inside(image::FieldId field, int entry, std::string_view digits) const {
  return Masked(field, entry, digits, true);
}

std::string Coverage::Masked(image::FieldId field, int entry, std::string_view digits, bool inside) const {
  const auto covered = bits_.find({field, entry});
  std::string masked;
  for (std::size_t byte = 0; byte * kByte < digits.size(); ++byte) {
    const int bits = covered == bits_.end() || byte >= covered->second.size() ? 0 : covered->second[byte];
    const int value = codecs::HexToInt(codecs::Slice(digits, byte * kByte, kByte));
    masked += codecs::ByteToHex(value & (inside ? bits : ~bits));
  }
  return masked;
}

bool IsZero(std::string_view digits) {
  return digits.find_first_not_of('0') == std::string_view::npos;
}

void Merge(std::string& value, const std::string& digits, const std::string& mask) {
  for (std::size_t byte = 0; byte < value.size(); byte += 2) {
    const int bits = codecs::HexToInt(mask.substr(byte, 2));
    const int merged =
        (codecs::HexToInt(value.substr(byte, 2)) & ~bits) | (codecs::HexToInt(digits.substr(byte, 2)) & bits);
    value.replace(byte, 2, codecs::ByteToHex(merged));
  }
}

bool CanBeLoaded(std::string_view digits) {
  constexpr std::size_t kMost = 1000;
  return digits.size() <= kMost && digits.find_first_of("#\r\n") == std::string_view::npos;
}

}  // namespace ovl::text_form
