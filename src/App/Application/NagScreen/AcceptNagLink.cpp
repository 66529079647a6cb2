#include "App/Application/NagScreen/AcceptNagLink.h"

#include "Foundation/PersonalDataMask.h"
#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <QUrl>

namespace Ostrel::App::NagScreen {

bool AcceptNagLink(const QUrl& url)
{
    const QString scheme = url.scheme();
    const bool web = scheme == QLatin1String("http") || scheme == QLatin1String("https");
    if (url.isValid() && ((web && !url.host().isEmpty()) || scheme == QLatin1String("mailto")))
        return true;
    // Without its query, and masked: the links manager may have filled the user's data in anywhere.
    LOG(WARNING)
        << "Nag link refused, only http, https and mailto open: \""
        << Util::QStringToUtf8(Core::PersonalDataMask::mask(
               url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment).toString()))
        << "\"";
    return false;
}

} // namespace Ostrel::App::NagScreen
