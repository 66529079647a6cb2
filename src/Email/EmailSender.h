#pragma once

#include "Email/ostrel_email_export.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace Ostrel::Networking {
class IHttpClient;
}

namespace Ostrel::App {

class ILinksGenerator;
class IMailSettingsManager;

/// Subscribes the user's address: one request to COLLECT_EMAIL_URL with the name and the address
/// filled in. The result comes through the callback, on the thread the HTTP client answers on.
///
/// `parameters` are mail settings values the user has just entered ("UserName", "UserEmail",
/// "isConfirmed"): they are stored before the send, and the address sent is the stored one.
/// A successful send stores "IsRegUser" = "1", so that the question does not come back.
class OSTREL_EMAIL_EXPORT EmailSender
{
public:
    using Callback = std::function<void(bool success, const std::string& message)>;

    /// The links generator and the mail settings must not be null; the HTTP client may be (every
    /// send then fails through its callback).
    EmailSender(const std::shared_ptr<ILinksGenerator>& linksGenerator,
                const std::shared_ptr<Networking::IHttpClient>& httpClient,
                const std::shared_ptr<IMailSettingsManager>& mailSettings);
    /// A send still running is cut off: its callback never comes.
    ~EmailSender();
    EmailSender(const EmailSender&) = delete;
    EmailSender& operator=(const EmailSender&) = delete;

    void SendEmail(const std::map<std::string, std::string>& parameters, const Callback& callback);

    /// How long one send may take before it fails with "timeout" (15 s unless set).
    void SetTimeout(std::chrono::milliseconds timeout);

private:
    class Impl;
    std::shared_ptr<Impl> d;
};

} // namespace Ostrel::App
