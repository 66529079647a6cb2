// What surrounds the application object: the DPI policy chosen before Qt starts, the process
// listing, and the wait for a running installer.

#include "App/Application/Application.h"
#include "App/Application/StartupEnvironment.h"

#include "ProbeRunner.h"
#include "TestEnvironment.h"

using namespace Ostrel::App;

class EnvironmentTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void dpiPolicy_data()
    {
        QTest::addColumn<QString>("policy"); // "-" leaves the variable unset
        QTest::addColumn<bool>("withShcore");
        QTest::addColumn<bool>("expectScaling");
        QTest::addColumn<bool>("expectAwarenessCall");

        QTest::newRow("unset, no system library") << "-" << false << true << false;
        QTest::newRow("NOSCALE changes nothing") << "NOSCALE" << false << false << false;
        QTest::newRow("lower case does not match") << "noscale" << false << true << false;
        QTest::newRow("longer word does not match") << "NOSCALED" << false << true << false;
        QTest::newRow("empty value does not match") << "" << false << true << false;
        QTest::newRow("system library makes the process unaware") << "-" << true << false << true;
        QTest::newRow("NOSCALE wins over the system library") << "NOSCALE" << true << false << false;
    }

    void dpiPolicy()
    {
        QFETCH(QString, policy);
        QFETCH(bool, withShcore);
        QFETCH(bool, expectScaling);
        QFETCH(bool, expectAwarenessCall);

        Ostrel::Test::ProbeRunner probe(QStringLiteral(KERNEL_PROBE));
        QProcessEnvironment& env = probe.environment();
        env.remove(QStringLiteral("OSTREL_DPI_POLICY"));
        if (policy != QLatin1String("-"))
            env.insert(QStringLiteral("OSTREL_DPI_POLICY"), policy);
        if (withShcore)
            env.insert(QStringLiteral("LD_LIBRARY_PATH"), QStringLiteral(FAKE_SHCORE_DIR));

        const auto result = probe.run({QStringLiteral("dpi")});
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.values.value(QStringLiteral("highDpiScaling")), expectScaling ? "1" : "0");
        QCOMPARE(result.values.contains(QStringLiteral("SetProcessDpiAwareness")), expectAwarenessCall);
        if (expectAwarenessCall)
            QCOMPARE(result.values.value(QStringLiteral("SetProcessDpiAwareness")), QStringLiteral("0"));
    }

    void processMapFindsARunningProcessByLowerCaseName()
    {
        QProcess sleeper;
        sleeper.start(QStringLiteral("sleep"), {QStringLiteral("30")});
        QVERIFY(sleeper.waitForStarted());

        QStringList seen;
        const auto map = GetCurrentProcessMap([&](const QString& name) {
            seen << name;
            return name == QLatin1String("sleep");
        });
        sleeper.kill();
        sleeper.waitForFinished();

        QCOMPARE(map.size(), std::size_t(1));
        QVERIFY2(map.at(QStringLiteral("sleep")).endsWith(QLatin1String("/sleep")),
                 qPrintable(map.at(QStringLiteral("sleep"))));
        for (const QString& name : qAsConst(seen))
            QCOMPARE(name, name.toLower());
        // This very process is listed too.
        QVERIFY(seen.contains(QFileInfo(QCoreApplication::applicationFilePath()).fileName().toLower()));

        QVERIFY(GetCurrentProcessMap([](const QString&) { return false; }).empty());
        QVERIFY_EXCEPTION_THROWN(GetCurrentProcessMap(nullptr), std::bad_function_call);
    }

    void installerCheckWaitsForTheInstallerMutex()
    {
        QVERIFY(!Application::CheckRunnedInstaller());

        QProcess holder;
        holder.setProcessEnvironment(Ostrel::Test::ProbeRunner::defaultEnvironment());
        holder.start(QStringLiteral(KERNEL_PROBE),
                     {QStringLiteral("holdlock"), QStringLiteral("{8E40B7D3-12AF-49C5-B6E7-0C93F5A1D726}")});
        QVERIFY(holder.waitForStarted());
        QTRY_VERIFY(holder.canReadLine() || holder.waitForReadyRead(100));
        QCOMPARE(holder.readLine().trimmed(), QByteArray("locked=1"));

        QVERIFY(Application::CheckRunnedInstaller());

        // A holder killed outright leaves nothing locked behind.
        holder.kill();
        holder.waitForFinished();
        QVERIFY(!Application::CheckRunnedInstaller());
    }
};

OSTREL_TEST_MAIN(EnvironmentTest)
#include "tst_environment.moc"
