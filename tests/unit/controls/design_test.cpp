// The forms before the program starts: their captions are those of the help, and their lists of numbers.
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>

#include "core/application.h"

namespace ovl::testing {
namespace {

std::string Bare(std::string caption) {
  const auto first = caption.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  caption = caption.substr(first, caption.find_last_not_of(' ') + 1 - first);
  if (caption.back() == ':') caption.pop_back();
  return caption;
}

// A help page is about one window, so its controls come before others of the same name.
const controls::NamedControl* Find(const core::Application& app, const std::string& page,
                                   const std::string& name) {
  static const std::map<std::string, std::string> kForms = {
      {"text_entry", "frmSetEXCPSTR."}, {"range", "frmSetRange."}, {"viewer", "frmView."}};
  const bool needs_form = name.find('.') == std::string::npos && kForms.contains(page);
  return app.registry.Find((needs_form ? kForms.at(page) : "") + name);
}

TEST(Design, CaptionsAreThoseOfTheHelp) {
  const core::Application app;
  int compared = 0;
  for (const auto& page : std::filesystem::directory_iterator(std::string(OVL_SOURCE_FOLDER) + "/help")) {
    const auto name_of_page = page.path().stem().string();
    if (name_of_page == "register_options" || name_of_page == "sub_menu") continue;  // rows of registers
    std::ifstream file(page.path());
    for (std::string line; std::getline(file, line);) {
      const auto last = line.rfind("| `");
      // A label in small letters is a description.
      if (line.rfind("| ", 0) != 0 || last == std::string::npos || std::islower(line[2])) continue;
      const auto label = line.substr(2, line.find(" |") - 2);
      const auto name = line.substr(last + 3, line.find('`', last + 3) - last - 3);
      const auto* control = Find(app, name_of_page, name);
      if (control == nullptr) continue;
      const auto caption = Bare(controls::StateOf(control->control).caption);
      if (caption.empty()) continue;
      EXPECT_NE(label.find(caption), std::string::npos) << label << " is not " << caption;
      ++compared;
    }
  }
  EXPECT_GE(compared, 105);
}

TEST(Design, ListsOfNumbersHaveAllTheirEntries) {
  struct Row {
    const char* list;
    std::size_t entries;
    const char *first, *second, *last;
  };
  const Row rows[] = {
      {"ComboHR", 24, "00", "01", "23"},         {"ComboMin", 60, "00", "01", "59"},
      {"ComboSec", 60, "00", "01", "59"},        {"ComboMonth", 12, "01", "02", "12"},
      {"ComboYear", 100, "00", "01", "99"},      {"ComboALM(5)", 121, "000", "002", "240"},
      {"ComboALM(1)", 29, "NONE", "1", "RTS"},   {"ComboDay(0)", 28, "01", "02", "28"},
      {"ComboDay(1)", 29, "01", "02", "29"},     {"ComboDay(2)", 30, "01", "02", "30"},
      {"ComboDay(3)", 31, "01", "02", "31"},     {"ComboCOMM(10)", 17, "N/A", "1", "16"},
      {"ComboDIP(1)", 11, "1", "2", "11"},       {"ComboDIP(8)", 31, "10", "11", "40"},
      {"ComboKLM4011(0)", 32, "1", "2", "32"},   {"ComboKLM4011(3)", 32, "1", "2", "32"},
      {"ComboExcp(0)", 24, "1", "2", "24"},      {"ComboALM(0)", 16, "1", "2", "16"},
      {"ComboMICROSADD", 17, "ANY", "00", "15"}, {"ComboTCPIP(0)", 256, "0", "1", "255"},
      {"ComboTCPIP(7)", 256, "0", "1", "255"},   {"ComboAddress", 256, "ANY", "1", "255"},
      {"ComboSICOM", 256, "ANY", "1", "255"},    {"ComboCLARITYEPOS", 256, "ALL", "1", "255"},
      {"ComboNE134", 256, "0", "1", "255"},      {"ComboAddr", 17, "ANY", "1", "16"},
      {"ComboDeviceADD", 18, "ANY", "01", "17"}, {"ComboCONSOLEID", 9, "ANY", "1", "8"},
      {"ComboTCI_ID(0)", 10, "0", "1", "9"},     {"ComboUNI_ID(2)", 10, "0", "1", "9"},
  };
  const core::Application app;
  for (const auto& row : rows) {
    const auto& items = std::get<controls::List*>(app.registry.Find(row.list)->control)->items;
    ASSERT_EQ(items.size(), row.entries) << row.list;
    EXPECT_EQ(items.front(), row.first) << row.list;
    EXPECT_EQ(items.at(1), row.second) << row.list;
    EXPECT_EQ(items.back(), row.last) << row.list;
  }
}

}  // namespace
}  // namespace ovl::testing
