#pragma once

namespace Ostrel::App::WebSocket {

/// Messages pushed over the product's web socket.
/// Nothing in the shell calls it yet; the host may set an implementation of its own.
class IMessageBroker
{
public:
    virtual ~IMessageBroker() = default;
};

} // namespace Ostrel::App::WebSocket
