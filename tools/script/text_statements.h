// Statements for configurations as text, comparisons and checksums.
#pragma once

#include <ostream>
#include <span>
#include <string>

#include "script/statements.h"

namespace ovl::script {

std::span<const Statement> TextStatements();

// One line for each setting that differs. False if none does.
bool PrintDifferences(std::ostream& output, const core::Application& app, const image::ConfigImage& before,
                      const image::ConfigImage& after);

// Throws Stop if no file gives the image back.
std::string ChecksumOf(const image::ConfigImage& image, const firmware::FirmwareId& firmware);

}  // namespace ovl::script
