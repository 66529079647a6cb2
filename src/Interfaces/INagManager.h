#pragma once

namespace Ostrel::App::NagScreen {

/// Shows the product's nag screens. Its operations arrive with the nags.
class IManager
{
public:
    virtual ~IManager() = default;
};

} // namespace Ostrel::App::NagScreen
