#pragma once

#include "Http/CaseInsensitiveCompare.h"

#include <map>
#include <string>

class QNetworkRequest;

namespace Ostrel::App {

/// The headers every outgoing request of the product carries: who is asking, from which machine.
class IHttpRequestUpdater
{
public:
    /// Sets the user agent and writes the other headers into `request`, keeping its other headers.
    virtual void updateQtRequest(QNetworkRequest& request) const = 0;
    virtual std::map<std::string, std::string> getRawHeaders() const = 0;
    /// The same headers, found under any casing of their names.
    virtual std::map<std::string, std::string, Networking::CaseInsensitiveCompare> getHeaders() const = 0;
    virtual ~IHttpRequestUpdater() = default;
};

} // namespace Ostrel::App
