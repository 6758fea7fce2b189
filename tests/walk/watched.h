// A program under script whose image is looked at after every line.
#pragma once

#include <sstream>
#include <string>

#include "core/config_image.h"
#include "session.h"

namespace ovl::testing {

// The form stands in front of a control that the main form lacks.
std::string FullName(const Application& app, const NamedControl& named);

class Watched {
 public:
  // Started, in the current folder.
  explicit Watched(const FirmwareId& stored);

  // One statement. What is wrong after it; empty: nothing.
  std::string Do(const std::string& line);

  Application& App() { return session_.App(); }
  bool Ended() const { return session_.Ended(); }
  // Whether the image has the digits that its layout says.
  bool Whole() const { return whole_; }
  const ConfigImage& Image() { return App().image; }

 private:
  std::string CheckImage(const std::string& line);
  std::string CheckFields(const std::string& control, bool loads);
  std::string CheckLengths(bool loads, bool from_file);

  std::ostringstream printed_;  // by the script; nobody reads it
  script::Session session_;
  ConfigImage before_;
  bool whole_ = true;
};

}  // namespace ovl::testing
