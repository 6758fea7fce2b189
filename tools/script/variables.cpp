#include "script/variables.h"

#include <algorithm>
#include <array>

namespace ovl::script {
namespace {

std::string AsText(bool flag) {
  return flag ? "true" : "false";
}
std::string AsText(int number) {
  return std::to_string(number);
}
std::string AsText(const std::string& text) {
  return text;
}

struct Row {
  std::string_view name;
  std::string (*value)(const core::Application&);
};

// The variables of each part of the application.
template <auto Member>
std::string Of(const core::Application& app) {
  return AsText(app.*Member);
}
template <auto Member>
std::string OfPort(const core::Application& app) {
  return AsText(app.frmMain.MSComm1.*Member);
}
template <auto Member>
std::string OfFirmware(const core::Application& app) {
  return AsText(app.firmware.*Member);
}
template <auto Member>
std::string OfCapabilities(const core::Application& app) {
  return AsText(app.capabilities.*Member);
}

using A = core::Application;

constexpr auto kVariables = std::to_array<Row>({
    {"FirmwareVersion", OfFirmware<&firmware::FirmwareId::version>},
    {"FirmwareRelease", OfFirmware<&firmware::FirmwareId::release>},
    {"HasAtmInterface", OfCapabilities<&firmware::Capabilities::HasAtmInterface>},
    {"HasTcpIp", OfCapabilities<&firmware::Capabilities::HasTcpIp>},
    {"HasTimeFields", OfCapabilities<&firmware::Capabilities::HasTimeFields>},
    {"HasAnsiTerm", OfCapabilities<&firmware::Capabilities::HasAnsiTerm>},
    {"SYSCFG", Of<&A::SYSCFG>},
    {"SYSFIXED", Of<&A::SYSFIXED>},
    {"SYSSTR", Of<&A::SYSSTR>},
    {"LinkMode", Of<&A::LinkMode>},
    {"RemoteHeld", Of<&A::RemoteHeld>},
    {"ScanActive", Of<&A::ScanActive>},
    {"ScanIndex", Of<&A::ScanIndex>},
    {"PendingOutput", Of<&A::PendingOutput>},
    {"LastSent", Of<&A::LastSent>},
    {"LastReceived", Of<&A::LastReceived>},
    {"StreamBuffer", Of<&A::StreamBuffer>},
    {"StreamScratch", Of<&A::StreamScratch>},
    {"FrameState", Of<&A::FrameState>},
    {"ProgressChars", Of<&A::ProgressChars>},
    {"ProgressValue", Of<&A::ProgressValue>},
    {"DownloadRequested", Of<&A::DownloadRequested>},
    {"DownloadActive", Of<&A::DownloadActive>},
    {"FinalAckExpected", Of<&A::FinalAckExpected>},
    {"SetTimePending", Of<&A::SetTimePending>},
    {"HistoryPending", Of<&A::HistoryPending>},
    {"MasterResetPending", Of<&A::MasterResetPending>},
    {"HistoryText", Of<&A::HistoryText>},
    {"HandcheckCount", Of<&A::HandcheckCount>},
    {"OperatingCount", Of<&A::OperatingCount>},
    {"ClockTickCount", Of<&A::ClockTickCount>},
    {"RemoteRequestText", Of<&A::RemoteRequestText>},
    {"UploadCommandText", Of<&A::UploadCommandText>},
    {"DownloadCommandText", Of<&A::DownloadCommandText>},
    {"PortNumber", Of<&A::PortNumber>},
    {"PortBaud", Of<&A::PortBaud>},
    {"PortParity", Of<&A::PortParity>},
    {"PortDataBits", Of<&A::PortDataBits>},
    {"CommPort", OfPort<&controls::SerialControl::CommPort>},
    {"Settings", OfPort<&controls::SerialControl::Settings>},
    {"PortOpen", OfPort<&controls::SerialControl::PortOpen>},
    {"SThreshold", OfPort<&controls::SerialControl::SThreshold>},
    {"RThreshold", OfPort<&controls::SerialControl::RThreshold>},
    {"InputLen", OfPort<&controls::SerialControl::InputLen>},
    {"CommEvent", OfPort<&controls::SerialControl::CommEvent>},
    {"ClockHour", Of<&A::ClockHour>},
    {"ClockMinute", Of<&A::ClockMinute>},
    {"ClockSecond", Of<&A::ClockSecond>},
    {"ClockDay", Of<&A::ClockDay>},
    {"ClockMonth", Of<&A::ClockMonth>},
    {"ClockYear", Of<&A::ClockYear>},
    {"ImageTouched", Of<&A::ImageTouched>},
    {"PanelsReady", Of<&A::PanelsReady>},
    {"UploadApplying", Of<&A::UploadApplying>},
    {"ComboTouched", Of<&A::ComboTouched>},
    {"CurrentFilePath", Of<&A::CurrentFilePath>},
    {"StreamText", Of<&A::StreamText>},
    {"DiagnosticText", Of<&A::DiagnosticText>},
    {"StatusNote", Of<&A::StatusNote>},
});

}  // namespace

std::optional<std::string> VariableValue(const core::Application& app, std::string_view name) {
  const auto row =
      std::find_if(kVariables.begin(), kVariables.end(), [name](const Row& at) { return at.name == name; });
  return row == kVariables.end() ? std::nullopt : std::optional(row->value(app));
}

}  // namespace ovl::script
