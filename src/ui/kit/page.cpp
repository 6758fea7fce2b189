#include "ui/kit/layout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace ovl::ui {
namespace {

// The tab in which the widget is.
int TabOf(const QWidget& widget) {
  int tab = -1;
  for (auto* at = &widget; at != nullptr; at = at->parentWidget()) {
    auto* stack = qobject_cast<QStackedWidget*>(at->parentWidget());
    if (stack != nullptr) tab = stack->indexOf(const_cast<QWidget*>(at));
  }
  return tab;
}

QLabel* AlsoStoredLabel(Bindings& bindings) {
  auto* label = MutedLabel({});
  label->setObjectName(QStringLiteral("QuietLine"));
  label->setWordWrap(true);
  label->setVisible(false);
  bindings.OnRefresh([&bindings, label, shown = ChangeDetector<QString>()]() mutable {
    const auto words = bindings.AlsoStored(TabOf(*label));
    if (!shown.Update(words)) return false;
    label->setText(words);
    label->setVisible(!words.isEmpty());
    return false;
  });
  return label;
}

}  // namespace

QScrollArea* Scrolled(QWidget* content) {
  auto* area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(content);
  return area;
}

Page::Page(Bindings& bindings, const controls::Form& form, int left)
    : bindings_(bindings),
      form_(form),
      content_(new QWidget),
      area_(Scrolled(content_)),
      down_(new QVBoxLayout(content_)),
      across_(new QHBoxLayout) {
  down_->setContentsMargins(left, kMargin, kMargin, kMargin);
  down_->setSpacing(kSectionGap);
  across_->setSpacing(kColumnGap);
}

PageColumn& Page::Column(int share, int least) {
  auto* holder = new QWidget;
  holder->setMinimumWidth(least);
  across_->addWidget(holder, share);
  return columns_.emplace_back(bindings_, form_, *holder);
}

QScrollArea* Page::Finish(const QString& empty_text) {
  auto* line = MutedLabel(empty_text);
  across_->addWidget(line, 0, Qt::AlignTop | Qt::AlignLeft);
  down_->addLayout(across_, fills_ ? 1 : 0);
  down_->addWidget(AlsoStoredLabel(bindings_));
  if (!fills_) down_->addStretch(1);
  for (auto& column : columns_) {
    bindings_.OnRefresh([column, shown = ChangeDetector<bool>()]() mutable {
      const bool show = column.AnySectionShown();
      if (!shown.Update(show)) return false;
      column.Holder().setVisible(show);
      return true;
    });
  }
  bindings_.OnRefresh([line, columns = columns_, shown = ChangeDetector<bool>()]() mutable {
    const bool any = std::any_of(columns.begin(), columns.end(),
                                 [](const PageColumn& column) { return column.AnySectionShown(); });
    if (!shown.Update(!any)) return false;
    line->setVisible(!any);
    return true;
  });
  return area_;
}

}  // namespace ovl::ui
