// Which nag another process may ask for: the product's own local nags and its nag servers' pages,
// nothing else.

#include "App/Application/NagScreen/NagRequestPolicy.h"
#include "Nag/NagConfig.h"
#include "QtUtil/UrlProtocol.h"

#include "FakeCustomization.h"
#include "TestEnvironment.h"

#include <QUrl>

#include <map>

using namespace Ostrel::App;
using namespace Ostrel::App::NagScreen;

namespace {

NagRecord record(const QString& action, const QString& source)
{
    NagRecord row;
    row.action = action;
    row.source = source;
    return row;
}

} // namespace

class NagRequestPolicyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Ostrel::Util::SetDefaultSslUsage(true); }

    void decision_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QStringList>("customization"); // "Group/Key=value"
        QTest::addColumn<bool>("ssl");
        QTest::addColumn<QString>("refusal"); // part of the reason; empty: allowed
        const QStringList none;
        const QString host = QStringLiteral("is not one of the product's nag servers");
        QTest::newRow("own local nag") << "qrc:/NagScreen/app_start/main.qml" << none << true << "";
        QTest::newRow("own local nag, roundabout path")
            << "qrc:/NagScreen/other/../app_start/main.qml" << none << true << "";
        QTest::newRow("local nag of nobody") << "qrc:/NagScreen/evil/main.qml" << none << true << "own nags";
        QTest::newRow("an earlier request is no source")
            << "qrc:/requested/main.qml" << none << true << "own nags";
        QTest::newRow("local file") << "file:///tmp/main.qml" << none << true << "scheme \"file\"";
        QTest::newRow("relative path") << "main.qml" << none << true << "scheme \"\"";
        QTest::newRow("script") << "javascript:alert(1)" << none << true << "scheme \"javascript\"";
        QTest::newRow("empty") << "" << none << true << "empty";
        QTest::newRow("malformed") << "https://[::1" << none << true << "malformed";
        QTest::newRow("nag server") << "https://msg.ostrel.com/nag/main.qml?x=1" << none << true << "";
        QTest::newRow("nag server, upper case") << "https://MSG.Ostrel.COM/n" << none << true << "";
        QTest::newRow("remote QML elsewhere") << "https://evil.example/main.qml" << none << true << host;
        QTest::newRow("look-alike host") << "https://msg.ostrel.com.evil.example/n" << none << true << host;
        QTest::newRow("user information")
            << "https://x@msg.ostrel.com/n" << none << true << "user information";
        QTest::newRow("plain http") << "http://msg.ostrel.com/n" << none << true << "scheme \"http\"";
        QTest::newRow("plain http, SSL off by test option")
            << "http://msg.ostrel.com/n" << none << false << "";
        const QStringList moved{QStringLiteral("Hosts/messages=nags.example.org")};
        QTest::newRow("customized nag server") << "https://nags.example.org/n" << moved << true << "";
        QTest::newRow("default server once customized away")
            << "https://msg.ostrel.com/n" << moved << true << host;
        const QStringList custom{
            QStringLiteral("Links/CUSTOM_WEB_NAG_URL=https://web.example.net:4443/nag?l=-LANG-")};
        QTest::newRow("custom web nag's host")
            << "https://web.example.net:4443/other" << custom << true << "";
        QTest::newRow("custom web nag's host on another port")
            << "https://web.example.net/other" << custom << true << "";
    }
    void decision()
    {
        QFETCH(QString, url);
        QFETCH(QStringList, customization);
        QFETCH(bool, ssl);
        QFETCH(QString, refusal);
        Ostrel::Test::FakeCustomization product;
        for (const QString& entry : customization)
            product.custom[entry.section(QLatin1Char('='), 0, 0).toStdString()] =
                entry.section(QLatin1Char('='), 1).toStdString();
        NagConfig config;
        config.Add(QStringLiteral("any_mode"),
                   record(QStringLiteral("app_start"), QStringLiteral("qrc:/NagScreen/app_start/main.qml")));
        config.Add(QStringLiteral("free"),
                   record(QStringLiteral("open_nag"), QStringLiteral("qrc:/requested/main.qml")));
        Ostrel::Util::SetDefaultSslUsage(ssl);

        const auto policy = NagRequestPolicy::ForProduct(&product, &config);
        const QString reason = policy.Refusal(QUrl(url));
        if (refusal.isEmpty())
            QVERIFY2(reason.isEmpty(), qPrintable(reason));
        else
            QVERIFY2(reason.contains(refusal), qPrintable(reason));
        QCOMPARE(policy.Allows(QUrl(url)), refusal.isEmpty());
    }
};

OSTREL_TEST_MAIN(NagRequestPolicyTest)

#include "tst_nagrequestpolicy.moc"
