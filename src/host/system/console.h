// The console of a program with windows.
#pragma once

namespace ovl::host {

// As long as this exists, the standard output and the standard error reach the console in which the program
// was started. Where they were redirected they stay so. To be left before a window opens: the console could
// end the program.
class ParentConsole {
 public:
  ParentConsole();
  ~ParentConsole();
  ParentConsole(const ParentConsole&) = delete;
  ParentConsole& operator=(const ParentConsole&) = delete;
};

}  // namespace ovl::host
