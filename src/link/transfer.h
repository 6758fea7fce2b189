// Upload and download of the whole configuration.
#pragma once

#include "core/application.h"

namespace ovl {

void BeginUpload(Application& app);
void BeginDownload(Application& app);

// One character of an upload: collected from "$" to "#", then stored and taken in.
void CollectUploadChar(Application& app);

// Reads the stored upload back into the image and refreshes the panels.
void FinishUpload(Application& app);

// The unit's ACK during a download: to the command, or to the finished stream.
void DownloadAcknowledged(Application& app);

// Sends the first character of the stream. Throws Failure if the device is lost.
void StartDownload(Application& app);
void FinishDownload(Application& app);

void frmOK_buttom_Load(Application& app, int index);
void frmOK_buttom_Shown(Application& app, int index);
void frmOK_buttom_Unload(Application& app, int index);
void TransferEnd_Click(Application& app, int index);

}  // namespace ovl
