// Helpers to define the captions and lists of a form.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "controls/controls.h"

namespace ovl::controls {

// The numbers from first to last as texts, with leading zeros up to the width.
std::vector<std::string> Numbers(int first, int last, int width = 1);

// The head, followed by the numbers.
std::vector<std::string> HeadAndNumbers(const std::string& head, int first, int last, int width = 1);

void SetElements(OptionArray& array, std::initializer_list<const char*> captions);

template <class Array>
void SetCaptions(Array& controls, std::initializer_list<const char*> captions) {
  auto caption = captions.begin();
  for (auto& control : controls) {
    if (caption == captions.end()) return;
    control.caption = *caption++;
  }
}

}  // namespace ovl::controls
