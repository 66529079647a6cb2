#pragma once

#include "App/Application/ostrel_app_export.h"

#include <memory>

namespace Ostrel::App {

class IApplicationSettingsManager;

/// Makes QColorDialog's custom colours survive between runs: loads them from the application
/// settings (group "Ostrel::App::ColorDialogHelper") when built and saves them when destroyed.
/// Every copy saves at its destruction; destroy it while the settings can still be written.
class OSTREL_APP_EXPORT ColorDialogHelper
{
public:
    explicit ColorDialogHelper(const std::shared_ptr<IApplicationSettingsManager>& settings);
    ColorDialogHelper(const ColorDialogHelper& other);
    ColorDialogHelper& operator=(const ColorDialogHelper& other);
    virtual ~ColorDialogHelper();

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
