#pragma once

#include <string>
#include <vector>

namespace Ostrel::App::WebConfig {

/// The nag settings of the web configuration.
class INagsSettings
{
public:
    virtual ~INagsSettings() = default;
    virtual int nagIdleAfterStartTimeout() const = 0;
    virtual int nagIdleAfterEditTimeout() const = 0;
    virtual int delayBetweenDownload() const = 0;
    virtual bool useOldConfigDownloader() const = 0;
    virtual bool storeConfigBetweenSessions() const = 0;
    virtual bool useExtractedNagCache() const = 0;
    virtual bool preloadNagContentOnStart() const = 0;
    virtual bool storeNagsBetweenSessions() const = 0;
    virtual std::string nagDimmingName() const = 0;
    virtual std::string nagDimmingParameters() const = 0;
    virtual bool sendNagHashEvent() const = 0;
    virtual std::vector<std::string> nagsProhibitedToDisable() const = 0;
    virtual std::vector<std::string> nagsPriority() const = 0;
    virtual bool asyncNagsLoad() const = 0;
    virtual bool useNewNagsDrawer() const = 0;
};

} // namespace Ostrel::App::WebConfig
