#include "Http/HttpClient.h"

#include "Foundation/PersonalDataMask.h"
#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <climits>

namespace Ostrel::Networking {

namespace {

// For log lines and errors: the query is left out, since that is where a request carries the user's
// data, and what personal data the path holds is masked.
QString shownText(const QUrl& url)
{
    return Core::PersonalDataMask::mask(
        url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment).toString());
}

std::string shown(const QUrl& url)
{
    return Util::QStringToUtf8(shownText(url));
}

// Qt's error texts quote the request URL whole ("Error transferring <URL> - server replied: ..."):
// the caller gets the shown form instead, so that no caller has to remember to mask it.
std::string errorText(const QNetworkReply& reply, const QUrl& requested)
{
    QString text = reply.errorString();
    for (const QUrl& url : {reply.url(), requested}) {
        for (const QUrl::ComponentFormattingOption format : {QUrl::PrettyDecoded, QUrl::FullyEncoded}) {
            const QString whole = url.toString(format);
            if (!whole.isEmpty())
                text.replace(whole, shownText(url));
        }
    }
    return Util::QStringToUtf8(Core::PersonalDataMask::mask(text));
}

// Why a redirect from `from` to `to` is not followed; empty when it may be. Only web addresses are
// followed, and never from https down to http.
std::string redirectRefusal(const QUrl& from, const QUrl& to)
{
    const QString scheme = to.scheme();
    if (scheme != QLatin1String("http") && scheme != QLatin1String("https"))
        return "redirect to " + shown(to) + " refused: only http and https are followed";
    if (from.scheme() == QLatin1String("https") && scheme == QLatin1String("http"))
        return "redirect to " + shown(to) + " refused: from https down to http";
    return {};
}

// One exchange as this client follows it.
struct Exchange
{
    QNetworkReply* reply = nullptr;
    QUrl current; // where the last allowed step went
    QByteArray body;
    qint64 maxBodyBytes = 0;
    std::string cutBy; // why this client ended the exchange early; empty while it runs on

    // Ends the exchange early, once, for `why`; false when it had ended already. The reason is in
    // place before the caller aborts, which finishes the reply at once.
    bool end(std::string why)
    {
        if (!cutBy.empty())
            return false;
        cutBy = std::move(why);
        body.clear();
        return true;
    }

    void endTooLong()
    {
        if (end("response body larger than " + std::to_string(maxBodyBytes) + " bytes"))
            LOG(WARNING) << "HTTP response from " << shown(current) << " cut: " << cutBy;
    }

    // Reads what has arrived, so that an endless body costs no more memory than the cap.
    void take()
    {
        if (!cutBy.empty() || !reply->isOpen()) // an aborted reply is closed and has nothing to read
            return;
        body += reply->readAll();
        if (body.size() > maxBodyBytes) {
            endTooLong();
            reply->abort();
        }
    }
};

} // namespace

class HttpClient::Impl
{
public:
    // Made at the first request: building one loads Qt's network bearer plugins, a few
    // milliseconds that a client made during the start and used later need not cost the start.
    QNetworkAccessManager& manager()
    {
        if (!lazyManager)
            lazyManager = std::make_unique<QNetworkAccessManager>();
        return *lazyManager;
    }
    std::unique_ptr<QNetworkAccessManager> lazyManager;
    // Callbacks are not called once the client is gone: the guard object dies with it.
    QObject guard;
};

HttpClient::HttpClient() : d(std::make_unique<Impl>()) {}

HttpClient::~HttpClient()
{
    if (!d->lazyManager)
        return;
    const auto replies = d->lazyManager->findChildren<QNetworkReply*>();
    for (QNetworkReply* reply : replies) {
        reply->disconnect();
        reply->abort();
    }
}

QNetworkAccessManager& HttpClient::accessManager()
{
    return d->manager();
}

void HttpClient::send(const HttpRequest& request, Callback done)
{
    const QUrl url(Util::Utf8ToQString(request.url), QUrl::StrictMode);
    const QString scheme = url.scheme();
    if (!url.isValid() || (scheme != QLatin1String("http") && scheme != QLatin1String("https"))) {
        const std::string error = Core::PersonalDataMask::mask("invalid URL \"" + request.url + "\"");
        LOG(WARNING) << "HTTP request not sent: " << error;
        QTimer::singleShot(0, &d->guard, [done = std::move(done), error]() {
            HttpResponse response;
            response.error = error;
            done(response);
        });
        return;
    }

    QNetworkRequest qtRequest(url);
    // Each redirect is looked at before it is followed (redirected() below).
    qtRequest.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                           QNetworkRequest::UserVerifiedRedirectPolicy);
    for (const auto& [name, value] : request.headers)
        qtRequest.setRawHeader(QByteArray::fromStdString(name), QByteArray::fromStdString(value));
    // The transfer timeout of Qt counts only idle time; the whole exchange is bounded below.
    QNetworkReply* reply = request.method == HttpRequest::Method::Post
                               ? d->manager().post(qtRequest, QByteArray::fromStdString(request.body))
                               : d->manager().get(qtRequest);

    auto state = std::make_shared<Exchange>();
    state->reply = reply;
    state->current = url;
    state->maxBodyBytes = static_cast<qint64>(std::min<std::size_t>(request.maxBodyBytes, INT_MAX));

    auto* timer = new QTimer(reply);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, reply, [reply, state]() {
        if (state->end("timeout"))
            reply->abort();
    });
    timer->start(static_cast<int>(request.timeout.count()));

    QObject::connect(reply, &QNetworkReply::metaDataChanged, reply, [reply, state]() {
        bool known = false;
        const qint64 announced = reply->header(QNetworkRequest::ContentLengthHeader).toLongLong(&known);
        if (known && announced > state->maxBodyBytes) {
            state->endTooLong();
            // Qt doesn't take an abort from inside its own report of the headers.
            QMetaObject::invokeMethod(reply, &QNetworkReply::abort, Qt::QueuedConnection);
        }
    });
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [state]() { state->take(); });
    QObject::connect(reply, &QNetworkReply::redirected, reply, [reply, state](const QUrl& target) {
        std::string refusal = redirectRefusal(state->current, target);
        if (refusal.empty()) {
            state->current = target;
            Q_EMIT reply->redirectAllowed();
        } else if (state->end(std::move(refusal))) {
            LOG(WARNING) << "HTTP " << state->cutBy;
            reply->abort();
        }
    });

    QObject::connect(
        reply, &QNetworkReply::finished, &d->guard, [reply, state, url, done = std::move(done)]() {
            reply->deleteLater();
            HttpResponse response;
            response.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
            state->take();
            // Qt itself refuses a redirect to anything but http and https, before asking: the same refusal.
            const QByteArray location = reply->rawHeader("Location");
            if (reply->error() != QNetworkReply::NoError && !location.isEmpty()) {
                std::string refusal =
                    redirectRefusal(state->current, state->current.resolved(QUrl::fromEncoded(location)));
                if (!refusal.empty() && state->end(std::move(refusal)))
                    LOG(WARNING) << "HTTP " << state->cutBy;
            }
            if (!state->cutBy.empty())
                response.error = state->cutBy;
            else if (reply->error() != QNetworkReply::NoError)
                response.error = errorText(*reply, url);
            response.body = state->body.toStdString();
            if (!response.error.empty())
                VLOG(1) << "HTTP request to " << shown(reply->url()) << " failed: " << response.error;
            done(response);
        });
}

} // namespace Ostrel::Networking
