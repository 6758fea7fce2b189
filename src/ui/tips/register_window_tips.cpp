#include <array>

#include "ui/tips/tip_texts.h"

namespace ovl::ui {
namespace {

constexpr std::array kTips{
    Tip{"frmMicros", "ComboMICROS", "The kind of device that the unit replaces on the network."},
    Tip{"frmMicros", "ComboMICROSADD", "The address of that device; ANY takes every address."},
    Tip{"frmMicros", "ComboMODE", "Whether the unit only listens (TAP) or answers as the device (EMULATE)."},
    Tip{"frmMicros", "ComboISN(0)", "The kind of device whose messages the unit takes; ANY takes all."},
    Tip{"frmMicros", "ComboISN(1)", "The group address from which a message must come; ANY takes all."},
    Tip{"frmMicros", "ComboISN(2)", "The local address from which a message must come; ANY takes all."},
    Tip{"frmMicros", "ComboISN(3)", "The IDN number from which a message must come; ANY takes all."},
    Tip{"frmMicros", "ComboISN(4)", "The kind of device to which a message must go; ANY takes all."},
    Tip{"frmMicros", "ComboISN(5)", "The group address to which a message must go; ANY takes all."},
    Tip{"frmMicros", "ComboISN(6)", "The local address to which a message must go; ANY takes all."},
    Tip{"frmMicros", "ComboISN(7)", "The IDN number to which a message must go; ANY takes all."},
    Tip{"frmMicros", "HandSHKCombo", "Whether the unit acknowledges what the register sends."},
    Tip{"frmMicros", "ECRNumber",
        "The number of the register that the unit follows; seven digits are stored."},
    Tip{"frmMicros", "cmdSetMicros", "Stores what this window shows; closing it otherwise stores nothing."},
    Tip{"frmMicros", "cmdISNset", "Stores what this window shows; closing it otherwise stores nothing."},
    Tip{"frmMicros", "CMD3700Set", "Stores what this window shows; closing it otherwise stores nothing."},
    Tip{"FrmSubMenu", "F1OP", "The port of the register to which the unit is wired."},
    Tip{"FrmSubMenu", "Combo1(0)", "The model, which is fixed."},
    Tip{"FrmSubMenu", "Combo1(1)",
        "Whether the unit listens to the printer line (TAPPING) or answers as the printer "
        "(EMULATING)."},
    Tip{"FrmSubMenu", "Option1", "How the unit takes the text of this model; the choice is stored at once."},
    Tip{"FrmSubMenu", "Combo2", "The terminal whose text the unit takes; ANY takes them all."},
};

}  // namespace

std::span<const Tip> RegisterWindowTips() {
  return kTips;
}

}  // namespace ovl::ui
