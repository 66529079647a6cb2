#include "App/Application/Testing/Testing.h"

#include "App/Application/Testing/CrashTest.h"
#include "App/Application/Testing/ITest.h"
#include "App/Application/Testing/NagTest.h"
#include "App/Application/Testing/SslTest.h"
#include "App/Application/Testing/TestHelp_p.h"
#include "App/Application/Testing/UrlTest.h"
#include "Interfaces/ILifetimeManager.h"
#include "Interfaces/LifetimeObserver.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <list>

namespace Ostrel::App {

class Testing::Impl : public LifetimeObserver
{
public:
    explicit Impl(const Core::NotNull<std::shared_ptr<ILifetimeManager>>& manager) : lifetimeManager(manager)
    {
        lifetimeManager->RegisterEventHandler(this);
    }

    ~Impl() override { lifetimeManager->UnregisterEventHandler(this); }

    void onStart() override
    {
        const auto parser = makeParser();
        // A copy: a test's run may register further tests, which then only initialize.
        const auto current = tests;
        for (const auto& test : current)
            test->run(*parser);
    }

    // Built afresh each time, so that it knows the options of every test registered so far. The
    // command line also holds the host's own options, unknown here: parse(), never process(), and
    // its verdict is ignored.
    std::unique_ptr<QCommandLineParser> makeParser() const
    {
        auto parser = std::make_unique<QCommandLineParser>();
        const QList<QCommandLineOption> known = options();
        // Two tests may share an option (the choice of locales): the parser takes each name once.
        QStringList added;
        for (const QCommandLineOption& option : known) {
            if (added.contains(option.names().first()))
                continue;
            added += option.names();
            parser->addOption(option);
        }
        parser->parse(withoutDanglingOption(QCoreApplication::arguments(), known));
        return parser;
    }

    // QCommandLineParser reports an option that wants a value and stands last without one as an
    // error, yet counts it as set: "--test-crash-after" alone would then crash after its default.
    // Such an option is dropped, so that it is not set at all.
    static QStringList withoutDanglingOption(QStringList arguments, const QList<QCommandLineOption>& known)
    {
        if (arguments.size() < 2)
            return arguments;
        const QString last = arguments.last();
        if (!last.startsWith(QLatin1Char('-')) || last.contains(QLatin1Char('=')))
            return arguments;
        const QString name = last.mid(last.startsWith(QStringLiteral("--")) ? 2 : 1);
        for (const QCommandLineOption& option : known) {
            if (!option.valueName().isEmpty() && option.names().contains(name)) {
                arguments.removeLast();
                break;
            }
        }
        return arguments;
    }

    QList<QCommandLineOption> options() const
    {
        QList<QCommandLineOption> result;
        for (const auto& test : tests)
            result += test->getCLO();
        return result;
    }

    Core::NotNull<std::shared_ptr<ILifetimeManager>> lifetimeManager;
    std::list<std::shared_ptr<ITest>> tests;
};

Testing::Testing(const std::shared_ptr<ILifetimeManager>& lifetimeManager)
    : d(std::make_unique<Impl>(lifetimeManager))
{
    addTest(std::make_shared<TestHelp>(this));
    addTest(std::make_shared<SslTest>());
    addTest(std::make_shared<CrashTest>());
}

Testing::~Testing() = default;

void Testing::addTest(const Core::NotNull<std::shared_ptr<ITest>>& test)
{
    d->tests.push_back(test.get());
    const auto parser = d->makeParser();
    test->initialize(*parser);
}

void Testing::initialize(const std::shared_ptr<ICustomizationManager>& customizationManager,
                         const std::shared_ptr<ILookAndFeelManager>& lookAndFeelManager,
                         const std::shared_ptr<ILinksManager>& linksManager,
                         const std::shared_ptr<NagScreen::IManager>& nagManager)
{
    addTest(std::make_shared<UrlTest>(customizationManager, lookAndFeelManager, linksManager));
    addTest(std::make_shared<NagTest>(customizationManager, lookAndFeelManager, nagManager));
}

QList<QCommandLineOption> Testing::getCommandLineArguments()
{
    return d->options();
}

QStringList Testing::getCommandLineArgumentsString()
{
    QStringList names;
    for (const QCommandLineOption& option : d->options())
        names += option.names();
    return names;
}

} // namespace Ostrel::App
