#include "changes/preview_program.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

#include "core/actions.h"
#include "core/configuration.h"
#include "firmware/variants.h"
#include "panels/alarms.h"
#include "panels/exceptions/exceptions.h"
#include "panels/wiring.h"
#include "registers/selection_driver.h"

namespace ovl::changes {
namespace {

// Controls whose frame some firmware hide as a whole.
struct Framed {
  std::string_view control;
  controls::Frame controls::MainForm::*frame;
};
constexpr std::array kFramed = {
    Framed{"ComboLang", &controls::MainForm::Frame12},
    Framed{"DemoMode", &controls::MainForm::FrameDemo},
    Framed{"CharacterList", &controls::MainForm::FrameDemo},
    Framed{"DemoType", &controls::MainForm::FrameDemo},
    Framed{"DemoSpeed", &controls::MainForm::FrameDemo},
    Framed{"ComboScroll(0)", &controls::MainForm::Frame14},
    Framed{"ComboScroll(1)", &controls::MainForm::Frame14},
};

using controls::Alm;
using controls::Excp;

template <class Lists>
void Forget(Lists& lists) {
  for (auto& list : lists) list.position = -1;
}

struct WordsIn {
  using Words = std::optional<phrases::Words>;

  // The names of registers are the same in every language.
  const controls::List* registers;

  Words operator()(controls::List* list) const {
    if (list->position < 0) return std::nullopt;
    return list == registers ? phrases::Words(list->Text()) : phrases::OfForm(list->Text());
  }
  Words operator()(controls::OptionArray* array) const {
    if (array->chosen < 0) return std::nullopt;
    const auto& element = array->elements.at(static_cast<std::size_t>(array->chosen));
    const bool is_offered = element.visible && !element.caption.empty();
    return is_offered ? Words(phrases::OfForm(element.caption)) : Words();
  }
  Words operator()(controls::TextBox* box) const { return phrases::Words(box->text); }
  Words operator()(controls::CheckBox* box) const { return phrases::OfForm(box->checked ? "ON" : "OFF"); }
  template <class Other>
  Words operator()(const Other&) const {
    return std::nullopt;
  }
};

// Lists that a fixed text covers while they have no meaning.
struct Covered {
  std::string_view control;
  std::size_t cover;  // its place in ComboNone
};
constexpr std::array kCovered = {Covered{"ComboCOMM(7)", 0}, Covered{"ComboCOMM(10)", 1},
                                 Covered{"ComboCOMM(11)", 2}};

}  // namespace

void SetUpWithoutScreen(core::Application& app, const core::Application& like) {
  app.firmware = app.image_firmware = like.image_firmware;
  app.compact_form = like.compact_form;
  app.Setting_Code = like.Setting_Code;
  PrepareCapabilities(app);
  panels::WirePanels(app);
  registers::WireRegisters(app);
  app.frmMain.ComboReg.items = like.frmMain.ComboReg.items;
  app.RegisterIndex = like.RegisterIndex;
  if (app.compact_form) firmware::ApplyCompactForm(app.frmMain);
  firmware::ApplyFirmwareVariants(app.frmMain, app.firmware);
}

PreviewProgram::PreviewProgram(const core::Application& like, const image::ConfigImage& image)
    : image_(image) {
  SetUpWithoutScreen(app_, like);
  ApplyAll();
}

// The handlers of register options write into the image and move lists of other panels. Each routine
// therefore starts with the image as it is, and the moved lists start without a selection.
void PreviewProgram::ApplyAll() {
  auto& form = app_.frmMain;
  app_.UploadApplying = true;         // the register is shown, and its default image is not loaded
  app_.LinkMode = core::kLinkUpload;  // the window of MICROS stays closed
  for (const auto& routine : app_.Setting_Code) {
    app_.image = image_;
    routine.run(app_);
    if (routine.run != registers::ApplyRegisterSelection) continue;
    Forget(form.ComboCOMM);
    Forget(form.ComboDIP);
    Forget(form.ComboTD);
    Forget(form.ComboExcepRe);
  }
  app_.image = image_;
  LoadForm(app_, app_.frmSetRange.form);  // shows the separator
}

void PreviewProgram::Show(const image::ConfigImage& image) {
  image_ = image;
  ApplyAll();
}

std::optional<image::ConfigImage> PreviewProgram::AfterPick(std::string_view control, int entry,
                                                            const image::ConfigImage& image) {
  const auto& named = Named(control);
  if (controls::StateOf(named.control).handler == nullptr) return std::nullopt;
  app_.image = image;
  app_.PanelsReady = true;
  bool taken = false;
  if (auto* const* list = std::get_if<controls::List*>(&named.control))
    taken = AssignPosition(app_, **list, entry, core::Raise::kAlways);
  if (auto* const* array = std::get_if<controls::OptionArray*>(&named.control))
    taken = ChooseElement(app_, **array, entry, core::Raise::kAlways);
  if (auto* const* box = std::get_if<controls::CheckBox*>(&named.control)) {
    taken = entry == 0 || entry == 1;
    (*box)->checked = entry == 1;
    (*box)->handler(app_, 0);
  }
  app_.PanelsReady = false;
  return taken ? std::optional(std::exchange(app_.image, image_)) : std::nullopt;
}

void PreviewProgram::ShowException(int number) {
  auto& lists = app_.frmMain.ComboExcp;
  app_.image = image_;
  Forget(lists);
  lists[Excp::kNumber].position = number - 1;
  panels::LoadExceptionSlot(app_, number);
}

void PreviewProgram::ShowAlarm(int number) {
  auto& lists = app_.frmMain.ComboALM;
  app_.image = image_;
  for (const auto member : {Alm::kTrigger, Alm::kNormalState, Alm::kDuration, Alm::kVideoLoss, Alm::kType})
    lists.at(member).position = -1;
  Forget(app_.frmMain.ComboTrigger);
  lists[Alm::kNumber].position = number - 1;
  panels::LoadAlarm(app_, number);
}

const controls::NamedControl& PreviewProgram::Named(std::string_view name) const {
  const auto* named = app_.registry.Find(name);
  if (named == nullptr) throw std::logic_error("there is no control " + std::string(name));
  return *named;
}

bool PreviewProgram::Shows(std::string_view control) const {
  if (!controls::StateOf(Named(control).control).visible) return false;
  const auto* framed =
      std::find_if(kFramed.begin(), kFramed.end(), [&](const Framed& row) { return row.control == control; });
  return framed == kFramed.end() || (app_.frmMain.*framed->frame).visible;
}

int PreviewProgram::EntryShown(std::string_view control) const {
  const auto& named = Named(control).control;
  if (auto* const* list = std::get_if<controls::List*>(&named)) return (*list)->position;
  if (auto* const* array = std::get_if<controls::OptionArray*>(&named)) return (*array)->chosen;
  return -1;
}

std::optional<std::string> PreviewProgram::CoverOf(std::string_view control) const {
  const auto* covered = std::find_if(kCovered.begin(), kCovered.end(),
                                     [&](const Covered& row) { return row.control == control; });
  if (covered == kCovered.end()) return std::nullopt;
  const auto& text = app_.frmMain.ComboNone.at(covered->cover);
  return text.visible ? std::optional(text.text) : std::nullopt;
}

std::optional<phrases::Words> PreviewProgram::WordsOf(std::string_view name) const {
  return std::visit(WordsIn{&app_.frmMain.ComboReg}, Named(name).control);
}

}  // namespace ovl::changes
