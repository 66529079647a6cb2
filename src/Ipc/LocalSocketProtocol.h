#pragma once

#include "Ipc/IPCBaseProtocol.h"

#include <memory>

namespace Ostrel::App {

/// The requests of other processes of the same user, over a local endpoint named for the product
/// and the user: a Unix socket in the user's runtime folder, or a named pipe of the session.
///
/// One instance per product, session and user is the primary: a lock decides it once, before it
/// listens, so that two instances started together never both listen and only the primary ever
/// removes a stale socket. Without a folder of the user's own there is no endpoint at all (the
/// reason is logged): requests are never taken from a shared folder.
///
/// Each connection carries one request, answered with one acknowledgement byte once read whole;
/// the signal follows from the event loop, so that a modal nag opened by a receiver cannot run
/// while the server is still inside the socket's handler. Connections are capped in number and
/// in time, so that a flood or a client that stalls can't hold the server.
class OSTREL_IPC_EXPORT LocalSocketProtocol : public IPCBaseProtocol
{
    Q_OBJECT
public:
    static constexpr int DefaultMaxConnections = 8;
    static constexpr int DefaultConnectionDeadlineMs = 5000;

    /// `product` names the endpoint, e.g. the organisation and application names.
    explicit LocalSocketProtocol(const QString& product, QObject* parent = nullptr);
    ~LocalSocketProtocol() override;

    /// Decides, once, whether this process is the primary instance; the primary listens. True
    /// while listening; false (with a log line) for a second instance, or when there is no
    /// private endpoint or it can't be made.
    bool Listen();
    bool IsListening() const;
    /// True once Listen() found another instance holding the lock.
    bool IsSecondary() const;
    /// The endpoint's address; empty without a private folder.
    QString ServerName() const;
    /// Lowers the limits of connections (for tests); applies to connections accepted afterwards.
    void SetConnectionLimits(int maxConnections, int deadlineMs);

    /// The endpoint's address for `product` and the current user; empty without a private folder.
    static QString ServerNameFor(const QString& product);
    /// From another process: asks the primary instance to open the nag at `url`, waiting up to
    /// `timeoutMs` for it to listen and confirm. True when it confirmed having received it.
    static bool SendOpenNag(const QString& product, const QString& url, int timeoutMs = 3000);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
