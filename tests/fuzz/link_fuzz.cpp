// A conversation: every byte is a received character, or an event of another kind. Whatever comes, the
// display and the variables stay within their ranges, and a closed port sends nothing.
#include <cstdint>
#include <cstdlib>

#include "support/harness.h"

namespace {

using ovl::testing::Harness;

void Act(Harness& program, std::uint8_t code) {
  auto& form = program.app.frmMain;
  switch (code) {
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
      program.Click("cmdSET");
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
      program.line_error = program.line_error ? std::nullopt : std::optional<std::string>("No such device");
      break;
    default:
      if (code >= 0xFA) {
        program.Click("CmdUpDow(" + std::to_string(code - 0xFA) + ")");
      } else {
        program.Unit(std::string(1, static_cast<char>(code)));
      }
  }
}

void Check(Harness& program) {
  const auto& app = program.app;
  const int bar = app.frmMain.vbalProgressBar1.value;
  if (bar < 0 || bar > 100 || app.ProgressChars < 0 || app.ProgressChars > 50 || app.ScanIndex > 10)
    std::abort();
  if (app.LinkMode != 0 && app.LinkMode != 1 && app.LinkMode != 2 && app.LinkMode != 255) std::abort();
  if (!app.frmMain.MSComm1.PortOpen && app.RemoteHeld) std::abort();
  const bool scanning = app.ScanActive || app.frmSettSR.form.loaded || app.frmOK_buttom.form.loaded;
  if (!scanning && !app.frmMain.form.enabled) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Harness program({"V1400", "R12"});
  if (program.Start() != ovl::Outcome::kDone) std::abort();
  for (std::size_t at = 0; at < size && !program.app.ended; ++at) {
    Act(program, data[at]);
    Check(program);
  }
  return 0;
}
