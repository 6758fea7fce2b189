// A place to measure in: a program folder with default images, a settings store, and a unit on Comport 1.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace ovl::bench {

inline constexpr const char* kVersion = "V1400";
inline constexpr const char* kRelease = "R12";

class Site {
 public:
  Site();
  ~Site();
  Site(const Site&) = delete;
  Site& operator=(const Site&) = delete;

  QString Folder() const { return folder_.path(); }
  QString Store() const { return folder_.filePath(QStringLiteral("store")); }

  // Starts a unit that paces at this speed; one that runs already is stopped first. False if it does not come
  // up.
  bool StartUnit(int speed);
  void StopUnit();

 private:
  QTemporaryDir folder_;
  QProcess unit_;
};

}  // namespace ovl::bench
