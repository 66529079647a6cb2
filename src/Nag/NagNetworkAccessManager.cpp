#include "Nag/NagNetworkAccessManager_p.h"

#include "Nag/NagEngineAccess_p.h"

#include <QNetworkRequest>

namespace Ostrel::App::NagScreen {

NagNetworkAccessManager::NagNetworkAccessManager(std::shared_ptr<const NagEngineAccess> access,
                                                 QObject* parent)
    : QNetworkAccessManager(parent), m_access(std::move(access))
{
}

NagNetworkAccessManager::~NagNetworkAccessManager() = default;

QNetworkReply* NagNetworkAccessManager::createRequest(Operation operation, const QNetworkRequest& request,
                                                      QIODevice* outgoingData)
{
    if (!m_access->allows(request.url())) {
        // An empty address makes Qt's own failed reply ("protocol unknown"), finished later.
        return QNetworkAccessManager::createRequest(operation, QNetworkRequest(), nullptr);
    }
    // A redirect followed inside Qt would skip the rules: the engine asks again for each one.
    QNetworkRequest checked(request);
    checked.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    return QNetworkAccessManager::createRequest(operation, checked, outgoingData);
}

} // namespace Ostrel::App::NagScreen
