#include "controls/forms/display_panel.h"

#include "controls/design.h"
#include "controls/registry.h"

namespace ovl::controls {
namespace {

const std::vector<std::string> kOffOn = {"OFF", "ON"};

}  // namespace

DisplayPanel::DisplayPanel() {
  SetCaptions(ComboDIP, {"SCREEN BLANK", "DISPLAY LINE", "DISPLAY FORMAT", "LINE COMPRESS", "LINE JUSTIFIED",
                         "SCROLL DELAY", "DISPLAY", "SPACE COMPRESS", "DISPLAY CHARACTER / LINE"});
  ComboDIP[Dip::kScreenBlank].items = {"1",  "3",  "5",   "10",  "15",  "20",
                                       "30", "60", "120", "180", "240", "NONE"};
  ComboDIP[Dip::kLines].items = Numbers(1, 11);
  ComboDIP[Dip::kFormat].items = {"TOP", "BOTTOM"};
  for (const std::size_t list : {3U, 4U, 5U, 6U}) ComboDIP[list].items = kOffOn;
  ComboDIP[Dip::kSpaceCompress].items = HeadAndNumbers("OFF", 1, 5);
  ComboDIP[Dip::kCharacters].items = Numbers(10, 40);

  SetCaptions(ComboTD,
              {"T/D DISPLAY", "TIME FORMAT", "DATE FORMAT", "DAYLIGHT SAVING", "T/D LOCKING", "TITLER"});
  for (const std::size_t list : {0U, 4U, 5U}) ComboTD[list].items = kOffOn;
  ComboTD[Td::kTimeFormat].items = {"12 HOUR", "24 HOUR"};
  ComboTD[Td::kDateFormat].items = {"MM/DD/YY", "DD/MM/YY", "YY/MM/DD"};
  ComboTD[Td::kDaylight].items = {"DISABLED", "U.S.A", "CANADA", "AUSTRALIA", "TASMANIA", "U.K."};
  ComboLang.caption = "LANGUAGE";
  ComboLang.items = {"English", "German"};

  SetCaptions(ComboExcepRe, {"OUTPUT", "TIME STAMP", "DUPLICATE LINE"});
  for (auto& list : ComboExcepRe) list.items = kOffOn;
}

void DisplayPanel::Register(Registry& registry, Form& form) {
  registry.AddArray(form, "ComboDIP", ComboDIP);
  registry.AddArray(form, "ComboTD", ComboTD);
  registry.Add(form, "ComboLang", ComboLang);
  registry.AddArray(form, "ComboExcepRe", ComboExcepRe);
}

}  // namespace ovl::controls
