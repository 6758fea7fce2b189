// The one application object: the forms, the image, the state of the link, and the platform. The code that
// starts the program owns it for the whole run. Only code that runs inside the gate changes it.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "controls/forms/information_forms.h"
#include "controls/forms/link_forms.h"
#include "controls/forms/main_form.h"
#include "controls/forms/register_forms.h"
#include "controls/registry.h"
#include "core/platform.h"
#include "firmware/firmware_id.h"
#include "image/config_image.h"

namespace ovl::core {

// What the link is doing. It is a plain number, because some steps end without resetting it and later steps
// compare it.
inline constexpr std::int16_t kLinkRemote = 0;  // remote mode asked for or held
inline constexpr std::int16_t kLinkUpload = 1;
inline constexpr std::int16_t kLinkDownload = 2;
inline constexpr std::int16_t kLinkIdle = 255;

using Routine = void (*)(Application&);

// Refreshes one panel from the image: after every load, or also after a pick in the register list.
enum class ApplyWhen { kAfterLoad, kAfterLoadAndPick };
struct ApplyRoutine {
  Routine run;
  ApplyWhen when;
};

// A stored byte for which an option of the register has no entry. The option frame stays hidden then.
struct UnfitOption {
  image::FieldId field;
  int entry;
  std::string value;

  bool operator==(const UnfitOption&) const = default;
};

// The last attempt to open the port.
struct PortAttempt {
  unsigned number = 0;             // attempts since the start
  std::optional<Failure> refused;  // names the device
};

struct Application {
  Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  Platform platform;
  controls::Registry registry;

  controls::MainForm frmMain;
  controls::PortSettingsForm frmSettSR;
  controls::ScanProgressForm frmScanBProgress;
  controls::TransferEndForm frmOK_buttom;
  controls::MicrosForm frmMicros;
  controls::SubMenuForm FrmSubMenu;
  controls::ViewerForm frmView;
  controls::TextEntryForm frmSetEXCPSTR;
  controls::RangeForm frmSetRange;
  controls::AboutForm frmAbout;

  // Firmware, read once at start. A pick in the Version menu replaces `firmware` by that of the next start
  // while its message box is shown; the image still belongs to the earlier one.
  firmware::FirmwareId firmware;
  firmware::FirmwareId image_firmware;
  bool compact_form = false;  // the form is reduced to what the compact firmware has
  firmware::Capabilities capabilities;
  std::map<std::string, bool, std::less<>> FirmwareMark;           // by the joined firmware text
  std::map<std::string, std::int16_t, std::less<>> RegisterIndex;  // by register key; -1: not in the list

  // The configuration, and the three sections that streams are made of
  image::ConfigImage image;
  std::string SYSCFG, SYSFIXED, SYSSTR;
  image::ConfigImage known_image;                // the image after the last whole load or confirmed download
  std::optional<image::ConfigImage> sent_image;  // of a download that the unit has not confirmed
  unsigned downloads_confirmed = 0;
  std::vector<ApplyRoutine> Setting_Code;  // in the order in which panels are refreshed

  // Calls from a lower folder to a higher one, which it may not include. The wiring of the higher one sets
  // them.
  Routine on_foreign_stream = nullptr;         // a stream belongs to another firmware; the message comes next
  Routine on_download_acknowledged = nullptr;  // the unit has accepted the download command

  // Link and transfers
  std::int16_t LinkMode = kLinkIdle;
  bool RemoteHeld = false;
  bool ScanActive = false;
  std::uint8_t ScanIndex = 0;
  std::string PendingOutput;  // what remains to be sent
  std::string LastSent;
  std::string LastReceived;
  std::string StreamBuffer;  // the upload being collected, or the download stream being built
  std::string StreamScratch;
  std::int16_t FrameState = 0;     // 0: waiting for "$"; 1: inside the upload stream
  std::int16_t ProgressChars = 0;  // toward the next step of the bar, 0 to 50
  std::int16_t ProgressValue = 0;
  bool DownloadRequested = false;
  bool DownloadActive = false;
  bool FinalAckExpected = false;
  bool SetTimePending = false;
  bool HistoryPending = false;
  bool MasterResetPending = false;
  std::string HistoryText;
  std::int16_t HandcheckCount = 0;
  std::int16_t OperatingCount = 0;
  std::int16_t ClockTickCount = 0;
  std::string RemoteRequestText, UploadCommandText, DownloadCommandText;

  // Port settings
  std::uint8_t PortNumber = 0;  // 1 to 16; 0 until the settings dialog was shown
  std::string PortBaud, PortParity, PortDataBits;

  int TextEntryMode = 0;  // whose text the text dialog holds: 0 the trigger's, 1 the exception's, 2 the title

  // The clock to send, two digits each
  std::string ClockHour, ClockMinute, ClockSecond, ClockDay, ClockMonth, ClockYear;

  // Image and panels
  bool ImageTouched = false;
  bool PanelsReady = false;
  bool UploadApplying = false;
  std::set<int> picks_under_way;  // positions of ComboReg whose pick has not ended yet
  bool ComboTouched = false;
  std::map<std::string, std::vector<int>, std::less<>> SavedIndexes;  // by selection family
  std::string CurrentFilePath;
  std::string StreamText;      // the lines of the file being read, joined
  std::string DiagnosticText;  // work string of diagnostics, cleared by a full load

  // State of the gate
  bool handling = false;
  bool ended = false;
  // For the screen alone
  std::optional<UnfitOption> unfit_option;  // of the register whose options were shown last
  PortAttempt last_port_attempt;
  std::string saved_path;    // what the last Save has written; empty if it failed
  std::string history_path;  // the same for a history of the unit
  unsigned uploads_taken = 0,
           files_taken = 0;              // uploads and opened files that were read whole, since the start
  std::string StatusNote;                // what last went wrong: file or port, and the reason
  std::optional<Failure> noted_failure;  // the same; nothing if no step has failed
  unsigned failures_noted = 0;           // since the start
};

}  // namespace ovl::core
