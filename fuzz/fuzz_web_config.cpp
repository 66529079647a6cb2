// The web configuration with its criteria on arbitrary bytes: reading every nag setting, and a
// few keys under the criteria's locales, must end without a crash.

#include "Nag/DefaultNagsSettings.h"
#include "Nag/WebConfigDocument.h"

#include <glog/logging.h>

#include <cstdint>

using namespace Ostrel::App::WebConfig;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FLAGS_minloglevel = google::GLOG_FATAL;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto document =
        WebConfigDocument::fromJson(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    for (const char* locale : {"ru_RU", "en_US", ""}) {
        const DefaultNagsSettings settings(document, QString::fromLatin1(locale));
        settings.nagDimmingName();
        settings.nagDimmingParameters();
        settings.sendNagHashEvent();
        settings.nagIdleAfterStartTimeout();
        settings.nagsProhibitedToDisable();
        settings.nagsPriority();
        document.value(QStringLiteral("CustomizationSettings"), QStringLiteral("ACTION_OSTREL_VK"),
                       QString::fromLatin1(locale));
    }
    WebConfigDocument::defaults().mergedWith(document);
    return 0;
}
