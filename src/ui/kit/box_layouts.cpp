#include "ui/kit/box_layouts.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace ovl::ui {
namespace {

template <class Layout>
Layout* LayOut(QWidget& holder, int spacing) {
  auto* layout = new Layout(&holder);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(spacing);
  return layout;
}

}  // namespace

QHBoxLayout* LayOutAcross(QWidget& holder, int spacing) {
  return LayOut<QHBoxLayout>(holder, spacing);
}

QVBoxLayout* LayOutDown(QWidget& holder, int spacing) {
  return LayOut<QVBoxLayout>(holder, spacing);
}

}  // namespace ovl::ui
