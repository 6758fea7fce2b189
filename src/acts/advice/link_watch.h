// Remembers what happened to the link and to its transfers, as far as the state of the program no longer
// shows it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "acts/advice/advice_id.h"
#include "core/gate.h"

namespace ovl::acts {

enum class LinkPhase {
  kIdle,
  kScan,
  kUpload,
  kDownloadCommand,  // the unit has not been sent anything of the configuration yet
  kDownloadStream,
  kDownloadEnd,  // everything was sent, and the unit has not confirmed it yet
  kSetTime,
  kMasterReset
};

LinkPhase PhaseOf(const core::Application& app);

// The device of the open port is gone.
struct Loss {
  int comport = 0;
  std::string device;
  std::string reason;
  core::ClockTime at;
  LinkPhase during = LinkPhase::kIdle;
};

// A port that did not open when the installer asked for it.
struct Refusal {
  int comport = 0;
  std::string settings;  // "9600,N,8,1"
  core::Failure reason;  // names the device
};

// The program asked for remote mode and heard nothing.
struct Silence {
  int comport = 0;
  std::string settings;
};

// A download that the unit has not confirmed.
struct BrokenDownload {
  enum class Sent { kNothing, kPart, kAll };
  core::ClockTime at;
  Sent sent = Sent::kNothing;
};

// A scan that has tried all rates.
struct FailedScan {
  bool could_hear = false;  // the program takes an answer only if remote mode was asked for before
};

class LinkWatch {
 public:
  void Before(const core::Application& app);
  void After(const core::Application& app, const core::Event& event);

  // Until a port opens.
  const std::optional<Loss>& Lost() const { return loss_; }
  const std::optional<Refusal>& Refused() const { return refusal_; }
  const std::optional<Silence>& Silent() const { return silence_; }
  // Until a download is confirmed or an upload is complete.
  const std::optional<BrokenDownload>& Broken() const { return broken_; }
  // Until the port is opened again, or remote mode is held.
  const std::optional<FailedScan>& Scan() const { return scan_; }
  // The program still holds the beginning of an upload, and the next upload is put behind it.
  bool UploadBroke() const { return upload_broke_; }
  // The configuration is read from such a text.
  bool UploadMixedIn(const core::Application& app) const {
    return mixed_image_ && app.known_image == *mixed_image_;
  }

  // What the last event brought.
  const AdviceSet& Renewed() const { return renewed_; }
  bool UploadCompleted() const { return upload_completed_; }
  bool DownloadCompleted() const { return download_completed_; }

 private:
  struct Seen {
    LinkPhase phase = LinkPhase::kIdle;
    std::int16_t link_mode = core::kLinkIdle;
    std::int16_t frame_state = 0;
    unsigned attempts = 0;
    bool port_open = false;
    bool remote_held = false;
    unsigned uploads_taken = 0;
    unsigned downloads_confirmed = 0;
    bool unconfirmed = false;
  };

  void WatchAttempt(const core::Application& app);
  void WatchDevice(const core::Application& app);
  void WatchAnswer(const core::Application& app, const core::Event& event);
  void WatchUpload(const core::Application& app);
  void WatchDownload(const core::Application& app);
  void WatchScan(const core::Application& app, const core::Event& event);
  void Lose(const core::Application& app, const core::Failure& why);
  void Break(const core::Application& app, BrokenDownload::Sent sent);

  Seen before_;
  std::optional<Loss> loss_;
  std::optional<Refusal> refusal_;
  std::optional<Silence> silence_;
  std::optional<BrokenDownload> broken_;
  std::optional<FailedScan> scan_;
  std::optional<image::ConfigImage> mixed_image_;  // as it was read
  bool upload_broke_ = false;
  bool upload_completed_ = false;
  bool download_completed_ = false;
  AdviceSet renewed_;
};

}  // namespace ovl::acts
