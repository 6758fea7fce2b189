#include "acts.h"

#include <unistd.h>

#include <QCoreApplication>
#include <cstdio>
#include <memory>

#include "acts/backup.h"
#include "host/files.h"
#include "support/harness.h"
#include "ui/app/unsaved_copy.h"
#include "unit/memory.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

constexpr const char* kOld = "what was there before\r\n";

Act Backup() {
  auto program = std::make_shared<Harness>(firmware::FirmwareId{"V1400", "R12"});
  program->app.platform.files = host::DiskFiles();
  program->Start();
  const auto run = [program](const std::string&, const std::string& path) {
    return Result{acts::SaveBackup(program->app, path).Ok(), {}};
  };
  return {"Save Backup", "kept.bin", true, kOld, run};
}

// Two changes, so that the second copy replaces the first one.
Act UnsavedChanges() {
  auto program = std::make_shared<Harness>(firmware::FirmwareId{"V1400", "R12"});
  program->app.platform.files = host::DiskFiles();
  program->Start();
  const auto change = [program](const char* digits) {
    program->app.image[image::FieldId::DECIMAL_POINT_BAK] = digits;
    return acts::ReopenableFileOf(program->app);
  };
  const auto first = change("01");
  const auto run = [program, change](const std::string& folder, const std::string&) {
    int count = 0;
    const QCoreApplication application(count, nullptr);
    ui::UnsavedCopy copy(program->app, QString::fromStdString(folder));
    bool written = true;
    copy.report = [&](const core::Result& result) { written = written && result.Ok(); };
    for (const auto* digits : {"01", "02"}) {
      change(digits);
      copy.WriteSoonIfChanged();
      copy.WritePending();
    }
    return Result{written, {}};
  };
  return {"unsaved copy", "unsaved V1400R12 1.bin", false, {}, run, {first}};
}

Act UnitMemory() {
  const auto run = [](const std::string&, const std::string& path) {
    return Result{unit::WriteFile(path, "the memory of the unit").empty(), {}};
  };
  return {"unit memory", "unit.bin", true, kOld, run};
}

// Installed in a folder, because it looks for the default images beside itself.
Act Setup() {
  auto installed = std::make_shared<TemporaryFolder>();
  const auto script = installed->Path() / "sbin" / "ovl-setup";
  fs::create_directories(script.parent_path());
  fs::create_directories(installed->Path() / "share/ovl-software/images/V1300/R14");
  fs::copy_file(OVL_SETUP, script);
  const auto run = [installed, script](const std::string& folder, const std::string&) {
    if (std::freopen("/dev/null", "w", stdout) == nullptr) return Result{};
    execl("/bin/sh", "sh", script.c_str(), "--store", folder.c_str(), "V1300", "R14", nullptr);
    return Result{};
  };
  return {"ovl-setup", "ORB/OVL Software.conf", false, "[General]\nVersion=V1400\nRelease=R12\n", run};
}

}  // namespace

std::vector<Act> ActsOfAllTools() {
  auto all = AllActs();
  for (auto act : {Backup(), UnsavedChanges(), UnitMemory(), Setup()}) all.push_back(std::move(act));
  return all;
}

}  // namespace ovl::testing
