#include <QCoreApplication>
#include <array>

#include "ui/tips/tip_texts.h"

namespace ovl::ui {
namespace {

constexpr std::array kTips{
    Tip{"frmMain", "ComboExcp(0)",
        QT_TRANSLATE_NOOP(
            "Tip", "Which of the 24 exceptions this tab shows. You can also pick it in the overview.")},
    Tip{"frmMain", "ComboExcp(1)",
        QT_TRANSLATE_NOOP("Tip",
                          "Whether the unit shows a line in the picture when this exception matches.")},
    Tip{"frmMain", "ComboExcp(2)",
        QT_TRANSLATE_NOOP("Tip",
                          "Whether the unit sends a line on its serial line when this exception matches.")},
    Tip{"frmMain", "ComboExcp(3)",
        QT_TRANSLATE_NOOP("Tip",
                          "Whether the unit keeps a line in its history when this exception matches.")},
    Tip{"frmMain", "ComboExcp(4)",
        QT_TRANSLATE_NOOP("Tip",
                          "Whether a match over several lines begins with this exception. It then has no "
                          "display, output or history.")},
    Tip{"frmMain", "ComboExcp(5)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "Whether the unit compares the amount in the line with the two values of the range, and how.")},
    Tip{"frmMain", "TextException",
        QT_TRANSLATE_NOOP(
            "Tip",
            "The text that the unit looks for in each line of the register. \"?\" matches any character.")},
    Tip{"frmMain", "cmdSetExcpstr",
        QT_TRANSLATE_NOOP("Tip", "Opens the window in which you type the text of this exception.")},
    Tip{"frmMain", "TextRANGE(0)",
        QT_TRANSLATE_NOOP("Tip", "The first value with which the unit compares the amount in the line.")},
    Tip{"frmMain", "TextRANGE(1)",
        QT_TRANSLATE_NOOP("Tip", "The second value with which the unit compares the amount in the line.")},
    Tip{"frmMain", "cmdSetRange",
        QT_TRANSLATE_NOOP("Tip", "Opens the window in which you type the two values.")},
    Tip{"frmMain", "ComboScroll(0)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit looks for matches over several lines.")},
    Tip{"frmMain", "ComboScroll(1)",
        QT_TRANSLATE_NOOP("Tip", "How long the unit waits for the rest of a match over several lines.")},

    Tip{"frmMain", "ComboALM(0)",
        QT_TRANSLATE_NOOP("Tip",
                          "Which of the 16 alarms this tab shows. You can also pick it in the overview.")},
    Tip{"frmMain", "ComboALM(1)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "What triggers the alarm: nothing, one exception, a group of exceptions, or the RTS line.")},
    Tip{"frmMain", "lbAlmTrig",
        QT_TRANSLATE_NOOP(
            "Tip", "The number beside \"EX.\" is the number of the exception that triggers the alarm.")},
    Tip{"frmMain", "ComboALM(2)",
        QT_TRANSLATE_NOOP("Tip",
                          "The state of the contact without an alarm: NO is open, NC is closed. You cannot "
                          "change the state of alarm 9.")},
    Tip{"frmMain", "ComboALM(3)",
        QT_TRANSLATE_NOOP("Tip",
                          "How long the unit keeps the alarm on. PLUSE is a short pulse. The program does "
                          "not know the unit of time: see the manual of the unit.")},
    Tip{"frmMain", "ComboALM(4)",
        QT_TRANSLATE_NOOP("Tip",
                          "How the unit marks the text during an alarm. The setting is for all alarms.")},
    Tip{"frmMain", "ComboALM(5)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "How long the unit keeps the mark, from 000 to 240 in steps of 2. The setting is for all alarms. "
            "The program does not know the unit of time: see the manual of the unit.")},
    Tip{"frmMain", "ComboALM(6)",
        QT_TRANSLATE_NOOP("Tip",
                          "Whether a lost video signal triggers this alarm. OFF: no. MANUAL: until somebody "
                          "ends the alarm. A time: for this time.")},
    Tip{"frmMain", "ComboALM(7)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "Which of two types this alarm has, DWELL or TIMED: see the manual of the unit. If you do "
            "not know the types, keep what you uploaded. The type is not a time. It has an effect only "
            "when something triggers this alarm.")},
    Tip{"frmMain", "TextTrigger",
        QT_TRANSLATE_NOOP("Tip", "The text that the unit shows or sends during this alarm.")},
    Tip{"frmMain", "cmdSetTrigger",
        QT_TRANSLATE_NOOP("Tip", "Opens the window in which you type the text of this alarm.")},
    Tip{"frmMain", "ComboTrigger(0)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit shows the text in the picture during this alarm.")},
    Tip{"frmMain", "ComboTrigger(1)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit sends the text on its serial line during this alarm.")},
    Tip{"frmMain", "ComboTrigger(2)",
        QT_TRANSLATE_NOOP("Tip",
                          "How long after the RTS signal the unit shows or sends the text of this alarm.")},

    Tip{"frmMain", "Title_Text",
        QT_TRANSLATE_NOOP(
            "Tip", "The fixed text that the unit writes into the picture, such as the name of the shop.")},
    Tip{"frmMain", "cmdTitle", QT_TRANSLATE_NOOP("Tip", "Opens the window in which you type the title.")},
    Tip{"frmMain", "DemoMode",
        QT_TRANSLATE_NOOP("Tip",
                          "After power up the unit simulates a register. You can then see text in the "
                          "picture without a register.")},
    Tip{"frmMain", "CharacterList",
        QT_TRANSLATE_NOOP("Tip", "How many characters a line of the receipts has.")},
    Tip{"frmMain", "DemoType", QT_TRANSLATE_NOOP("Tip", "The kind of shop whose receipts the demo shows.")},
    Tip{"frmMain", "DemoSpeed", QT_TRANSLATE_NOOP("Tip", "The time between two lines of the demo.")},

    Tip{"frmSetEXCPSTR", "Text1", QT_TRANSLATE_NOOP("Tip", "The text, 40 characters at most.")},
    Tip{"frmSetEXCPSTR", "cmdSET", QT_TRANSLATE_NOOP("Tip", "Stores the text and closes this window.")},
    Tip{"frmSetEXCPSTR", "cmdClr",
        QT_TRANSLATE_NOOP("Tip", "Deletes the text in this window. Press SET to store the change.")},
    Tip{"frmSetRange", "Range_Hi",
        QT_TRANSLATE_NOOP("Tip", "The first value with which the unit compares the amount in the line.")},
    Tip{"frmSetRange", "SubRange_Hi",
        QT_TRANSLATE_NOOP("Tip", "The two digits of the first value after the separator.")},
    Tip{"frmSetRange", "Range_Low",
        QT_TRANSLATE_NOOP("Tip", "The second value with which the unit compares the amount in the line.")},
    Tip{"frmSetRange", "SubRange_Low",
        QT_TRANSLATE_NOOP("Tip", "The two digits of the second value after the separator.")},
    Tip{"frmSetRange", "ComboDec",
        QT_TRANSLATE_NOOP("Tip",
                          "The separator that the register prints before the last two digits of an amount. "
                          "It is for all exceptions. The program stores it at once.")},
    Tip{"frmSetRange", "cmdSetRange",
        QT_TRANSLATE_NOOP("Tip", "Stores the two values and closes this window.")},
    Tip{"frmSetRange", "cmdClr",
        QT_TRANSLATE_NOOP(
            "Tip",
            "Sets both values to zero. Press SET to store them. The separator becomes \".\" at once.")},
    Tip{"frmView", "Text", QT_TRANSLATE_NOOP("Tip", "The text of the file. You can mark and copy it.")},
};

}  // namespace

std::span<const Tip> TextTips() {
  return kTips;
}

}  // namespace ovl::ui
