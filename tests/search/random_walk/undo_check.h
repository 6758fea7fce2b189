// Takes back the acts of a run, then repeats them, and compares image and settings with those before.
#pragma once

#include <string>
#include <vector>

#include "script/session.h"

namespace ovl::testing {

class UndoCheck {
 public:
  explicit UndoCheck(script::Session& session) : session_(session) {}

  // To be called after every statement. At the end of a run, which has up to 200 statements, all its acts are
  // undone and redone. Returns what is then wrong, or an empty text.
  std::string AfterStatement();

 private:
  void BeginRun();
  std::string UndoAndRedo();

  script::Session& session_;
  const acts::ActHistory* history_ = nullptr;  // of the run
  std::vector<std::string> settings_;          // at the start of the run
  image::ConfigImage image_;
  std::size_t recorded_ = 0;
  int statements_ = 0;
  int length_ = 1;
};

}  // namespace ovl::testing
