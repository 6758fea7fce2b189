#include "acts/advice/link_watch.h"

#include "core/actions.h"

namespace ovl::acts {
namespace {

bool IsDownload(LinkPhase phase) {
  return phase == LinkPhase::kDownloadCommand || phase == LinkPhase::kDownloadStream;
}

}  // namespace

LinkPhase PhaseOf(const core::Application& app) {
  if (app.ScanActive) return LinkPhase::kScan;
  if (app.MasterResetPending) return LinkPhase::kMasterReset;
  if (app.SetTimePending) return LinkPhase::kSetTime;
  if (app.FinalAckExpected) return LinkPhase::kDownloadEnd;
  if (!app.RemoteHeld) return LinkPhase::kIdle;
  if (app.LinkMode == core::kLinkUpload) return LinkPhase::kUpload;
  if (app.LinkMode != core::kLinkDownload) return LinkPhase::kIdle;
  return app.DownloadActive ? LinkPhase::kDownloadStream : LinkPhase::kDownloadCommand;
}

void LinkWatch::Before(const core::Application& app) {
  before_ = {PhaseOf(app),
             app.LinkMode,
             app.FrameState,
             app.last_port_attempt.number,
             app.frmMain.MSComm1.PortOpen,
             app.RemoteHeld,
             app.uploads_taken,
             app.downloads_confirmed,
             app.sent_image.has_value()};
}

void LinkWatch::After(const core::Application& app, const core::Event& event) {
  renewed_.reset();
  upload_completed_ = false;
  download_completed_ = false;
  WatchAttempt(app);
  WatchDevice(app);
  WatchAnswer(app, event);
  WatchUpload(app);
  WatchDownload(app);
  WatchScan(app, event);
}

// A refusal during a scan means that the device has gone: the scan had opened it before.
void LinkWatch::WatchAttempt(const core::Application& app) {
  const auto& attempt = app.last_port_attempt;
  if (attempt.number == before_.attempts) return;
  refusal_.reset();
  silence_.reset();
  scan_.reset();
  if (!attempt.refused) {
    loss_.reset();
    return;
  }
  if (before_.phase == LinkPhase::kScan) {
    if (!loss_) Lose(app, *attempt.refused);
    return;
  }
  loss_.reset();
  const auto& comm = app.frmMain.MSComm1;
  refusal_ = Refusal{comm.CommPort, comm.Settings, *attempt.refused};
  Add(renewed_, AdviceId::kPortRefused);
}

void LinkWatch::WatchDevice(const core::Application& app) {
  if (loss_) return;
  if (const auto* why = core::LostDevice(app)) Lose(app, *why);
}

// Then a timer closes the port.
void LinkWatch::WatchAnswer(const core::Application& app, const core::Event& event) {
  const bool asked =
      before_.port_open && before_.phase == LinkPhase::kIdle && before_.link_mode == core::kLinkRemote;
  const auto& comm = app.frmMain.MSComm1;
  if (!asked || before_.remote_held || comm.PortOpen || loss_ ||
      !std::holds_alternative<core::TickEvent>(event))
    return;
  silence_ = Silence{comm.CommPort, comm.Settings};
  Add(renewed_, AdviceId::kNoAnswer);
}

void LinkWatch::Lose(const core::Application& app, const core::Failure& why) {
  loss_ = Loss{app.frmMain.MSComm1.CommPort, why.Subject(), why.what(), app.platform.clock(), before_.phase};
  Add(renewed_, AdviceId::kDeviceLost);
}

void LinkWatch::WatchUpload(const core::Application& app) {
  if (app.FrameState != 0) {
    if (PhaseOf(app) == LinkPhase::kUpload || upload_broke_) return;
    upload_broke_ = true;
    Add(renewed_, AdviceId::kUploadBroke);
    return;
  }
  if (before_.frame_state == 0) return;
  upload_completed_ = app.uploads_taken != before_.uploads_taken;
  if (upload_completed_ && upload_broke_) {
    mixed_image_ = app.known_image;
    Add(renewed_, AdviceId::kUploadMixed);
  }
  upload_broke_ = false;
}

// A unit confirms the last character at once. The installer needs longer to close the box that appears then.
void LinkWatch::WatchDownload(const core::Application& app) {
  using Sent = BrokenDownload::Sent;
  download_completed_ = app.downloads_confirmed != before_.downloads_confirmed;
  if (download_completed_ || upload_completed_) broken_.reset();
  if (download_completed_) return;
  const auto now = PhaseOf(app);
  if (before_.phase == LinkPhase::kDownloadEnd) {
    const bool waits = app.sent_image && app.LinkMode == core::kLinkDownload;
    if (before_.unconfirmed && before_.link_mode == core::kLinkDownload && !waits) Break(app, Sent::kAll);
    return;
  }
  if (!IsDownload(before_.phase) || now == LinkPhase::kDownloadEnd) return;
  const bool cut = before_.phase == LinkPhase::kDownloadStream && now != LinkPhase::kDownloadStream;
  const bool known_sent = broken_ && broken_->sent != Sent::kNothing;
  if (!cut && (IsDownload(now) || known_sent)) return;
  Break(app, cut ? Sent::kPart : Sent::kNothing);
}

void LinkWatch::Break(const core::Application& app, BrokenDownload::Sent sent) {
  broken_ = {app.platform.clock(), sent};
  Add(renewed_, AdviceId::kDownloadBroke);
}

void LinkWatch::WatchScan(const core::Application& app, const core::Event& event) {
  if (app.RemoteHeld) scan_.reset();
  const bool ended = before_.phase == LinkPhase::kScan && !app.ScanActive && !app.RemoteHeld;
  if (!ended || loss_ || !std::holds_alternative<core::TickEvent>(event)) return;
  scan_ = FailedScan{before_.link_mode == core::kLinkRemote};
  Add(renewed_, AdviceId::kScanFoundNothing);
}

}  // namespace ovl::acts
