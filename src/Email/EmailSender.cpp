#include "Email/EmailSender.h"

#include "Foundation/Utf8.h"
#include "Interfaces/IHttpClient.h"
#include "Interfaces/ILinksGenerator.h"
#include "Interfaces/IMailSettingsManager.h"

#include <glog/logging.h>

#include <QUrl>

#include <mutex>
#include <stdexcept>

namespace Ostrel::App {

namespace {

// A callback that throws must not unwind into the HTTP client's network code.
void report(const EmailSender::Callback& callback, bool success, const std::string& message)
{
    if (!callback)
        return;
    try {
        callback(success, message);
    } catch (const std::exception& error) {
        LOG(ERROR) << "E-mail send callback raised: " << error.what();
    } catch (...) {
        LOG(ERROR) << "E-mail send callback raised an unknown exception";
    }
}

QString encodedValue(const std::string& value)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(Util::Utf8ToQString(value)));
}

} // namespace

class EmailSender::Impl
{
public:
    std::shared_ptr<ILinksGenerator> linksGenerator;
    std::shared_ptr<Networking::IHttpClient> httpClient;
    std::shared_ptr<IMailSettingsManager> mailSettings;
    std::chrono::milliseconds timeout{15000};

    // The HTTP answer may come on another thread, and after the sender is gone. The lock is held
    // through the callback too, so that a destructor on another thread waits for a callback under
    // way, and none starts after it: what the caller's callback touches may die with the sender.
    // Recursive, since a callback may destroy the sender on its own thread.
    std::recursive_mutex aliveMutex;
    bool alive = true;

    void finished(const Callback& callback, const Networking::HttpResponse& response)
    {
        std::lock_guard<std::recursive_mutex> lock(aliveMutex);
        if (!alive)
            return;
        if (response.error.empty()) {
            mailSettings->SetString("IsRegUser", "1");
            LOG(INFO) << "E-mail address registered";
            report(callback, true, std::string());
        } else {
            report(callback, false, response.error);
        }
    }
};

EmailSender::EmailSender(const std::shared_ptr<ILinksGenerator>& linksGenerator,
                         const std::shared_ptr<Networking::IHttpClient>& httpClient,
                         const std::shared_ptr<IMailSettingsManager>& mailSettings)
    : d(std::make_shared<Impl>())
{
    if (!linksGenerator)
        throw std::invalid_argument("EmailSender needs a links generator");
    if (!mailSettings)
        throw std::invalid_argument("EmailSender needs the mail settings");
    d->linksGenerator = linksGenerator;
    d->httpClient = httpClient;
    d->mailSettings = mailSettings;
}

EmailSender::~EmailSender()
{
    std::lock_guard<std::recursive_mutex> lock(d->aliveMutex);
    d->alive = false;
}

void EmailSender::SetTimeout(std::chrono::milliseconds timeout)
{
    d->timeout = timeout;
}

void EmailSender::SendEmail(const std::map<std::string, std::string>& parameters, const Callback& callback)
{
    if (!d->httpClient) {
        LOG(ERROR) << "Cannot send the e-mail address: no HTTP client";
        report(callback, false, "No HTTP client");
        return;
    }
    // What the caller gives is what the user entered: it is kept like the dialog's input, and the
    // links manager fills "-NAME-" and "-EMAIL-" from the mail settings. Only the registration
    // itself waits for the server's answer.
    for (const auto& [key, text] : parameters) {
        if (key != "IsRegUser")
            d->mailSettings->SetString(key, text);
    }
    QString url = d->linksGenerator->GetUrl(URLKeys::COLLECT_EMAIL_URL);
    if (url.contains(QLatin1String("-NAME-")) || url.contains(QLatin1String("-EMAIL-"))) {
        // A generator that leaves the two macros to its caller.
        QMap<QString, QString> macros;
        macros.insert(QStringLiteral("-NAME-"),
                      encodedValue(d->mailSettings->GetString("UserName", std::string())));
        macros.insert(QStringLiteral("-EMAIL-"),
                      encodedValue(d->mailSettings->GetString("UserEmail", std::string())));
        url = d->linksGenerator->GenerateUrl(url, macros);
    }

    Networking::HttpRequest request;
    request.url = Util::QStringToUtf8(url);
    request.timeout = d->timeout;
    std::weak_ptr<Impl> weak = d;
    d->httpClient->send(request, [weak, callback](const Networking::HttpResponse& response) {
        if (const auto impl = weak.lock())
            impl->finished(callback, response);
    });
}

} // namespace Ostrel::App
