#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <string>

namespace Ostrel::Networking {

/// One outgoing request. Texts are UTF-8; the body is bytes.
struct HttpRequest
{
    enum class Method
    {
        Get,
        Post,
    };

    Method method = Method::Get;
    std::string url;
    std::map<std::string, std::string> headers;
    std::string body;
    /// The whole exchange must end within this time, or it is given up with the error "timeout".
    std::chrono::milliseconds timeout{30000};
    /// A response body longer than this is cut off: the exchange ends with an error and no body.
    std::size_t maxBodyBytes = 4 * 1024 * 1024;
};

/// What came back. `status` is the HTTP status code, 0 when no response arrived; `error` is empty
/// on success and otherwise says what went wrong (a status of 400 and above is an error too), with
/// the user's data masked (the request URL without its query), so that it may be logged as it is.
struct HttpResponse
{
    int status = 0;
    std::string body;
    std::string error;
};

/// Sends the product's HTTP requests.
class IHttpClient
{
public:
    using Callback = std::function<void(const HttpResponse&)>;

    virtual ~IHttpClient() = default;
    /// Starts `request` and returns at once; `done` is called exactly once, later, on the thread
    /// that sent the request (never from inside send).
    virtual void send(const HttpRequest& request, Callback done) = 0;
};

} // namespace Ostrel::Networking
