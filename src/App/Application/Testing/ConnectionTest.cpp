#include "App/Application/Testing/ConnectionTest.h"

#include "App/Application/Testing/FakeConnectionChecker.h"

#include <QCommandLineParser>

namespace Ostrel::App {

namespace {

const QCommandLineOption& internetOption()
{
    // Takes a value for the compatibility of old scripts; the value means nothing.
    static const QCommandLineOption option(QStringLiteral("test-internet-disable"),
                                           QStringLiteral("Disable the internet connection"),
                                           QStringLiteral("internet"));
    return option;
}

} // namespace

ConnectionTest::ConnectionTest() = default;
ConnectionTest::~ConnectionTest() = default;
ConnectionTest::ConnectionTest(const ConnectionTest&) = default;
ConnectionTest::ConnectionTest(ConnectionTest&&) noexcept = default;
ConnectionTest& ConnectionTest::operator=(const ConnectionTest&) = default;
ConnectionTest& ConnectionTest::operator=(ConnectionTest&&) noexcept = default;

void ConnectionTest::initialize(const QCommandLineParser& parser)
{
    m_internetDisabled = parser.isSet(internetOption());
}

void ConnectionTest::run(const QCommandLineParser&) {}

QList<QCommandLineOption> ConnectionTest::getCLO() const
{
    return {internetOption()};
}

std::shared_ptr<IInternetConnectionChecker>
ConnectionTest::replaceIfNeeded(const std::shared_ptr<IInternetConnectionChecker>& checker)
{
    if (!m_internetDisabled)
        return checker;
    return std::make_shared<FakeConnectionChecker>(false);
}

} // namespace Ostrel::App
