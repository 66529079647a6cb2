#include "UpdatePackage.h"

#include <QSysInfo>

QString updatePackageUrl(const QString& tableUrl)
{
    // Debian's name of the architecture the host was built for: the package that would replace it
    // (Qt says "x86_64" and "arm" where Debian says "amd64" and "armhf"; i386, arm64 agree).
    QString arch = QSysInfo::buildCpuArchitecture();
    if (arch == QLatin1String("x86_64"))
        arch = QStringLiteral("amd64");
    else if (arch == QLatin1String("arm"))
        arch = QStringLiteral("armhf");
    QString url = tableUrl;
    return url.replace(QStringLiteral("/win/x86_64/"), QStringLiteral("/linux/%1/").arg(arch));
}
