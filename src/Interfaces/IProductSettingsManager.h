#pragma once

#include "Interfaces/ISettingsManager.h"

namespace Ostrel::App {

/// Store of the settings of this product: its identity on this machine, first start, partner.
class IProductSettingsManager : public virtual ISettingsManager
{
};

} // namespace Ostrel::App
