#include "App/Application/Testing/TestHelp_p.h"

#include "App/Application/Testing/Testing.h"
#include "QtUtil/AlertBox.h"

#include <QCommandLineParser>

namespace Ostrel::App {

namespace {

const QCommandLineOption& helpOption()
{
    static const QCommandLineOption option(QStringLiteral("test-help"), QStringLiteral("Show help for test options"));
    return option;
}

} // namespace

TestHelp::TestHelp(Testing* testing)
    : m_testing(testing)
{
}

TestHelp::~TestHelp() = default;

void TestHelp::initialize(const QCommandLineParser&) {}

void TestHelp::run(const QCommandLineParser& parser)
{
    if (!parser.isSet(helpOption()))
        return;
    Util::AlertBox box(Util::AlertBox::Information, QString(), helpText(m_testing->getCommandLineArguments()),
                       QMessageBox::Ok, nullptr, Qt::WindowFlags(0x103));
    box.Exec();
}

QList<QCommandLineOption> TestHelp::getCLO() const
{
    return {helpOption()};
}

QString TestHelp::helpText(const QList<QCommandLineOption>& options)
{
    QString text;
    for (const QCommandLineOption& option : options) {
        const QStringList names = option.names();
        text += QStringLiteral("--") + (names.isEmpty() ? QString() : names.first()) + QLatin1Char(' ') +
                option.description() + QLatin1Char('\n');
    }
    return text;
}

} // namespace Ostrel::App
