#include <QCoreApplication>
#include <array>

#include "ui/tips/tip_texts.h"

namespace ovl::ui {
namespace {

constexpr std::array kTips{
    Tip{"frmMicros", "ComboMICROS",
        QT_TRANSLATE_NOOP("Tip", "The kind of device that the unit replaces on the network.")},
    Tip{"frmMicros", "ComboMICROSADD",
        QT_TRANSLATE_NOOP("Tip", "The address of this device. ANY means every address.")},
    Tip{"frmMicros", "ComboMODE",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit only listens (TAP) or answers as this device (EMULATE).")},
    Tip{"frmMicros", "ComboISN(0)",
        QT_TRANSLATE_NOOP("Tip",
                          "The unit reads only messages from this kind of device. ANY means every kind.")},
    Tip{"frmMicros", "ComboISN(1)",
        QT_TRANSLATE_NOOP("Tip",
                          "The unit reads only messages from this group address. ANY means every address.")},
    Tip{"frmMicros", "ComboISN(2)",
        QT_TRANSLATE_NOOP("Tip",
                          "The unit reads only messages from this local address. ANY means every address.")},
    Tip{"frmMicros", "ComboISN(3)",
        QT_TRANSLATE_NOOP("Tip",
                          "The unit reads only messages from this IDN number. ANY means every number.")},
    Tip{"frmMicros", "ComboISN(4)",
        QT_TRANSLATE_NOOP("Tip",
                          "The unit reads only messages to this kind of device. ANY means every kind.")},
    Tip{"frmMicros", "ComboISN(5)",
        QT_TRANSLATE_NOOP("Tip",
                          "The unit reads only messages to this group address. ANY means every address.")},
    Tip{"frmMicros", "ComboISN(6)",
        QT_TRANSLATE_NOOP("Tip",
                          "The unit reads only messages to this local address. ANY means every address.")},
    Tip{"frmMicros", "ComboISN(7)",
        QT_TRANSLATE_NOOP("Tip", "The unit reads only messages to this IDN number. ANY means every number.")},
    Tip{"frmMicros", "HandSHKCombo",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit acknowledges what the register sends.")},
    Tip{"frmMicros", "ECRNumber",
        QT_TRANSLATE_NOOP(
            "Tip", "The number of the register that the unit listens to. The program stores seven digits.")},
    Tip{"frmMicros", "cmdSetMicros",
        QT_TRANSLATE_NOOP(
            "Tip",
            "Stores the settings of this window. If you close the window without SET, they do not change.")},
    Tip{"frmMicros", "cmdISNset",
        QT_TRANSLATE_NOOP(
            "Tip",
            "Stores the settings of this window. If you close the window without SET, they do not change.")},
    Tip{"frmMicros", "CMD3700Set",
        QT_TRANSLATE_NOOP(
            "Tip",
            "Stores the settings of this window. If you close the window without SET, they do not change.")},
    Tip{"FrmSubMenu", "F1OP",
        QT_TRANSLATE_NOOP("Tip", "The port of the register to which the unit is connected.")},
    Tip{"FrmSubMenu", "Combo1(0)", QT_TRANSLATE_NOOP("Tip", "The model. You cannot change it.")},
    Tip{"FrmSubMenu", "Combo1(1)",
        QT_TRANSLATE_NOOP("Tip",
                          "Whether the unit listens to the printer line (TAPPING) or answers as the printer "
                          "(EMULATING).")},
    Tip{"FrmSubMenu", "Option1",
        QT_TRANSLATE_NOOP(
            "Tip", "How the unit receives the text of this model. The program stores your pick at once.")},
    Tip{"FrmSubMenu", "Combo2",
        QT_TRANSLATE_NOOP("Tip", "The terminal whose text the unit reads. ANY means every terminal.")},
};

}  // namespace

std::span<const Tip> RegisterWindowTips() {
  return kTips;
}

}  // namespace ovl::ui
