// Port settings: the dialog, opening and closing the port, and the scan for the unit's baud rate.
#pragma once

#include "core/application.h"

namespace ovl {

// Opens the port with the four port settings. On failure a message tells the system's reason, and buttons and
// labels stay as they were.
void OpenPort(Application& app);

// Closes the port and undoes everything that a link has set up. Safe with the port closed.
void Disconnect(Application& app);

void cmdConnect_Click(Application& app, int index);
void cmdDisConnect_Click(Application& app, int index);

void frmSettSR_Load(Application& app, int index);
void frmSettSR_Unload(Application& app, int index);
void Comport_Select_Click(Application& app, int index);
void OpBaud_Click(Application& app, int element);
void OpDataBits_Click(Application& app, int element);
void OpParity_Click(Application& app, int element);
void cmdSET_Click(Application& app, int index);

// The scan
void BaudrateCMD_Click(Application& app, int index);
void BaudRateScan_Timer(Application& app, int index);
void frmScanBProgress_Load(Application& app, int index);
void frmScanBProgress_Unload(Application& app, int index);
void ScanCancel_Click(Application& app, int index);

// The unit has answered a scan.
void EndScan(Application& app);

}  // namespace ovl
