#pragma once

#include "QtUtil/ostrel_qtutil_export.h"

#include <QString>

namespace Ostrel::Util {

/// Process-wide choice between "https" (true, the default) and "http" (false) where a request may
/// take either: a test run behind an intercepting proxy switches it off.
OSTREL_QTUTIL_EXPORT void SetDefaultSslUsage(bool useSsl);
OSTREL_QTUTIL_EXPORT bool DefaultSslUsage();

/// `url` with its "http"/"https" scheme (any case) set by DefaultSslUsage(). Any other text, a
/// different scheme or none at all, is returned unchanged.
OSTREL_QTUTIL_EXPORT QString ReplaceUrlProtocol(const QString& url);

} // namespace Ostrel::Util
