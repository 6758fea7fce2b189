// Text forms that are read into a pattern, for each firmware.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "host/toml/toml_reader.h"
#include "image/report.h"
#include "start/start_up.h"
#include "support/firmware_facts.h"
#include "support/harness.h"
#include "text_form/export.h"
#include "text_form/import/import.h"

namespace ovl::testing {

using text_form::Catalogue;
using text_form::Imported;
using text_form::Strictness;

class TextForm : public ::testing::Test {
 protected:
  static core::Application& Served(const firmware::FirmwareId& firmware) {
    static std::map<std::string, core::Application> programs;
    const auto [program, is_new] = programs.try_emplace(firmware.Joined());
    if (is_new) start::ServeFirmware(program->second, firmware);
    return program->second;
  }
  static Catalogue& Of(const firmware::FirmwareId& firmware) {
    static std::map<std::string, Catalogue> catalogues;
    return catalogues.try_emplace(firmware.Joined(), Served(firmware)).first->second;
  }
  static image::ConfigImage Pattern(const firmware::FirmwareId& firmware, int register_code = 0) {
    auto stream = PatternStream(firmware, 1, register_code);
    std::erase_if(stream, [](char letter) { return letter == '\r' || letter == '\n'; });
    return *image::DecodeStream(stream, firmware);
  }
  static Imported Read(std::string_view text, Strictness strictness = Strictness::kWhole,
                       const firmware::FirmwareId& firmware = kLatest) {
    return text_form::Import(Of(firmware), Of, Pattern(firmware), host::ReadToml(text), strictness);
  }
  // "LINE:COLUMN WORDS", one a line.
  static std::string ProblemsIn(std::string_view text) {
    std::string said;
    for (const auto& problem : Read(text).problems)
      said += std::to_string(problem.at.line) + ":" + std::to_string(problem.at.column) + " " +
              problem.words + "\n";
    return said;
  }
  static std::string Exported(const image::ConfigImage& image,
                              const firmware::FirmwareId& firmware = kLatest) {
    return text_form::Export(Of(firmware), image);
  }
};

}  // namespace ovl::testing
