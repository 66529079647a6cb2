#include "App/Application/NagScreen/ExpandFilePathParameters.h"

#include "App/Application/NagScreen/DimmingProvider.h"
#include "Nag/AbstractContent.h"

#include <QDir>
#include <QFileInfo>

namespace Ostrel::App::NagScreen {

void ExpandFilePathParameters(const DimmingProvider& provider, const AbstractContent& content,
                              QMap<QString, QString>& parameters)
{
    for (const QString& name : provider.FilePathParameters()) {
        if (!parameters.contains(name))
            continue;
        const QUrl url = content.LocalUrl();
        if (url.isLocalFile())
            parameters[name] = QFileInfo(url.toLocalFile()).dir().absoluteFilePath(parameters[name]);
    }
}

} // namespace Ostrel::App::NagScreen
