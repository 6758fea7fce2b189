// Functions of the register table that set the selections of an option frame from the image. False: a stored
// byte has no matching entry, and the rest of the row is skipped. Each function reads all bytes before its
// first assignment, because assignments run handlers that write.
#pragma once

#include "registers/register_table.h"

namespace ovl::registers {

bool AssignArray(core::Application& app, const RegisterRow& row);
bool AssignList(core::Application& app, const RegisterRow& row);

bool AssignTcpip(core::Application& app, const RegisterRow& row);
bool AssignOldTcpip(core::Application& app, const RegisterRow& row);
bool AssignDresserWayne(core::Application& app, const RegisterRow& row);
bool AssignFujitsu(core::Application& app, const RegisterRow& row);
bool AssignGasboy(core::Application& app, const RegisterRow& row);
bool AssignGilbarco(core::Application& app, const RegisterRow& row);
bool AssignIbm3151(core::Application& app, const RegisterRow& row);
bool AssignSchlumberger(core::Application& app, const RegisterRow& row);
bool AssignMicrelec(core::Application& app, const RegisterRow& row);
bool AssignMicros(core::Application& app, const RegisterRow& row);
bool AssignNcr(core::Application& app, const RegisterRow& row);
bool AssignNorand(core::Application& app, const RegisterRow& row);
bool AssignPanasonic(core::Application& app, const RegisterRow& row);
bool AssignTci(core::Application& app, const RegisterRow& row);
bool AssignUniwell(core::Application& app, const RegisterRow& row);
bool AssignUniwellModels(core::Application& app, const RegisterRow& row);
bool AssignSerialId(core::Application& app, const RegisterRow& row);
bool AssignTk500(core::Application& app, const RegisterRow& row);
bool AssignTe2200(core::Application& app, const RegisterRow& row);
bool AssignTec(core::Application& app, const RegisterRow& row);
bool AssignClarity(core::Application& app, const RegisterRow& row);
bool AssignEpson(core::Application& app, const RegisterRow& row);
bool AssignNucleus(core::Application& app, const RegisterRow& row);
bool AssignScale(core::Application& app, const RegisterRow& row);
bool AssignScaleModels(core::Application& app, const RegisterRow& row);
bool AssignOdometer(core::Application& app, const RegisterRow& row);
bool AssignSensors(core::Application& app, const RegisterRow& row);
bool AssignEasyTouch(core::Application& app, const RegisterRow& row);
bool AssignEuropad(core::Application& app, const RegisterRow& row);
bool AssignPosiflex(core::Application& app, const RegisterRow& row);
bool AssignIbm(core::Application& app, const RegisterRow& row);
bool AssignIcl(core::Application& app, const RegisterRow& row);
bool AssignNcrModel(core::Application& app, const RegisterRow& row);
bool AssignNixdorf(core::Application& app, const RegisterRow& row);
bool AssignJcm(core::Application& app, const RegisterRow& row);
bool AssignOmron(core::Application& app, const RegisterRow& row);
bool AssignPar(core::Application& app, const RegisterRow& row);
bool AssignProsper(core::Application& app, const RegisterRow& row);
bool AssignVectron(core::Application& app, const RegisterRow& row);
bool AssignCasio(core::Application& app, const RegisterRow& row);
bool AssignSharpModels(core::Application& app, const RegisterRow& row);
bool AssignTecModels(core::Application& app, const RegisterRow& row);

}  // namespace ovl::registers
