#include "acts/advice/link_conditions.h"

#include <array>
#include <system_error>

namespace ovl::acts {
namespace {

using controls::LinkAction;

constexpr const char* kSetComport = "Set Comport";

// Why a scan passes over the answer of the unit, and what to do instead.
constexpr const char* kDeaf =
    ": the program takes an answer only if remote mode was held before and Disconnect ended it. ";
constexpr const char* kChooseLine =
    "Choose the baud rate, the data bits and the parity of the unit in Set Comport, then press SET and "
    "Remote.";

bool PortOpen(const core::Application& app) {
  return app.frmMain.MSComm1.PortOpen;
}

const std::string& Caption(const core::Application& app, LinkAction action) {
  return app.frmMain.CmdUpDow[static_cast<std::size_t>(action)].caption;
}

std::string TwoDigits(int number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string At(const core::ClockTime& time) {
  return TwoDigits(time.hour) + ":" + TwoDigits(time.minute) + ":" + TwoDigits(time.second);
}

std::string Device(int comport, const std::string& device) {
  return "Comport " + std::to_string(comport) + ", " + device + ",";
}

Advice Click(std::string words, std::string caption, std::string_view control) {
  return {AdviceId::kCount, {}, std::move(words), AdviceAction::kClickControl, std::move(caption), control};
}

Advice ClickSetComport(std::string words) {
  return Click(std::move(words), kSetComport, "cmdConnect");
}

// What the unit holds after the loss.
std::string_view LeftByLoss(LinkPhase during) {
  switch (during) {
    case LinkPhase::kScan:
      return " during the scan. The unit is untouched.";
    case LinkPhase::kUpload:
      return " during the upload. The unit is untouched, and nothing of the upload is on the tabs.";
    case LinkPhase::kDownloadCommand:
      return " before the download began. The unit holds its old configuration.";
    case LinkPhase::kDownloadStream:
      return " during the download. The unit may hold half a configuration, so download again.";
    case LinkPhase::kDownloadEnd:
      return " after the download. The unit was sent the whole configuration, but has not confirmed it.";
    case LinkPhase::kSetTime:
      return " while the clock was set. The unit may have the new time.";
    case LinkPhase::kMasterReset:
      return " during the master reset. The unit may be at its factory settings.";
    default:
      return ". The unit is untouched.";
  }
}

// The transfer to repeat; empty if there was none.
std::string ToRepeat(const core::Application& app, LinkPhase during) {
  switch (during) {
    case LinkPhase::kUpload:
      return Caption(app, LinkAction::kUpload);
    case LinkPhase::kDownloadCommand:
    case LinkPhase::kDownloadStream:
      return Caption(app, LinkAction::kDownload);
    default:
      return {};
  }
}

std::string Reconnect(const core::Application& app, const std::string& last) {
  std::string steps = std::string(kSetComport) + ", " + app.frmSettSR.cmdSET.caption + ", " +
                      Caption(app, LinkAction::kRemote);
  if (!last.empty()) steps += ", " + last;
  return steps + ".";
}

// What cures the failure.
std::string CureOf(const Refusal& refusal) {
  struct Cure {
    std::errc error;
    const char* words;
  };
  constexpr std::array kCures = {
      Cure{
          std::errc::permission_denied,
          "Only root and the group of the device, mostly dialout, may use it. As root: adduser NAME dialout; "
          "then log in again."},
      Cure{std::errc::no_such_file_or_directory,
           "Plug the adapter in, choose the comport of another device, or set the link ports/com%1 in the "
           "program folder."},
      Cure{std::errc::no_such_device,
           "The device is not there: plug the adapter in, or choose the comport of another device."},
      Cure{std::errc::no_such_device_or_address,
           "No hardware is behind this name: choose the comport of another device."},
      Cure{std::errc::io_error, "No hardware is behind this name: choose the comport of another device."},
      Cure{std::errc::device_or_resource_busy, "Another program uses the device: close it."},
      Cure{std::errc::invalid_argument,
           "The device cannot use %2: choose another baud rate, or data bits and parity."},
  };
  for (const auto& cure : kCures) {
    if (!refusal.reason.Is(cure.error)) continue;
    std::string words = cure.words;
    if (const auto place = words.find("%1"); place != std::string::npos)
      words.replace(place, 2, std::to_string(refusal.comport));
    if (const auto place = words.find("%2"); place != std::string::npos)
      words.replace(place, 2, refusal.settings);
    return words;
  }
  return "Choose another comport, or check the device.";
}

// The data bits and the parity with which the port was scanned, such as "8 Bits and parity NONE".
std::string LineOfScan(const core::Application& app) {
  const auto& dialog = app.frmSettSR;
  const auto& parities = dialog.OpParity.elements;
  const auto& bits = dialog.OpDataBits.elements;
  const auto parity = app.PortParity == "O" ? parities[1] : app.PortParity == "E" ? parities[2] : parities[0];
  return (app.PortDataBits == "7" ? bits[0] : bits[1]).caption + " and parity " + parity.caption;
}

// Words with the next of the steps on REMOTE as their action.
Advice OnRemote(const core::Application& app, std::string words) {
  if (!PortOpen(app)) return ClickSetComport(std::move(words));
  if (!app.RemoteHeld) return Click(std::move(words), Caption(app, LinkAction::kRemote), "CmdUpDow(4)");
  return {AdviceId::kCount, {}, std::move(words)};
}

// While a window holds the main form, the program cannot be ended either.
Advice RestartAdvice(const core::Application& app, std::string words) {
  if (!app.frmMain.form.enabled) return {AdviceId::kCount, {}, std::move(words)};
  return {AdviceId::kCount, {}, std::move(words), AdviceAction::kRestart, "Restart"};
}

}  // namespace

std::string StepsOnRemote(const core::Application& app, const std::string& last) {
  std::string steps;
  if (!PortOpen(app)) steps += std::string(kSetComport) + ", ";
  if (!app.RemoteHeld) steps += Caption(app, LinkAction::kRemote) + ", ";
  return steps + last;
}

Advice UploadBroke(const core::Application& app, const Observed& observed) {
  if (!observed.link.UploadBroke()) return {};
  return RestartAdvice(
      app,
      "An upload broke off. What had arrived is still ahead of the next upload and would be read in its "
      "place. Restart the program before you upload again.");
}

Advice UploadMixed(const core::Application& app, const Observed& observed) {
  if (!observed.link.UploadMixedIn(app)) return {};
  return RestartAdvice(
      app,
      "The tabs show a mixture: the beginning is from an upload that broke off, the rest from the last "
      "one. Do not download it. Restart the program, which drops the mixture, and upload again.");
}

Advice DeviceLost(const core::Application& app, const Observed& observed) {
  const auto& loss = observed.link.Lost();
  if (!loss) return {};
  auto words =
      Device(loss->comport, loss->device) + " was lost at " + At(loss->at) + " (" + loss->reason + ")";
  words += LeftByLoss(loss->during);
  const bool begun = observed.link.UploadBroke() || app.FrameState != 0;
  const bool restart = begun && loss->during == LinkPhase::kUpload;
  words += std::string(" Plug the device in again") + (restart ? " and restart the program" : "") +
           ". Then press ";
  const auto last = ToRepeat(app, loss->during);
  if (app.ScanActive) {
    const auto& cancel = app.frmScanBProgress.Command1.caption;
    return Click(words + cancel + ", " + Reconnect(app, last), cancel, "frmScanBProgress.Command1");
  }
  if (!PortOpen(app)) return ClickSetComport(words + Reconnect(app, last));
  const auto& disconnect = app.frmMain.cmdDisConnect.caption;
  return Click(words + disconnect + ", " + Reconnect(app, last), disconnect, "cmdDisConnect");
}

std::string EndOf(const BrokenDownload& broken) {
  switch (broken.sent) {
    case BrokenDownload::Sent::kNothing:
      return "The download of " + At(broken.at) +
             " did not begin. The unit holds its old configuration. To try again: ";
    case BrokenDownload::Sent::kPart:
      return "A download broke off at " + At(broken.at) +
             ". The unit may hold half a configuration, so download again: ";
    default:
      return "The unit has not confirmed the download of " + At(broken.at) +
             ". It may hold another configuration, so download again: ";
  }
}

// A loss during the stream says the same. While another download runs, its end decides.
Advice DownloadBroke(const core::Application& app, const Observed& observed) {
  const auto& broken = observed.link.Broken();
  const auto& loss = observed.link.Lost();
  const bool shown = loss && loss->during == LinkPhase::kDownloadStream;
  const bool waits = PhaseOf(app) == LinkPhase::kDownloadCommand && app.frmMain.Timer_Operating.enabled;
  if (!broken || shown || waits || app.DownloadActive) return {};
  return OnRemote(app, EndOf(*broken) + StepsOnRemote(app, Caption(app, LinkAction::kDownload)) + ".");
}

Advice PortRefused(const core::Application&, const Observed& observed) {
  const auto& refusal = observed.link.Refused();
  if (!refusal) return {};
  return ClickSetComport(Device(refusal->comport, refusal->reason.Subject()) +
                         " did not open: " + refusal->reason.what() + ". " + CureOf(*refusal));
}

Advice ScanCannotHear(const core::Application& app, const Observed&) {
  if (!app.ScanActive || app.LinkMode == core::kLinkRemote) return {};
  const auto& cancel = app.frmScanBProgress.Command1.caption;
  return Click(std::string("This scan cannot find the unit") + kDeaf + "Press " + cancel + ". " + kChooseLine,
               cancel, "frmScanBProgress.Command1");
}

Advice ScanFoundNothing(const core::Application& app, const Observed& observed) {
  const auto& scan = observed.link.Scan();
  if (!scan || app.ScanActive) return {};
  if (!scan->could_hear)
    return ClickSetComport(std::string("The scan could not find the unit") + kDeaf + kChooseLine);
  return ClickSetComport(
      "No unit answered the scan, which tried every baud rate with " + LineOfScan(app) +
      ". Check the cable and the power of the unit. If the unit has other data bits or another "
      "parity, choose them in Set Comport and scan again.");
}

}  // namespace ovl::acts
