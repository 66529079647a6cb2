#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Nag/IWebNagUrlGenerator.h"

#include <QString>

#include <functional>
#include <memory>

namespace Ostrel::App {
class ITopManager;
}

namespace Ostrel::App::NagScreen {

class INagIdLockStorage;

/// The address a web nag is fetched from: the links' nag request URL (or the customization's own
/// web nag URL) with a query that describes this installation, the nags the user switched off and
/// the nag id the server promised to repeat.
///
/// Values go into the query as they stand, without percent-encoding: the server reads them so.
class OSTREL_APP_EXPORT WebNagUrlGenerator : public IWebNagUrlGenerator
{
public:
    /// The query appended to the base URL; "-NAME-" are the macros filled by Generate.
    static const QString& QueryTemplate();

    WebNagUrlGenerator(const ITopManager& top, const std::shared_ptr<INagIdLockStorage>& storage);
    /// Only for reading and replacing the name: without a lock storage no id is ever included.
    WebNagUrlGenerator(const ITopManager& top, const QString& appName);
    ~WebNagUrlGenerator() override;
    WebNagUrlGenerator(const WebNagUrlGenerator&) = delete;
    WebNagUrlGenerator& operator=(const WebNagUrlGenerator&) = delete;

    QUrl Generate(const QString& mode, const QString& action, const QString& lang) override;
    /// In the current locale of the look and feel.
    QUrl Generate(const NagContext& context) override;

    QString GetAppName() const;
    void SetAppName(const QString& appName);

    /// The number sent as "gift_id". By default a fresh rand() per request (seeded from the clock
    /// on each Generate), so that the server can rotate its offers; a host or a test may fix it.
    void SetGiftIdSource(std::function<int()> source);

    /// The language code of the request for a locale: "ja_JP" is "jp", the Chinese locales stay
    /// whole, any other is cut to its language ("de_DE" is "de").
    static QString LanguageCode(const QString& locale);

private:
    QString m_appName;
    const ITopManager& m_top;
    std::shared_ptr<INagIdLockStorage> m_storage;
    QString m_appVersion;
    std::function<int()> m_giftId;
};

} // namespace Ostrel::App::NagScreen
