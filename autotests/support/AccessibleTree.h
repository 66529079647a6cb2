#pragma once

// What a screen reader finds below a window, through Qt's accessibility interfaces (the same
// tree the AT-SPI bridge hands to the desktop).

#include <QAccessible>
#include <QList>
#include <QStringList>

namespace Ostrel::Test {

/// Every node a screen reader reaches from `node`, depth first, so in reading order.
inline void accessibleNodes(QAccessibleInterface* node, QList<QAccessibleInterface*>& nodes)
{
    nodes << node;
    for (int i = 0; i < node->childCount(); ++i) {
        if (QAccessibleInterface* child = node->child(i))
            accessibleNodes(child, nodes);
    }
}

/// The nodes below `object` that a user presses, types into, opens or moves to, and that tell a
/// screen reader no name, or take the focus without telling what they are: one line each.
inline QStringList silentControls(QObject* object)
{
    QList<QAccessibleInterface*> nodes;
    accessibleNodes(QAccessible::queryAccessibleInterface(object), nodes);
    static const QList<QAccessible::Role> named{
        QAccessible::Window,       QAccessible::Dialog,     QAccessible::AlertMessage,  QAccessible::MenuItem,
        QAccessible::PushButton,   QAccessible::CheckBox,   QAccessible::RadioButton,   QAccessible::ComboBox,
        QAccessible::SpinBox,      QAccessible::Slider,     QAccessible::PageTab,       QAccessible::Link,
        QAccessible::EditableText, QAccessible::ButtonMenu, QAccessible::ButtonDropDown};
    QStringList silent;
    for (QAccessibleInterface* node : nodes) {
        const QAccessible::Role role = node->role();
        const bool nameless = named.contains(role) && node->text(QAccessible::Name).trimmed().isEmpty();
        const bool roleless = node->state().focusable && !node->state().invisible &&
                              (role == QAccessible::NoRole || role == QAccessible::Client);
        if (nameless || roleless) {
            silent << QStringLiteral("role 0x%1 \"%2\" (%3)")
                          .arg(role, 0, 16)
                          .arg(node->text(QAccessible::Name),
                               node->object()
                                   ? QString::fromLatin1(node->object()->metaObject()->className()) +
                                         QLatin1Char(' ') + node->object()->objectName()
                                   : QString());
        }
    }
    return silent;
}

} // namespace Ostrel::Test
