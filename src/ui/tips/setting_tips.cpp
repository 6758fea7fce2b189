#include <QCoreApplication>
#include <array>

#include "ui/tips/tip_texts.h"

namespace ovl::ui {
namespace {

constexpr std::array kTips{
    Tip{"frmMain", "ComboCOMM(0)",
        QT_TRANSLATE_NOOP("Tip",
                          "How the unit is connected to the register: with its own RS-232 line, as a passive "
                          "tap that only listens, or on an RS-485 bus.")},
    Tip{"frmMain", "ComboCOMM(1)",
        QT_TRANSLATE_NOOP("Tip",
                          "The baud rate at which the unit receives from the register. With AUTO, the unit "
                          "finds the baud rate itself.")},
    Tip{"frmMain", "ComboCOMM(2)", QT_TRANSLATE_NOOP("Tip", "The baud rate at which the unit sends.")},
    Tip{"frmMain", "ComboCOMM(3)",
        QT_TRANSLATE_NOOP("Tip", "The parity of a character on the register line.")},
    Tip{"frmMain", "ComboCOMM(4)",
        QT_TRANSLATE_NOOP("Tip", "The data bits of a character on the register line.")},
    Tip{"frmMain", "ComboCOMM(5)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit uses the handshake signals of the register line.")},
    Tip{"frmMain", "ComboCOMM(6)",
        QT_TRANSLATE_NOOP("Tip",
                          "Whether the unit begins a new line at every carriage return. The stored value "
                          "depends on the handshaking, not on your pick.")},
    Tip{"frmMain", "ComboCOMM(7)",
        QT_TRANSLATE_NOOP("Tip",
                          "The form in which the unit sends its text. You can choose only for a MASTER.")},
    Tip{"frmMain", "ComboCOMM(8)",
        QT_TRANSLATE_NOOP("Tip", "Whether characters on the register line control the flow.")},
    Tip{"frmMain", "ComboCOMM(9)",
        QT_TRANSLATE_NOOP("Tip", "The role of the unit in the network. OFF: the unit is not in a network.")},
    Tip{"frmMain", "ComboCOMM(10)", QT_TRANSLATE_NOOP("Tip", "The network address of this unit.")},
    Tip{"frmMain", "ComboCOMM(11)",
        QT_TRANSLATE_NOOP("Tip",
                          "The protocol of the network. A pick also sets the baud rate of the network.")},
    Tip{"frmMain", "ComboCOMM(12)", QT_TRANSLATE_NOOP("Tip", "The baud rate of the network.")},
    Tip{"frmMain", "ComboNone(0)",
        QT_TRANSLATE_NOOP("Tip", "You can choose the TX PROTOCOL only for a MASTER.")},
    Tip{"frmMain", "ComboNone(1)", QT_TRANSLATE_NOOP("Tip", "This role in the network has no address.")},
    Tip{"frmMain", "ComboNone(2)", QT_TRANSLATE_NOOP("Tip", "Without a network you cannot pick a protocol.")},
    Tip{"frmMain", "ComboDIP(0)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "After this number of minutes without text from the register, the unit clears the text. Any pick "
            "except 10 also resets DISPLAY FORMAT, LINE COMPRESS and SCROLL DELAY.")},
    Tip{"frmMain", "ComboDIP(1)",
        QT_TRANSLATE_NOOP("Tip", "How many lines the unit shows. The clock and the title need a line each.")},
    Tip{"frmMain", "ComboDIP(2)",
        QT_TRANSLATE_NOOP("Tip", "Whether the text is at the top or at the bottom of the picture.")},
    Tip{"frmMain", "ComboDIP(3)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit compresses the lines: see the manual of the unit.")},
    Tip{"frmMain", "ComboDIP(4)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit justifies the lines: see the manual of the unit.")},
    Tip{"frmMain", "ComboDIP(5)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit delays the scrolling text: see the manual of the unit.")},
    Tip{"frmMain", "ComboDIP(6)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit shows the text of the register.")},
    Tip{"frmMain", "ComboDIP(7)",
        QT_TRANSLATE_NOOP("Tip",
                          "How the unit compresses blanks, with a number from 1 to 5: see the manual of the "
                          "unit. With OFF it does not.")},
    Tip{"frmMain", "ComboDIP(8)", QT_TRANSLATE_NOOP("Tip", "How many characters a line in the picture has.")},
    Tip{"frmMain", "ComboTD(0)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit shows its clock in one line of the picture.")},
    Tip{"frmMain", "ComboTD(1)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit shows the time with 12 or with 24 hours.")},
    Tip{"frmMain", "ComboTD(2)", QT_TRANSLATE_NOOP("Tip", "The order of day, month and year.")},
    Tip{"frmMain", "ComboTD(3)",
        QT_TRANSLATE_NOOP("Tip", "The country whose rule the unit uses to change to summer time and back.")},
    Tip{"frmMain", "ComboTD(4)", QT_TRANSLATE_NOOP("Tip", "Whether the clock of the unit is locked.")},
    Tip{"frmMain", "ComboTD(5)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit shows the title in one line of the picture.")},
    Tip{"frmMain", "ComboLang", QT_TRANSLATE_NOOP("Tip", "The language of the unit's own texts.")},
    Tip{"frmMain", "ComboExcepRe(0)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit reports exceptions on its serial line.")},
    Tip{"frmMain", "ComboExcepRe(1)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit puts the time at the beginning of a report.")},
    Tip{"frmMain", "ComboExcepRe(2)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit reports a line again if it is the same as the last one.")},
};

}  // namespace

std::span<const Tip> SettingTips() {
  return kTips;
}

}  // namespace ovl::ui
