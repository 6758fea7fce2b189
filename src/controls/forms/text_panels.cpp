#include "controls/forms/text_panels.h"

#include "controls/design.h"
#include "controls/registry.h"

namespace ovl::controls {
namespace {

const std::vector<std::string> kOffOn = {"OFF", "ON"};

void DesignExceptions(TextPanels& form) {
  SetCaptions(form.ComboExcp,
              {"EXCEPTION NO.", "DISPLAY", "OUTPUT", "HISTORY BUFFER", "SCROLL MATCHING", "OPERATOR"});
  form.ComboExcp[Excp::kNumber].items = Numbers(1, 24);
  for (const std::size_t list : {1U, 2U, 3U, 4U}) form.ComboExcp[list].items = kOffOn;
  form.ComboExcp[Excp::kScroll].visible = false;
  form.ComboExcp[Excp::kOperator].items = {"NONE", "IN", "OUT"};
  form.TextException.caption = "EXCEPTION STRING";
  form.TextException.read_only = true;
  form.cmdSetExcpstr.caption = "Set Exception String";
  form.cmdSetRange.caption = "Set RANGE";
  SetCaptions(form.ComboScroll, {"SCROLL MATCHING", "TIMEOUT"});
  form.ComboScroll[Scroll::kMatching].items = kOffOn;
  form.ComboScroll[Scroll::kTimeout].items = {"OFF", "1s", "3s", "5s", "10s", "15s"};
}

void DesignAlarms(TextPanels& form) {
  SetCaptions(form.ComboALM, {"ALARM NO.", "ALARM TRIGGER", "NORMAL STATE", "ALARM DURATION", "FLAG TYPE",
                              "FLAG DURATION", "VIDEO LOSS", "ALARM TYPE"});
  form.ComboALM[Alm::kNumber].items = Numbers(1, 16);
  form.ComboALM[Alm::kTrigger].items = HeadAndNumbers("NONE", 1, 24);
  for (const char* entry : {"1-12", "13-24", "1-24", "RTS"})
    form.ComboALM[Alm::kTrigger].items.emplace_back(entry);
  form.ComboALM[Alm::kNormalState].items = {"NO", "NC"};
  form.ComboALM[Alm::kDuration].items = {"1",  "3",  "5",   "10",  "15",  "20",
                                         "30", "60", "120", "180", "240", "PLUSE"};
  form.ComboALM[Alm::kFlagType].items = {"NONE", "*", "FLASH *", "REVERSE", "FLASH"};
  for (int duration = 0; duration <= 240; duration += 2) {
    form.ComboALM[Alm::kFlagDuration].items.push_back(Numbers(duration, duration, 3).front());
  }
  form.ComboALM[Alm::kVideoLoss].items = {"OFF", "MANUAL", "1S", "2S", "3S", "5S", "10S", "20S", "30S", "1M"};
  form.ComboALM[Alm::kType].items = {"DWELL", "TIMED"};
  form.ComboALM[Alm::kType].visible = false;
  form.lbAlmTrig.caption = "EX.";
  form.lbAlmTrig.visible = false;

  SetCaptions(form.ComboTrigger, {"DISPLAY TEXT", "OUTPUT TEXT", "RTS TRIGGERED TEXT DELAY"});
  form.ComboTrigger[TriggerList::kDisplay].items = kOffOn;
  form.ComboTrigger[TriggerList::kOutput].items = kOffOn;
  form.ComboTrigger[TriggerList::kDelay].items = {"OFF", "1S", "5S", "10S", "20S", "30S", "1M", "5M", "10M"};
  form.TextTrigger.caption = "TRIGGER TEXT";
  form.TextTrigger.read_only = true;
  form.cmdSetTrigger.caption = "Set Trigger Text";
}

void DesignDemo(TextPanels& form) {
  form.Title_Text.caption = "TITLE";
  form.Title_Text.read_only = true;
  form.cmdTitle.caption = "Set Title";
  form.DemoMode.caption = " Demo On Power Up ";
  form.CharacterList.caption = "Text";
  form.CharacterList.items = {"19 Character", "37 Character"};
  form.DemoType.caption = "Type";
  form.DemoType.items = {"FAST FOOD",  "CONVENIENCE STORE", "GROCERY",
                         "PIZZA SHOP", "COFFEE SHOP",       "RETAIL STORE"};
  form.DemoSpeed.caption = "Speed Per Line";
  form.DemoSpeed.items = {"0.5 Sec.", "1 Sec.", "2 Sec.", "3 Sec"};
  for (auto* list : {&form.CharacterList, &form.DemoType, &form.DemoSpeed}) list->visible = false;
}

}  // namespace

TextPanels::TextPanels() {
  DesignExceptions(*this);
  DesignAlarms(*this);
  DesignDemo(*this);
}

void TextPanels::Register(Registry& registry, Form& form) {
  const auto add = [&](const char* name, auto& control) { registry.Add(form, name, control); };
  const auto add_array = [&](const char* name, auto& controls) { registry.AddArray(form, name, controls); };
  add_array("ComboExcp", ComboExcp);
  add("TextException", TextException);
  add_array("TextRANGE", TextRANGE);
  add("cmdSetExcpstr", cmdSetExcpstr), add("cmdSetRange", cmdSetRange);
  add_array("ComboScroll", ComboScroll);
  add_array("ComboALM", ComboALM);
  add("lbAlmTrig", lbAlmTrig);
  add_array("ComboTrigger", ComboTrigger);
  add("TextTrigger", TextTrigger), add("cmdSetTrigger", cmdSetTrigger);
  add("Title_Text", Title_Text), add("cmdTitle", cmdTitle);
  add("DemoMode", DemoMode);
  add("CharacterList", CharacterList), add("DemoType", DemoType), add("DemoSpeed", DemoSpeed);
}

TextEntryForm::TextEntryForm() {
  form.name = "frmSetEXCPSTR";
  form.holds_main = true;
  Text1.caption = "Text";
  Text1.max_length = 40;
  cmdSET.caption = "SET";
  cmdClr.caption = "Clear";
}

void TextEntryForm::Register(Registry& registry) {
  registry.AddForm(form);
  registry.Add(form, "Text1", Text1);
  registry.Add(form, "cmdSET", cmdSET);
  registry.Add(form, "cmdClr", cmdClr);
}

RangeForm::RangeForm() {
  form.name = "frmSetRange";
  form.holds_main = true;
  form.caption = "RANGE";
  for (auto* box : {&Range_Hi, &Range_Low}) {
    box->text = "99999999";
    box->max_length = 8;
  }
  for (auto* box : {&SubRange_Hi, &SubRange_Low}) {
    box->text = "99";
    box->max_length = 2;
  }
  Range_Hi.caption = "First value";
  Range_Low.caption = "Second value";
  SubRange_Hi.caption = "First value, decimals";
  SubRange_Low.caption = "Second value, decimals";
  ComboDec.caption = "Decimal separator";
  ComboDec.items = {".", ","};
  lbDec.caption = ",";
  cmdSetRange.caption = "SET";
  cmdClr.caption = "Clear";
}

void RangeForm::Register(Registry& registry) {
  registry.AddForm(form);
  const auto add = [&](const char* name, auto& control) { registry.Add(form, name, control); };
  add("Range_Hi", Range_Hi), add("SubRange_Hi", SubRange_Hi);
  add("Range_Low", Range_Low), add("SubRange_Low", SubRange_Low);
  add("ComboDec", ComboDec), add("lbDec", lbDec);
  add("cmdSetRange", cmdSetRange), add("cmdClr", cmdClr);
}

}  // namespace ovl::controls
