// Port settings: the dialog, opening and closing the port, and the scan for the unit's baud rate.
#pragma once

#include "core/application.h"

namespace ovl::link {

// Opens the port with the four port settings. On failure a message box shows the system's reason, and buttons
// and labels do not change.
void OpenPort(core::Application& app);

// Closes the port and resets everything that belongs to the link. It may be called when the port is closed.
void Disconnect(core::Application& app);

void cmdConnect_Click(core::Application& app, int index);
void cmdDisConnect_Click(core::Application& app, int index);

void frmSettSR_Load(core::Application& app, int index);
void frmSettSR_Unload(core::Application& app, int index);
void Comport_Select_Click(core::Application& app, int index);
void OpBaud_Click(core::Application& app, int element);
void OpDataBits_Click(core::Application& app, int element);
void OpParity_Click(core::Application& app, int element);
void cmdSET_Click(core::Application& app, int index);

// The scan for the unit's baud rate.
void BaudrateCMD_Click(core::Application& app, int index);
void BaudRateScan_Timer(core::Application& app, int index);
void frmScanBProgress_Load(core::Application& app, int index);
void frmScanBProgress_Unload(core::Application& app, int index);
void ScanCancel_Click(core::Application& app, int index);

// Ends the scan because the unit has answered.
void EndScan(core::Application& app);

}  // namespace ovl::link
