#include "panels/wiring.h"

#include "core/actions.h"
#include "panels/alarms.h"
#include "panels/communication.h"
#include "panels/demo.h"
#include "panels/exceptions/dvr.h"
#include "panels/exceptions/exception_report.h"
#include "panels/exceptions/exceptions.h"
#include "panels/exceptions/range_editor.h"
#include "panels/exceptions/scroll_matching.h"
#include "panels/exceptions/text_entry.h"
#include "panels/text_display.h"
#include "panels/time_date.h"

namespace ovl::panels {
namespace {

void WireMainForm(controls::MainForm& form) {
  core::HandleAll(form.ComboCOMM, ComboCOMM_Click);
  core::HandleAll(form.ComboDIP, ComboDIP_Click);
  core::HandleAll(form.ComboTD, ComboTD_Click);
  form.ComboLang.handler = ComboLang_Click;
  core::HandleAll(form.ComboExcepRe, ComboExcepRe_Click);
  core::HandleAll(form.ComboExcp, ComboExcp_Click);
  form.TextException.handler = TextException_Change;
  form.cmdSetExcpstr.handler = cmdSetExcpstr_Click;
  form.cmdSetRange.handler = cmdSetRange_Click;
  core::HandleAll(form.ComboScroll, ComboScroll_Click);
  core::HandleAll(form.ComboALM, ComboALM_Click);
  core::HandleAll(form.ComboTrigger, ComboTrigger_Click);
  form.TextTrigger.handler = TextTrigger_Change;
  form.cmdSetTrigger.handler = cmdSetTrigger_Click;
  form.Title_Text.handler = Title_Text_Change;
  form.cmdTitle.handler = cmdTitle_Click;
  form.DemoMode.handler = DemoMode_Click;
  form.CharacterList.handler = CharacterList_Click;
  form.DemoType.handler = DemoType_Click;
  form.DemoSpeed.handler = DemoSpeed_Click;
  form.OpDVR.handler = OpDVR_Click;
  core::HandleAll(form.ComboKLM4011, ComboKLM4011_Click);
}

void WireTextForms(core::Application& app) {
  auto& text = app.frmSetEXCPSTR;
  text.form.load = frmSetEXCPSTR_Load;
  text.form.unload = frmSetEXCPSTR_Unload;
  text.form.enter = TextEntrySet_Click;
  text.form.escape = TextEntry_Escape;
  text.cmdSET.handler = TextEntrySet_Click;
  text.cmdClr.handler = TextEntryClear_Click;

  auto& range = app.frmSetRange;
  range.form.load = frmSetRange_Load;
  range.form.unload = frmSetRange_Unload;
  int field = 0;
  for (auto* box : {&range.Range_Hi, &range.SubRange_Hi, &range.Range_Low, &range.SubRange_Low}) {
    box->index = field++;
    box->leave = RangeField_Leave;
  }
  range.ComboDec.handler = ComboDec_Click;
  range.cmdSetRange.handler = RangeSet_Click;
  range.cmdClr.handler = RangeClear_Click;
}

}  // namespace

void WirePanels(core::Application& app) {
  WireMainForm(app.frmMain);
  WireTextForms(app);
  app.on_download_acknowledged = StoreRecorder;
}

}  // namespace ovl::panels
