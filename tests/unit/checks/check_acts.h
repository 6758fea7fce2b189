// Acts on exceptions and alarms, and the findings of one rule.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "checks/checks.h"
#include "unit/acts/advice_program.h"
#include "unit/panels/panel_program.h"

namespace ovl::testing {

using checks::Finding;

inline const firmware::FirmwareId kOld{"V1300", "R14"};
inline const std::string kZeros(20, '0');

inline std::string Text(const std::string& button, const std::string& words) {
  return "click " + button + "\ntype frmSetEXCPSTR.Text1 \"" + words + "\"\nclick frmSetEXCPSTR.cmdSET\n";
}

inline std::string Exception(int number, const std::string& text) {
  return "pick ComboExcp(0) " + std::to_string(number - 1) + "\n" + Text("cmdSetExcpstr", text);
}

inline std::string Alarm(int number) {
  return "pick ComboALM(0) " + std::to_string(number - 1) + "\n";
}

inline std::vector<Finding> FindingsIn(AdviceProgram& program, std::string_view id) {
  auto findings = checks::FindingsOf(program.App(), program.App().image);
  findings.erase(std::remove_if(findings.begin(), findings.end(),
                                [id](const Finding& finding) { return finding.id != id; }),
                 findings.end());
  return findings;
}

}  // namespace ovl::testing
