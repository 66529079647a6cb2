#pragma once

#include "Interfaces/ILinksGenerator.h"
#include "Interfaces/ILinksOpener.h"

namespace Ostrel::App {

/// Turns link keys into URLs and opens them. Components that only build links take an
/// ILinksGenerator, those that only open them an ILinksOpener.
class ILinksManager : public virtual ILinksGenerator, public virtual ILinksOpener
{
};

} // namespace Ostrel::App
