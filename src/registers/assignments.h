// How the rows of the register table assign the selections of their frame. Each gives false when a stored
// byte has no matching control; what stands behind it in the row is then not done. All bytes are read before
// the first assignment, because assignments run handlers that write.
#pragma once

#include "registers/register_table.h"

namespace ovl {

bool AssignArray(Application& app, const RegisterRow& row);
bool AssignList(Application& app, const RegisterRow& row);

bool AssignTcpip(Application& app, const RegisterRow& row);
bool AssignOldTcpip(Application& app, const RegisterRow& row);
bool AssignDresserWayne(Application& app, const RegisterRow& row);
bool AssignFujitsu(Application& app, const RegisterRow& row);
bool AssignGasboy(Application& app, const RegisterRow& row);
bool AssignGilbarco(Application& app, const RegisterRow& row);
bool AssignIbm3151(Application& app, const RegisterRow& row);
bool AssignSchlumberger(Application& app, const RegisterRow& row);
bool AssignMicrelec(Application& app, const RegisterRow& row);
bool AssignMicros(Application& app, const RegisterRow& row);
bool AssignNcr(Application& app, const RegisterRow& row);
bool AssignNorand(Application& app, const RegisterRow& row);
bool AssignPanasonic(Application& app, const RegisterRow& row);
bool AssignTci(Application& app, const RegisterRow& row);
bool AssignUniwell(Application& app, const RegisterRow& row);
bool AssignUniwellModels(Application& app, const RegisterRow& row);
bool AssignSerialId(Application& app, const RegisterRow& row);
bool AssignTk500(Application& app, const RegisterRow& row);
bool AssignTe2200(Application& app, const RegisterRow& row);
bool AssignTec(Application& app, const RegisterRow& row);
bool AssignClarity(Application& app, const RegisterRow& row);
bool AssignEpson(Application& app, const RegisterRow& row);
bool AssignNucleus(Application& app, const RegisterRow& row);
bool AssignScale(Application& app, const RegisterRow& row);
bool AssignScaleModels(Application& app, const RegisterRow& row);
bool AssignOdometer(Application& app, const RegisterRow& row);
bool AssignSensors(Application& app, const RegisterRow& row);
bool AssignEasyTouch(Application& app, const RegisterRow& row);
bool AssignEuropad(Application& app, const RegisterRow& row);
bool AssignPosiflex(Application& app, const RegisterRow& row);
bool AssignIbm(Application& app, const RegisterRow& row);
bool AssignIcl(Application& app, const RegisterRow& row);
bool AssignNcrModel(Application& app, const RegisterRow& row);
bool AssignNixdorf(Application& app, const RegisterRow& row);
bool AssignJcm(Application& app, const RegisterRow& row);
bool AssignOmron(Application& app, const RegisterRow& row);
bool AssignPar(Application& app, const RegisterRow& row);
bool AssignProsper(Application& app, const RegisterRow& row);
bool AssignVectron(Application& app, const RegisterRow& row);
bool AssignCasio(Application& app, const RegisterRow& row);
bool AssignSharpModels(Application& app, const RegisterRow& row);
bool AssignTecModels(Application& app, const RegisterRow& row);

}  // namespace ovl
