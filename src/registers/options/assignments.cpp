#include "registers/options/assignments.h"

#include <array>
#include <initializer_list>
#include <span>

#include "core/actions.h"
#include "firmware/traits.h"
#include "registers/options/micros.h"
#include "registers/options/option_handlers.h"
#include "registers/options/sub_menus.h"

namespace ovl::registers {
namespace {

using enum image::FieldId;

// A byte of the image, and where it is from.
struct Stored {
  image::FieldId field;
  int entry;
  int value;
};

Stored StoredIn(const core::Application& app, image::FieldId field, int entry = 1) {
  return {field, entry, codecs::HexToInt(app.image.at(field, entry))};
}

int Byte(const core::Application& app, image::FieldId field) {
  return StoredIn(app, field).value;
}

// Keeps the byte that has no matching entry, for the words on the screen.
bool Fits(core::Application& app, const Stored& byte, bool accepted) {
  if (!accepted) app.unfit_option = core::UnfitOption{byte.field, byte.entry, codecs::ByteToHex(byte.value)};
  return accepted;
}

bool Assign(core::Application& app, controls::List& list, int position) {
  return AssignPosition(app, list, position, core::Raise::kAlways);
}

bool Assign(core::Application& app, controls::List& list, const Stored& byte) {
  return Fits(app, byte, Assign(app, list, byte.value));
}

bool Choose(core::Application& app, controls::OptionArray& array, const Stored& byte) {
  return Fits(app, byte, ChooseElement(app, array, byte.value));
}

// The three digits, the first one in the last list.
bool AssignDigits(core::Application& app, std::array<controls::List, 3>& lists) {
  const std::array digits = {StoredIn(app, TCIADDBAK_1), StoredIn(app, TCIADDBAK_2),
                             StoredIn(app, TCIADDBAK_3)};
  return Assign(app, lists[2], digits[0]) && Assign(app, lists[1], digits[1]) &&
         Assign(app, lists[0], digits[2]);
}

// Gives the first elements their captions and shows them; hides the rest.
void Offer(controls::OptionArray& array, std::span<const char* const> captions) {
  auto caption = captions.begin();
  for (auto& element : array.elements) {
    element.visible = caption != captions.end();
    if (element.visible) element.caption = *caption++;
  }
}

bool AssignOffered(core::Application& app, controls::OptionArray& array,
                   std::initializer_list<const char*> captions) {
  Offer(array, {captions.begin(), captions.size()});
  return Choose(app, array, StoredIn(app, REGTYPE_MINOR));
}

bool RefillMixed(core::Application& app, std::initializer_list<const char*> entries) {
  auto& list = app.frmMain.ComboDIPMIXED;
  if (firmware::RefillsPrintouts(app.firmware)) {
    list.items.clear();
    list.position = -1;
  }
  list.items.insert(list.items.end(), entries.begin(), entries.end());
  return Assign(app, list, StoredIn(app, REGTYPE_MINOR));
}

bool AssignMode(core::Application& app, std::array<controls::List, 2>& lists) {
  const auto mode = StoredIn(app, REGTYPE_MINOR);
  return Assign(app, lists[0], 0) && Assign(app, lists[1], mode);
}

void ShowUniwellSwitch(core::Application& app, bool of_models) {
  app.frmMain.ComboUni.visible = !of_models;
  app.frmMain.ComboUniFor14R7up.visible = of_models;
}

bool AssignEasy(core::Application& app, const char* caption) {
  app.frmMain.EASYOP.elements[0].caption = caption;
  return ChooseElement(app, app.frmMain.EASYOP, 0);
}

// Chooses a main option by its byte and shows what belongs to it.
template <void (*kShow)(core::Application&, int)>
bool AssignMain(core::Application& app, controls::OptionArray& array) {
  const auto element = StoredIn(app, REGTYPE_MINOR);
  if (!Choose(app, array, element)) return false;
  kShow(app, element.value);
  return true;
}

}  // namespace

bool AssignArray(core::Application& app, const RegisterRow& row) {
  return Choose(app, app.frmMain.*row.array, StoredIn(app, row.from));
}

bool AssignList(core::Application& app, const RegisterRow& row) {
  return Assign(app, app.frmMain.*row.list, StoredIn(app, row.from));
}

bool AssignTcpip(core::Application& app, const RegisterRow&) {
  auto& form = app.frmMain;
  const int flags = Byte(app, REGTYPE_MINOR);
  for (int entry = 1; entry <= 4; ++entry) {
    const auto value = StoredIn(app, IPADDRESS, entry);
    if (!Assign(app, form.ComboTCPIP[static_cast<std::size_t>(entry + 3)], value)) return false;
  }
  for (std::size_t bit = 0; bit < form.ComboTCPINFO.size(); ++bit) {
    if (!Assign(app, form.ComboTCPINFO[bit], flags >> bit & 1)) return false;
  }
  return true;
}

bool AssignOldTcpip(core::Application& app, const RegisterRow&) {
  for (int entry = 1; entry <= 4; ++entry) {
    const auto value = StoredIn(app, IPADDRESS, entry);
    if (!Assign(app, app.frmMain.ComboTCPIP[static_cast<std::size_t>(entry - 1)], value)) return false;
  }
  return true;
}

bool AssignDresserWayne(core::Application& app, const RegisterRow&) {
  auto& form = app.frmMain;
  const int source = Byte(app, REGTYPE_MINOR);
  const int kind = Byte(app, REGTYPE_EXT1);
  const auto option = StoredIn(app, REGTYPE_EXT2);
  if (source == 0) return Choose(app, form.POSOP, option);
  if (source != 1) return true;
  switch (kind) {
    case 0:
      return Choose(app, form.TEROP, option);
    case 1:
      return Choose(app, form.PRNOP, option);
    case 2:
      return ChooseElement(app, form.SECUOP, 0);
    default:
      return true;
  }
}

bool AssignFujitsu(core::Application& app, const RegisterRow&) {
  const auto model = StoredIn(app, REGTYPE_MINOR);
  const auto printer = StoredIn(app, REGTYPE_EXT2);
  return Choose(app, app.frmMain.FUJIOP, model) && Assign(app, app.frmMain.Combo1, printer);
}

bool AssignGasboy(core::Application& app, const RegisterRow&) {
  const auto address = StoredIn(app, REGTYPE_MINOR);
  const auto device = StoredIn(app, GTITLE_NF_BAK);
  return Assign(app, app.frmMain.ComboDeviceADD, address) && Assign(app, app.frmMain.ComboDeviceGas, device);
}

bool AssignGilbarco(core::Application& app, const RegisterRow&) {
  app.frmMain.OpGilbraco.elements[5].visible = firmware::OffersGilbarcoXml(app.firmware);
  return AssignMain<ShowGilbarco>(app, app.frmMain.OpGilbraco);
}

bool AssignIbm3151(core::Application& app, const RegisterRow&) {
  return RefillMixed(app, {"RECEIPT", "JOURNAL", "MIXED"});
}

bool AssignSchlumberger(core::Application& app, const RegisterRow&) {
  return RefillMixed(app, {"RECEIPT", "C .D. U", "CDU(2L)"});
}

bool AssignMicrelec(core::Application& app, const RegisterRow&) {
  auto& form = app.frmMain;
  auto& array = Byte(app, REGTYPE_MINOR) == 0 ? form.OpMicrelec : form.OpMicrelec9500;
  return Choose(app, array, StoredIn(app, UNITADDR));
}

bool AssignMicros(core::Application& app, const RegisterRow&) {
  if (firmware::OffersMicros3700(app.firmware)) app.frmMain.OpMicros.elements[3].visible = true;
  if (!Choose(app, app.frmMain.OpMicros, StoredIn(app, REGTYPE_MINOR))) return false;
  ShowMicrosPanel(app);
  return true;
}

bool AssignNcr(core::Application& app, const RegisterRow&) {
  auto& array = app.frmMain.OpNCR;
  if (firmware::OffersNcr5972(app.firmware)) {
    array.elements[5].visible = true;
    array.elements[6].visible = true;
  }
  return Choose(app, array, StoredIn(app, REGTYPE_MINOR));
}

bool AssignNorand(core::Application& app, const RegisterRow&) {
  auto& form = app.frmMain;
  const auto wiring = StoredIn(app, REGTYPE_MINOR);
  const auto title = StoredIn(app, GTITLE_NF_BAK);
  const auto console = StoredIn(app, DV_ADDRIND_BAK);
  return Assign(app, form.ComboWoring, wiring) && Assign(app, form.ComboTITLEDIP, title) &&
         Assign(app, form.ComboCONSOLEID, console);
}

bool AssignPanasonic(core::Application& app, const RegisterRow&) {
  auto& lists = app.frmMain.ComboPana;
  const auto title = StoredIn(app, GTITLE_NF_BAK);
  const auto wiring = StoredIn(app, REGTYPE_MINOR);
  return Assign(app, lists[0], title) && Assign(app, lists[1], wiring);
}

bool AssignTci(core::Application& app, const RegisterRow&) {
  return AssignDigits(app, app.frmMain.ComboTCI_ID);
}

bool AssignUniwell(core::Application& app, const RegisterRow&) {
  ShowUniwellSwitch(app, false);
  return Assign(app, app.frmMain.ComboUni, StoredIn(app, REGTYPE_MINOR)) &&
         AssignDigits(app, app.frmMain.ComboUNI_ID);
}

bool AssignUniwellModels(core::Application& app, const RegisterRow&) {
  auto& form = app.frmMain;
  const auto option = StoredIn(app, REGTYPE_EXT2);
  form.FrameOf(controls::OptionFrame::kUniwellId).caption.clear();
  if (!AssignMain<ApplyUniwellFrame>(app, form.UNIWOP)) return false;
  ShowUniwellSwitch(app, true);
  if (Assign(app, form.ComboUniFor14R7up, option) && AssignDigits(app, form.ComboUNI_ID)) return true;
  form.FrameOf(controls::OptionFrame::kUniwellId).visible = false;
  return false;
}

bool AssignSerialId(core::Application& app, const RegisterRow&) {
  ShowUniwellSwitch(app, true);
  return Assign(app, app.frmMain.ComboUniFor14R7up, StoredIn(app, REGTYPE_EXT2)) &&
         AssignDigits(app, app.frmMain.ComboUNI_ID);
}

bool AssignTk500(core::Application& app, const RegisterRow&) {
  return AssignMode(app, app.frmMain.ComboTk500);
}

bool AssignTe2200(core::Application& app, const RegisterRow&) {
  return AssignMode(app, app.frmMain.ComboTE2200);
}

bool AssignTec(core::Application& app, const RegisterRow&) {
  return AssignMode(app, app.frmMain.ComboTEC);
}

bool AssignClarity(core::Application& app, const RegisterRow&) {
  const auto address = StoredIn(app, UNITADDR);
  auto& list = app.frmMain.ComboCLARITYEPOS;
  return Assign(app, list, 0) && Assign(app, list, address);
}

bool AssignEpson(core::Application& app, const RegisterRow&) {
  const bool extended = firmware::ReadsEpsonFromExtension(app.firmware);
  auto& array = app.frmMain.OpRI_QT2;
  if (extended) array.elements[9].visible = true;
  return Choose(app, array, StoredIn(app, extended ? REGTYPE_EXT2 : REGTYPE_MINOR));
}

bool AssignNucleus(core::Application& app, const RegisterRow&) {
  return AssignOffered(app, app.frmMain.OpNUCP, {"STANDARD (Both)", "PRINTER WITH POLE", "POLE VIA PRINTER"});
}

bool AssignScale(core::Application& app, const RegisterRow&) {
  return AssignOffered(app, app.frmMain.OpNUCP, {"AVERY", "MOLENS", "LEON LD5204"});
}

bool AssignScaleModels(core::Application& app, const RegisterRow&) {
  auto& array = app.frmMain.OpWEIGHS;
  Offer(array, firmware::WeighScaleModelsOf(app.firmware));
  return Choose(app, array, StoredIn(app, REGTYPE_MINOR));
}

bool AssignOdometer(core::Application& app, const RegisterRow&) {
  return Assign(app, app.frmMain.ComboDIP[controls::Dip::kLines], 0);
}

bool AssignSensors(core::Application& app, const RegisterRow&) {
  return ChooseElement(app, app.frmMain.SenOP, 0) &&
         Assign(app, app.frmMain.ST6105C, StoredIn(app, REGTYPE_EXT2));
}

bool AssignEasyTouch(core::Application& app, const RegisterRow&) {
  const bool chosen = AssignEasy(app, "TS600/TS700");
  app.image[REGTYPE_EXT2] = "01";
  return chosen;
}

bool AssignEuropad(core::Application& app, const RegisterRow&) {
  return AssignEasy(app, "EP300/EP3000");
}

bool AssignPosiflex(core::Application& app, const RegisterRow&) {
  return AssignEasy(app, "EPOS/PST6000");
}

bool AssignIbm(core::Application& app, const RegisterRow&) {
  auto& form = app.frmMain;
  const auto option = StoredIn(app, REGTYPE_EXT2);
  if (!AssignMain<ShowIbm>(app, form.IBMOP)) return false;
  for (const auto* list : {&form.IBMCombo, &form.RDSCombo, &form.Combo4610TF6}) {
    if (list->visible) return Fits(app, option, list->position == option.value);
  }
  return true;
}

bool AssignIcl(core::Application& app, const RegisterRow&) {
  auto& form = app.frmMain;
  const auto option = StoredIn(app, REGTYPE_EXT2);
  if (!AssignMain<ShowIcl>(app, form.ICLOP) || !Choose(app, form.TEAMOP, option)) return false;
  form.POS2000.visible = true;
  return true;
}

bool AssignNcrModel(core::Application& app, const RegisterRow&) {
  auto& form = app.frmMain;
  const auto option = StoredIn(app, REGTYPE_EXT2);
  if (!AssignMain<ShowNcr>(app, form.NCROP) || !Choose(app, form.JRNLRCPT_SLP_OP, option)) return false;
  form.NCRFrame.visible = false;
  return true;
}

bool AssignNixdorf(core::Application& app, const RegisterRow&) {
  auto& form = app.frmMain;
  const auto option = StoredIn(app, REGTYPE_EXT2);
  if (!AssignMain<ShowNixdorf>(app, form.NIXDORF14OP) || !Choose(app, form.BEETLEOp, option)) return false;
  form.BEETLEFrm.visible = true;
  return true;
}

bool AssignJcm(core::Application& app, const RegisterRow&) {
  return AssignOffered(app, app.frmMain.JCMOp, {"Gold 4800/4850", "Gold G-225", "Gold G-381", "Gold G-556"});
}

bool AssignOmron(core::Application& app, const RegisterRow&) {
  return AssignOffered(app, app.frmMain.JCMOp, {"PROLOGIC", "RS5550/5555"});
}

bool AssignPar(core::Application& app, const RegisterRow&) {
  return AssignOffered(app, app.frmMain.JCMOp, {"POS 400", "VIAGRO"});
}

bool AssignProsper(core::Application& app, const RegisterRow&) {
  return AssignOffered(app, app.frmMain.JCMOp, {"ET7626", "ET7826"});
}

bool AssignVectron(core::Application& app, const RegisterRow&) {
  return AssignOffered(app, app.frmMain.JCMOp, {"COLOUR TOUCH", "POS MINI/32", "VARIO"});
}

bool AssignCasio(core::Application& app, const RegisterRow&) {
  const auto model = StoredIn(app, REGTYPE_MINOR);
  if (!Choose(app, app.frmMain.CASIOOP, model)) return false;
  if (!ArrangeCasioSubmenu(app, model.value)) UnloadForm(app, app.FrmSubMenu.form);
  return true;
}

bool AssignSharpModels(core::Application& app, const RegisterRow&) {
  const auto model = StoredIn(app, REGTYPE_MINOR);
  if (!Choose(app, app.frmMain.SharpOP, model)) return false;
  if (!ArrangeSharpSubmenu(app, model.value)) UnloadForm(app, app.FrmSubMenu.form);
  return true;
}

bool AssignTecModels(core::Application& app, const RegisterRow&) {
  const auto model = StoredIn(app, REGTYPE_MINOR);
  if (!Choose(app, app.frmMain.TECOP, model)) return false;
  if (!ArrangeTecSubmenu(app, model.value)) UnloadForm(app, app.FrmSubMenu.form);
  return true;
}

}  // namespace ovl::registers
