// A conversation with the firmware that the first byte chooses: every further byte is a received character,
// or an event of another kind. Whatever comes, the display and the variables stay within their ranges, a
// closed port sends nothing, and only an upload that ended well changes the image.
#include <array>
#include <utility>

#include "bytes.h"
#include "saved_state.h"
#include "support/harness.h"

namespace {

using ovl::fuzz::Require;
using ovl::testing::Harness;

// A whole stream takes a hundred times as long as the rest, so only one input in so many has one.
constexpr unsigned kRarely = 8;

struct Conversation {
  explicit Conversation(const ovl::FirmwareId& firmware)
      : program(firmware), stream(ovl::testing::PatternStream(firmware, 7)) {
    Require(program.Start() == ovl::Outcome::kDone, "the program starts");
    start.emplace(program.app);
    begun = program.app.image;
  }

  void Reset(std::string_view input) {
    program.app.platform.serial.close();
    start->PutBack();
    program.boxes.clear();
    program.dialogs.clear();
    program.file_answers.clear();
    program.opened.clear();
    program.open_error.reset();
    program.line_error.reset();
    uploaded = false;
    streamed = !ovl::fuzz::OneIn(kRarely, input);
  }

  void Turn(std::optional<std::string>& error) {
    error = error ? std::nullopt : std::optional<std::string>("No such device");
  }

  void Act(std::uint8_t code);
  void Check();

  Harness program;
  std::string stream;
  std::optional<ovl::fuzz::SavedState> start;
  ovl::ConfigImage begun;
  bool uploaded = false;
  bool streamed = false;
};

void Conversation::Act(std::uint8_t code) {
  auto& form = program.app.frmMain;
  switch (code) {
    case 0xE9:
      if (!std::exchange(streamed, true)) program.Unit(stream);
      break;
    case 0xEA:
      program.Tick(form.Timer, 11);
      break;
    case 0xEB:
      Turn(program.open_error);
      break;
    case 0xEC:
      program.file_answers.emplace_back(program.folder.File("History.txt"));
      break;
    case 0xED:
      program.Drain(1);
      break;
    case 0xEE:
      program.Click("frmScanBProgress.Command1");
      break;
    case 0xEF:
      program.Click("cmdConnect");
      program.Click("frmSettSR.cmdSET");
      program.Click("CmdUpDow(4)");
      program.Unit("\x06");
      break;
    case 0xF0:
      program.Tick(form.General_timer);
      break;
    case 0xF1:
      program.Tick(form.Time_handcheck);
      break;
    case 0xF2:
      program.Tick(form.Timer_Operating);
      break;
    case 0xF3:
      program.Tick(program.app.frmSettSR.BaudRateScan);
      break;
    case 0xF4:
      program.Click("cmdConnect");
      program.Click("frmSettSR.cmdSET");
      break;
    case 0xF5:
      program.Click("cmdDisConnect");
      break;
    case 0xF6:
      program.Click("cmdConnect");
      program.Click("BaudrateCMD");
      break;
    case 0xF7:
      program.Click("frmOK_buttom.Command1");
      break;
    case 0xF8:
      program.DrainAll();
      break;
    case 0xF9:
      Turn(program.line_error);
      break;
    default:
      if (code >= 0xFA) {
        program.Click("CmdUpDow(" + std::to_string(code - 0xFA) + ")");
      } else {
        program.Unit(std::string(1, static_cast<char>(code)));
      }
  }
}

void Conversation::Check() {
  const auto& app = program.app;
  const int bar = app.frmMain.vbalProgressBar1.value;
  Require(bar >= 0 && bar <= 100 && app.ProgressChars >= 0 && app.ProgressChars <= 50, "progress in range");
  Require(app.ScanIndex <= 10, "the scan stays in its order");
  Require(app.LinkMode == 0 || app.LinkMode == 1 || app.LinkMode == 2 || app.LinkMode == 255, "link mode");
  const bool open = app.frmMain.MSComm1.PortOpen;
  Require(open || !app.RemoteHeld, "a closed port holds no remote mode");
  const bool scanning = app.ScanActive || app.frmSettSR.form.loaded || app.frmOK_buttom.form.loaded;
  Require(scanning || app.frmMain.form.enabled, "the main form can be used");
  uploaded = uploaded || app.frmOK_buttom.Label1.caption == "Upload Completed.";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static std::array<Conversation, 4> conversations{
      Conversation({"V1400", "R12"}), Conversation({"V1400", "R4"}), Conversation({"V1300", "R14"}),
      Conversation({"V1334", "R1"})};
  ovl::fuzz::Bytes input(data, size);
  auto& conversation = conversations[input.Next() % conversations.size()];
  conversation.Reset(input.Rest());
  const auto& app = conversation.program.app;
  while (!input.Empty() && !app.ended) {
    const bool open = app.frmMain.MSComm1.PortOpen;
    conversation.program.TakeSent();
    conversation.Act(input.Next());
    Require(open || app.frmMain.MSComm1.PortOpen || conversation.program.TakeSent().empty(),
            "a closed port sends nothing");
    conversation.Check();
  }
  const bool kept = conversation.program.app.image == conversation.begun;
  Require(kept || conversation.uploaded, "only an upload changes the image");
  return 0;
}
