// The lifetime manager: the once-only start and its one-shot callbacks, the veto, the restart
// question. Restarts that really start a process are tested with a child process elsewhere.

#include "App/Application/LifetimeManager.h"
#include "Interfaces/LifetimeObserver.h"

#include "TestEnvironment.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>

using namespace Ostrel::App;

namespace {

class QuitRecordingManager : public LifetimeManager
{
public:
    int quits = 0;

protected:
    void quitImpl() override { ++quits; }
};

class JournalObserver : public LifetimeObserver
{
public:
    JournalObserver(QStringList* journal, QString name, bool veto = false)
        : m_journal(journal), m_name(std::move(name)), m_veto(veto)
    {
    }
    void onStart() override
    {
        *m_journal << m_name + QStringLiteral(":start");
        if (whileStarting)
            whileStarting();
    }
    void onQuitRequested(const std::function<void()>& cancel) override
    {
        *m_journal << m_name + QStringLiteral(":asked");
        if (m_veto)
            cancel();
    }
    void onQuit() override
    {
        *m_journal << m_name + QStringLiteral(":quit");
        if (whileQuitting)
            whileQuitting();
    }

    std::function<void()> whileStarting;
    std::function<void()> whileQuitting;

private:
    QStringList* m_journal;
    QString m_name;
    bool m_veto;
};

} // namespace

class LifetimeTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void startRunsCallbacksOnceInRegistrationOrder()
    {
        QuitRecordingManager manager;
        QStringList journal;
        JournalObserver observer(&journal, QStringLiteral("observer"));
        manager.addOnStartCallback([&]() { journal << QStringLiteral("callback1"); });
        manager.RegisterEventHandler(&observer);
        manager.addOnStartCallback([&]() { journal << QStringLiteral("callback2"); });
        manager.addOnStartCallback(nullptr); // registers nothing
        // What a callback holds is let go once the start has run it.
        const auto held = std::make_shared<int>(0);
        manager.addOnStartCallback([held]() {});
        observer.whileStarting = [&]() {
            QVERIFY(manager.isStarted());
            // Added while the start is being told: it never runs.
            manager.addOnStartCallback([&]() { journal << QStringLiteral("too late"); });
        };

        QVERIFY(!manager.isStarted());
        manager.start();
        manager.start();
        QCOMPARE(journal, (QStringList{QStringLiteral("callback1"), QStringLiteral("observer:start"),
                                       QStringLiteral("callback2")}));
        QCOMPARE(held.use_count(), 1L);

        // One added after the start stays registered but never runs either.
        manager.addOnStartCallback([&]() { journal << QStringLiteral("after"); });
        manager.start();
        QCOMPARE(journal.size(), 3);
    }

    void throwingObserverLeavesStartedAndCallbacksInPlace()
    {
        QuitRecordingManager manager;
        QStringList journal;
        JournalObserver thrower(&journal, QStringLiteral("thrower"));
        thrower.whileStarting = []() { throw std::runtime_error("start failed"); };
        manager.RegisterEventHandler(&thrower);
        manager.addOnStartCallback([&]() { journal << QStringLiteral("callback"); });

        QVERIFY_EXCEPTION_THROWN(manager.start(), std::runtime_error);
        QVERIFY(manager.isStarted());
        QCOMPARE(journal, QStringList{QStringLiteral("thrower:start")});
    }

    void quitAsksEveryoneAndHonoursAVeto()
    {
        QuitRecordingManager manager;
        QStringList journal;
        JournalObserver vetoer(&journal, QStringLiteral("vetoer"), true);
        JournalObserver other(&journal, QStringLiteral("other"));
        manager.RegisterEventHandler(&vetoer);
        manager.RegisterEventHandler(&other);

        QVERIFY(!manager.tryToQuit());
        QCOMPARE(journal, (QStringList{QStringLiteral("vetoer:asked"), QStringLiteral("other:asked")}));
        QVERIFY(!manager.isQuitting());
        QCOMPARE(manager.quits, 0);

        journal.clear();
        manager.UnregisterEventHandler(&vetoer);
        bool quittingWhenTold = false;
        other.whileQuitting = [&]() { quittingWhenTold = manager.isQuitting(); };
        QVERIFY(manager.tryToQuit());
        QVERIFY(quittingWhenTold);
        QCOMPARE(journal, (QStringList{QStringLiteral("other:asked"), QStringLiteral("other:quit")}));
        QVERIFY(manager.isQuitting());
        QCOMPARE(manager.quits, 1);

        // A veto of a later request does not undo the quit that went ahead.
        manager.RegisterEventHandler(&vetoer);
        QVERIFY(!manager.tryToQuit());
        QVERIFY(manager.isQuitting());
    }

    void restartAsksFirstAndStopsOnAnyAnswerButOk()
    {
        QuitRecordingManager manager;
        QStringList journal;
        JournalObserver observer(&journal, QStringLiteral("observer"));
        manager.RegisterEventHandler(&observer);

        QString title, text;
        QMessageBox::StandardButtons buttons;
        QTimer::singleShot(0, [&]() {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            title = box->windowTitle();
            text = box->text();
            buttons = box->standardButtons();
            box->button(QMessageBox::Cancel)->click();
        });
        QVERIFY(!manager.tryToRestart(Interactive, "/no/such/icon.png", "--flag"));
        QCOMPARE(title, QStringLiteral("Attention"));
        QCOMPARE(text,
                 QStringLiteral("<b>This will restart the application.</b><br>Do you want to continue?"));
        QCOMPARE(buttons, QMessageBox::Ok | QMessageBox::Cancel);
        QVERIFY(journal.isEmpty()); // nobody was even asked to quit
        QCOMPARE(manager.quits, 0);
    }

    void restartWithAVetoedQuitStopsBeforeStartingAnything()
    {
        QuitRecordingManager manager;
        QStringList journal;
        JournalObserver vetoer(&journal, QStringLiteral("vetoer"), true);
        manager.RegisterEventHandler(&vetoer);
        QVERIFY(!manager.tryToRestart(Silent, std::string(), "--should-never-run"));
        QCOMPARE(journal, QStringList{QStringLiteral("vetoer:asked")});
        QCOMPARE(manager.quits, 0);
    }
};

OSTREL_TEST_MAIN(LifetimeTest)
#include "tst_lifetime.moc"
