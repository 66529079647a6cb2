// The e-mail collector with its dialog and its sender: as a user fills the dialog, against a
// server on 127.0.0.1 that records what arrives, and the faults of the send.

#include "App/Application/Extensions/EmailCollector/EmailCollector.h"
#include "Core/LinksManager.h"
#include "Email/EmailDialogCreator.h"
#include "Email/EmailSender.h"
#include "Http/HttpClient.h"

#include "ExtensionFakes.h"
#include "LogCapture.h"
#include "RecordingHttpServer.h"
#include "TestEnvironment.h"

#include <QApplication>
#include <QCheckBox>
#include <QDeadlineTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <atomic>
#include <thread>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

namespace {

// What a user does in the dialog that is open: types, ticks or unticks the consent, clicks.
struct UserInput
{
    QString name;
    QString email;
    bool consent = true;
    bool cancel = false;
    QString fixedEmail; // typed after the dialog refused `email`
};

void actOnDialog(const UserInput& input, bool* refused)
{
    QWidget* dialog = QApplication::activeModalWidget();
    QVERIFY(dialog);
    auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("nameEdit"));
    auto* email = dialog->findChild<QLineEdit*>(QStringLiteral("emailEdit"));
    auto* consent = dialog->findChild<QCheckBox*>(QStringLiteral("newsletterCheck"));
    QVERIFY(name && email && consent);
    if (input.cancel) {
        QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("cancelButton")), Qt::LeftButton);
        return;
    }
    QTest::keyClicks(name, input.name);
    QTest::keyClicks(email, input.email);
    if (consent->isChecked() != input.consent)
        QTest::mouseClick(consent, Qt::LeftButton);
    auto* subscribe = dialog->findChild<QPushButton*>(QStringLiteral("subscribeButton"));
    QTest::mouseClick(subscribe, Qt::LeftButton);
    if (input.fixedEmail.isEmpty())
        return;
    *refused = dialog->isVisible() && dialog->findChild<QLabel*>(QStringLiteral("errorLabel"))->isVisible();
    email->clear();
    QTest::keyClicks(email, input.fixedEmail);
    QTest::mouseClick(subscribe, Qt::LeftButton);
}

} // namespace

Q_DECLARE_METATYPE(UserInput)

class TestEmail : public QObject
{
    Q_OBJECT

    std::shared_ptr<ExtensionCustomization> m_customization;
    std::shared_ptr<MemoryMailSettings> m_mail;
    std::shared_ptr<SettableLaunchType> m_launchType;

    std::shared_ptr<LinksManager> realLinks(const QString& collectTemplate)
    {
        m_customization->custom["Links/COLLECT_EMAIL_URL"] = collectTemplate.toStdString();
        return std::make_shared<LinksManager>(
            m_customization, std::make_shared<FakeHardware>(), std::make_shared<FakeLookAndFeel>(), m_mail,
            std::make_shared<MemoryProductSettings>(), std::make_shared<MemoryUserSettings>(), m_launchType,
            nullptr, nullptr);
    }

    std::unique_ptr<EmailCollector>
    collector(const std::shared_ptr<ILinksManager>& links,
              const std::shared_ptr<Networking::IHttpClient>& http,
              const std::shared_ptr<ExternalStimulus::IGateway>& gateway = nullptr)
    {
        return std::make_unique<EmailCollector>(m_customization, links, m_mail, m_launchType, gateway, http);
    }

private slots:
    void init()
    {
        m_customization = std::make_shared<ExtensionCustomization>();
        m_mail = std::make_shared<MemoryMailSettings>();
        m_launchType = std::make_shared<SettableLaunchType>();
    }

    void whoIsAsked_data()
    {
        QTest::addColumn<int>("launchType");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QString>("regUser"); // "-": absent
        QTest::addColumn<bool>("asked");

        QTest::newRow("new user") << 1 << true << "-" << true;
        QTest::newRow("update") << 2 << true << "-" << false;
        QTest::newRow("background") << 4 << true << "-" << false;
        QTest::newRow("collection off") << 1 << false << "-" << false;
        QTest::newRow("registered") << 1 << true << "1" << false;
        QTest::newRow("registered 2 is not 1") << 1 << true << "2" << true;
        QTest::newRow("registered 11 is not 1") << 1 << true << "11" << true;
    }

    void whoIsAsked()
    {
        QFETCH(int, launchType);
        QFETCH(bool, enabled);
        QFETCH(QString, regUser);
        QFETCH(bool, asked);
        m_launchType->type = launchType;
        m_customization->emailCollection = enabled;
        if (regUser != QLatin1String("-"))
            m_mail->values["IsRegUser"] = regUser.toStdString();
        const auto gateway = std::make_shared<HoldingGateway>();
        const auto subject = collector(std::make_shared<RecordingLinks>(), nullptr, gateway);
        QCOMPARE(subject->needCollectEmail(), asked);
        subject->onStart();
        QCOMPARE(gateway->posted.size(), size_t(asked ? 1 : 0));
        if (asked)
            QCOMPARE(gateway->posted.front().name, std::string("EMAIL_DIALOG"));
        // Registered meanwhile: the held-back dialog does not show.
        m_mail->values["IsRegUser"] = "1";
        gateway->flush();
        QVERIFY(!QApplication::activeModalWidget());
    }

    void userFillsTheDialog_data()
    {
        QTest::addColumn<UserInput>("input");
        QTest::addColumn<bool>("sent");
        QTest::addColumn<QString>("confirmed");

        QTest::newRow("subscribes")
            << UserInput{QStringLiteral("Ann Lee"), QStringLiteral("ann+x@example.com"), true, false, {}}
            << true << "1";
        QTest::newRow("invalid address first")
            << UserInput{QStringLiteral("Bo"), QStringLiteral("bo@@example"), true, false,
                         QStringLiteral("bo@example.org")}
            << true << "1";
        QTest::newRow("no consent")
            << UserInput{QStringLiteral("Cy"), QStringLiteral("cy@example.com"), false, false, {}} << false
            << "0";
        QTest::newRow("not now") << UserInput{{}, {}, true, true, {}} << false << "0";
    }

    // End to end: the real links manager and HTTP client, a server on 127.0.0.1.
    void userFillsTheDialog()
    {
        QFETCH(UserInput, input);
        QFETCH(bool, sent);
        QFETCH(QString, confirmed);
        RecordingHttpServer server;
        const auto links =
            realLinks(server.base() +
                      QStringLiteral("/subscribe/?asrc=&-TAIL_WITH_ARGS--AMP-name=-NAME--AMP-email=-EMAIL-"));
        const auto subject = collector(links, std::make_shared<Networking::HttpClient>());

        bool refused = false;
        QTimer::singleShot(0, this, [&]() { actOnDialog(input, &refused); });
        subject->onStart();
        QCOMPARE(refused, !input.fixedEmail.isEmpty());
        QCOMPARE(QString::fromStdString(m_mail->values["isConfirmed"]), confirmed);
        if (!sent) {
            // A check that no request comes: a send would have reached the local server by then.
            QTest::qWait(300);
            QVERIFY(server.requests().isEmpty());
            QVERIFY(!m_mail->Has("IsRegUser"));
            return;
        }
        const QString address = input.fixedEmail.isEmpty() ? input.email : input.fixedEmail;
        QCOMPARE(QString::fromStdString(m_mail->values["UserEmail"]), address);
        QCOMPARE(QString::fromStdString(m_mail->values["UserName"]), input.name);
        QTRY_COMPARE(m_mail->GetString("IsRegUser", ""), std::string("1"));
        QCOMPARE(server.requests().size(), 1);
        const QByteArray line = server.requests().first().line;
        QVERIFY2(line.startsWith("GET /subscribe/?"), line.constData());
        QVERIFY2(line.contains("email=" + QUrl::toPercentEncoding(address)), line.constData());
        QVERIFY2(line.contains("name=" + QUrl::toPercentEncoding(input.name)), line.constData());
        QVERIFY(!subject->needCollectEmail());
    }

    void failedSends_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("silent");
        QTest::addColumn<bool>("withClient");
        QTest::newRow("server error") << 500 << false << true;
        QTest::newRow("no answer") << 200 << true << true;
        QTest::newRow("no HTTP client") << 200 << false << false;
    }

    void failedSends()
    {
        QFETCH(int, status);
        QFETCH(bool, silent);
        QFETCH(bool, withClient);
        RecordingHttpServer server;
        server.setReply(silent ? QByteArray() : RecordingHttpServer::response(status));
        m_mail->values = {{"UserName", "Dee"}, {"UserEmail", "dee@example.com"}};
        const auto links = realLinks(server.base() + QStringLiteral("/s/?name=-NAME--AMP-email=-EMAIL-"));
        EmailSender sender(links, withClient ? std::make_shared<Networking::HttpClient>() : nullptr, m_mail);
        sender.SetTimeout(std::chrono::milliseconds(500));
        bool called = false;
        bool success = true;
        std::string message;
        sender.SendEmail({}, [&](bool ok, const std::string& text) {
            called = true;
            success = ok;
            message = text;
        });
        QTRY_VERIFY(called);
        QVERIFY(!success);
        QVERIFY(!message.empty());
        QVERIFY(!m_mail->Has("IsRegUser"));
    }

    // The nag's way in: the values given win, and are kept.
    void givenParametersAreStored()
    {
        const auto http = std::make_shared<PendingHttpClient>();
        const auto links = std::make_shared<RecordingLinks>();
        m_mail->values = {{"UserName", "Old"}, {"UserEmail", "old@example.com"}};
        EmailSender sender(links, http, m_mail);
        int calls = 0;
        sender.SendEmail(
            {{"UserName", "New"}, {"UserEmail", "new@example.com"}, {"isConfirmed", "1"}, {"IsRegUser", "1"}},
            [&calls](bool ok, const std::string&) { calls += ok ? 1 : 100; });
        QCOMPARE(http->requests.size(), size_t(1));
        QVERIFY(!m_mail->Has("IsRegUser"));
        QCOMPARE(m_mail->values["UserEmail"], std::string("new@example.com"));
        http->pending.front()({200, {}, {}});
        QCOMPARE(calls, 1);
        QCOMPARE(m_mail->values["IsRegUser"], std::string("1"));
    }

    void twoSendsInARow()
    {
        LogCapture log;
        m_mail->values["isConfirmed"] = "1";
        const auto http = std::make_shared<PendingHttpClient>();
        const auto subject = collector(std::make_shared<RecordingLinks>(), http);
        subject->sendUserEmail();
        subject->sendUserEmail();
        QCOMPARE(http->pending.size(), size_t(2));
        http->pending[0]({500, {}, "server said no"});
        QCOMPARE(log.matching("server said no").size(), size_t(1));
        QVERIFY(log.matching("callback raised").empty());
        // The newer promise was fulfilled by the older answer: the second fulfilment raises inside
        // the callback, and the sender keeps it from the network code.
        http->pending[1]({200, {}, {}});
        QCOMPARE(log.matching("callback raised").size(), size_t(1));
    }

    void lateWorkAfterTheCollectorIsGone_data()
    {
        QTest::addColumn<QString>("late");
        QTest::newRow("a gateway runs the held dialog") << QStringLiteral("dialog");
        QTest::newRow("an answer on this thread") << QStringLiteral("answer");
        QTest::newRow("an answer on another thread") << QStringLiteral("threaded answer");
    }

    // Work the collector started that comes back after it is gone finds nothing to touch.
    void lateWorkAfterTheCollectorIsGone()
    {
        QFETCH(QString, late);
        m_mail->values["isConfirmed"] = "1";
        const auto http = std::make_shared<PendingHttpClient>();
        const auto gateway = std::make_shared<HoldingGateway>();
        auto subject = collector(std::make_shared<RecordingLinks>(), http, gateway);
        if (late == QLatin1String("dialog"))
            subject->onStart();
        else
            subject->sendUserEmail();
        subject.reset();
        if (late == QLatin1String("dialog")) {
            QCOMPARE(gateway->posted.size(), size_t(1));
            gateway->flush();
            QVERIFY(!QApplication::activeModalWidget());
        } else if (late == QLatin1String("answer")) {
            http->pending.front()({200, {}, {}});
        } else {
            std::thread answer(http->pending.front(), Networking::HttpResponse{200, {}, {}});
            answer.join();
        }
        QVERIFY(!m_mail->Has("IsRegUser"));
    }

    // A second send while the first one's answer arrives on another thread: the new promise and
    // the late fulfilment meet on one lock (the race checker's pass runs this).
    void aNewSendWhileAnAnswerArrivesOnAnotherThread()
    {
        LogCapture log;
        const auto http = std::make_shared<PendingHttpClient>();
        const auto subject = collector(std::make_shared<RecordingLinks>(), http);
        subject->sendUserEmail();
        const auto firstAnswer = http->pending.front();
        std::thread answer(firstAnswer, Networking::HttpResponse{500, {}, "first refused"});
        subject->sendUserEmail();
        answer.join();
        QCOMPARE(http->pending.size(), size_t(2));
        http->pending[1]({500, {}, "second refused"});
        QCOMPARE(log.matching("refused").size(), size_t(2));
    }

    // An HTTP client may answer on a thread of its own: once the sender is gone, no callback runs,
    // not even one that had begun (what it touches may die with the sender).
    void anAnswerOnAnotherThreadNeverOutlivesTheSender()
    {
        const auto http = std::make_shared<PendingHttpClient>();
        auto sender = std::make_unique<EmailSender>(std::make_shared<RecordingLinks>(), http, m_mail);
        int calls = 0; // plain: only the sender's lock orders the two threads
        std::atomic<bool> inCallback{false};
        std::atomic<bool> destroyed{false};
        sender->SendEmail({}, [&](bool, const std::string&) {
            inCallback = true;
            // A callback that is still busy when the destructor comes; a destructor that waits for
            // it never sets `destroyed`, so the wait is bounded.
            const QDeadlineTimer deadline(100);
            while (!destroyed && !deadline.hasExpired())
                std::this_thread::yield();
            ++calls;
        });
        std::thread answer([&]() { http->pending.front()({200, {}, {}}); });
        while (!inCallback)
            std::this_thread::yield();
        sender.reset();
        destroyed = true;
        const int afterDestruction = calls;
        answer.join();
        QCOMPARE(afterDestruction, 1);
        QCOMPARE(calls, 1);
    }

    void nullArguments()
    {
        const auto links = std::make_shared<RecordingLinks>();
        QVERIFY_EXCEPTION_THROWN(EmailCollector(nullptr, links, m_mail, m_launchType, nullptr, nullptr),
                                 std::logic_error);
        QVERIFY_EXCEPTION_THROWN(
            EmailCollector(m_customization, nullptr, m_mail, m_launchType, nullptr, nullptr),
            std::logic_error);
        QVERIFY_EXCEPTION_THROWN(EmailCollector(m_customization, links, m_mail, nullptr, nullptr, nullptr),
                                 std::logic_error);
        QVERIFY(!EmailDialogCreator::Create(nullptr, links, m_customization, nullptr));
    }
};

OSTREL_TEST_MAIN(TestEmail)
#include "tst_email.moc"
