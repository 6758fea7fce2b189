// The rules about the line to the register, the network of units and the address on a network.
#include <algorithm>
#include <array>

#include "checks/rule.h"
#include "checks/trial_program.h"
#include "codecs/codecs.h"
#include "firmware/traits.h"
#include "image/report.h"

namespace ovl::checks {
namespace {

using enum image::FieldId;
using enum Severity;
using changes::Site;
using controls::Comm;
using core::Place;

constexpr std::string_view kNetAddress = "ComboCOMM(10)";

// What the options of the register store on other tabs, where the image has something else.
Hits NotAsForced(Subject& subject) {
  const auto forced = TrialProgram(subject.Like(), subject.Image()).WithForcedSettings();
  const auto differences = image::Differences(subject.Image(), forced, subject.Firmware());
  if (differences.empty()) return {};
  changes::Wording as_forced(subject.Like(), forced);
  Hits hits;
  for (const auto& difference : differences) {
    for (const auto& group : changes::SitesOf(difference, subject.Firmware())) {
      for (const auto& site : group) {
        if (site.option != nullptr || site.place == Place::kRegister || !changes::Differs(site, difference))
          continue;
        const auto is = subject.Words().WordsOf(site, difference.before);
        const auto sets = as_forced.WordsOf(site, difference.after);
        if (!is || !sets || is == sets) continue;
        hits.push_back(
            {0,
             {changes::SlotCaption(subject.Shown(), site), *is, subject.Words().RegisterName(), *sets},
             site});
      }
    }
  }
  return hits;
}

bool IsSlave(const Subject& subject) {
  constexpr int kSlave = 2;
  return firmware::HasNetwork(subject.Firmware()) &&
         subject.Form().ComboCOMM[Comm::kNetType].position == kSlave;
}

Hits SlaveWithoutAddress(Subject& subject) {
  const auto& address = subject.Form().ComboCOMM[Comm::kNetAddress];
  if (!IsSlave(subject) || address.position != 0) return {};
  return {{0, {subject.Entry("ComboCOMM(9)"), phrases::OfForm(address.Text())}}};
}

// The entry of a list for a position; the byte if the list has none.
phrases::Words EntryAt(const controls::List& list, const std::string& position) {
  const auto at = static_cast<std::size_t>(codecs::HexToInt(position));
  return at < list.items.size() ? phrases::OfForm(list.items[at]) : changes::BytesInWords(position);
}

// The list of the speed follows the protocol on the screen; the byte does so only when the protocol is
// picked.
Hits NetworkSpeed(Subject& subject) {
  const auto& stored = subject.Image()[NET_BAUDRATE];
  const auto& needed = subject.ByPanelRules()[NET_BAUDRATE];
  if (needed == stored) return {};
  const auto& speeds = subject.Form().ComboCOMM[Comm::kNetSpeed];
  return {{0, {EntryAt(speeds, stored), subject.Entry("ComboCOMM(11)"), EntryAt(speeds, needed)}}};
}

// The same with the address and the type. A fixed text can cover the list of the address.
Hits NetworkAddress(Subject& subject) {
  const auto& stored = subject.Image()[NET_ADDRESS];
  const auto& shown = subject.ByPanelRules()[NET_ADDRESS];
  if (shown == stored) return {};
  const auto& addresses = subject.Form().ComboCOMM[Comm::kNetAddress];
  const auto control = subject.Offers(std::string(kNetAddress)) ? kNetAddress : "ComboCOMM(9)";
  return {{0,
           {EntryAt(addresses, stored), EntryAt(addresses, shown), subject.Entry("ComboCOMM(9)")},
           Site{Place::kCommunication, control}}};
}

// The firmware of the old frame shows the address in lists of their own, which store nothing.
Hits NoIpAddress(Subject& subject) {
  using Frame = controls::OptionFrame;
  const bool old = subject.Form().FrameOf(Frame::kOldTcpip).visible;
  if (!old && !subject.Form().FrameOf(Frame::kTcpip).visible) return {};
  for (int number = 1; number <= image::EntryCount(IPADDRESS); ++number) {
    if (subject.Byte(IPADDRESS, number) != 0) return {};
  }
  return {
      {0, {subject.Words().RegisterName()}, Site{Place::kRegister, old ? "ComboTCPIP(0)" : "ComboTCPIP(4)"}}};
}

constexpr std::array kRules = {
    Rule{"no-ip-address", kError, "The IP address of %1 is 0.0.0.0.", Place::kRegister, "ComboTCPIP(4)",
         NoIpAddress},
    Rule{"slave-without-address", kError, "TYPE of the network is %1, but its ADDRESS is %2.",
         Place::kCommunication, kNetAddress, SlaveWithoutAddress},
    Rule{"not-as-forced", kWarning, "%1 is %2, but the options of %3 set it to %4.", Place::kCommunication,
         "ComboCOMM(1)", NotAsForced},
    Rule{"network-speed", kWarning,
         "The network is stored with the BAUD RATE %1, but its PROTOCOL %2 needs %3.", Place::kCommunication,
         "ComboCOMM(11)", NetworkSpeed},
    Rule{"network-address", kWarning,
         "The network is stored with the ADDRESS %1, but the tab shows %2 for its TYPE %3.",
         Place::kCommunication, kNetAddress, NetworkAddress},
};

}  // namespace

std::span<const Rule> LineRules() {
  return kRules;
}

}  // namespace ovl::checks
