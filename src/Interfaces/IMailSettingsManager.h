#pragma once

#include "Interfaces/ISettingsManager.h"

namespace Ostrel::App {

/// Store of the e-mail collection: the address, the name and the consent the user gave.
class IMailSettingsManager : public virtual ISettingsManager
{
};

} // namespace Ostrel::App
