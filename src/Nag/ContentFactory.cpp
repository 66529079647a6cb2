#include "Nag/ContentFactory.h"

#include "Nag/QuickContent.h"
#include "Nag/WebQuickContent.h"

namespace Ostrel::App::NagScreen {

ContentFactory::ContentFactory(std::function<std::shared_ptr<const NagConfig>()> config,
                               ContentEnvironment environment)
    : m_config(std::move(config)), m_environment(std::move(environment))
{
}

ContentFactory::~ContentFactory() = default;

std::unique_ptr<AbstractContent> ContentFactory::Create(Implementation implementation,
                                                        const NagContext& context)
{
    const auto config = m_config ? m_config() : nullptr;
    const std::optional<NagRecord> record =
        config ? config->Find(context.mode, context.action) : std::nullopt;
    const QUrl source = record ? QUrl(record->source, QUrl::TolerantMode) : QUrl();

    std::unique_ptr<QmlContent> content;
    switch (implementation) {
    case Implementation::Local:
        content = std::make_unique<QuickContent>(context, source, m_environment);
        break;
    case Implementation::Web:
        content = std::make_unique<WebQuickContent>(context, source, m_environment);
        break;
    case Implementation::None:
        return nullptr;
    }
    if (record)
        content->SetFallbackIdentity(record->id, record->name);
    return content;
}

} // namespace Ostrel::App::NagScreen
