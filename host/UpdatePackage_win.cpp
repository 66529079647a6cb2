#include "UpdatePackage.h"

QString updatePackageUrl(const QString& tableUrl)
{
    return tableUrl;
}
