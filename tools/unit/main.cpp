#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "unit/options.h"
#include "unit/session.h"

namespace {

constexpr int kComplaints = 1;
constexpr int kCannotStart = 2;

int Fail(const std::string& error) {
  std::cerr << "ovl-unit: " << error << std::endl;
  return kCannotStart;
}

}  // namespace

int main(int count, char** values) {
  const std::vector<std::string_view> arguments(values + 1, values + count);
  const unit::ParsedOptions parsed = unit::ParseOptions(arguments);
  if (parsed.wish != command_line::Wish::kRun)
    return command_line::Answer(unit::Description(), parsed.wish, parsed.error);
  std::string error;
  const std::unique_ptr<unit::Session> session = unit::Session::Start(parsed.options, error);
  if (!session) return Fail(error);
  std::cout << "port " << session->Port() << std::endl;
  return session->Run() ? 0 : kComplaints;
}
