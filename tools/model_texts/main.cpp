// Writes the texts of the model's tables as marked texts, so that lupdate finds them: captions and entries of
// all forms under all firmware, message boxes, checks, and labels and tips of the options of registers. The
// list is made at build time, so that it always matches the tables.
#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <iostream>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>

#include "changes/option_controls.h"
#include "changes/preview_program.h"
#include "checks/checks.h"
#include "core/messages.h"
#include "firmware/firmware_table.h"
#include "phrases/phrases.h"
#include "registers/register_table.h"
#include "start/start_up.h"

namespace ovl {
namespace {

class List {
 public:
  void Add(const char* context, std::string_view text) {
    if (HasWord(text)) texts_.emplace(context, text);
  }
  void AddCaption(std::string_view caption) { Add(phrases::kForm, phrases::CaptionOf(caption).pattern); }
  void Write(std::ostream& out) const {
    for (const auto& [context, text] : texts_)
      out << "QT_TRANSLATE_NOOP(\"" << context << "\", \"" << Escaped(text) << "\")\n";
  }

 private:
  // Names of models, numbers and units are the same in every language.
  static bool HasWord(std::string_view text) {
    constexpr std::size_t kWord = 3;
    std::size_t letters = 0;
    for (const char letter : text) {
      letters = std::isalpha(static_cast<unsigned char>(letter)) != 0 ? letters + 1 : 0;
      if (letters == kWord) return true;
    }
    return letters == text.size() && letters == kWord - 1;  // "ON"
  }
  static std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char letter : text) {
      if (letter == '"' || letter == '\\') escaped += '\\';
      escaped += letter == '\n' ? std::string("\\n") : std::string(1, letter);
    }
    return escaped;
  }

  std::set<std::pair<std::string, std::string>> texts_;
};

// The entries and parts of a control.
struct PartsOf {
  List& list;
  const controls::List* registers;

  void operator()(controls::List* control) const {
    if (control == registers) return;
    for (const auto& entry : control->items) list.AddCaption(entry);
  }
  void operator()(controls::Tabs* tabs) const {
    for (const auto& caption : tabs->captions) list.AddCaption(caption);
  }
  template <class Other>
  void operator()(const Other&) const {}
};

// Some texts are shown in place of a list, in a text box of the program.
void AddForms(const core::Application& app, List& list) {
  for (const auto* form : app.registry.Forms()) list.AddCaption(form->caption);
  for (const auto& control : app.registry.All()) {
    // Options of registers show models, which are names.
    if (!std::holds_alternative<controls::Form*>(control.control))
      list.AddCaption(controls::StateOf(control.control).caption);
    std::visit(PartsOf{list, &app.frmMain.ComboReg}, control.control);
  }
  for (const auto& box : app.frmMain.ComboNone) list.AddCaption(box.text);
  const auto& port = app.frmSettSR;
  for (const auto* frame :
       {&port.comport_frame, &port.baudrate_frame, &port.data_bits_frame, &port.parity_frame})
    list.AddCaption(frame->caption);
}

// The forms under each firmware, with the options of each of its registers.
void AddFirmware(const firmware::FirmwareId& firmware, List& list) {
  core::Application app;
  start::ServeFirmware(app, firmware);
  AddForms(app, list);
  image::ConfigImage image;
  changes::PreviewProgram program(app, image);
  AddForms(program.Form(), list);
}

void AddTables(List& list) {
  for (const auto& box : core::BoxTable()) {
    list.Add("Box", box.title);
    list.Add("Box", box.text);
  }
  for (const auto& rule : checks::RuleNames()) list.Add("Check", rule.words);
  for (const auto* row : changes::AllOptions()) {
    list.AddCaption(row->label);
    list.AddCaption(row->label_alone);
    list.Add("Tip", row->tip);
  }
  for (const auto& row : registers::RegisterTable()) list.AddCaption(row.title);
}

}  // namespace
}  // namespace ovl

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "ovl-model-texts FILE\n\nWrites the texts of the model for lupdate.\n";
    return 2;
  }
  try {
    ovl::List list;
    ovl::AddTables(list);
    for (const auto& entry : ovl::firmware::FirmwareTable())
      ovl::AddFirmware({std::string(entry.version), std::string(entry.release)}, list);
    std::ofstream file(argv[1], std::ios::binary);
    list.Write(file);
    if (!file.flush()) throw std::runtime_error(std::string(argv[1]) + " cannot be written");
  } catch (const std::exception& failure) {
    std::cerr << "ovl-model-texts: " << failure.what() << "\n";
    return 1;
  }
  return 0;
}
