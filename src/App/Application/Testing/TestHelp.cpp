#include "App/Application/Testing/TestHelp_p.h"

#include "App/Application/Testing/Testing.h"
#include "QtUtil/AlertBox.h"

#include <QCommandLineParser>
#include <QSet>

#include <cstdio>

namespace Ostrel::App {

namespace {

const QCommandLineOption& helpOption()
{
    static const QCommandLineOption option(QStringLiteral("test-help"),
                                           QStringLiteral("Show help for test options"));
    return option;
}

} // namespace

TestHelp::TestHelp(Testing* testing) : m_testing(testing) {}

TestHelp::~TestHelp() = default;

void TestHelp::initialize(const QCommandLineParser&) {}

void TestHelp::run(const QCommandLineParser& parser)
{
    if (!parser.isSet(helpOption()))
        return;
    const QString text = helpText(m_testing->getCommandLineArguments());
    // Also on standard output: the table is readable from a console, a script or a machine
    // without a display, where nobody sees the box.
    std::fputs(text.toLocal8Bit().constData(), stdout);
    std::fflush(stdout);
    Util::AlertBox box(Util::AlertBox::Information, QString(), text, QMessageBox::Ok, nullptr,
                       Qt::WindowFlags(0x103));
    box.Exec();
}

QList<QCommandLineOption> TestHelp::getCLO() const
{
    return {helpOption()};
}

QString TestHelp::helpText(const QList<QCommandLineOption>& options)
{
    QString text;
    // Tests that share an option (the nag and URL tests both take the locales) each declare it;
    // the table names it once, where it was first registered.
    QSet<QString> listed;
    for (const QCommandLineOption& option : options) {
        const QStringList names = option.names();
        const QString name = names.isEmpty() ? QString() : names.first();
        if (listed.contains(name))
            continue;
        listed.insert(name);
        text += QStringLiteral("--") + name + QLatin1Char(' ') + option.description() + QLatin1Char('\n');
    }
    return text;
}

} // namespace Ostrel::App
