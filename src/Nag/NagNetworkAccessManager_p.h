#pragma once

#include <QNetworkAccessManager>

#include <memory>

namespace Ostrel::App::NagScreen {

class NagEngineAccess;

/// The network of a nag engine: every request (XMLHttpRequest, remote QML, images, fonts) and every
/// redirect, which the engine follows by asking again, must pass the engine's access rules. A
/// refused request fails at once and never leaves the process.
class NagNetworkAccessManager : public QNetworkAccessManager
{
    Q_OBJECT
public:
    NagNetworkAccessManager(std::shared_ptr<const NagEngineAccess> access, QObject* parent);
    ~NagNetworkAccessManager() override;

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request,
                                 QIODevice* outgoingData) override;

private:
    std::shared_ptr<const NagEngineAccess> m_access;
};

} // namespace Ostrel::App::NagScreen
