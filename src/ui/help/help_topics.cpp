#include "ui/help/help_topics.h"

#include <algorithm>
#include <array>

#include "ui/help/help_pages.h"

namespace ovl::ui {
namespace {

struct Topic {
  const char* window;
  const char* page;
};

constexpr std::array kTabs = {"register_select.md", "text_setup.md",       "alarm_outputs.md",
                              "communication.md",   "exception_report.md", "time_language.md",
                              "remote.md"};

constexpr std::array kWindows = {
    Topic{"frmMain", "main_form.md"},
    Topic{"frmSettSR", "port_settings.md"},
    Topic{"frmScanBProgress", "scan_progress.md"},
    Topic{"frmOK_buttom", "transfer_end.md"},
    Topic{"frmSetEXCPSTR", "text_entry.md"},
    Topic{"frmSetRange", "range.md"},
    Topic{"frmMicros", "micros.md"},
    Topic{"FrmSubMenu", "sub_menu.md"},
    Topic{"frmView", "viewer.md"},
    Topic{"frmAbout", "about.md"},
    Topic{"Changes", "changes.md"},
    Topic{"Checks", "checks.md"},
    Topic{"CopyException", "exception_report.md"},
    Topic{"CopyAlarm", "alarm_outputs.md"},
    Topic{"Help", "help.md"},
};

}  // namespace

QString HelpPageOfTab(int tab) {
  const bool known = tab >= 0 && tab < static_cast<int>(kTabs.size());
  return known ? QString::fromLatin1(kTabs[static_cast<std::size_t>(tab)]) : QString();
}

QString HelpPageOfWindow(const QString& name) {
  const auto found = std::find_if(kWindows.begin(), kWindows.end(),
                                  [&](const Topic& topic) { return name == QLatin1String(topic.window); });
  return found == kWindows.end() ? QString() : QString::fromLatin1(found->page);
}

QString HelpPageOfBox(const QString& topic) {
  return QStringLiteral("messages.md#") + AnchorOf(topic);
}

}  // namespace ovl::ui
