// Nags that go wrong: QML that doesn't load, a nag server that answers 404 or never answers. The
// content ends Failed, and no dialog stays up for it. Qt's own QML error lines are expected here.

#include "App/Application/NagScreen/DialogStrategy.h"
#include "Nag/NagManager.h"
#include "Nag/QuickContent.h"
#include "Nag/WebQuickContent.h"

#include "FixedUrlGenerator.h"
#include "LogCapture.h"
#include "RecordingHttpServer.h"
#include "TestEnvironment.h"

#include <QDialog>
#include <QTimer>

using namespace Ostrel::App;
using namespace Ostrel::App::NagScreen;
using namespace Ostrel::Test;

namespace {

ContentEnvironment environment(const QUrl& url, int timeoutMs)
{
    ContentEnvironment env;
    env.urlGenerator = std::make_shared<FixedUrlGenerator>(url);
    env.webTimeoutMs = timeoutMs;
    // The local nag server is the product's, over plain http.
    env.access.hosts = QStringList{QStringLiteral("127.0.0.1")};
    env.access.allowHttp = true;
    return env;
}

ContentState loadAndWait(AbstractContent& content)
{
    content.Load();
    if (content.State() == ContentState::Loading) {
        QSignalSpy changed(&content, &AbstractContent::StateChanged);
        changed.wait(10000);
    }
    return content.State();
}

} // namespace

class FaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void brokenOrMissingQmlFails_data()
    {
        QTest::addColumn<QUrl>("source");
        QTest::newRow("does not compile") << QUrl(QStringLiteral("qrc:/test/qml/Broken.qml"));
        QTest::newRow("missing file") << QUrl::fromLocalFile(QStringLiteral("/nowhere/main.qml"));
        QTest::newRow("no source") << QUrl();
    }
    void brokenOrMissingQmlFails()
    {
        QFETCH(QUrl, source);
        QuickContent content(NagContext{QStringLiteral("app_start"), QStringLiteral("free")}, source,
                             ContentEnvironment());
        QCOMPARE(loadAndWait(content), ContentState::Failed);
        QVERIFY(content.Picture().isNull());
        QVERIFY(content.ComputedHash().isEmpty());

        // Shown all the same, it ends at once with -1 instead of leaving an empty modal window.
        QWidget window;
        window.show();
        DialogStrategy strategy({});
        // Bounded: a dialog left open is ended after five seconds with a code the row does not expect.
        QTimer guard;
        guard.setSingleShot(true);
        QObject::connect(&guard, &QTimer::timeout, []() {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                dialog->done(-99);
        });
        guard.start(5000);
        QCOMPARE(strategy.ShowNag(content), -1);
    }

    void aWebNagLoadsFromTheGeneratedAddress()
    {
        RecordingHttpServer server;
        // The QML engine also asks for the folder's qmldir, which a nag server hasn't.
        server.setReplyFor("/nag/qmldir", RecordingHttpServer::response(404));
        server.setReply(RecordingHttpServer::response(200,
                                                      "import QtQuick 2.15\nItem { width: 400; height: 250; "
                                                      "readonly property string nag_id: \"web_1\" }\n"));
        WebQuickContent content(NagContext{QStringLiteral("app_start"), QStringLiteral("free")}, QUrl(),
                                environment(server.url(QStringLiteral("/nag/main.qml")), 5000));
        QCOMPARE(loadAndWait(content), ContentState::Ready);
        QCOMPARE(content.Id(), QStringLiteral("web_1"));
        QCOMPARE(content.SourceUrl(), server.url(QStringLiteral("/nag/main.qml")));
        QCOMPARE(content.GetUi()->size(), QSize(400, 250));
        QCOMPARE(content.Type(), QStringLiteral("web"));
    }

    void aWebNagThatIsNotThereFails_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<int>("timeoutMs");
        QTest::newRow("404") << RecordingHttpServer::response(404, "gone") << 5000;
        QTest::newRow("not QML") << RecordingHttpServer::response(200, "<html>sorry</html>") << 5000;
        QTest::newRow("never answers") << QByteArray() << 300;
    }
    void aWebNagThatIsNotThereFails()
    {
        QFETCH(QByteArray, reply);
        QFETCH(int, timeoutMs);
        RecordingHttpServer server;
        // The QML engine also asks for the folder's qmldir, which a nag server hasn't.
        server.setReplyFor("/nag/qmldir", RecordingHttpServer::response(404));
        server.setReply(reply);
        WebQuickContent content(NagContext{QStringLiteral("app_close"), QStringLiteral("free")}, QUrl(),
                                environment(server.url(QStringLiteral("/nag/main.qml")), timeoutMs));
        QCOMPARE(loadAndWait(content), ContentState::Failed);
        QCOMPARE(server.requestsTo("/nag/main.qml").size(), 1);
    }

    // An address may carry what a link filled in; the log gets it masked.
    void addressesInTheLogAreMasked()
    {
        Ostrel::Test::LogCapture log;
        NagManager manager(nullptr, QStringLiteral(":/no-map.json"));
        manager.AddNag(QStringLiteral("free"), QString(),
                       QUrl(QStringLiteral("https://nags.example/n?email=jane.doe%40example.com")), {}, {},
                       0);
        QuickContent content(NagContext{QStringLiteral("app_start"), QStringLiteral("free")},
                             QUrl(QStringLiteral("qrc:/no/jane.doe@example.com/main.qml")),
                             ContentEnvironment());
        content.Load();
        QCOMPARE(content.State(), ContentState::Failed);
        QCOMPARE(log.matching("A nag without action").size(), size_t(1));
        QCOMPARE(log.matching("qrc:/no/***/main.qml").size(), size_t(1));
        QVERIFY(log.matching("jane.doe").empty());
    }
};

OSTREL_TEST_MAIN(FaultsTest)

#include "tst_faults.moc"
