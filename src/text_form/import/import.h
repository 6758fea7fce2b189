// Reads a text form back into an image. The whole form is checked before anything is taken from it.
#pragma once

#include <functional>

#include "text_form/catalogue.h"
#include "text_form/document.h"

namespace ovl::text_form {

enum class Strictness {
  kWhole,    // a setting that this firmware lacks is a problem
  kPartial,  // of a form for another firmware, what this one lacks is left out
};

struct Imported {
  image::ConfigImage image;       // the base with what the form names; only meaningful without problems
  std::vector<Problem> problems;  // in the order of the lines
  std::vector<Problem> left_out;
};

// Gives the catalogue of another firmware, which stays valid during the call of Import.
using CatalogueOf = std::function<Catalogue&(const firmware::FirmwareId& firmware)>;

// A form of another firmware is checked as one of its own firmware first. Then its settings are looked for by
// their controls.
Imported Import(Catalogue& catalogue, const CatalogueOf& catalogue_of, const image::ConfigImage& base,
                const Document& document, Strictness strictness);

}  // namespace ovl::text_form
