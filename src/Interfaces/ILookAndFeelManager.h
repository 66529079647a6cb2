#pragma once

namespace Ostrel::App {

/// Themes and locales. Its operations arrive with the look and feel.
class ILookAndFeelManager
{
public:
    virtual ~ILookAndFeelManager() = default;
};

} // namespace Ostrel::App
