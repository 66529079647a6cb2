#pragma once

#include <QString>

#include <functional>
#include <memory>

class QLocalSocket;
class QObject;

namespace Ostrel::App {

/// The server end of the local endpoint: accepts connections of the current user only.
class LocalListener
{
public:
    /// `accepted` receives each connection of the current user; the socket is a child of `parent`.
    LocalListener(QObject* parent, std::function<void(QLocalSocket*)> accepted);
    ~LocalListener();
    LocalListener(const LocalListener&) = delete;
    LocalListener& operator=(const LocalListener&) = delete;

    /// Listens at `name`. Only the primary instance calls this: a socket of this user left there
    /// is stale and replaced; anything else there is left alone and `why` says so.
    bool listen(const QString& name, QString* why);
    bool isListening() const;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
