#include "Nag/NagEngineAccess_p.h"

#include "Foundation/Utf8.h"
#include "Nag/NagNetworkAccessManager_p.h"

#include <glog/logging.h>

#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QQmlEngine>

namespace Ostrel::App::NagScreen {

namespace {

QString cleanFolder(const QString& folder)
{
    return folder.isEmpty() ? QString() : QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
}

bool isInside(const QString& path, const QString& folder)
{
    if (folder.isEmpty())
        return false;
    return path == folder ||
           path.startsWith(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

} // namespace

class NagEngineAccess::Impl
{
public:
    NagAccessRules rules;
    // Qt's own QML modules: every import probes these folders for its qmldir.
    QStringList moduleFolders;
    mutable QMutex mutex;
    QString ownFolder;

    bool allowsLocal(const QUrl& url) const
    {
        // A file URL with a host is a network share.
        if (!url.host().isEmpty())
            return false;
        const QString path = QDir::cleanPath(url.toLocalFile());
        for (const QString& folder : moduleFolders) {
            if (isInside(path, folder))
                return true;
        }
        const QMutexLocker lock(&mutex);
        return isInside(path, ownFolder);
    }
};

NagEngineAccess::NagEngineAccess() : d(std::make_unique<Impl>()) {}

NagEngineAccess::~NagEngineAccess() = default;

std::shared_ptr<NagEngineAccess> NagEngineAccess::install(QQmlEngine& engine, const NagAccessRules& rules)
{
    std::shared_ptr<NagEngineAccess> access(new NagEngineAccess);
    access->d->rules = rules;
    for (const QString& folder : engine.importPathList()) {
        // The resource imports are "qrc:" already; only folders on disk need an entry.
        if (!folder.startsWith(QLatin1String("qrc:")) && !folder.startsWith(QLatin1Char(':')))
            access->d->moduleFolders << cleanFolder(folder);
    }
    engine.setUrlInterceptor(access.get());
    engine.setNetworkAccessManagerFactory(access.get());
    return access;
}

void NagEngineAccess::setOwnFolder(const QString& folder)
{
    const QMutexLocker lock(&d->mutex);
    d->ownFolder = cleanFolder(folder);
}

bool NagEngineAccess::allows(const QUrl& url) const
{
    const QString scheme = url.scheme();
    bool allowed = false;
    // An empty address loads nothing and reaches nothing.
    if (url.isEmpty() || scheme == QLatin1String("qrc"))
        allowed = true;
    else if (scheme == QLatin1String("file"))
        allowed = d->allowsLocal(url);
    else
        allowed = d->rules.allowsRemote(url);
    if (!allowed) {
        // The query is where a nag would put what it tries to carry away; it is not logged.
        LOG(WARNING)
            << "Nag access refused: "
            << Util::QStringToUtf8(
                   url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment).toString());
    }
    return allowed;
}

QUrl NagEngineAccess::intercept(const QUrl& path, DataType)
{
    return allows(path) ? path : QUrl();
}

QNetworkAccessManager* NagEngineAccess::create(QObject* parent)
{
    return new NagNetworkAccessManager(shared_from_this(), parent);
}

} // namespace Ostrel::App::NagScreen
