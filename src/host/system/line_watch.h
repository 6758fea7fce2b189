// Notices that the device of an open line is gone: an adapter that was unplugged, a pseudo-terminal whose
// other end was closed.
#pragma once

#include <functional>
#include <memory>

#include "host/system/line.h"

namespace ovl::host {

class LineWatch {
 public:
  // `gone` is called in the event loop, and may call Stop.
  explicit LineWatch(std::function<void()> gone);
  ~LineWatch();
  LineWatch(const LineWatch&) = delete;
  LineWatch& operator=(const LineWatch&) = delete;

  // Returns an error number, or 0.
  int Start(LineHandle line);

  // To be called before the line is closed.
  void Stop();

 private:
  struct Source;
  std::unique_ptr<Source> source_;
};

}  // namespace ovl::host
