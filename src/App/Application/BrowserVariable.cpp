#include "App/Application/BrowserVariable.h"

#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace Ostrel::App {

std::vector<QStringList> BrowserVariable::commands(const QString& value, const QUrl& url)
{
    std::vector<QStringList> result;
    const QString address = url.toString(QUrl::FullyEncoded);
    for (const QString& entry : value.split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
        QStringList words = QProcess::splitCommand(entry.trimmed());
        if (words.isEmpty())
            continue;
        bool placed = false;
        for (int i = 1; i < words.size(); ++i) {
            if (words[i].contains(QLatin1String("%s"))) {
                words[i].replace(QLatin1String("%s"), address);
                placed = true;
            }
        }
        if (!placed)
            words << address;
        result.push_back(words);
    }
    return result;
}

QString BrowserVariable::open(const QUrl& url)
{
    for (QStringList words : commands(qEnvironmentVariable("BROWSER"), url)) {
        QString program = words.takeFirst();
        if (!QFileInfo(program).isAbsolute())
            program = QStandardPaths::findExecutable(program);
        if (program.isEmpty())
            continue;
        if (QProcess::startDetached(program, words))
            return program;
        LOG(WARNING) << "The browser " << Util::QStringToUtf8(program) << " named in BROWSER did not start";
    }
    return QString();
}

} // namespace Ostrel::App
