#include "Nag/ContentFactory.h"

#include "Foundation/DyLib.h"
#include "Foundation/Utf8.h"
#include "Nag/AbstractContent.h"
#include "Nag/QuickContentEntry_p.h"

#include <glog/logging.h>

#include <QElapsedTimer>
#include <QFileInfo>

namespace Ostrel::App::NagScreen {

namespace {

// The Qt Quick half of the nag library, loaded once, at the first nag, and never unloaded: the
// contents it makes run its code until the process ends. Looked for beside this library first
// (a build tree, a product that ships its libraries in its own folder), then where the system
// loader looks (an installed package).
CreateQuickContentFunction* quickContentMaker()
{
    static CreateQuickContentFunction* const maker = []() -> CreateQuickContentFunction* {
        static const char anchor = 0;
        QElapsedTimer clock;
        clock.start();
        const QString self = Util::Utf8ToQString(Core::DyLib::fileOf(&anchor));
        std::vector<std::string> candidates;
        if (!self.isEmpty())
            candidates.push_back(Util::QStringToUtf8(QFileInfo(self).absolutePath() +
                                                     QStringLiteral("/" OSTREL_NAGQUICK_FILE)));
        candidates.emplace_back(OSTREL_NAGQUICK_FILE);
        for (const std::string& candidate : candidates) {
            auto* library = new Core::DyLib(candidate);
            if (auto* maker = library->resolve<CreateQuickContentFunction>(CreateQuickContentSymbol)) {
                VLOG(1) << "Nag library " << candidate << " loaded in " << clock.elapsed() << " ms";
                // The library stays loaded (see above); held here, it is kept on purpose, not lost.
                static Core::DyLib* const kept = library;
                (void)kept;
                return maker;
            }
            delete library;
        }
        LOG(ERROR) << "The nags' Qt Quick library " << OSTREL_NAGQUICK_FILE
                   << " could not be loaded (GLOG_v=1 says why): no nag can be shown";
        return nullptr;
    }();
    return maker;
}

} // namespace

ContentFactory::ContentFactory(std::function<std::shared_ptr<const NagConfig>()> config,
                               ContentEnvironment environment)
    : m_config(std::move(config)), m_environment(std::move(environment))
{
}

ContentFactory::~ContentFactory() = default;

std::unique_ptr<AbstractContent> ContentFactory::Create(Implementation implementation,
                                                        const NagContext& context)
{
    if (implementation == Implementation::None)
        return nullptr;
    const auto config = m_config ? m_config() : nullptr;
    const std::optional<NagRecord> record =
        config ? config->Find(context.mode, context.action) : std::nullopt;
    const QUrl source = record ? QUrl(record->source, QUrl::TolerantMode) : QUrl();
    CreateQuickContentFunction* const make = quickContentMaker();
    if (!make)
        return nullptr;
    return std::unique_ptr<AbstractContent>(
        make(implementation, context, source, record ? &*record : nullptr, m_environment));
}

} // namespace Ostrel::App::NagScreen
