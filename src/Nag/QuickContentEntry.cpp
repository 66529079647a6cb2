#include "Nag/QuickContentEntry_p.h"

#include "Nag/NagConfig.h"
#include "Nag/QuickContent.h"
#include "Nag/WebQuickContent.h"
#include "Nag/ostrel_nagquick_export.h"

#include <QGuiApplication>
#include <QQuickWindow>

using namespace Ostrel::App::NagScreen;

namespace {

// The entry point's type is checked against the one the nag library looks up.
AbstractContent* createQuickContent(Implementation implementation, const NagContext& context,
                                    const QUrl& source, const NagRecord* record,
                                    const ContentEnvironment& environment)
{
    // Without a display there is no OpenGL for the scenes: draw them in software. Set before the
    // first Qt Quick window, which is the one about to be made.
    static const bool backendChosen = []() {
        if (QGuiApplication::platformName() == QLatin1String("offscreen") &&
            !qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
            QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
        return true;
    }();
    Q_UNUSED(backendChosen);

    std::unique_ptr<QmlContent> content;
    switch (implementation) {
    case Implementation::Local:
        content = std::make_unique<QuickContent>(context, source, environment);
        break;
    case Implementation::Web:
        content = std::make_unique<WebQuickContent>(context, source, environment);
        break;
    case Implementation::None:
        return nullptr;
    }
    if (record)
        content->SetFallbackIdentity(record->id, record->name);
    return content.release();
}

} // namespace

extern "C" OSTREL_NAGQUICK_EXPORT AbstractContent*
OstrelNagCreateQuickContent(Implementation implementation, const NagContext& context, const QUrl& source,
                            const NagRecord* record, const ContentEnvironment& environment)
{
    static_assert(std::is_same_v<decltype(&createQuickContent), CreateQuickContentFunction*>);
    return createQuickContent(implementation, context, source, record, environment);
}
