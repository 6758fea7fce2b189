#include "text_form/encoding.h"

#include <algorithm>

#include "codecs/codecs.h"
#include "image/field_map.h"

namespace ovl::text_form {
namespace {

constexpr std::size_t kByte = 2;

// The bits of the part in which both values agree; 0 if a longer part differs at all.
int AgreeingBits(const FieldPart& part, const std::string& one, const std::string& other) {
  if (one.size() != kByte) return one == other ? part.bits : 0;
  return part.bits & ~(codecs::HexToInt(one) ^ codecs::HexToInt(other));
}

struct EntriesIn {
  std::vector<std::string> operator()(controls::List* list) const { return list->items; }
  std::vector<std::string> operator()(controls::CheckBox*) const { return {"OFF", "ON"}; }
  std::vector<std::string> operator()(controls::OptionArray* array) const {
    std::vector<std::string> captions;
    for (const auto& element : array->elements)
      captions.push_back(element.visible ? element.caption : std::string());
    return captions;
  }
  template <class Other>
  std::vector<std::string> operator()(const Other&) const {
    return {};
  }
};

}  // namespace

image::ConfigImage FilledImage(const firmware::FirmwareId& firmware, char digit) {
  image::ConfigImage image;
  for (const auto& row : image::FieldTable()) {
    for (int entry = 1; entry <= image::EntryCount(row.id); ++entry)
      image.at(row.id, entry).assign(DigitsOfField(row.id, firmware), digit);
  }
  return image;
}

std::vector<std::string> EntriesOf(const changes::PreviewProgram& program, std::string_view control) {
  return std::visit(EntriesIn{}, program.Named(control).control);
}

Picked PickEach(changes::PreviewProgram& program, std::string_view control, std::vector<FieldPart> parts,
                const image::ConfigImage& zeros, const image::ConfigImage& ones) {
  std::vector<image::ConfigImage> after;
  const auto entries = static_cast<int>(EntriesOf(program, control).size());
  if (entries == 0) return {};
  for (int entry = 0; entry < entries; ++entry) {
    auto of_zeros = program.AfterPick(control, entry, zeros);
    const auto of_ones = program.AfterPick(control, entry, ones);
    if (!of_zeros || !of_ones) return {};
    for (auto& part : parts)
      part.bits = AgreeingBits(part, StoredIn(*of_zeros, part), StoredIn(*of_ones, part));
    after.push_back(std::move(*of_zeros));
  }
  Picked picked;
  std::copy_if(parts.begin(), parts.end(), std::back_inserter(picked.parts),
               [](const FieldPart& part) { return part.bits != 0; });
  for (const auto& image : after) {
    auto& stored = picked.stored.emplace_back();
    for (const auto& part : picked.parts) stored.push_back(StoredIn(image, part));
  }
  return picked;
}

}  // namespace ovl::text_form
