#pragma once

#include "App/Application/LookAndFeelManager.h"

namespace Ostrel::Test {

/// The look and feel manager on a system whose languages are the test's ("en-US"), not the
/// machine's.
class EnglishLookAndFeel : public App::LookAndFeelManager
{
public:
    using LookAndFeelManager::LookAndFeelManager;

protected:
    QStringList GetSystemLanguages() const override { return {QStringLiteral("en-US")}; }
};

} // namespace Ostrel::Test
