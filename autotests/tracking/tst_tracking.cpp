#include "LogCapture.h"
#include "RecordingTracker.h"
#include "TestEnvironment.h"
#include "Tracking/ApplicationTrackerFactory.h"
#include "Tracking/GeneralOstrelTracker.h"

#include <QDateTime>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <thread>

using Ostrel::Tracking::ApplicationTrackerFactory;
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
        tracker.sendEvent("app_start", {{"launch_type", "1"}, {"city", "Zürich"}});
        tracker.sendEvent("quit", {});

        const QList<QByteArray> lines = fileLines(tracker.filePath());
        QCOMPARE(lines.size(), 2);
        const QJsonObject first = parse(lines.at(0));
        QCOMPARE(first.value(QStringLiteral("event")).toString(), QStringLiteral("app_start"));
        const QJsonObject params = first.value(QStringLiteral("params")).toObject();
        QCOMPARE(params.size(), 2);
        QCOMPARE(params.value(QStringLiteral("launch_type")).toString(), QStringLiteral("1"));
        QCOMPARE(params.value(QStringLiteral("city")).toString(), QStringLiteral("Zürich"));
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

    void factoryHoldsWhatWasInstalled()
    {
        QVERIFY(!ApplicationTrackerFactory::getApplicationTracker());
        auto recorder = std::make_shared<Ostrel::Test::RecordingTracker>();
        ApplicationTrackerFactory::setApplicationTracker(recorder);
        QCOMPARE(ApplicationTrackerFactory::getApplicationTracker().get(), recorder.get());
        ApplicationTrackerFactory::getApplicationTracker()->sendEvent("seen", {{"k", "v"}});
        QCOMPARE(recorder->names(), std::vector<std::string>{"seen"});
        ApplicationTrackerFactory::setApplicationTracker(nullptr);
        QVERIFY(!ApplicationTrackerFactory::getApplicationTracker());
    }
};

OSTREL_TEST_MAIN(TestTracking)
#include "tst_tracking.moc"
