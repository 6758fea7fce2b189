#include "acts/advice/link_conditions.h"

#include <array>
#include <system_error>

namespace ovl::acts {
namespace {

using controls::LinkAction;
using phrases::OfForm;
using phrases::Pattern;
using phrases::Sentence;
using phrases::Words;

// As long as a port is open, its button has another caption.
Words SetComport() {
  return OfForm("Set Comport");
}

// What to do where a scan passes over the answer of the unit.
Words ChooseLine() {
  return Sentence(
      Pattern("Advice",
              "Choose the baud rate, the data bits and the parity of the unit in Set Comport, then press "
              "SET and Remote."));
}

bool PortOpen(const core::Application& app) {
  return app.frmMain.MSComm1.PortOpen;
}

Words Caption(const core::Application& app, LinkAction action) {
  return OfForm(app.frmMain.CmdUpDow[static_cast<std::size_t>(action)].caption);
}

std::string TwoDigits(int number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string At(const core::ClockTime& time) {
  return TwoDigits(time.hour) + ":" + TwoDigits(time.minute) + ":" + TwoDigits(time.second);
}

Advice Click(Words words, Words caption, std::string_view control) {
  return {AdviceId::kCount, {}, std::move(words), AdviceAction::kClickControl, std::move(caption), control};
}

Advice ClickSetComport(Words words) {
  return Click(std::move(words), SetComport(), "cmdConnect");
}

// What was lost, when, and what the unit holds after it.
Words LossText(const Loss& loss) {
  const std::vector<Words> parts = {std::to_string(loss.comport), loss.device, At(loss.at), loss.reason};
  switch (loss.during) {
    case LinkPhase::kScan:
      return Sentence(
          Pattern("Advice", "Comport %1, %2, was lost at %3 (%4) during the scan. The unit is unchanged."),
          parts);
    case LinkPhase::kUpload:
      return Sentence(Pattern("Advice",
                              "Comport %1, %2, was lost at %3 (%4) during the upload. The unit is unchanged, "
                              "and the tabs show nothing of the upload."),
                      parts);
    case LinkPhase::kDownloadCommand:
      return Sentence(Pattern("Advice",
                              "Comport %1, %2, was lost at %3 (%4) before the download began. The unit has "
                              "its old configuration."),
                      parts);
    case LinkPhase::kDownloadStream:
      return Sentence(Pattern("Advice",
                              "Comport %1, %2, was lost at %3 (%4) during the download. The unit may have "
                              "half a configuration, so download again."),
                      parts);
    case LinkPhase::kDownloadEnd:
      return Sentence(Pattern("Advice",
                              "Comport %1, %2, was lost at %3 (%4) after the download. The program sent the "
                              "whole configuration, but the unit has not confirmed it."),
                      parts);
    case LinkPhase::kSetTime:
      return Sentence(
          Pattern("Advice",
                  "Comport %1, %2, was lost at %3 (%4) while the clock was set. The unit may have the "
                  "new time."),
          parts);
    case LinkPhase::kMasterReset:
      return Sentence(Pattern("Advice",
                              "Comport %1, %2, was lost at %3 (%4) during the master reset. The unit may "
                              "have its factory settings."),
                      parts);
    default:
      return Sentence(Pattern("Advice", "Comport %1, %2, was lost at %3 (%4). The unit is unchanged."),
                      parts);
  }
}

// The transfer to repeat; empty if there was none.
Words ToRepeat(const core::Application& app, LinkPhase during) {
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

// "Set Comport, SET, Remote"
Words Followed(const Words& steps, const Words& next) {
  if (steps.empty() || next.empty()) return steps.empty() ? next : steps;
  return Sentence(Pattern("List", "%1, %2"), {steps, next});
}

Words Reconnect(const core::Application& app, const Words& first, const Words& last) {
  auto steps = Followed(first, SetComport());
  steps = Followed(steps, OfForm(app.frmSettSR.cmdSET.caption));
  return Followed(Followed(steps, Caption(app, LinkAction::kRemote)), last);
}

// What cures the failure.
Words CureOf(const Refusal& refusal) {
  const auto& reason = refusal.reason;
  if (reason.Is(std::errc::permission_denied))
    return Sentence(
        Pattern("Advice",
                "Only root and the group of the device, mostly dialout, may use it. As root: adduser NAME "
                "dialout; then log in again."));
  if (reason.Is(std::errc::no_such_file_or_directory))
    return Sentence(
        Pattern("Advice",
                "Plug the adapter in, choose the comport of another device, or set the link ports/com%1 "
                "in the program folder."),
        {std::to_string(refusal.comport)});
  if (reason.Is(std::errc::no_such_device))
    return Sentence(Pattern(
        "Advice", "The device is not there: plug the adapter in, or choose the comport of another device."));
  if (reason.Is(std::errc::no_such_device_or_address) || reason.Is(std::errc::io_error))
    return Sentence(
        Pattern("Advice", "No hardware belongs to this name: choose the comport of another device."));
  if (reason.Is(std::errc::device_or_resource_busy))
    return Sentence(Pattern("Advice", "Another program uses the device: close it."));
  if (reason.Is(std::errc::invalid_argument))
    return Sentence(
        Pattern("Advice",
                "The device cannot use %1: choose another baud rate, other data bits or another parity."),
        {refusal.settings});
  return Sentence(Pattern("Advice", "Choose another comport, or check the device."));
}

// The data bits and the parity with which the port was opened.
std::vector<Words> LineOfPort(const core::Application& app) {
  const auto& dialog = app.frmSettSR;
  const auto& parities = dialog.OpParity.elements;
  const auto& bits = dialog.OpDataBits.elements;
  const auto& parity = app.PortParity == "O"   ? parities[1]
                       : app.PortParity == "E" ? parities[2]
                                               : parities[0];
  return {OfForm((app.PortDataBits == "7" ? bits[0] : bits[1]).caption), OfForm(parity.caption)};
}

// Words with the next of the steps on REMOTE as their action.
Advice OnRemote(const core::Application& app, Words words) {
  if (!PortOpen(app)) return ClickSetComport(std::move(words));
  if (!app.RemoteHeld) return Click(std::move(words), Caption(app, LinkAction::kRemote), "CmdUpDow(4)");
  return {AdviceId::kCount, {}, std::move(words)};
}

// While a window holds the main form, the program cannot be ended either.
Advice RestartAdvice(const core::Application& app, Words words) {
  if (!app.frmMain.form.enabled) return {AdviceId::kCount, {}, std::move(words)};
  return {
      AdviceId::kCount, {}, std::move(words), AdviceAction::kRestart, Sentence(Pattern("Advice", "Restart"))};
}

}  // namespace

Words StepsOnRemote(const core::Application& app, const Words& last) {
  Words steps;
  if (!PortOpen(app)) steps = SetComport();
  if (!app.RemoteHeld) steps = Followed(steps, Caption(app, LinkAction::kRemote));
  return Followed(steps, last);
}

Advice UploadBroke(const core::Application& app, const Observed& observed) {
  if (!observed.link.UploadBroke()) return {};
  return RestartAdvice(
      app,
      Sentence(Pattern("Advice",
                       "An upload stopped before its end. The program keeps what it received and would read "
                       "it together with the next upload. Restart the program before you upload again.")));
}

Advice UploadMixed(const core::Application& app, const Observed& observed) {
  if (!observed.link.UploadMixedIn(app)) return {};
  return RestartAdvice(app,
                       Sentence(Pattern("Advice",
                                        "The tabs show a mixture of two uploads: the beginning of one that "
                                        "stopped, and the rest of the last one. Do not download it. Restart "
                                        "the program, which discards the mixture, and upload again.")));
}

Advice DeviceLost(const core::Application& app, const Observed& observed) {
  const auto& loss = observed.link.Lost();
  if (!loss) return {};
  const bool begun = observed.link.UploadBroke() || app.FrameState != 0;
  const bool restart = begun && loss->during == LinkPhase::kUpload;
  const auto words = [&](const Words& first) {
    const std::vector<Words> parts = {LossText(*loss), Reconnect(app, first, ToRepeat(app, loss->during))};
    return restart ? Sentence(Pattern("Advice",
                                      "%1 Plug the device in again and restart the program. Then press %2."),
                              parts)
                   : Sentence(Pattern("Advice", "%1 Plug the device in again. Then press %2."), parts);
  };
  if (app.ScanActive) {
    const auto cancel = OfForm(app.frmScanBProgress.Command1.caption);
    return Click(words(cancel), cancel, "frmScanBProgress.Command1");
  }
  if (!PortOpen(app)) return ClickSetComport(words({}));
  const auto disconnect = OfForm(app.frmMain.cmdDisConnect.caption);
  return Click(words(disconnect), disconnect, "cmdDisConnect");
}

Pattern EndOf(const BrokenDownload& broken) {
  switch (broken.sent) {
    case BrokenDownload::Sent::kNothing:
      return Pattern(
          "Advice",
          "The download at %1 did not begin. The unit has its old configuration. To try again: %2.");
    case BrokenDownload::Sent::kPart:
      return Pattern("Advice",
                     "A download stopped at %1. The unit may have half a configuration, so download again: "
                     "%2.");
    default:
      return Pattern("Advice",
                     "The unit has not confirmed the download at %1. It may have another configuration, so "
                     "download again: %2.");
  }
}

// A loss during the stream says the same. While another download runs, its end decides.
Advice DownloadBroke(const core::Application& app, const Observed& observed) {
  const auto& broken = observed.link.Broken();
  const auto& loss = observed.link.Lost();
  const bool shown = loss && loss->during == LinkPhase::kDownloadStream;
  const bool waits = PhaseOf(app) == LinkPhase::kDownloadCommand && app.frmMain.Timer_Operating.enabled;
  if (!broken || shown || waits || app.DownloadActive) return {};
  const std::vector<Words> parts = {At(broken->at), StepsOnRemote(app, Caption(app, LinkAction::kDownload))};
  return OnRemote(app, Sentence(EndOf(*broken), parts));
}

Advice PortRefused(const core::Application&, const Observed& observed) {
  const auto& refusal = observed.link.Refused();
  if (!refusal) return {};
  return ClickSetComport(Sentence(Pattern("Advice", "Comport %1, %2, did not open: %3. %4"),
                                  {std::to_string(refusal->comport), refusal->reason.Subject(),
                                   std::string(refusal->reason.what()), CureOf(*refusal)}));
}

Advice NoAnswer(const core::Application& app, const Observed& observed) {
  const auto& silence = observed.link.Silent();
  if (!silence) return {};
  std::vector<Words> parts = {std::to_string(silence->comport),
                              silence->settings.substr(0, silence->settings.find(','))};
  for (auto& words : LineOfPort(app)) parts.push_back(std::move(words));
  return ClickSetComport(Sentence(
      Pattern(
          "Advice",
          "No unit answered on Comport %1 at %2 baud with %3 and parity %4. Check the cable and the power "
          "of the unit. If the unit has other settings, choose them in Set Comport."),
      parts));
}

Advice ScanCannotHear(const core::Application& app, const Observed&) {
  if (!app.ScanActive || app.LinkMode == core::kLinkRemote) return {};
  const auto cancel = OfForm(app.frmScanBProgress.Command1.caption);
  return Click(
      Sentence(Pattern("Advice",
                       "This scan cannot find the unit. The program accepts an answer only if the unit was "
                       "in remote mode before, and Disconnect or a time-out ended remote mode. Press %1. %2"),
               {cancel, ChooseLine()}),
      cancel, "frmScanBProgress.Command1");
}

Advice ScanFoundNothing(const core::Application& app, const Observed& observed) {
  const auto& scan = observed.link.Scan();
  if (!scan || app.ScanActive) return {};
  if (!scan->could_hear)
    return ClickSetComport(
        Sentence(Pattern("Advice",
                         "The scan could not find the unit. The program accepts an answer only if the unit "
                         "was in remote mode before, and Disconnect or a time-out ended remote mode. %1"),
                 {ChooseLine()}));
  return ClickSetComport(
      Sentence(Pattern("Advice",
                       "No unit answered the scan. It tried every baud rate with %1 and parity %2. Check the "
                       "cable and the power of the unit. If the unit has other data bits or another parity, "
                       "choose them in Set Comport and scan again."),
               LineOfPort(app)));
}

}  // namespace ovl::acts
