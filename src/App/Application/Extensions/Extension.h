#pragma once

#include "App/Application/Extensions/IExtension.h"
#include "App/Application/ostrel_app_export.h"

namespace Ostrel::App {

/// The base of the extensions: a start that does nothing.
class OSTREL_APP_EXPORT Extension : public virtual IExtension
{
public:
    ~Extension() override;
    void onStart() override;
};

} // namespace Ostrel::App
