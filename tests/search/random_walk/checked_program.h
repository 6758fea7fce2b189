// A program that a script drives, with a check of its image after every statement.
#pragma once

#include <sstream>
#include <string>

#include "image/config_image.h"
#include "script/session.h"
#include "search/random_walk/undo_check.h"
#include "support/digest.h"

namespace ovl::testing {

// The name of the control, with the name of its form in front unless that is the main form.
std::string FullName(const core::Application& app, const controls::NamedControl& named);

class CheckedProgram {
 public:
  // Starts the program in the current folder. Every statement adds its effects to the digest, if there is
  // one.
  explicit CheckedProgram(const firmware::FirmwareId& stored, Digest* digest = nullptr);

  // Runs one statement. Returns what is wrong after it, or an empty text.
  std::string Do(const std::string& line);

  core::Application& App() { return session_.App(); }
  bool Ended() const { return session_.Ended(); }
  // Whether the image has as many digits as its layout.
  bool Whole() const { return whole_; }
  const image::ConfigImage& Image() { return App().image; }

 private:
  void AddToDigest();
  std::string CheckImage(const std::string& line);
  std::string CheckFields(const std::string& control, bool loads);
  std::string CheckLengths(bool loads, bool from_file);

  Digest* digest_;
  std::ostringstream printed_;  // what the script printed
  script::Session session_;
  UndoCheck undo_;
  image::ConfigImage before_;
  bool whole_ = true;
};

}  // namespace ovl::testing
