#include "ui/access/spoken_controls.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QRadioButton>

namespace ovl::ui {
namespace {

// The accessibility bus has no value for a list: screen readers take the name of the selected entry. Qt
// selects the current entry only when the list opens.
void SelectCurrentEntry(QComboBox& list) {
  if (list.view()->isVisible()) return;
  list.view()->setCurrentIndex(
      list.model()->index(list.currentIndex(), list.modelColumn(), list.rootModelIndex()));
}

class SpokenList : public QAccessibleWidget {
 public:
  explicit SpokenList(QComboBox& list) : QAccessibleWidget(&list, QAccessible::ComboBox), list_(list) {}

  QString text(QAccessible::Text text) const override {
    return text == QAccessible::Value ? list_.currentText() : QAccessibleWidget::text(text);
  }

  QAccessible::State state() const override {
    auto state = QAccessibleWidget::state();
    const bool is_open = list_.view()->isVisible();
    state.hasPopup = state.expandable = true;
    state.expanded = is_open;
    state.collapsed = !is_open;
    return state;
  }

  int childCount() const override { return 1; }
  QAccessibleInterface* child(int index) const override {
    if (index != 0) return nullptr;
    SelectCurrentEntry(list_);
    return QAccessible::queryAccessibleInterface(list_.view());
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child->object() == list_.view() ? 0 : -1;
  }

  QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
  void doAction(const QString& action) override {
    if (!actionNames().contains(action)) return;
    if (list_.view()->isVisible()) {
      list_.hidePopup();
    } else {
      list_.showPopup();
    }
  }

 private:
  QComboBox& list_;
};

class SpokenOption : public QAccessibleWidget {
 public:
  explicit SpokenOption(QRadioButton& button)
      : QAccessibleWidget(&button, QAccessible::RadioButton), button_(button) {}

  QAccessible::State state() const override {
    auto state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = button_.isChecked();
    return state;
  }

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (action == pressAction()) button_.click();
  }

 private:
  QRadioButton& button_;
};

// Qt asks for each class that the object has.
QAccessibleInterface* SpokenControlOf(const QString& name, QObject* object) {
  if (name == QLatin1String("QRadioButton")) {
    if (auto* button = qobject_cast<QRadioButton*>(object)) return new SpokenOption(*button);
  }
  if (name == QLatin1String("QComboBox")) {
    auto* list = qobject_cast<QComboBox*>(object);
    if (list != nullptr && !list->isEditable()) return new SpokenList(*list);
  }
  return nullptr;
}

}  // namespace

void UseSpokenControls() {
  QAccessible::installFactory(SpokenControlOf);
}

}  // namespace ovl::ui
