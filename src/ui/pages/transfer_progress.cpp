#include "ui/pages/transfer_progress.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>

#include "core/actions.h"
#include "image/record_stream.h"

namespace ovl::ui {
namespace {

constexpr int kCharactersPerStep = 51;
constexpr std::size_t kRecordBytes = 0x20;
constexpr int kSecond = 1000;

struct Progress {
  std::size_t done = 0;
  std::size_t left = 0;
};

// A record is "$", four digits, two digits for each byte, CR and LF. The last record is shorter, but only the
// unit knows its length.
std::size_t ExpectedUpload(const firmware::FirmwareId& firmware) {
  const auto region = image::ReadRegion(firmware);
  const auto records = static_cast<std::size_t>(std::max(0, region.last - region.first)) / kRecordBytes + 1;
  return records * (1 + 4 + 2 * kRecordBytes + 2);
}

Progress UploadProgress(const core::Application& app) {
  if (app.FrameState == 0) return {};
  const auto done = app.StreamBuffer.size();
  return {done, std::max(ExpectedUpload(app.image_firmware), done) - done};
}

Progress DownloadProgress(const core::Application& app) {
  if (!app.DownloadActive) return {};
  const auto counted = app.ProgressValue * kCharactersPerStep + app.ProgressChars + 1;
  return {static_cast<std::size_t>(counted), app.PendingOutput.size()};
}

// The milliseconds that the line needs for this many characters.
std::size_t LineTime(const core::Application& app, std::size_t characters) {
  const auto baud = static_cast<std::size_t>(std::max(1, codecs::LeadingNumber(app.PortBaud)));
  const std::size_t data_bits = app.PortDataBits == "7" ? 7 : 8;
  const std::size_t parity_bits = app.PortParity == "N" ? 0 : 1;
  return characters * (1 + data_bits + parity_bits + 1) * kSecond / baud;
}

QString TimeText(std::size_t milliseconds) {
  constexpr std::size_t kMinute = 60 * kSecond;
  if (milliseconds < kSecond) return QCoreApplication::translate("TransferProgress", "less than 1 s left");
  if (milliseconds < kMinute)
    return QCoreApplication::translate("TransferProgress", "%1 s left")
        .arg((milliseconds + kSecond - 1) / kSecond);
  return QCoreApplication::translate("TransferProgress", "%1 min %2 s left")
      .arg(milliseconds / kMinute)
      .arg(milliseconds % kMinute / kSecond);
}

}  // namespace

bool TransferStopped(const core::Application& app) {
  return core::LostDevice(app) != nullptr || !app.frmMain.MSComm1.PortOpen;
}

QString TransferProgressText(const core::Application& app) {
  if (!app.frmMain.vbalProgressBar1.visible) return {};
  const auto progress = app.LinkMode == core::kLinkDownload ? DownloadProgress(app) : UploadProgress(app);
  const bool stopped = TransferStopped(app);
  if (progress.done == 0)
    return stopped ? QString() : QCoreApplication::translate("TransferProgress", "waiting for the unit");
  const auto done = QLocale(QCoreApplication::translate("TransferProgress", "en",
                                                        "the language in which numbers are written"))
                        .toString(static_cast<qulonglong>(progress.done));
  if (stopped)
    return QCoreApplication::translate("TransferProgress", "stopped after %1 characters").arg(done);
  return QCoreApplication::translate("TransferProgress", "%1 characters, %2")
      .arg(done, TimeText(LineTime(app, progress.left)));
}

}  // namespace ovl::ui
