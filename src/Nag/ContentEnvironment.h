#pragma once

#include "Nag/NagAccessRules.h"

#include <QString>

#include <functional>
#include <memory>

namespace Ostrel::App::NagScreen {

class AbstractContent;
class IActionStrategy;
class IWebNagUrlGenerator;

/// What a content needs from the manager that made it, read at the moment of use so that a
/// strategy set later is the one a click reaches.
struct ContentEnvironment
{
    std::function<std::shared_ptr<IActionStrategy>()> actionStrategy;
    /// The application's locale, "en_US" form.
    std::function<QString()> locale;
    std::shared_ptr<IWebNagUrlGenerator> urlGenerator;
    /// The user asked not to see this nag again.
    std::function<void(const AbstractContent&)> dontShow;
    /// How long a web nag may take to arrive before it counts as failed.
    int webTimeoutMs = 15000;
    /// Where the nag's QML may reach besides "qrc:"; by default nowhere.
    NagAccessRules access;
};

} // namespace Ostrel::App::NagScreen
