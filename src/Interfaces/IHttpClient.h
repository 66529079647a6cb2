#pragma once

namespace Ostrel::Networking {

/// Sends the product's HTTP requests. Its operations arrive with the HTTP library.
class IHttpClient
{
public:
    virtual ~IHttpClient() = default;
};

} // namespace Ostrel::Networking
