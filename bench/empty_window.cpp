// What a start costs without the program: an empty window of Qt.
#include <QApplication>

#include "paint_watch.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.resize(1040, 700);
  ovl::bench::PaintWatch watch;
  window.installEventFilter(&watch);
  window.show();
  QApplication::exec();
  ovl::bench::TellPainted();
  return EXIT_SUCCESS;
}
