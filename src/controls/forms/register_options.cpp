#include "controls/forms/register_options.h"

#include "controls/design.h"
#include "controls/registry.h"

namespace ovl::controls {
namespace {

using Items = std::vector<std::string>;

const Items kOffOn = {"OFF", "ON"};
const Items kReceiptJournal = {"RECEIPT", "JOURNAL"};
const Items kTapAck = {"TAP", "ACK"};
const Items kModes = {"TAPPING", "EMULATING"};

void Hide(OptionArray& array, std::initializer_list<std::size_t> elements) {
  for (const auto element : elements) array.elements.at(element).visible = false;
}

void DesignPrinters(RegisterOptions& form) {
  SetElements(form.OpDelta, {"DELTA JOURNAL", "DELTA RECEIPT", "EPSON JOURNAL", "EPSON RECEIPT"});
  SetElements(form.OpEDA, {"E9010", "E90"});
  SetElements(form.OpNCR, {"NCR 2113, 3110", "NCR 745X [POLE]", "NCR JRNL PRINTER", "NCR RCPT PRINTER",
                           "NCR SLIP PRINTER", "NCR 5972 (TAP)", "NCR 5972 (EMULATE)"});
  Hide(form.OpNCR, {5, 6});
  for (auto* array : {&form.OpBEETLE, &form.BEETLEOp})
    SetElements(*array, {"REMOTE SLIP", "OPERATOR DISPLAY"});
  for (auto* array : {&form.OpNIXDORF, &form.NIXDORF14OPSelect, &form.POS50OP, &form.POSOP, &form.PRNOP}) {
    SetElements(*array, {"JOURNAL PRINTER", "RECEIPT PRINTER"});
  }
  SetElements(form.OpSun, {"890, 891, 960", "2000"});
  SetElements(form.OpVerifone,
              {"JOURNAL TAPPING", "RECEIPT TAPPING", "JOURNAL EMULATING", "RECEIPT EMULATING"});
  SetElements(form.OpA410, {"TAP", "EMULATE", "TAP US", "EMULATE US"});
  SetElements(form.OpSHARPUP600, {"TAP", "EMULATE"});
  SetElements(form.OpRI_QT2,
              {"STANDARD", "PRINTER WITH POLE", "DOUBLE CHAR PRINTER", "POLE DISPLAY", "POLE DISPLAY 20",
               "POLE VIA PRINTER", "RECIEPT PRINTER ONLY", "JOURNAL PRINTER ONLY", "SLIP PRINTER ONLY",
               "GRAPHIC FILTER", "ESSO POLE DISPLAY"});
  Hide(form.OpRI_QT2, {9, 10});
  SetElements(form.OpNUCP, {"STANDARD (Both)", "PRINTER WITH POLE", "POLE VIA PRINTER"});
  SetElements(form.JRNLRCPT_SLP_OP, {"NCR JOURNAL PRINTER", "NCR RECEIPT PRINTER", "NCR SLIP PRINTER"});
}

void DesignFuel(RegisterOptions& form) {
  SetElements(form.OpGilbraco, {"PC G-SITE", "TCRG/2", "TCR15G [ OLD FMT ]", "TCR15G [ NEW FMT ]", "PASSPORT",
                                "PASSPORT (XML FMT)"});
  Hide(form.OpGilbraco, {5});
  SetElements(form.OpDYWAYE, {"JOURNAL PRINTER", "RECEIPT PRINTER", "TERMINAL 1", "TERMINAL 2", "TERMINAL 3",
                              "TERMINAL 4", "TERMINAL 5", "TERMINAL 6", "TERMINAL 7", "TERMINAL 8"});
  SetElements(form.TEROP, {"TERMINAL 1", "TERMINAL 2", "TERMINAL 3", "TERMINAL 4", "TERMINAL 5", "TERMINAL 6",
                           "TERMINAL 7", "TERMINAL 8"});
  SetElements(form.SECUOP, {"SECURITY"});
  for (auto* array : {&form.POSOP, &form.TEROP, &form.PRNOP, &form.SECUOP}) {
    for (auto* other : {&form.POSOP, &form.TEROP, &form.PRNOP, &form.SECUOP}) {
      if (other != array) array->excludes.push_back(other);
    }
  }
  SetElements(form.OpMicrelec, {"OPERATOR", "CUSTOMER", "COMBINED"});
  SetElements(form.OpMicrelec9500, {"JOURNAL", "RECEIPT", "CHECK", "CREDIT"});
  form.OpMicrelec.excludes = {&form.OpMicrelec9500};
  form.OpMicrelec9500.excludes = {&form.OpMicrelec};
  SetElements(form.OpPoleDisplay, {"GENERIC", "EMAX"});
  SetElements(form.OpVWEIGHBRIDGE, {"W.OUT", "W2.OUT"});
  SetElements(form.OpWEIGHS, {"", "", "", "", "", "", "", "", ""});
  SetElements(form.SenOP, {"ST6105C"});
}

void DesignTerminals(RegisterOptions& form) {
  SetElements(form.FUJIOP, {"9920", "G2220"});
  SetElements(form.BleepOP, {"TS5000", "TS7000"});
  SetElements(form.DIGIOP, {"PRINTER/CUSTOMER DISPLAY", "2000", "MILLENIUM", "SNA SOFTWARE"});
  SetElements(form.ICLOP, {"POS 2000/4000", "POS 5000"});
  for (auto* array : {&form.TEAMOP, &form.TEAMPOSOP}) {
    SetElements(*array, {"TEAM POS 2000 - CBE", "TEAM POS 2000 - ISTORE"});
  }
  SetElements(form.NIXDORF14OP, {"BEETLE/50 PRINTERS", "NIXDORF BEETLE"});
  SetElements(form.IBMOP, {"IBM3151 TERMINAL", "4614", "46XX", "4840-532", "RDS", "REDWOOD 538",
                           "SURE POS / 500", "EXTERNAL CUSTOM DISPLAY", "4610TF6"});
  Hide(form.IBMOP, {7, 8});
  SetElements(form.NCROP, {"NCR 2113, 3110", "NCR 7059", "NCR 745X (POLE)", "NCR JRNL PRINTER",
                           "NCR RCPT PRINTER", "NCR SLIP PRINTER", "NCR7454WS/7197", "NCR7456",
                           "NCR 5972 (TAP)", "NCR 5972 (EMULATE)", "CRSOSS 7474", "REALPOS 30"});
  SetElements(form.SamOP, {"46XX", "48XX", "49XX", "51XX", "65XX", "SRP350", "ER-380", "ER-420M", "ER5200",
                           "ER650", "SER65XX", "SER7000", "SPS1000", "SPS2000"});
  SetElements(form.GELLEROP,
              {"604", "CRS3000", "CX-200", "CX-300", "ET6600", "ET6800", "EX300", "FX400", "ML-780 / 790",
               "MP2", "MP2-T", "MP3", "MZ1", "NT2324", "NT3412", "SX-590 / 780", "SX680"});
  SetElements(form.UNIWOP,
              {"UNIWELL", "UN4025", "DX890/915", "SX-330", "SX6600-03 OR 05", "SX6750", "SX700/7000/800/850",
               "SX875/8000/8500", "UX40/41/43", "UX50", "UX60", "UX70/7000/7500", "UX-M750"});
  SetElements(form.TECOP, {"MA-516", "FS-1650", "MA-1350", "MA-1400", "MA-1450", "MA-1650", "MA-1700",
                           "SL-9000-N", "ST-5600/ST-5601/ST-6500", "TEC SLIP PRINTER EMULATE", "OVL-DRS"});
  SetElements(form.OpMicros, {"LOCAL VSS", "MICROS IDN NETWORK", "MICROS ISN NETWORK", "MICROS 3700 V4.X"});
  Hide(form.OpMicros, {3});
  SetElements(form.JCMOp, {"Gold 4800/4850", "Gold G-225", "Gold G-381", "Gold G-556"});
  SetElements(form.EASYOP, {"TS600/TS700"});
}

void DesignModels(RegisterOptions& form) {
  SetElements(form.OpSharp, {"2590", "3100,3110", "3220,3221,3250", "3310,3311,3550", "A-460, A-470",
                             "A-550, A-570", "A-610, A-650", "A-750", "A-770", "A-520, A-530"});
  Hide(form.OpSharp, {9});
  SetElements(form.CASIOOP, {"230ER",
                             "240CR",
                             "CE2300",
                             "CE3400/3405/3410/3415",
                             "CE3700/3710",
                             "CE4000/4200",
                             "CE4615",
                             "CE4700",
                             "CE6000/6100/7000",
                             "IM800",
                             "QT2000",
                             "QT2100 REM DISPLAY",
                             "QT6000/6100",
                             "QT7000",
                             "SA1000",
                             "SA2000",
                             "SA5000",
                             "TE2000",
                             "TE2200",
                             "TE3000",
                             "TE4000",
                             "TE4500",
                             "TE7000",
                             "TE8000F/8500F",
                             "TK1200",
                             "TK1300",
                             "TK2100",
                             "TK2200/2600",
                             "TK2300/2700",
                             "TK2300 LCD VERSION",
                             "TK3200",
                             "TK6000 / 6500",
                             "TK7000 / 7500",
                             "TK-T500",
                             "VIDEO SYSTEM"});
  SetElements(form.SharpOP, {"ER-1772S",
                             "ER-1875",
                             "ER-1911/ 1920/1 /1970",
                             "2590",
                             "ER-2905/2908",
                             "ER-2910",
                             "ER-3100/3110/3115",
                             "ER-3100,3110",
                             "ER-3220,3221,3250",
                             "ER-3310,3311,3550",
                             "A310",
                             "A330",
                             "A410,420",
                             "A440/A460/A470",
                             "A-460,A-470",
                             "A-510/A550/A570/A610",
                             "A-550,A-570",
                             "A-610,A-650",
                             "A-750",
                             "A-750/A-770 ER-01PU",
                             "A-770",
                             "UP600/700",
                             "UP300/3300",
                             "UP5000",
                             "UP600/700 KITCHEN PRINTER",
                             "UP-X300",
                             "A-520,A-530"});
  Hide(form.SharpOP, {26});
}

void DesignLists(RegisterOptions& form) {
  form.ComboAddress.items = HeadAndNumbers("ANY", 1, 255);
  form.ComboSICOM.items = HeadAndNumbers("ANY", 1, 255);
  form.ComboCLARITYEPOS.items = HeadAndNumbers("ALL", 1, 255);
  form.ComboNE134.items = Numbers(0, 255);
  for (auto* list : {&form.ComboDisplay, &form.Combo1, &form.RDSCombo}) list->items = kReceiptJournal;
  form.IBMCombo.items = {"RECEIPT", "JOURNAL", "MIXED"};
  form.Combo4610TF6.items = {"TAP", "EMULATE"};
  form.ST6105C.items = {"CELSIUS", "FAHRENHEIT"};
  for (auto* list :
       {&form.ComboXML, &form.ComboUni, &form.ComboUniFor14R7up, &form.ComboPana[0], &form.ComboTITLEDIP}) {
    list->items = kOffOn;
  }
  for (auto& list : form.ComboTCPINFO) list.items = kOffOn;
  form.ComboPana[1].items = kTapAck;
  form.ComboWoring.items = kTapAck;
  form.ComboDeviceGas.items = {"CONSOLE", "PRINTER", "CSL OLD"};
  form.ComboAddr.items = HeadAndNumbers("ANY", 1, 16);
  form.ComboDeviceADD.items = HeadAndNumbers("ANY", 1, 17, 2);
  form.ComboCONSOLEID.items = HeadAndNumbers("ANY", 1, 8);
  for (auto& list : form.ComboTCI_ID) list.items = Numbers(0, 9);
  for (auto& list : form.ComboUNI_ID) list.items = Numbers(0, 9);
  for (auto& list : form.ComboTCPIP) list.items = Numbers(0, 255);
  SetCaptions(form.ComboTCPIP,
              {"IP  ADDRESS  1  :", "IP  ADDRESS  2  :", "IP  ADDRESS  3  :", "IP  ADDRESS  4  :",
               "IP  ADDRESS  1   :", "IP  ADDRESS  2   :", "IP  ADDRESS  3   :", "IP  ADDRESS  4   :"});
  SetCaptions(form.ComboTCPINFO,
              {"INFORMATION 0  :", "INFORMATION 1  :", "INFORMATION 2  :", "INFORMATION 3  :"});
  form.ComboTk500[0].items = {"TK-T500"};
  form.ComboTE2200[0].items = {"TE-2200"};
  form.ComboTEC[0].items = {"TEC SLIP PRINTER"};
  for (auto* list : {&form.ComboTk500[1], &form.ComboTE2200[1], &form.ComboTEC[1]}) list->items = kModes;
}

void DesignRest(RegisterOptions& form) {
  for (auto* frame :
       {&form.IBMFrame, &form.POS2000, &form.POS5000, &form.NCRFrame, &form.BEETLEFrm, &form.NIXDORFrm}) {
    frame->visible = false;
  }
  form.Label84.caption = "DESCRIPTION/XML";
  form.Label85.caption = "*** MAKE SURE HAVE UART DAUGHTER BOARD INSTALLED ***";
  for (auto* label : {&form.Label84, &form.Label85}) label->visible = false;
  form.ComboXML.visible = false;
  for (auto* list : {&form.RDSCombo, &form.IBMCombo, &form.Combo4610TF6}) list->visible = false;
  for (auto* button : {&form.Command1, &form.SharpCom, &form.Command2}) {
    button->caption = "Show Detail";
    button->enabled = false;
  }
  form.cmdMicros.caption = "SHOW";
}

}  // namespace

RegisterOptions::RegisterOptions() {
  DesignPrinters(*this);
  DesignFuel(*this);
  DesignTerminals(*this);
  DesignModels(*this);
  DesignLists(*this);
  DesignRest(*this);
}

void RegisterOptions::Register(Registry& registry, Form& form) {
  const auto options = [&](const char* name, OptionArray& array) { registry.AddOptions(form, name, array); };
  const auto add = [&](const char* name, auto& control) { registry.Add(form, name, control); };
  const auto add_array = [&](const char* name, auto& controls) { registry.AddArray(form, name, controls); };

  options("OpDelta", OpDelta);
  options("OpEDA", OpEDA);
  options("OpNCR", OpNCR);
  options("OpBEETLE", OpBEETLE);
  options("BEETLEOp", BEETLEOp);
  options("OpNIXDORF", OpNIXDORF);
  options("NIXDORF14OPSelect", NIXDORF14OPSelect);
  options("OpSun", OpSun);
  options("OpVerifone", OpVerifone);
  options("OpA410", OpA410);
  options("OpSHARPUP600", OpSHARPUP600);
  options("OpGilbraco", OpGilbraco);
  options("OpDYWAYE", OpDYWAYE);
  options("OpMicrelec", OpMicrelec);
  options("OpMicrelec9500", OpMicrelec9500);
  options("OpSharp", OpSharp);
  options("OpRI_QT2", OpRI_QT2);
  options("OpPoleDisplay", OpPoleDisplay);
  options("OpVWEIGHBRIDGE", OpVWEIGHBRIDGE);
  options("FUJIOP", FUJIOP);
  options("BleepOP", BleepOP);
  options("DIGIOP", DIGIOP);
  options("ICLOP", ICLOP);
  options("TEAMOP", TEAMOP);
  options("TEAMPOSOP", TEAMPOSOP);
  options("POS50OP", POS50OP);
  options("NIXDORF14OP", NIXDORF14OP);
  options("IBMOP", IBMOP);
  options("JRNLRCPT_SLP_OP", JRNLRCPT_SLP_OP);
  options("NCROP", NCROP);
  options("SamOP", SamOP);
  options("GELLEROP", GELLEROP);
  options("UNIWOP", UNIWOP);
  options("TECOP", TECOP);
  options("CASIOOP", CASIOOP);
  options("SharpOP", SharpOP);
  options("OpMicros", OpMicros);
  options("OpNUCP", OpNUCP);
  options("OpWEIGHS", OpWEIGHS);
  options("JCMOp", JCMOp);
  options("EASYOP", EASYOP);
  options("SenOP", SenOP);
  options("POSOP", POSOP);
  options("TEROP", TEROP);
  options("PRNOP", PRNOP);
  options("SECUOP", SECUOP);

  add("ComboAddress", ComboAddress);
  add("ComboDisplay", ComboDisplay);
  add("Combo1", Combo1);
  add("ComboDeviceADD", ComboDeviceADD);
  add("ComboDeviceGas", ComboDeviceGas);
  add("ComboDIPMIXED", ComboDIPMIXED);
  add("ComboWoring", ComboWoring);
  add("ComboTITLEDIP", ComboTITLEDIP);
  add("ComboCONSOLEID", ComboCONSOLEID);
  add("ComboSICOM", ComboSICOM);
  add("ComboUni", ComboUni);
  add("ComboUniFor14R7up", ComboUniFor14R7up);
  add("ComboAddr", ComboAddr);
  add("ComboCLARITYEPOS", ComboCLARITYEPOS);
  add("ST6105C", ST6105C);
  add("ComboNE134", ComboNE134);
  add("RDSCombo", RDSCombo);
  add("IBMCombo", IBMCombo);
  add("Combo4610TF6", Combo4610TF6);
  add("ComboXML", ComboXML);
  add_array("ComboPana", ComboPana);
  add_array("ComboTk500", ComboTk500);
  add_array("ComboTE2200", ComboTE2200);
  add_array("ComboTEC", ComboTEC);
  add_array("ComboTCI_ID", ComboTCI_ID);
  add_array("ComboUNI_ID", ComboUNI_ID);
  add_array("ComboTCPIP", ComboTCPIP);
  add_array("ComboTCPINFO", ComboTCPINFO);
  add_array("Label82", Label82);
  add("IBMFrame", IBMFrame);
  add("POS2000", POS2000);
  add("POS5000", POS5000);
  add("NCRFrame", NCRFrame);
  add("BEETLEFrm", BEETLEFrm);
  add("NIXDORFrm", NIXDORFrm);
  add("Label84", Label84);
  add("Label85", Label85);
  add("Command1", Command1);
  add("SharpCom", SharpCom);
  add("Command2", Command2);
  add("cmdMicros", cmdMicros);
}

}  // namespace ovl::controls
