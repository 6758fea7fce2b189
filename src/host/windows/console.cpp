#include "host/system/console.h"

#include <windows.h>

#include <cstdio>

namespace ovl::host {
namespace {

bool Redirected(DWORD stream) {
  const auto target = ::GetStdHandle(stream);
  return target != nullptr && ::GetFileType(target) != FILE_TYPE_UNKNOWN;
}

}  // namespace

// Windows gives a program with windows neither a console nor streams to it.
ParentConsole::ParentConsole() {
  const bool output = Redirected(STD_OUTPUT_HANDLE), error = Redirected(STD_ERROR_HANDLE);
  if ((output && error) || ::AttachConsole(ATTACH_PARENT_PROCESS) == 0) return;
  if (!output) std::freopen("CONOUT$", "w", stdout);
  if (!error) std::freopen("CONOUT$", "w", stderr);
}

ParentConsole::~ParentConsole() {
  std::fflush(nullptr);
  ::FreeConsole();
}

}  // namespace ovl::host
