#include "pictures/spoken_text.h"

#include <QAccessible>
#include <QMenu>
#include <QMetaEnum>
#include <QWidget>

namespace ovl::pictures {
namespace {

// Their parts are entries, or the same control again.
bool IsWhole(QAccessible::Role role) {
  switch (role) {
    case QAccessible::ComboBox:
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::SpinBox:
    case QAccessible::PopupMenu:
      return true;
    default:
      return false;
  }
}

// The accessibility bus of Linux has no value for a list, so a screen reader says its selected entry.
QString ValueOf(const QAccessibleInterface& face) {
  if (face.role() != QAccessible::ComboBox) return face.text(QAccessible::Value);
  const auto* entries = face.child(0);
  for (int entry = 0; entries != nullptr && entry < entries->childCount(); ++entry) {
    const auto* child = entries->child(entry);
    if (child != nullptr && child->state().selected) return child->text(QAccessible::Name);
  }
  return {};
}

QString LineOf(QAccessibleInterface& face) {
  const auto role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(face.role());
  auto line = QLatin1String(role) + QStringLiteral(" \"%1\"").arg(face.text(QAccessible::Name));
  const auto state = face.state();
  const auto value = ValueOf(face);
  if (!value.isEmpty()) line += QStringLiteral(", \"%1\"").arg(value);
  if (state.checkable) line += state.checked ? QStringLiteral(", checked") : QStringLiteral(", not checked");
  if (state.disabled) line += QStringLiteral(", disabled");
  const auto description = face.text(QAccessible::Description);
  return description.isEmpty() ? line : line + QStringLiteral(": ") + description;
}

void Append(QAccessibleInterface* face, QString& text) {
  if (face == nullptr || face->state().invisible) return;
  const bool is_said = face->state().focusable || !face->text(QAccessible::Name).isEmpty();
  if (is_said) text += LineOf(*face) + QLatin1Char('\n');
  if (IsWhole(face->role())) return;
  for (int child = 0; child < face->childCount(); ++child) Append(face->child(child), text);
}

}  // namespace

QString SpokenText(QWidget& window) {
  QString text;
  auto* face = QAccessible::queryAccessibleInterface(&window);
  Append(face, text);
  // A menu on its own is the list of its entries. While it is closed, each of them counts as invisible.
  const auto* menu = qobject_cast<QMenu*>(&window);
  for (int entry = 0; menu != nullptr && entry < face->childCount(); ++entry) {
    if (menu->actions().at(entry)->isVisible()) text += LineOf(*face->child(entry)) + QLatin1Char('\n');
  }
  return text;
}

}  // namespace ovl::pictures
