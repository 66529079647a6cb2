#include "Nag/Implementation.h"

namespace Ostrel::App::NagScreen {

QString ImplName(Implementation implementation)
{
    switch (implementation) {
    case Implementation::None:
        return QStringLiteral("none");
    case Implementation::Local:
        return QStringLiteral("local");
    case Implementation::Web:
        return QStringLiteral("web");
    }
    return QStringLiteral("unknown");
}

Implementation ImplFromName(const QString& name)
{
    if (name == QLatin1String("local"))
        return Implementation::Local;
    if (name == QLatin1String("web"))
        return Implementation::Web;
    return Implementation::None;
}

} // namespace Ostrel::App::NagScreen
