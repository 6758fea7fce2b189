// The controls of the option frames on the register panel of the main form.
#pragma once

#include <array>
#include <cstddef>

#include "controls/controls.h"

namespace ovl::controls {

class Registry;

// The option frames in the order of `frmAddress`. At most one shows, but for kUniwellId beside
// kUniwellModels.
enum class OptionFrame {
  kNone = -1,
  kAddress,  // ADDRESSABLE OVL, SPEDI CCTV
  kDisplay,  // ADS, FUJITSU, IBM RDS, SHARP 750 ER-01PU
  kDelta,
  kDresserWayne,
  kEdacom,
  kGasboy,
  kGilbarco,
  kPrintout,  // receipt, journal or both: IBM3151 TERMINAL, SCHLUMBERGER
  kMicrelec,
  kMicros,
  kNcr,
  kBeetlePrinters,
  kNorand,
  kPanasonic,
  kSharp,
  kSicom,
  kSuntronic,
  kTci,
  kUniwellId,  // serial id; also I-CNTRL INT JAVELIN VIPER and MERIT
  kVerifone,
  kUp3000,
  kOldTcpip,
  kCasioTk500,
  kClarity,
  kEpson,
  kNixdorfBeetle,   // also OMEGA 2000 and TKMAXX
  kPrinterOrScale,  // NUCLEUS PRINTER, WEIGH SCALE
  kSharpA410,
  kSharpUp600,
  kCasioTe2200,
  kTcpip,
  kTec,
  kWeighScale,
  kBleep,
  kCasioModels,
  kDigipos,
  kDresserWayneModels,
  kEasyTouch,  // also EUROPAD and POSIFLEX
  kFujitsu,
  kGeller,
  kIbm,
  kIcl,
  kJcm,  // also OMRON, PAR, PROSPER and VECTRON
  kNcrModels,
  kNixdorfModels,
  kSamsung,
  kSharpModels,
  kTeamPos,
  kTecModels,
  kUniwellModels,
  kSensors,
  kNe134,
  kWeighbridge,
  kPoleDisplay,
  kCount
};

struct RegisterOptions {
  std::array<Frame, static_cast<std::size_t>(OptionFrame::kCount)> frmAddress;
  Frame& FrameOf(OptionFrame frame) { return frmAddress.at(static_cast<std::size_t>(frame)); }
  const Frame& FrameOf(OptionFrame frame) const { return frmAddress.at(static_cast<std::size_t>(frame)); }

  OptionArray OpDelta, OpEDA, OpNCR, OpBEETLE, BEETLEOp, OpNIXDORF, NIXDORF14OPSelect, OpSun, OpVerifone,
      OpA410, OpSHARPUP600, OpGilbraco, OpDYWAYE, OpMicrelec, OpMicrelec9500, OpSharp, OpRI_QT2,
      OpPoleDisplay, OpVWEIGHBRIDGE, FUJIOP, BleepOP, DIGIOP, ICLOP, TEAMOP, TEAMPOSOP, POS50OP, NIXDORF14OP,
      IBMOP, JRNLRCPT_SLP_OP, NCROP, SamOP, GELLEROP, UNIWOP, TECOP, CASIOOP, SharpOP, OpMicros, OpNUCP,
      OpWEIGHS, JCMOp, EASYOP, SenOP, POSOP, TEROP, PRNOP, SECUOP;

  List ComboAddress, ComboDisplay, Combo1, ComboDeviceADD, ComboDeviceGas, ComboDIPMIXED, ComboWoring,
      ComboTITLEDIP, ComboCONSOLEID, ComboSICOM, ComboUni, ComboUniFor14R7up, ComboAddr, ComboCLARITYEPOS,
      ST6105C, ComboNE134, RDSCombo, IBMCombo, Combo4610TF6, ComboXML;
  std::array<List, 2> ComboPana, ComboTk500, ComboTE2200,
      ComboTEC;                                  // the last three: the fixed model name and the mode
  std::array<List, 3> ComboTCI_ID, ComboUNI_ID;  // the last digit comes first
  std::array<List, 8> ComboTCPIP;                // four lists of the old frame, then four of the present one
  std::array<List, 4> ComboTCPINFO;

  Frame IBMFrame, POS2000, POS5000, NCRFrame, BEETLEFrm, NIXDORFrm;
  std::array<Label, 1> Label82;
  Label Label84, Label85;
  Button Command1, SharpCom, Command2;  // "Show Detail" of CASIO, SHARP and TEC
  Button cmdMicros;

  RegisterOptions();
  void Register(Registry& registry, Form& form);
};

}  // namespace ovl::controls
