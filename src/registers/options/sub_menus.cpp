#include "registers/options/sub_menus.h"

#include <algorithm>
#include <array>

#include "core/actions.h"
#include "phrases/phrases.h"

namespace ovl::registers {
namespace {

using enum image::FieldId;

void HideFrames(controls::SubMenuForm& form) {
  for (auto* frame : {&form.Frame1, &form.Frame2, &form.SharpSubMenuFrame, &form.UP3000Frm})
    frame->visible = false;
}

void ShowModel(controls::SubMenuForm& form, const std::string& title, const std::string& model) {
  form.Frame2.visible = true;
  form.Frame2.caption = title;
  form.Combo1[0].items = {model};
  form.Combo1[0].position = 0;
}

void ShowMode(core::Application& app) {
  AssignPosition(app, app.FrmSubMenu.Combo1[1], codecs::HexToInt(app.image[REGTYPE_EXT2]),
                 core::Raise::kAlways);
}

struct CasioModel {
  int element;
  const char* title;
  const char* model;
  bool has_adapter;
};
constexpr std::array kCasioModels = {
    CasioModel{18, "TE2200", "TE-2200", true},   CasioModel{19, "TE3000", "TE3000", false},
    CasioModel{20, "TE4000", "TE4000", false},   CasioModel{21, "TE4500", "TE4500", false},
    CasioModel{33, "TK-T500", "TK-T500", false},
};

struct SharpModel {
  int element;
  const char* title;
  std::array<const char*, 4>
      options;  // the last two empty: only two are offered; all empty: a terminal number
};
constexpr std::array kSharpModels = {
    SharpModel{12, "A410,420", {"TAP", "EMULATE", "TAP US", "EMULATE US"}},
    SharpModel{19, "A-750/A-770 ER-01PU", {"RECEIPT", "JOURNAL", "", ""}},
    SharpModel{21, "UP600/700", {"TAP", "EMULATE", "", ""}},
    SharpModel{22, "UP300/3300", {"", "", "", ""}},
};

constexpr int kTecSlipPrinter = 9;

template <class Models>
auto ModelOf(const Models& models, int element) {
  return std::find_if(models.begin(), models.end(),
                      [&](const auto& model) { return model.element == element; });
}

void ShowOptions(core::Application& app, const SharpModel& model) {
  auto& form = app.FrmSubMenu;
  form.SharpSubMenuFrame.visible = true;
  form.SharpSubMenuFrame.caption = model.title;
  for (std::size_t option = 0; option < model.options.size(); ++option) {
    auto& element = form.Option1.elements[option];
    element.visible = *model.options[option] != '\0';
    if (element.visible) element.caption = model.options[option];
  }
  ChooseElement(app, form.Option1, codecs::HexToInt(app.image[REGTYPE_EXT2]));
}

void OpenOrClose(core::Application& app, bool has_menu) {
  if (has_menu) {
    ShowForm(app, app.FrmSubMenu.form);
  } else {
    UnloadForm(app, app.FrmSubMenu.form);
  }
}

void Combo1_Click(core::Application& app, int index) {
  if (index == 1) app.image[REGTYPE_EXT2] = codecs::ByteToHex(app.FrmSubMenu.Combo1[1].position);
}

void Combo2_Click(core::Application& app, int) {
  app.image[REGTYPE_EXT2] = codecs::ByteToHex(app.FrmSubMenu.Combo2.position);
}

void Option1_Click(core::Application& app, int element) {
  app.image[REGTYPE_EXT2] = codecs::ByteToHex(element);
}

void F1OP_Click(core::Application& app, int element) {
  app.image[REGTYPE_EXT1] = codecs::ByteToHex(element);
  app.FrmSubMenu.Frame2.visible = element == 0;
}

}  // namespace

bool ArrangeCasioSubmenu(core::Application& app, int element) {
  auto& form = app.FrmSubMenu;
  const auto model = ModelOf(kCasioModels, element);
  app.frmMain.Command1.enabled = model != kCasioModels.end();
  form.form.caption = phrases::Marked("Form", "CASIO SUBMENU");
  const int port = codecs::HexToInt(app.image[REGTYPE_EXT1]);
  if (!ChooseElement(app, form.F1OP, port)) form.F1OP.chosen = -1;
  ShowMode(app);
  if (model == kCasioModels.end()) return false;

  HideFrames(form);
  ShowModel(form, model->title, model->model);
  if (!model->has_adapter) return true;
  form.Frame1.visible = true;
  form.Frame1.caption = model->title;
  form.Frame2.visible = form.F1OP.chosen != 1;
  return true;
}

bool ArrangeSharpSubmenu(core::Application& app, int element) {
  auto& form = app.FrmSubMenu;
  const auto model = ModelOf(kSharpModels, element);
  app.frmMain.SharpCom.enabled = model != kSharpModels.end();
  form.form.caption = phrases::Marked("Form", "SHARP SUBMENU");
  if (model == kSharpModels.end()) return false;

  HideFrames(form);
  if (*model->options[0] != '\0') {
    ShowOptions(app, *model);
    return true;
  }
  form.UP3000Frm.visible = true;
  form.UP3000Frm.caption = model->title;
  AssignPosition(app, form.Combo2, codecs::HexToInt(app.image[REGTYPE_EXT2]), core::Raise::kAlways);
  return true;
}

bool ArrangeTecSubmenu(core::Application& app, int element) {
  auto& form = app.FrmSubMenu;
  const bool has_menu = element == kTecSlipPrinter;
  app.frmMain.Command2.enabled = has_menu;
  form.form.caption = phrases::Marked("Form", "TEC SUBMENU");
  if (!has_menu) return false;

  HideFrames(form);
  ShowMode(app);
  ShowModel(form, "TEC SLIP PRINTER", "TEC SLIP PRINTER");
  return true;
}

void ApplyCasioSubmenu(core::Application& app, int element) {
  OpenOrClose(app, ArrangeCasioSubmenu(app, element));
}

void ApplySharpSubmenu(core::Application& app, int element) {
  OpenOrClose(app, ArrangeSharpSubmenu(app, element));
}

void ApplyTecSubmenu(core::Application& app, int element) {
  OpenOrClose(app, ArrangeTecSubmenu(app, element));
}

void WireSubMenu(controls::SubMenuForm& form) {
  core::HandleAll(form.Combo1, Combo1_Click);
  form.Combo2.handler = Combo2_Click;
  form.Option1.handler = Option1_Click;
  form.F1OP.handler = F1OP_Click;
}

}  // namespace ovl::registers
