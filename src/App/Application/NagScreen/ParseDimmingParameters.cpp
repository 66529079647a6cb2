#include "App/Application/NagScreen/ParseDimmingParameters.h"

#include <QStringList>

namespace Ostrel::App::NagScreen {

QMap<QString, QString> ParseDimmingParameters(const QString& text)
{
    QMap<QString, QString> parameters;
    const QStringList parts = text.split(QLatin1Char(','), Qt::SkipEmptyParts, Qt::CaseSensitive);
    for (const QString& part : parts) {
        const QStringList pieces = part.split(QLatin1Char('='), Qt::SkipEmptyParts, Qt::CaseSensitive);
        if (pieces.size() >= 2)
            parameters[pieces.at(0)] = pieces.at(1);
    }
    return parameters;
}

} // namespace Ostrel::App::NagScreen
