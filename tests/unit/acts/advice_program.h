// A program that a script runs, in a folder with the default images of its firmware.
#pragma once

#include <filesystem>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>

#include "acts/advice.h"
#include "acts/backup.h"
#include "images/default_images.h"
#include "script/parser.h"
#include "script/runner.h"
#include "script/session.h"
#include "support/harness.h"

namespace ovl::testing {

inline const std::string kOpenPort = "click cmdConnect\nclick cmdSET\n";
inline const std::string kHold = "click CmdUpDow(4)\nunit hex 06\ntick General_timer\n";
inline const std::string kUpload = "click CmdUpDow(0)\ndrain\n";
inline const std::string kDownload = "click CmdUpDow(1)\ndrain\nunit hex 06\n";
inline const std::string kTransferEnd = "click frmOK_buttom.Command1\n";
inline const std::string kAt = "clock \"2026-03-05 14:07:09\"\n";

class AdviceProgram {
 public:
  // The default images of all registers, or only of the first one.
  enum class Images { kAll, kFirstRegister };

  explicit AdviceProgram(const firmware::FirmwareId& firmware, Images images = Images::kAll)
      : session_(output_, output_) {
    static const TemporaryFolder folder;
    static std::set<std::string> written;
    folder_ = folder.Path().string();
    image_ = folder.File(firmware.version + "/" + firmware.release + "/GENERIC.bin");
    if (images == Images::kFirstRegister) WriteFirst(firmware);
    if (images == Images::kAll && written.insert(firmware.Joined()).second)
      images::WriteDefaultImages(folder_, firmware);
    session_.SetFolder(folder_);
    Run("setting Version \"" + firmware.version + "\"\nsetting Release \"" + firmware.release +
        "\"\nstart\n");
  }

  // "FILE" is a file of the test, "IMAGE" the default image of the first register, "STREAM" its text.
  void Run(std::string script) {
    Replace(script, "FILE", folder_ + "/file.bin");
    Replace(script, "IMAGE", image_);
    if (script.find("STREAM") != std::string::npos) Replace(script, "\"STREAM\"", script::Quoted(Stream()));
    std::istringstream lines(script);
    if (RunScript(session_, lines, "test", output_) != script::ExitStatus::kDone)
      throw std::runtime_error(script + output_.str());
  }

  // The line of a condition; one without words if it does not apply.
  acts::Advice Line(std::string_view name) {
    for (const auto& line : session_.Advisor().Lines()) {
      if (line.name == name) return line;
    }
    return {};
  }

  std::string Stream() const { return ReadFile(image_).substr(0, ReadFile(image_).find('#') + 1); }
  core::Application& App() { return session_.App(); }
  acts::Advisor& Advisor() { return session_.Advisor(); }

 private:
  void WriteFirst(const firmware::FirmwareId& firmware) const {
    std::filesystem::create_directories(std::filesystem::path(image_).parent_path());
    WriteFile(image_, acts::ReopenableFile(images::FactoryImage(firmware), firmware).value());
  }

  static void Replace(std::string& text, const std::string& word, const std::string& by) {
    for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at + by.size()))
      text.replace(at, word.size(), by);
  }

  std::ostringstream output_;
  std::string folder_, image_;
  script::Session session_;
};

}  // namespace ovl::testing
