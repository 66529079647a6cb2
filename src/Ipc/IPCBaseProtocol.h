#pragma once

#include "Ipc/ostrel_ipc_export.h"

#include <QObject>

namespace Ostrel::App {

/// Messages that other processes of the product send to the running application.
class OSTREL_IPC_EXPORT IPCBaseProtocol : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    ~IPCBaseProtocol() override;

Q_SIGNALS:
    /// Another process asks to open the nag described by `url`.
    void OnOpenNagReceived(const QString& url);
};

} // namespace Ostrel::App
