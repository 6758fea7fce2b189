#include "controls/design.h"

#include <algorithm>

namespace ovl::controls {

std::vector<std::string> Numbers(int first, int last, int width) {
  std::vector<std::string> texts;
  for (int number = first; number <= last; ++number) {
    auto text = std::to_string(number);
    text.insert(0, static_cast<std::size_t>(std::max(0, width - static_cast<int>(text.size()))), '0');
    texts.push_back(std::move(text));
  }
  return texts;
}

std::vector<std::string> HeadAndNumbers(const std::string& head, int first, int last, int width) {
  auto texts = Numbers(first, last, width);
  texts.insert(texts.begin(), head);
  return texts;
}

void SetElements(OptionArray& array, std::initializer_list<const char*> captions) {
  array.elements.clear();
  for (const char* caption : captions) {
    ControlState element;
    element.caption = caption;
    array.elements.push_back(std::move(element));
  }
}

}  // namespace ovl::controls
