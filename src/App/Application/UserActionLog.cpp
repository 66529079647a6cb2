#include "App/Application/UserActionLog_p.h"

#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <QAbstractButton>
#include <QAction>
#include <QMetaEnum>
#include <QMouseEvent>

namespace Ostrel::App {
namespace {

// The key of `value` in the enumerator of type E ("MouseButtons" of Qt, "Type" of QEvent); empty
// when the value has no key.
template <class E> QString keyOf(int value)
{
    return QString::fromLatin1(QMetaEnum::fromType<E>().valueToKey(value));
}

} // namespace

void LogUserAction(QObject* receiver, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::Shortcut)
        return;
    // glog would format the line only to drop it.
    if (FLAGS_minloglevel > google::GLOG_INFO)
        return;

    auto* action = qobject_cast<QAction*>(receiver);
    if (!action && !qobject_cast<QAbstractButton*>(receiver))
        return;

    QString suffix;
    if (type == QEvent::MouseButtonPress) {
        const auto* mouseEvent = static_cast<QMouseEvent*>(event);
        suffix = QStringLiteral(", button: %1").arg(keyOf<Qt::MouseButtons>(mouseEvent->button()));
    } else {
        if (!action)
            return;
        suffix =
            QStringLiteral(", shortcut: %1").arg(action->shortcut().toString(QKeySequence::PortableText));
    }

    const QObject* parent = receiver->parent();
    const QString line =
        QStringLiteral(
            "User action: type=%1, objectName=%2, className=%3, parentObjectName=%4, parentClassName=%5")
            .arg(keyOf<QEvent::Type>(type), receiver->objectName(),
                 QString::fromLatin1(receiver->metaObject()->className()),
                 parent ? parent->objectName() : QString(),
                 parent ? QString::fromLatin1(parent->metaObject()->className()) : QString());
    LOG(INFO) << Util::QStringToUtf8(line + suffix);
}

} // namespace Ostrel::App
