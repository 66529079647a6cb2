#pragma once

#include "Nag/ContentEnvironment.h"
#include "Nag/IContentFactory.h"
#include "Nag/NagConfig.h"
#include "Nag/ostrel_nag_export.h"

#include <functional>

namespace Ostrel::App::NagScreen {

/// Makes a QuickContent or a WebQuickContent for a context, with the source, id and name that the
/// nag map gives for its mode and action (none when the map has no row: the caller then loads
/// from a path).
class OSTREL_NAG_EXPORT ContentFactory : public IContentFactory
{
public:
    ContentFactory(std::function<std::shared_ptr<const NagConfig>()> config, ContentEnvironment environment);
    ~ContentFactory() override;

    std::unique_ptr<AbstractContent> Create(Implementation implementation,
                                            const NagContext& context) override;

private:
    std::function<std::shared_ptr<const NagConfig>()> m_config;
    ContentEnvironment m_environment;
};

} // namespace Ostrel::App::NagScreen
