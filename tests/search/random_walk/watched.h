// A program under script whose image is looked at after every line.
#pragma once

#include <sstream>
#include <string>

#include "image/config_image.h"
#include "script/session.h"
#include "support/digest.h"

namespace ovl::testing {

// The form stands in front of a control that the main form lacks.
std::string FullName(const core::Application& app, const controls::NamedControl& named);

class Watched {
 public:
  // Started, in the current folder. With a digest, every statement adds what it did to it.
  explicit Watched(const firmware::FirmwareId& stored, Digest* digest = nullptr);

  // One statement. What is wrong after it; empty: nothing.
  std::string Do(const std::string& line);

  core::Application& App() { return session_.App(); }
  bool Ended() const { return session_.Ended(); }
  // Whether the image has the digits that its layout says.
  bool Whole() const { return whole_; }
  const image::ConfigImage& Image() { return App().image; }

 private:
  void AddToDigest();
  std::string CheckImage(const std::string& line);
  std::string CheckFields(const std::string& control, bool loads);
  std::string CheckLengths(bool loads, bool from_file);

  Digest* digest_;
  std::ostringstream printed_;  // by the script
  script::Session session_;
  image::ConfigImage before_;
  bool whole_ = true;
};

}  // namespace ovl::testing
