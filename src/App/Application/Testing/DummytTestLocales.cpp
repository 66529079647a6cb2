#include "App/Application/Testing/DummytTestLocales.h"

#include "Foundation/Utf8.h"
#include "Interfaces/ILookAndFeelManager.h"

#include <QCommandLineParser>

#include <algorithm>

namespace Ostrel::App {

namespace {

const QCommandLineOption& localesOption()
{
    static const QCommandLineOption option(
        QStringLiteral("test-custom-locales"), QStringLiteral("Set locales: en_US,ru_RU"),
        QStringLiteral("locales"),
        QStringLiteral(
            "en_US,de_DE,ru_RU,es_ES,fr_FR,it_IT,ja_JP,nl_NL,pl_PL,pt_BR,tr_TR,ko_KR,zh_CN,zh_TW"));
    return option;
}

} // namespace

void DummytTestLocales::initialize(const QCommandLineParser&) {}

void DummytTestLocales::run(const QCommandLineParser&) {}

QList<QCommandLineOption> DummytTestLocales::getCLO() const
{
    return {localesOption()};
}

std::list<std::string>
DummytTestLocales::selectedLocales(const QCommandLineParser& parser,
                                   const std::shared_ptr<ILookAndFeelManager>& lookAndFeelManager) const
{
    if (!lookAndFeelManager)
        return {};
    const QStringList wanted = parser.value(localesOption()).split(QLatin1Char(','));
    std::list<std::string> locales = lookAndFeelManager->GetLocales();
    locales.remove_if(
        [&](const std::string& locale) { return !wanted.contains(Util::Utf8ToQString(locale)); });
    // The locales with the longest and the most common texts come first: they break layouts soonest.
    // Stable, so that two runs walk (and dump) in the same order.
    std::stable_partition(locales.begin(), locales.end(), [](const std::string& locale) {
        return locale == "ru_RU" || locale == "de_DE" || locale == "en_US";
    });
    return locales;
}

} // namespace Ostrel::App
