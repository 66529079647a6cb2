#include "App/Application/Testing/SslTest.h"

#include "QtUtil/UrlProtocol.h"

#include <QCommandLineParser>

#include <stdexcept>

namespace Ostrel::App {

namespace {

const QCommandLineOption& disableOption()
{
    static const QCommandLineOption option(
        QStringList{QStringLiteral("test-ssl-disable"), QStringLiteral("ssl-disable")},
        QStringLiteral("Use http when possible"));
    return option;
}

const QCommandLineOption& enableOption()
{
    static const QCommandLineOption option(
        QStringList{QStringLiteral("test-ssl-enable"), QStringLiteral("ssl-enable")},
        QStringLiteral("Use https when possible"));
    return option;
}

} // namespace

void SslTest::initialize(const QCommandLineParser& parser)
{
    const bool disable = parser.isSet(disableOption());
    const bool enable = parser.isSet(enableOption());
    if (disable && enable)
        throw std::runtime_error("Invalid options combination: test-ssl-disable and test-ssl-enable");
    // Without either option the utility library's own default stands untouched.
    if (disable)
        Util::SetDefaultSslUsage(false);
    if (enable)
        Util::SetDefaultSslUsage(true);
}

void SslTest::run(const QCommandLineParser&) {}

QList<QCommandLineOption> SslTest::getCLO() const
{
    return {disableOption(), enableOption()};
}

} // namespace Ostrel::App
