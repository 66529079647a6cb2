// The gateway of the questions: an action never opens on top of a modal window.

#include "App/Application/Extensions/ModalFreeGateway.h"

#include "TestEnvironment.h"

#include <QMessageBox>

using namespace Ostrel::ExternalStimulus;

class TestGateway : public QObject
{
    Q_OBJECT

private slots:
    void actionsWaitForTheModalWindow_data()
    {
        QTest::addColumn<QString>("modal"); // what is open when the actions are posted, and how it goes
        QTest::newRow("nothing open") << QString();
        QTest::newRow("a question answered") << QStringLiteral("hide");
        QTest::newRow("a question deleted") << QStringLiteral("delete");
    }

    void actionsWaitForTheModalWindow()
    {
        QFETCH(QString, modal);
        auto* box =
            new QMessageBox(QMessageBox::Question, QStringLiteral("Statistics?"), QStringLiteral("Agree?"));
        box->setWindowModality(Qt::ApplicationModal);
        if (!modal.isEmpty())
            box->show();

        ModalFreeGateway gateway;
        QStringList ran;
        QList<bool> modalWhenRun;
        const auto action = [&](const char* name) {
            return [&, name]() {
                ran << QLatin1String(name);
                modalWhenRun << (QApplication::activeModalWidget() != nullptr);
            };
        };
        gateway.post({"first", action("first")});
        gateway.post({"second", action("second")});
        // Never at once: the poster is in the middle of something.
        QVERIFY(ran.isEmpty());
        QVERIFY(gateway.isHolding());
        if (!modal.isEmpty()) {
            // A check that nothing runs: the event loop turns often enough meanwhile.
            QTest::qWait(100);
            QVERIFY(ran.isEmpty());
            if (modal == QLatin1String("hide"))
                box->hide();
            else
                delete box;
        }
        QTRY_COMPARE(ran, (QStringList{QStringLiteral("first"), QStringLiteral("second")}));
        QCOMPARE(modalWhenRun, (QList<bool>{false, false}));
        QVERIFY(!gateway.isHolding());
        if (modal != QLatin1String("delete"))
            delete box;
    }
};

OSTREL_TEST_MAIN(TestGateway)
#include "tst_gateway.moc"
