#include <QCoreApplication>
#include <array>

#include "ui/tips/tip_texts.h"

namespace ovl::ui {
namespace {

constexpr std::array kTips{
    Tip{"frmMain", "ComboCOMM(0)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "How the unit is wired to the register: on an RS-232 line of its own, as a passive tap, or on a "
            "bus.")},
    Tip{"frmMain", "ComboCOMM(1)",
        QT_TRANSLATE_NOOP("Tip",
                          "The speed at which the unit listens to the register; AUTO finds it by itself.")},
    Tip{"frmMain", "ComboCOMM(2)", QT_TRANSLATE_NOOP("Tip", "The speed at which the unit sends.")},
    Tip{"frmMain", "ComboCOMM(3)",
        QT_TRANSLATE_NOOP("Tip", "The parity of a character on the register line.")},
    Tip{"frmMain", "ComboCOMM(4)",
        QT_TRANSLATE_NOOP("Tip", "The data bits of a character on the register line.")},
    Tip{"frmMain", "ComboCOMM(5)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit uses the handshake signals of the register line.")},
    Tip{"frmMain", "ComboCOMM(6)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "Whether the unit begins a new line of text at every carriage return; what is stored follows the "
            "handshaking.")},
    Tip{"frmMain", "ComboCOMM(7)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "The form in which the unit sends its text on to the recorder; a choice for a MASTER only.")},
    Tip{"frmMain", "ComboCOMM(8)",
        QT_TRANSLATE_NOOP("Tip", "Whether characters on the register line control the flow.")},
    Tip{"frmMain", "ComboCOMM(9)",
        QT_TRANSLATE_NOOP("Tip", "The role of the unit in the network: none, master, slave, or generic.")},
    Tip{"frmMain", "ComboCOMM(10)", QT_TRANSLATE_NOOP("Tip", "The network address of this unit.")},
    Tip{"frmMain", "ComboCOMM(11)",
        QT_TRANSLATE_NOOP("Tip", "The protocol of the network; it also sets the baud rate of the network.")},
    Tip{"frmMain", "ComboCOMM(12)", QT_TRANSLATE_NOOP("Tip", "The baud rate of the network.")},
    Tip{"frmMain", "ComboNone(0)",
        QT_TRANSLATE_NOOP("Tip", "Only a master has a choice of transmit protocol.")},
    Tip{"frmMain", "ComboNone(1)", QT_TRANSLATE_NOOP("Tip", "This role in the network has no address.")},
    Tip{"frmMain", "ComboNone(2)",
        QT_TRANSLATE_NOOP("Tip", "Without a network there is no protocol to pick.")},
    Tip{"frmMain", "ComboDIP(0)",
        QT_TRANSLATE_NOOP("Tip",
                          "Minutes without text after which the unit clears the picture; every pick but 10 "
                          "also sets DISPLAY "
                          "FORMAT, "
                          "LINE COMPRESS and SCROLL DELAY back.")},
    Tip{"frmMain", "ComboDIP(1)",
        QT_TRANSLATE_NOOP("Tip", "How many lines of text the unit shows; title and clock need a line each.")},
    Tip{"frmMain", "ComboDIP(2)",
        QT_TRANSLATE_NOOP("Tip", "Whether the text is at the top or at the bottom of the picture.")},
    Tip{"frmMain", "ComboDIP(3)", QT_TRANSLATE_NOOP("Tip", "Whether the unit leaves out empty lines.")},
    Tip{"frmMain", "ComboDIP(4)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit moves each line to the edge of the picture.")},
    Tip{"frmMain", "ComboDIP(5)",
        QT_TRANSLATE_NOOP("Tip",
                          "Whether the unit holds lines back so that they can be read as they scroll.")},
    Tip{"frmMain", "ComboDIP(6)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit shows the register's text at all.")},
    Tip{"frmMain", "ComboDIP(7)",
        QT_TRANSLATE_NOOP("Tip", "How many blanks in a row the unit keeps; OFF keeps all.")},
    Tip{"frmMain", "ComboDIP(8)",
        QT_TRANSLATE_NOOP("Tip", "How many characters a line of the picture holds.")},
    Tip{"frmMain", "ComboTD(0)",
        QT_TRANSLATE_NOOP("Tip",
                          "Whether the unit shows its clock in the picture; it takes a line of the text.")},
    Tip{"frmMain", "ComboTD(1)", QT_TRANSLATE_NOOP("Tip", "How the unit shows the hour.")},
    Tip{"frmMain", "ComboTD(2)", QT_TRANSLATE_NOOP("Tip", "The order of day, month and year.")},
    Tip{"frmMain", "ComboTD(3)",
        QT_TRANSLATE_NOOP("Tip", "The rule by which the unit changes to summer time and back.")},
    Tip{"frmMain", "ComboTD(4)", QT_TRANSLATE_NOOP("Tip", "Whether the unit's clock is locked.")},
    Tip{"frmMain", "ComboTD(5)",
        QT_TRANSLATE_NOOP("Tip",
                          "Whether the unit shows the title in the picture; it takes a line of the text.")},
    Tip{"frmMain", "ComboLang", QT_TRANSLATE_NOOP("Tip", "The language of the unit's own texts.")},
    Tip{"frmMain", "ComboExcepRe(0)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit reports exceptions on its line.")},
    Tip{"frmMain", "ComboExcepRe(1)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit puts the time in front of a report.")},
    Tip{"frmMain", "ComboExcepRe(2)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit reports a line again that is the same as the last.")},
};

}  // namespace

std::span<const Tip> SettingTips() {
  return kTips;
}

}  // namespace ovl::ui
