#pragma once

#include <QString>

/// The update service's address for this system's package: the link table names the Windows
/// package ("…/win/x86_64/…"); other systems ask for their own and their processor's.
QString updatePackageUrl(const QString& tableUrl);
