// The list of changed settings, grouped by tab.
#pragma once

#include <vector>

#include "changes/readable.h"
#include "ui/acts/setting_list.h"

namespace ovl::ui {

class ChangesList : public SettingList {
 public:
  explicit ChangesList(QWidget* parent = nullptr);

  void Show(const std::vector<changes::SettingChange>& rows);
  void ShowBytes(bool shown);
  // The heads of the two columns of values.
  void SetSides(const QString& before, const QString& now);
};

}  // namespace ovl::ui
