#pragma once

#include <QString>

namespace Ostrel::App::NagScreen {

/// Hears what the nag manager learns about the nags of each action.
class IManagerObserver
{
public:
    virtual ~IManagerObserver() = default;
    /// After a reload, once per action of the map in the current mode.
    virtual void onNagAvailable(const QString& action, bool available) = 0;
    /// After a reload, and when the user switches a nag off from inside it.
    virtual void onNagDontShow(const QString& action, bool dontShow) = 0;
    /// An update nag was dismissed with "skip this version".
    virtual void onSkipUpdate(const QString& action, bool skip) = 0;
    /// A reload finished, after every onNagAvailable of it.
    virtual void onNagsReloaded() {}
};

} // namespace Ostrel::App::NagScreen
