#include <QCoreApplication>
#include <array>

#include "ui/tips/tip_texts.h"

namespace ovl::ui {
namespace {

constexpr std::array kTips{
    Tip{"frmMicros", "ComboMICROS",
        QT_TRANSLATE_NOOP("Tip", "The kind of device that the unit replaces on the network.")},
    Tip{"frmMicros", "ComboMICROSADD",
        QT_TRANSLATE_NOOP("Tip", "The address of that device; ANY takes every address.")},
    Tip{"frmMicros", "ComboMODE",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit only listens (TAP) or answers as the device (EMULATE).")},
    Tip{"frmMicros", "ComboISN(0)",
        QT_TRANSLATE_NOOP("Tip", "The kind of device whose messages the unit takes; ANY takes all.")},
    Tip{"frmMicros", "ComboISN(1)",
        QT_TRANSLATE_NOOP("Tip", "The group address from which a message must come; ANY takes all.")},
    Tip{"frmMicros", "ComboISN(2)",
        QT_TRANSLATE_NOOP("Tip", "The local address from which a message must come; ANY takes all.")},
    Tip{"frmMicros", "ComboISN(3)",
        QT_TRANSLATE_NOOP("Tip", "The IDN number from which a message must come; ANY takes all.")},
    Tip{"frmMicros", "ComboISN(4)",
        QT_TRANSLATE_NOOP("Tip", "The kind of device to which a message must go; ANY takes all.")},
    Tip{"frmMicros", "ComboISN(5)",
        QT_TRANSLATE_NOOP("Tip", "The group address to which a message must go; ANY takes all.")},
    Tip{"frmMicros", "ComboISN(6)",
        QT_TRANSLATE_NOOP("Tip", "The local address to which a message must go; ANY takes all.")},
    Tip{"frmMicros", "ComboISN(7)",
        QT_TRANSLATE_NOOP("Tip", "The IDN number to which a message must go; ANY takes all.")},
    Tip{"frmMicros", "HandSHKCombo",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit acknowledges what the register sends.")},
    Tip{"frmMicros", "ECRNumber",
        QT_TRANSLATE_NOOP("Tip",
                          "The number of the register that the unit follows; seven digits are stored.")},
    Tip{"frmMicros", "cmdSetMicros",
        QT_TRANSLATE_NOOP("Tip", "Stores what this window shows; closing it otherwise stores nothing.")},
    Tip{"frmMicros", "cmdISNset",
        QT_TRANSLATE_NOOP("Tip", "Stores what this window shows; closing it otherwise stores nothing.")},
    Tip{"frmMicros", "CMD3700Set",
        QT_TRANSLATE_NOOP("Tip", "Stores what this window shows; closing it otherwise stores nothing.")},
    Tip{"FrmSubMenu", "F1OP",
        QT_TRANSLATE_NOOP("Tip", "The port of the register to which the unit is wired.")},
    Tip{"FrmSubMenu", "Combo1(0)", QT_TRANSLATE_NOOP("Tip", "The model, which is fixed.")},
    Tip{"FrmSubMenu", "Combo1(1)",
        QT_TRANSLATE_NOOP("Tip",
                          "Whether the unit listens to the printer line (TAPPING) or answers as the printer "
                          "(EMULATING).")},
    Tip{"FrmSubMenu", "Option1",
        QT_TRANSLATE_NOOP("Tip", "How the unit takes the text of this model; the choice is stored at once.")},
    Tip{"FrmSubMenu", "Combo2",
        QT_TRANSLATE_NOOP("Tip", "The terminal whose text the unit takes; ANY takes them all.")},
};

}  // namespace

std::span<const Tip> RegisterWindowTips() {
  return kTips;
}

}  // namespace ovl::ui
