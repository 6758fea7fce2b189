#include "script/advice_statements.h"

#include <algorithm>
#include <array>

#include "acts/advice.h"
#include "script/stop.h"

namespace ovl::script {
namespace {

std::string Printed(const acts::Advice& line) {
  auto text = std::string(line.name) + " " + Quoted(line.words);
  return line.caption.empty() ? text : text + " [" + line.caption.English() + "]";
}

std::string AllPrinted(const std::vector<acts::Advice>& lines) {
  std::string text;
  for (const auto& line : lines) text += (text.empty() ? "" : "; ") + Printed(line);
  return text.empty() ? "no advice" : text;
}

bool HaveWords(const std::vector<acts::Advice>& lines, const std::string& words) {
  return std::any_of(lines.begin(), lines.end(), [&](const acts::Advice& line) {
    return line.words.English().find(words) != std::string::npos;
  });
}

[[noreturn]] void Fail(const std::string& expected, const std::vector<acts::Advice>& found) {
  throw Stop(ExitStatus::kExpectationFailed, "expected " + expected + ", found " + AllPrinted(found));
}

void PrintAdvice(Session& session, Arguments& arguments) {
  arguments.End();
  for (const auto& line : session.Advisor().Lines()) session.Output() << Printed(line) << '\n';
}

constexpr std::array kStatements = {
    Statement{"advice", "advice",
              "prints the advice that applies: CONDITION \"TEXT\" [ACTION], if there is one", PrintAdvice},
};

}  // namespace

std::span<const Statement> AdviceStatements() {
  return kStatements;
}

void ExpectAdvice(Session& session, Arguments& arguments) {
  const auto words = arguments.Text("TEXT");
  arguments.End();
  const auto lines = session.Advisor().Lines();
  if (!HaveWords(lines, words)) Fail("advice " + Quoted(words), lines);
}

void ExpectNoAdvice(Session& session, Arguments& arguments) {
  const bool any = arguments.AtEnd();
  const auto words = any ? std::string() : arguments.Text("TEXT");
  arguments.End();
  const auto lines = session.Advisor().Lines();
  if (HaveWords(lines, words)) Fail("no advice" + (any ? "" : " " + Quoted(words)), lines);
}

}  // namespace ovl::script
