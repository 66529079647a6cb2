#pragma once

#include "Nag/NagAccessRules.h"

#include <QQmlAbstractUrlInterceptor>
#include <QQmlNetworkAccessManagerFactory>

#include <memory>

class QQmlEngine;

namespace Ostrel::App::NagScreen {

/// The access rules of one nag engine. As its URL interceptor it sees every QML, script, qmldir
/// and URL property the engine resolves (Qt.openUrlExternally too); as its network access manager
/// factory it makes the managers that XMLHttpRequest, remote QML and images go through. Both ask
/// allows(): "qrc:", the rules' nag hosts, Qt's own QML modules and the nag's own local folder.
/// A refused address gets a WARNING naming it and is replaced by nothing.
///
/// The engine calls both from its loader thread as well as the GUI thread: everything but the own
/// folder is fixed when installed, and that one is guarded.
class NagEngineAccess : public QQmlAbstractUrlInterceptor,
                        public QQmlNetworkAccessManagerFactory,
                        public std::enable_shared_from_this<NagEngineAccess>
{
public:
    /// Takes over `engine`'s URL interceptor and network access manager factory. The engine
    /// doesn't own either: the caller keeps the result alive for as long as the engine lives.
    static std::shared_ptr<NagEngineAccess> install(QQmlEngine& engine, const NagAccessRules& rules);
    ~NagEngineAccess() override;
    NagEngineAccess(const NagEngineAccess&) = delete;
    NagEngineAccess& operator=(const NagEngineAccess&) = delete;

    /// The folder of a local main.qml that the product itself chose; empty for none (a web nag).
    void setOwnFolder(const QString& folder);

    /// Logs a WARNING naming `url` when it is refused.
    bool allows(const QUrl& url) const;

    QUrl intercept(const QUrl& path, DataType type) override;
    QNetworkAccessManager* create(QObject* parent) override;

private:
    NagEngineAccess();

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App::NagScreen
