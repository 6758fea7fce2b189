// Measures what the program promises about speed. Figures of different runs or machines do not compare.
#include <QApplication>
#include <cstdio>
#include <cstring>

#include "bench.h"
#include "site.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (argc == 4 && std::strcmp(argv[1], "--paint-once") == 0) return ovl::bench::PaintOnce(argc, argv);
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  QApplication application(argc, argv);
  ovl::bench::Site site;
  ovl::bench::MeasureCodecs();
  ovl::bench::MeasureRegisterPick(site);
  ovl::bench::MeasureRefresh(site);
  ovl::bench::MeasureHistory(site);
  ovl::bench::MeasureStart(site);
  ovl::bench::MeasureTransfers(site);
  return 0;
}
