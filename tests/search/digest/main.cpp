// Runs each script and prints its digest: the state of the program after every line, and the output of the
// script.
//   ovl-digest FILE...
#include <fstream>
#include <iostream>
#include <sstream>

#include "script/runner.h"
#include "script/session.h"
#include "support/digest.h"

namespace ovl::testing {
namespace {

bool Run(const char* path) {
  std::ifstream file(path);
  std::ostringstream printed, errors;
  script::Session session(printed, printed);
  Digest digest;
  for (std::string line; std::getline(file, line);) {
    std::istringstream statement(line);
    if (script::RunScript(session, statement, path, errors) != script::ExitStatus::kDone) break;
    if (session.Started()) digest.AddState(session.App());
  }
  digest.Add(printed.str());
  std::cout << digest.Text() << ' ' << path << '\n';
  std::cerr << errors.str();
  return file.eof() && errors.str().empty();
}

}  // namespace
}  // namespace ovl::testing

int main(int count, char** paths) {
  bool well = count > 1;
  for (int at = 1; at < count; ++at) well = ovl::testing::Run(paths[at]) && well;
  return well ? 0 : 1;
}
