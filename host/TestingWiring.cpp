#include "TestingWiring.h"

#include "App/Application/Application.h"
#include "App/Application/Testing/ConnectionTest.h"
#include "App/Application/Testing/Testing.h"
#include "App/Application/Testing/UrlTest.h"
#include "Foundation/Utf8.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IInternetConnectionChecker.h"

#include <glog/logging.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <cstdio>

using namespace Ostrel;
using namespace Ostrel::App;

class TestingWiring::Impl
{
public:
    std::unique_ptr<Testing> testing;
    std::shared_ptr<ConnectionTest> connection = std::make_shared<ConnectionTest>();
};

TestingWiring::TestingWiring() : d(std::make_unique<Impl>()) {}

TestingWiring::~TestingWiring() = default;

std::unique_ptr<TestingWiring> TestingWiring::create(const std::shared_ptr<ILifetimeManager>& lifetime)
{
    std::unique_ptr<TestingWiring> wiring(new TestingWiring);
    try {
        wiring->d->testing = std::make_unique<Testing>(lifetime);
        // Before anything asks for the connection checker.
        wiring->d->testing->addTest(wiring->d->connection);
    } catch (const std::exception& error) {
        LOG(ERROR) << "Test options: " << error.what();
        std::fprintf(stderr, "ostrel-host: %s\n", error.what());
        return nullptr;
    }
    return wiring;
}

void TestingWiring::connect(Application& application)
{
    const auto checker = application.get<IInternetConnectionChecker>();
    const auto replaced = d->connection->replaceIfNeeded(checker);
    if (replaced != checker) {
        LOG(WARNING) << "Test options: the internet is off for this run";
        application.set<IInternetConnectionChecker>(replaced);
    }
    d->testing->initialize(application.GetCustomizationManager(), application.GetLookAndFeel(),
                           application.GetLinksManager(), application.GetNagScreenManager());
}

QString TestingWiring::outputSummary(Application& application) const
{
    QCommandLineParser parser;
    QStringList added;
    for (const QCommandLineOption& option : d->testing->getCommandLineArguments()) {
        if (!added.contains(option.names().first()))
            parser.addOption(option);
        added += option.names();
    }
    parser.parse(QCoreApplication::arguments());
    const auto customization = application.GetCustomizationManager();
    const QString module = customization ? Util::Utf8ToQString(customization->GetModuleName()) : QString();
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QString summary;
    if (parser.isSet(QStringLiteral("test-nag-screens"))) {
        const QString dir = parser.value(QStringLiteral("test-nag-screens-dir"));
        const QString root = QDir(dir.isEmpty() ? data : dir).filePath(QStringLiteral("NagScreenshots"));
        summary += QStringLiteral("Nag pictures and web nag URLs: %1\nNag hashes: %2\n")
                       .arg(QDir::toNativeSeparators(root),
                            QDir::toNativeSeparators(root + QLatin1Char('/') + module +
                                                     QStringLiteral("/NagHash.md")));
    }
    if (parser.isSet(QStringLiteral("test-dump-urls")) || parser.isSet(QStringLiteral("test-open-urls")))
        summary += QStringLiteral("URL dump: %1\n")
                       .arg(QDir::toNativeSeparators(data + QLatin1Char('/') + module +
                                                     QStringLiteral("-url-dump.csv")));
    if (parser.isSet(QStringLiteral("test-log-urls")))
        summary += QStringLiteral("Opened URLs: %1\n").arg(parser.value(QStringLiteral("test-log-urls")));
    return summary;
}
