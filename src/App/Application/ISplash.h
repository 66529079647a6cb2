#pragma once

namespace Ostrel::App {

/// The host's splash screen. The shell only ever dismisses it: once when the application first
/// becomes active before the start, and again at the start, so dismiss() must bear two calls.
class ISplash
{
public:
    virtual ~ISplash() = default;
    /// Shows the splash; the host calls it itself.
    virtual void show() = 0;
    virtual void dismiss() = 0;
};

} // namespace Ostrel::App
