// Closes a file descriptor at the end of its life.
#pragma once

#include <unistd.h>

namespace ovl::host {

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  // Negative if the descriptor could not be opened.
  int Number() const { return number_; }

 private:
  int number_;
};

}  // namespace ovl::host
