#include "Http/HttpClient.h"

#include "Foundation/PersonalDataMask.h"

#include <glog/logging.h>

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QTimer>
#include <QUrl>

namespace Ostrel::Networking {

namespace {

std::string toUtf8(const QString& text)
{
    return text.toUtf8().toStdString();
}

} // namespace

class HttpClient::Impl
{
public:
    QNetworkAccessManager manager;
    // Callbacks are not called once the client is gone: the guard object dies with it.
    QObject guard;
};

HttpClient::HttpClient()
    : d(std::make_unique<Impl>())
{
}

HttpClient::~HttpClient()
{
    const auto replies = d->manager.findChildren<QNetworkReply*>();
    for (QNetworkReply* reply : replies) {
        reply->disconnect();
        reply->abort();
    }
}

QNetworkAccessManager& HttpClient::accessManager()
{
    return d->manager;
}

void HttpClient::send(const HttpRequest& request, Callback done)
{
    const QUrl url(QString::fromStdString(request.url), QUrl::StrictMode);
    const QString scheme = url.scheme();
    if (!url.isValid() || (scheme != QLatin1String("http") && scheme != QLatin1String("https"))) {
        const std::string error = "invalid URL \"" + request.url + "\"";
        LOG(WARNING) << "HTTP request not sent: " << Core::PersonalDataMask::mask(error);
        QTimer::singleShot(0, &d->guard, [done = std::move(done), error]() {
            HttpResponse response;
            response.error = error;
            done(response);
        });
        return;
    }

    QNetworkRequest qtRequest(url);
    qtRequest.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    for (const auto& [name, value] : request.headers)
        qtRequest.setRawHeader(QByteArray::fromStdString(name), QByteArray::fromStdString(value));
    // The transfer timeout of Qt counts only idle time; the whole exchange is bounded below.
    QNetworkReply* reply = request.method == HttpRequest::Method::Post
                               ? d->manager.post(qtRequest, QByteArray::fromStdString(request.body))
                               : d->manager.get(qtRequest);

    auto timedOut = std::make_shared<bool>(false);
    auto* timer = new QTimer(reply);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, reply, [reply, timedOut]() {
        *timedOut = true;
        reply->abort();
    });
    timer->start(static_cast<int>(request.timeout.count()));

    QObject::connect(reply, &QNetworkReply::finished, &d->guard, [reply, timedOut, done = std::move(done)]() {
        reply->deleteLater();
        HttpResponse response;
        response.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (reply->isOpen()) // an aborted reply is closed and has nothing to read
            response.body = reply->readAll().toStdString();
        if (*timedOut)
            response.error = "timeout";
        else if (reply->error() != QNetworkReply::NoError)
            response.error = toUtf8(reply->errorString());
        if (!response.error.empty())
            VLOG(1) << "HTTP request to " << Core::PersonalDataMask::mask(toUtf8(reply->url().toString()))
                    << " failed: " << Core::PersonalDataMask::mask(response.error);
        done(response);
    });
}

} // namespace Ostrel::Networking
