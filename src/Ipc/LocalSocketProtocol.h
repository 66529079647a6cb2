#pragma once

#include "Ipc/IPCBaseProtocol.h"

#include <memory>

namespace Ostrel::App {

/// The messages of other processes over a local socket (a Unix socket in the user's runtime
/// folder, a named pipe on Windows) named for the product and the user, and open to that user only.
///
/// A request is answered with one acknowledgement byte once read whole; the signal follows from
/// the event loop after the connection has been dealt with, so that a modal nag opened by a
/// receiver cannot run while the server is still inside the socket's handler.
class OSTREL_IPC_EXPORT LocalSocketProtocol : public IPCBaseProtocol
{
    Q_OBJECT
public:
    /// `product` names the server, e.g. the organisation and application names.
    explicit LocalSocketProtocol(const QString& product, QObject* parent = nullptr);
    ~LocalSocketProtocol() override;

    /// Starts listening; false (with a log line) when another instance already listens or the
    /// socket can't be made.
    bool Listen();
    bool IsListening() const;
    QString ServerName() const;

    /// The full name of the server for `product` and the current user.
    static QString ServerNameFor(const QString& product);
    /// From another process: asks the running instance to open the nag at `url`. True when the
    /// instance confirmed having received it within `timeoutMs`.
    static bool SendOpenNag(const QString& product, const QString& url, int timeoutMs = 3000);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
