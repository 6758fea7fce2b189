// Upload and download of the whole configuration.
#pragma once

#include "core/application.h"

namespace ovl::link {

void BeginUpload(core::Application& app);
void BeginDownload(core::Application& app);

// Takes one character of an upload. Characters are collected from "$" to "#". Then the stream is stored in a
// file and read into the image.
void CollectUploadChar(core::Application& app);

// Reads the stored upload back into the image and refreshes the panels.
void FinishUpload(core::Application& app);

// Handles the unit's ACK in a download. It answers the command or the finished stream.
void DownloadAcknowledged(core::Application& app);

// An ACK after a whole stream: what the unit holds is `known_image` from now on. It can arrive before the
// drained event of the last character.
void ConfirmDownload(core::Application& app);

// Sends the first character of the stream. Throws Failure if the device is lost.
void StartDownload(core::Application& app);
void FinishDownload(core::Application& app);

void frmOK_buttom_Load(core::Application& app, int index);
void frmOK_buttom_Shown(core::Application& app, int index);
void frmOK_buttom_Unload(core::Application& app, int index);
void TransferEnd_Click(core::Application& app, int index);

}  // namespace ovl::link
