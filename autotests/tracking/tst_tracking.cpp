#include "Foundation/PersonalDataMask.h"
#include "LogCapture.h"
#include "TestEnvironment.h"
#include "Tracking/GeneralOstrelTracker.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <thread>

using Ostrel::Tracking::GeneralOstrelTracker;

namespace {

QList<QByteArray> fileLines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<QByteArray> lines = file.readAll().split('\n');
    // The file ends with a newline, so the last piece is empty when the file is whole.
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

QJsonObject parse(const QByteArray& line)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return {};
    return document.object();
}

} // namespace

class TestTracking : public QObject
{
    Q_OBJECT

private slots:
    void eventsBecomeJsonLinesInOrder()
    {
        QTemporaryDir dir;
        // A folder that does not exist yet: the tracker makes it.
        GeneralOstrelTracker tracker(dir.filePath(QStringLiteral("sub/tracking.jsonl")));
        // Whatever field an event gains, its value passes the mask on the way to the file.
        tracker.sendEvent("app_start",
                          {{"launch_type", "1"}, {"city", "Zürich"}, {"any", "to jo@x.example"}});
        tracker.sendEvent("quit", {});

        const QList<QByteArray> lines = fileLines(tracker.filePath());
        QCOMPARE(lines.size(), 2);
        const QJsonObject first = parse(lines.at(0));
        QCOMPARE(first.value(QStringLiteral("event")).toString(), QStringLiteral("app_start"));
        const QJsonObject params = first.value(QStringLiteral("params")).toObject();
        QCOMPARE(params.size(), 3);
        QCOMPARE(params.value(QStringLiteral("launch_type")).toString(), QStringLiteral("1"));
        QCOMPARE(params.value(QStringLiteral("city")).toString(), QStringLiteral("Zürich"));
        QCOMPARE(params.value(QStringLiteral("any")).toString(), QStringLiteral("to ***"));
        const QString time = first.value(QStringLiteral("time")).toString();
        const QDateTime parsed = QDateTime::fromString(time, Qt::ISODateWithMs);
        QVERIFY2(parsed.isValid(), qPrintable(time));
        // Milliseconds and an explicit offset make times comparable across machines.
        QVERIFY2(QRegularExpression(QStringLiteral(R"(\.\d{3}(Z|[+-]\d{2}:\d{2})$)")).match(time).hasMatch(),
                 qPrintable(time));
        QVERIFY(qAbs(parsed.msecsTo(QDateTime::currentDateTime())) < 60 * 1000);

        const QJsonObject second = parse(lines.at(1));
        QCOMPARE(second.value(QStringLiteral("event")).toString(), QStringLiteral("quit"));
        QVERIFY(second.value(QStringLiteral("params")).toObject().isEmpty());
    }

    void unwritableFileDropsEventsWithOneWarning()
    {
        QTemporaryDir dir;
        // A folder where the file should be can not be opened for writing, even by root.
        const QString path = dir.filePath(QStringLiteral("taken"));
        QVERIFY(QDir().mkpath(path));
        Ostrel::Test::LogCapture log;
        GeneralOstrelTracker tracker(path);
        tracker.sendEvent("a", {});
        tracker.sendEvent("b", {});
        QCOMPARE(log.matching(path.toStdString()).size(), std::size_t(1));
    }

    void concurrentEventsStayWholeLines()
    {
        QTemporaryDir dir;
        GeneralOstrelTracker tracker(dir.filePath(QStringLiteral("tracking.jsonl")));
        const int threadCount = 4;
        const int perThread = 200;
        std::vector<std::thread> threads;
        for (int t = 0; t < threadCount; ++t) {
            threads.emplace_back([&tracker, t] {
                for (int i = 0; i < perThread; ++i)
                    tracker.sendEvent("tick", {{"thread", std::to_string(t)},
                                               {"i", std::to_string(i)},
                                               {"padding", std::string(300, 'x')}});
            });
        }
        for (std::thread& thread : threads)
            thread.join();

        const QList<QByteArray> lines = fileLines(tracker.filePath());
        QCOMPARE(lines.size(), threadCount * perThread);
        std::vector<int> nextOfThread(threadCount, 0);
        for (const QByteArray& line : lines) {
            const QJsonObject params = parse(line).value(QStringLiteral("params")).toObject();
            const int thread = params.value(QStringLiteral("thread")).toString().toInt();
            QVERIFY2(params.size() == 3, line.constData());
            // Each thread's own events keep their order.
            QCOMPARE(params.value(QStringLiteral("i")).toString().toInt(), nextOfThread[thread]++);
        }
    }

    void tornLastLineIsEndedBeforeTheNextEvent()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("tracking.jsonl"));
        // What a full disk or a killed process leaves: a line without its end.
        QFile torn(path);
        QVERIFY(torn.open(QIODevice::WriteOnly));
        torn.write("{\"event\":\"whole\"}\n{\"event\":\"cu");
        torn.close();

        GeneralOstrelTracker tracker(path);
        tracker.sendEvent("next", {});
        const QList<QByteArray> lines = fileLines(path);
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines.at(1), QByteArray("{\"event\":\"cu"));
        QCOMPARE(parse(lines.at(2)).value(QStringLiteral("event")).toString(), QStringLiteral("next"));
    }

    void rotatesPastTheSizeCap()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("tracking.jsonl"));
        const qint64 cap = 1000;
        GeneralOstrelTracker tracker(path, cap);
        // About 75 bytes an event: the file turns over more than once.
        for (int i = 0; i < 35; ++i)
            tracker.sendEvent("tick", {{"I", std::to_string(i)}});

        const QList<QByteArray> current = fileLines(path);
        const QList<QByteArray> older = fileLines(path + QStringLiteral(".1"));
        QVERIFY(QFileInfo(path).size() <= cap);
        QVERIFY(QFileInfo(path + QStringLiteral(".1")).size() <= cap);
        QVERIFY(!QFileInfo::exists(path + QStringLiteral(".2")));
        // The newest events are kept, in order, across the two files.
        QVERIFY(!current.isEmpty() && !older.isEmpty());
        const auto indexOf = [](const QByteArray& line) {
            return parse(line)
                .value(QStringLiteral("params"))
                .toObject()
                .value(QStringLiteral("I"))
                .toString()
                .toInt();
        };
        QCOMPARE(indexOf(current.last()), 34);
        QCOMPARE(indexOf(older.last()) + 1, indexOf(current.first()));
    }

    void fullDiskIsLoggedOnceAndNeverThrows()
    {
        // Every write to /dev/full fails as on a full disk.
        if (!QFileInfo::exists(QStringLiteral("/dev/full")))
            QSKIP("no /dev/full here");
        Ostrel::Test::LogCapture log;
        GeneralOstrelTracker tracker(QStringLiteral("/dev/full"));
        for (int i = 0; i < 5; ++i)
            tracker.sendEvent("lost", {});
        QCOMPARE(log.matching("/dev/full").size(), std::size_t(1));
    }

    void personalDataIsMasked_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");

        QTest::newRow("query values of name and address")
            << QStringLiteral("https://link.example.com/ty/"
                              "?app=x&name=Jane%20Roe&email=jane.roe%40mail.example.org&lt=1")
            << QStringLiteral("https://link.example.com/ty/?app=x&name=***&email=***&lt=1");
        QTest::newRow("address in a path segment")
            << QStringLiteral("https://example.com/u/jane.roe@mail.example.org/profile")
            << QStringLiteral("https://example.com/u/***/profile");
        QTest::newRow("known name in a path segment")
            << QStringLiteral("https://example.com/hello/Jane%20Roe/")
            << QStringLiteral("https://example.com/hello/***/");
        QTest::newRow("percent-encoded address under another key")
            << QStringLiteral("https://example.com/?to=jane.roe%40mail.example.org&a=1")
            << QStringLiteral("https://example.com/?to=***&a=1");
        QTest::newRow("plus in the address, encoded")
            << QStringLiteral("?x=jane%2Broe%40mail.example.org") << QStringLiteral("?x=***");
        QTest::newRow("plus for the blank of a known name")
            << QStringLiteral("?greet=Jane+Roe&b=2") << QStringLiteral("?greet=***&b=2");
        QTest::newRow("upper case") << QStringLiteral(
                                           "HTTPS://EXAMPLE.COM/?NAME=JOHN&EMAIL=JANE.ROE@MAIL.EXAMPLE.ORG")
                                    << QStringLiteral("HTTPS://EXAMPLE.COM/?NAME=***&EMAIL=***");
        QTest::newRow("known name in other case in a log line")
            << QStringLiteral("Opening for jane roe now") << QStringLiteral("Opening for *** now");
        // A name this run has not filled in itself: the value ends where its query item ends.
        QTest::newRow("blank of a shown %20 in a value")
            << QStringLiteral("Link refused: \"https://x.example/?name=Don Quixote&lt=1\" (no)")
            << QStringLiteral("Link refused: \"https://x.example/?name=***&lt=1\" (no)");
        QTest::newRow("link quoted in another link")
            << QStringLiteral("?next=https%3A%2F%2Fx.example%2F%3FNAME%3DDon%2520Quixote%26lt%3D1")
            << QStringLiteral("?next=https%3A%2F%2Fx.example%2F%3FNAME%3D***%26lt%3D1");
        QTest::newRow("nothing personal stays")
            << QStringLiteral("https://example.com/learn-more/?lang=en&username_hint=1")
            << QStringLiteral("https://example.com/learn-more/?lang=en&username_hint=1");
    }

    void personalDataIsMasked()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        Ostrel::Core::PersonalDataMask::rememberPersonalValue(QStringLiteral("Jane Roe"));
        QCOMPARE(Ostrel::Core::PersonalDataMask::mask(text), expected);
        Ostrel::Core::PersonalDataMask::forgetPersonalValues();
    }
};

OSTREL_TEST_MAIN(TestTracking)
#include "tst_tracking.moc"
