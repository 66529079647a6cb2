#pragma once

#include "Http/ostrel_http_export.h"
#include "Interfaces/IHttpClient.h"

#include <memory>

class QNetworkAccessManager;

namespace Ostrel::Networking {

/// IHttpClient over QNetworkAccessManager. Lives on the thread that creates it and sends from
/// there; the callbacks run on that thread's event loop. Requests still running when the client
/// is destroyed are aborted and their callbacks are not called.
class OSTREL_HTTP_EXPORT HttpClient : public IHttpClient
{
public:
    HttpClient();
    ~HttpClient() override;
    HttpClient(const HttpClient&) = delete;
    HttpClient& operator=(const HttpClient&) = delete;

    /// A URL that is not a valid http or https address fails with an error, through the
    /// callback like any other failure. So do a redirect to anything but http or https (or from
    /// https down to http), and a body longer than the request's maxBodyBytes, which is cut off as
    /// it arrives: each with a WARNING.
    void send(const HttpRequest& request, Callback done) override;

    QNetworkAccessManager& accessManager();

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::Networking
