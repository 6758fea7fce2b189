#include "sheet/checksum.h"

#include "acts/backup.h"

namespace ovl::sheet {

std::uint32_t Crc32(std::string_view bytes) {
  constexpr std::uint32_t kPolynomial = 0xEDB88320;
  std::uint32_t rest = ~std::uint32_t{0};
  for (const char byte : bytes) {
    rest ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) rest = rest >> 1 ^ ((rest & 1) != 0 ? kPolynomial : 0);
  }
  return ~rest;
}

std::optional<std::string> Checksum(const image::ConfigImage& image, const firmware::FirmwareId& firmware) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const auto file = acts::ReopenableFile(image, firmware);
  if (!file) return std::nullopt;
  const auto sum = Crc32(*file);
  std::string digits;
  for (int shift = 28; shift >= 0; shift -= 4) digits += kDigits[sum >> shift & 0xF];
  return digits;
}

}  // namespace ovl::sheet
