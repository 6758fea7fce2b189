// A line of advice: what brings it, what it says and offers, and what takes it away.
#pragma once

#include <gtest/gtest.h>

#include "support/firmware_facts.h"
#include "unit/acts/advice_program.h"

namespace ovl::testing {

// An upload of which one whole record has arrived.
inline const std::string kHalfUpload =
    kOpenPort + kHold + kUpload + "unit \"$2000" + std::string(64, '0') + "\"\n";
// The next one is put behind it, and its end is confirmed.
inline const std::string kMixture =
    kHalfUpload + "click cmdDisConnect\n" + kOpenPort + kHold + kUpload + "unit \"STREAM\"\n" + kTransferEnd;
inline const std::string kLose = "port unplug\nwait 100\n";
inline const std::string kConnectAgain = "port ok\nclick cmdDisConnect\n" + kOpenPort;

struct AdviceRow {
  const char* name;
  std::string bring;
  const char* words;
  const char* action;  // its caption
  std::string gone;
  firmware::FirmwareId firmware = kLatest;
};

inline void Expect(const AdviceRow& row) {
  SCOPED_TRACE(std::string(row.name) + " " + row.firmware.Joined() + "\n" + row.bring);
  AdviceProgram program(row.firmware);
  EXPECT_EQ(program.Line(row.name).words, "");
  program.Run(kAt + row.bring);
  const auto line = program.Line(row.name);
  EXPECT_NE(line.words.English().find(row.words), std::string::npos) << line.words;
  EXPECT_EQ(line.caption, row.action);
  EXPECT_EQ(line.action == acts::AdviceAction::kNone, line.caption.empty());
  EXPECT_TRUE(line.control.empty() || program.App().registry.Find(line.control) != nullptr) << line.control;
  program.Run(row.gone);
  EXPECT_EQ(program.Line(row.name).words, "");
}

}  // namespace ovl::testing
