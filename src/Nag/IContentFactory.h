#pragma once

#include "Nag/Implementation.h"
#include "Nag/NagContext.h"

#include <memory>

namespace Ostrel::App::NagScreen {

class AbstractContent;

/// Makes the content of a nag without showing it. The content is not loaded yet: the caller calls
/// Load() or LoadFromPath().
class IContentFactory
{
public:
    virtual ~IContentFactory() = default;
    /// Null for Implementation::None.
    virtual std::unique_ptr<AbstractContent> Create(Implementation implementation,
                                                    const NagContext& context) = 0;
};

} // namespace Ostrel::App::NagScreen
