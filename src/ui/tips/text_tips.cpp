#include <QCoreApplication>
#include <array>

#include "ui/tips/tip_texts.h"

namespace ovl::ui {
namespace {

constexpr std::array kTips{
    Tip{"frmMain", "ComboExcp(0)",
        QT_TRANSLATE_NOOP("Tip", "Which of the 24 exceptions is shown here; the overview picks it as well.")},
    Tip{"frmMain", "ComboExcp(1)",
        QT_TRANSLATE_NOOP("Tip",
                          "Whether the unit shows a line in the picture when this exception matches.")},
    Tip{"frmMain", "ComboExcp(2)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit passes a line on when this exception matches.")},
    Tip{"frmMain", "ComboExcp(3)",
        QT_TRANSLATE_NOOP(
            "Tip", "Whether the unit keeps a line in its history buffer when this exception matches.")},
    Tip{"frmMain", "ComboExcp(4)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "Whether this exception starts a scroll match; it then has no display, output or history of its "
            "own.")},
    Tip{"frmMain", "ComboExcp(5)",
        QT_TRANSLATE_NOOP("Tip",
                          "How the unit compares the amount on the line with the two values of the range.")},
    Tip{"frmMain", "TextException",
        QT_TRANSLATE_NOOP(
            "Tip", "The text that the unit looks for in what the register prints; ? matches any character.")},
    Tip{"frmMain", "cmdSetExcpstr",
        QT_TRANSLATE_NOOP("Tip", "Opens a window in which the text to look for is typed.")},
    Tip{"frmMain", "TextRANGE(0)",
        QT_TRANSLATE_NOOP("Tip", "The first value with which the unit compares the amount on the line.")},
    Tip{"frmMain", "TextRANGE(1)",
        QT_TRANSLATE_NOOP("Tip", "The second value with which the unit compares the amount on the line.")},
    Tip{"frmMain", "cmdSetRange",
        QT_TRANSLATE_NOOP("Tip", "Opens a window in which the two values are typed.")},
    Tip{"frmMain", "ComboScroll(0)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit matches texts that run over several lines.")},
    Tip{"frmMain", "ComboScroll(1)",
        QT_TRANSLATE_NOOP("Tip",
                          "How long the unit waits for the rest of a match that runs over several lines.")},

    Tip{"frmMain", "ComboALM(0)",
        QT_TRANSLATE_NOOP("Tip", "Which of the 16 alarms is shown here; the overview picks it as well.")},
    Tip{"frmMain", "ComboALM(1)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "What triggers the alarm: nothing, one exception, a group of exceptions, or the RTS line.")},
    Tip{"frmMain", "lbAlmTrig",
        QT_TRANSLATE_NOOP("Tip", "The number beside it is that of the exception that triggers the alarm.")},
    Tip{"frmMain", "ComboALM(2)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "The state of the contact without an alarm: NO open, NC closed. Alarm 9 keeps the state "
            "it has.")},
    Tip{"frmMain", "ComboALM(3)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "For how long the unit holds the alarm; PLUSE gives a pulse. The program does not know the "
            "unit of time: see the manual of the unit.")},
    Tip{"frmMain", "ComboALM(4)",
        QT_TRANSLATE_NOOP("Tip",
                          "How the unit marks the picture while an alarm is on; the same for all alarms.")},
    Tip{"frmMain", "ComboALM(5)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "For how long the unit marks the picture, from 000 to 240 in steps of 2; the same "
            "for all alarms. The program does not know the unit of time: see the manual of the unit.")},
    Tip{"frmMain", "ComboALM(6)",
        QT_TRANSLATE_NOOP("Tip",
                          "What this alarm does when the video signal is lost: OFF nothing, MANUAL until "
                          "somebody ends it, or "
                          "for the "
                          "time that is picked.")},
    Tip{"frmMain", "ComboALM(7)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "Which of two types this alarm has, DWELL or TIMED: see the manual of the unit. If you do "
            "not know the types, keep what you uploaded. The type is not a time. It has an effect only "
            "when something triggers this alarm.")},
    Tip{"frmMain", "TextTrigger",
        QT_TRANSLATE_NOOP("Tip", "The text that the unit shows or sends during this alarm.")},
    Tip{"frmMain", "cmdSetTrigger",
        QT_TRANSLATE_NOOP("Tip", "Opens a window in which this alarm's text is typed.")},
    Tip{"frmMain", "ComboTrigger(0)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit shows the text in the picture during this alarm.")},
    Tip{"frmMain", "ComboTrigger(1)",
        QT_TRANSLATE_NOOP("Tip", "Whether the unit sends the text on its line during this alarm.")},
    Tip{"frmMain", "ComboTrigger(2)",
        QT_TRANSLATE_NOOP("Tip",
                          "How long after the RTS signal the unit shows or sends the text of this alarm.")},

    Tip{"frmMain", "Title_Text",
        QT_TRANSLATE_NOOP("Tip",
                          "The fixed text that the unit writes in the picture, such as the shop's name.")},
    Tip{"frmMain", "cmdTitle",
        QT_TRANSLATE_NOOP("Tip", "Opens a window in which the title of the picture is typed.")},
    Tip{"frmMain", "DemoMode",
        QT_TRANSLATE_NOOP("Tip",
                          "After power up the unit plays a built-in register, so that the picture can be "
                          "tried without one.")},
    Tip{"frmMain", "CharacterList", QT_TRANSLATE_NOOP("Tip", "How many characters a line of the demo has.")},
    Tip{"frmMain", "DemoType", QT_TRANSLATE_NOOP("Tip", "The kind of shop whose receipts the demo plays.")},
    Tip{"frmMain", "DemoSpeed", QT_TRANSLATE_NOOP("Tip", "How much time the demo takes for a line.")},

    Tip{"frmSetEXCPSTR", "Text1",
        QT_TRANSLATE_NOOP("Tip", "The text that the unit keeps, 40 characters at most.")},
    Tip{"frmSetEXCPSTR", "cmdSET", QT_TRANSLATE_NOOP("Tip", "Stores the text and closes this window.")},
    Tip{"frmSetEXCPSTR", "cmdClr", QT_TRANSLATE_NOOP("Tip", "Empties the text; only SET stores it.")},
    Tip{"frmSetRange", "Range_Hi",
        QT_TRANSLATE_NOOP("Tip", "The first value with which the unit compares the amount on the line.")},
    Tip{"frmSetRange", "SubRange_Hi",
        QT_TRANSLATE_NOOP("Tip", "The two digits of the first value behind the separator.")},
    Tip{"frmSetRange", "Range_Low",
        QT_TRANSLATE_NOOP("Tip", "The second value with which the unit compares the amount on the line.")},
    Tip{"frmSetRange", "SubRange_Low",
        QT_TRANSLATE_NOOP("Tip", "The two digits of the second value behind the separator.")},
    Tip{"frmSetRange", "ComboDec",
        QT_TRANSLATE_NOOP("Tip",
                          "The separator that the register prints between whole and decimal digits; it is "
                          "for all exceptions "
                          "and "
                          "is stored at once.")},
    Tip{"frmSetRange", "cmdSetRange",
        QT_TRANSLATE_NOOP("Tip", "Stores the two values and closes this window.")},
    Tip{"frmSetRange", "cmdClr",
        QT_TRANSLATE_NOOP(
            "Tip", "Sets both values to zero, which only SET stores, and the separator to \".\" at once.")},
    Tip{"frmView", "Text", QT_TRANSLATE_NOOP("Tip", "The text of the file; it can be marked and copied.")},
};

}  // namespace

std::span<const Tip> TextTips() {
  return kTips;
}

}  // namespace ovl::ui
