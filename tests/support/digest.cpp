#include "support/digest.h"

#include <iomanip>
#include <sstream>

#include "controls/registry.h"

namespace ovl::testing {
namespace {

void AddState(Digest& digest, const controls::ControlState& state) {
  digest.Add(state.caption);
  digest.Add((state.visible ? 1 : 0) + (state.enabled ? 2 : 0) + 4 * state.index);
}

// The properties that only some kinds of controls have.
void AddRest(Digest&, const controls::ControlState*) {}
void AddRest(Digest&, const controls::OptionElement&) {}
void AddRest(Digest& digest, const controls::CheckBox* box) {
  digest.Add(box->checked ? 1 : 0);
}
void AddRest(Digest& digest, const controls::MenuItem* item) {
  digest.Add(item->checked ? 1 : 0);
}
void AddRest(Digest& digest, const controls::List* list) {
  for (const auto& item : list->items) digest.Add(item);
  digest.Add(list->position);
}
void AddRest(Digest& digest, const controls::OptionArray* array) {
  digest.Add(array->chosen);
}
void AddRest(Digest& digest, const controls::TextBox* box) {
  digest.Add(box->text);
  digest.Add(static_cast<std::int64_t>(box->max_length));
  digest.Add((box->read_only ? 1 : 0) + (box->multi_line ? 2 : 0));
}
void AddRest(Digest& digest, const controls::ProgressBar* bar) {
  digest.Add(bar->value);
  digest.Add(bar->maximum);
  digest.Add(bar->text);
}
void AddRest(Digest& digest, const controls::Timer* timer) {
  digest.Add(timer->interval);
  digest.Add(timer->starts);
}
void AddRest(Digest& digest, const controls::Tabs* tabs) {
  digest.Add(tabs->current);
}
void AddRest(Digest& digest, const controls::Form* form) {
  digest.Add((form->loaded ? 1 : 0) + (form->top_most ? 2 : 0));
  digest.Add(form->focus_requests);
}

void AddControl(Digest& digest, const controls::ControlRef& control) {
  AddState(digest, controls::StateOf(control));
  std::visit([&](const auto& held) { AddRest(digest, held); }, control);
}

// The program folder of a test has another name in each run.
std::string WithoutFolder(std::string text, const std::string& folder) {
  const auto at = folder.size() > 1 ? text.find(folder) : std::string::npos;
  return at == std::string::npos ? text : text.erase(at, folder.size());
}

void AddLink(Digest& digest, const core::Application& app) {
  const auto add_numbers = [&](auto... numbers) { (digest.Add(std::int64_t{numbers}), ...); };
  const auto add_texts = [&](const auto&... texts) {
    (digest.Add(WithoutFolder(texts, app.platform.program_folder)), ...);
  };
  const auto& comm = app.frmMain.MSComm1;
  add_numbers(app.LinkMode, app.FrameState, app.ProgressChars, app.ProgressValue, app.HandcheckCount,
              app.OperatingCount, app.ClockTickCount, app.ScanIndex, app.PortNumber, app.TextEntryMode,
              comm.CommEvent, comm.CommPort);
  std::int64_t flags = 0;
  for (const bool flag :
       {app.RemoteHeld, app.ScanActive, app.DownloadRequested, app.DownloadActive, app.FinalAckExpected,
        app.SetTimePending, app.HistoryPending, app.MasterResetPending, app.ImageTouched, app.PanelsReady,
        app.UploadApplying, app.ComboTouched, app.handling, app.ended, comm.PortOpen})
    flags = 2 * flags + (flag ? 1 : 0);
  digest.Add(flags);
  add_texts(app.SYSCFG, app.SYSFIXED, app.SYSSTR, app.PendingOutput, app.LastSent, app.LastReceived,
            app.StreamBuffer, app.StreamScratch, app.HistoryText, app.PortBaud, app.PortParity,
            app.PortDataBits, app.ClockHour, app.ClockMinute, app.ClockSecond, app.ClockDay, app.ClockMonth,
            app.ClockYear, app.CurrentFilePath, app.StreamText, app.DiagnosticText, app.StatusNote,
            comm.Settings);
}

void AddImage(Digest& digest, const image::ConfigImage& image) {
  for (std::size_t field = 0; field < image::kFieldCount; ++field) {
    const auto id = static_cast<image::FieldId>(field);
    for (int entry = 1; entry <= image::EntryCount(id); ++entry) digest.Add(image.at(id, entry));
  }
}

}  // namespace

void Digest::Add(std::int64_t number) {
  constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;
  value_ = (value_ ^ static_cast<std::uint64_t>(number)) * kOdd;
  value_ ^= value_ >> 29;
}

void Digest::Add(std::string_view text) {
  Add(static_cast<std::int64_t>(std::hash<std::string_view>()(text)));
}

void Digest::AddState(const core::Application& app) {
  AddImage(*this, app.image);
  AddLink(*this, app);
  for (const auto& named : app.registry.All()) AddControl(*this, named.control);
}

std::string Digest::Text() const {
  std::ostringstream text;
  text << std::hex << std::setfill('0') << std::setw(16) << value_;
  return text.str();
}

}  // namespace ovl::testing
