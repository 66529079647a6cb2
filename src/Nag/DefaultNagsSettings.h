#pragma once

#include "Nag/INagsSettings.h"
#include "Nag/WebConfigDocument.h"
#include "Nag/ostrel_nag_export.h"

namespace Ostrel::App::WebConfig {

/// The nag settings read from the web configuration, section "NagScreenSettings", for one locale.
/// Keys and the values used when the configuration doesn't have them:
///
/// | key | default |
/// |---|---|
/// | "NagIdleAfterStartTimeout" | 60 (seconds) |
/// | "NagIdleAfterEditTimeout" | 30 (seconds) |
/// | "DelayBetweenDownload" | 3600 (seconds) |
/// | "UseOldConfigDownloader" | false |
/// | "StoreConfigBetweenSessions" | true |
/// | "UseExtractedNagCache" | true |
/// | "PreloadNagContentOnStart" | false |
/// | "StoreNagsBetweenSessions" | true |
/// | "NagDimmingName" | "color" |
/// | "NagDimmingParameters" | "" (the dimmer's own look) |
/// | "SendNagHashEvent" | false |
/// | "NagsProhibitedToDisable" | none (a JSON array or a comma-separated text of actions) |
/// | "NagsPriority" | none (same form) |
/// | "AsyncNagsLoad" | true |
/// | "UseNewNagsDrawer" | true |
///
/// A value of the wrong type reads as the default.
class OSTREL_NAG_EXPORT DefaultNagsSettings : public INagsSettings
{
public:
    /// The built-in web configuration, for the system's locale.
    DefaultNagsSettings();
    DefaultNagsSettings(WebConfigDocument document, QString locale);
    ~DefaultNagsSettings() override;

    int nagIdleAfterStartTimeout() const override;
    int nagIdleAfterEditTimeout() const override;
    int delayBetweenDownload() const override;
    bool useOldConfigDownloader() const override;
    bool storeConfigBetweenSessions() const override;
    bool useExtractedNagCache() const override;
    bool preloadNagContentOnStart() const override;
    bool storeNagsBetweenSessions() const override;
    std::string nagDimmingName() const override;
    std::string nagDimmingParameters() const override;
    bool sendNagHashEvent() const override;
    std::vector<std::string> nagsProhibitedToDisable() const override;
    std::vector<std::string> nagsPriority() const override;
    bool asyncNagsLoad() const override;
    bool useNewNagsDrawer() const override;

    const WebConfigDocument& document() const;

private:
    int integer(const char* key, int fallback) const;
    bool boolean(const char* key, bool fallback) const;
    std::string text(const char* key, const char* fallback) const;
    std::vector<std::string> list(const char* key) const;

    WebConfigDocument m_document;
    QString m_locale;
};

} // namespace Ostrel::App::WebConfig
