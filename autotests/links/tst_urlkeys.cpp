// The link vocabulary: numbers that never change, a template for every key and none without
// one, and the rule of the standard links (the source in the name is the "asrc" of the address).
// Samples stand for each form of template, instead of a second copy of the tables.

#include "Interfaces/URLKeys.h"

#include "TestEnvironment.h"

#include <QRegularExpression>

#include <set>

using namespace Ostrel::App;

class TestUrlKeys : public QObject
{
    Q_OBJECT
private slots:
    void samples_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected");
        QTest::newRow("first key") << 1 << "FAQ_URL_menu"
                                   << "https://link.ostrel.com/faq/?asrc=menu&-TAIL_WITH_ARGS-";
        QTest::newRow("stem alone has an empty source")
            << 5 << "FAQ_URL"
            << "https://link.ostrel.com/faq/?asrc=&-TAIL_WITH_ARGS-";
        QTest::newRow("last key")
            << 134 << "LEARN_MORE_HOTKEYS_URL_CD_tooltip"
            << "https://link.ostrel.com/learn-more-hotkeys/?asrc=tooltip&-TAIL_WITH_ARGS-";
        QTest::newRow("install page ends in a bare -AMP-")
            << 37 << "THANK_FOR_INSTALL_URL"
            << "https://link.ostrel.com/thank_you_for_install/"
               "?-TAIL_WITH_ARGS--AMP-version=-APP_VERSION--AMP-name=-NAME-"
               "-AMP-email=-EMAIL--AMP-isNewsletterConfirmed=-NEWSLETTER_CONFIRMED--AMP-isToolbarInstalled="
               "-ADDITIONALS_INSTALLED--AMP-";
        QTest::newRow("reinstall page does not")
            << 38 << "THANK_FOR_REINSTALL_URL"
            << "https://link.ostrel.com/thank_you_for_install/?-TAIL_WITH_ARGS--AMP-version=-APP_VERSION-"
               "-AMP-isToolbarInstalled=-ADDITIONALS_INSTALLED-";
        QTest::newRow("source after the tail")
            << 123 << "WHAT_IS_PLATFORM_URL"
            << "https://link.ostrel.com/ostrel-bench/?-TAIL_WITH_ARGS-&asrc=vidgetlk&stub";
        QTest::newRow("custom keys are empty") << 36 << "CUSTOM_WEB_NAG_URL"
                                               << "";
        QTest::newRow("another service's host")
            << 66 << "VIMEO_DEFAULT_AVATAR_URL"
            << "https://i0.wp.com/i.vimeocdn.com/portrait/defaults-green_300x300.png?ssl=1";
        QTest::newRow("message service") << 53 << "NAGS_REQUEST_URL"
                                         << "https://msg.ostrel.com/get_nag.php";
    }

    void samples()
    {
        QFETCH(int, number);
        QFETCH(QString, name);
        QFETCH(QString, expected);
        const auto found = UrlKeyNames.find(static_cast<URLKeys>(number));
        QVERIFY(found != UrlKeyNames.end());
        QCOMPARE(QString::fromStdString(found->second), name);
        QCOMPARE(QString::fromStdString(UrlTemplates.at(found->second)), expected);
    }

    void everyKeyHasOneTemplateAndNoTemplateIsWithoutAKey()
    {
        QCOMPARE(sizeof(URLKeys), size_t(4));
        std::set<std::string> names;
        for (const auto& [key, name] : UrlKeyNames) {
            QVERIFY2(names.insert(name).second, name.c_str());
            QVERIFY2(UrlTemplates.count(name), name.c_str());
        }
        QCOMPARE(UrlTemplates.size(), names.size());
    }

    // A link of the product's own site names its source twice: in the key and in "asrc".
    void standardLinksCarryTheSourceOfTheirName()
    {
        const QRegularExpression standard(
            QStringLiteral("^https://link\\.ostrel\\.com/[^?]*\\?asrc=([A-Za-z_]*)&-TAIL_WITH_ARGS-$"));
        int checked = 0;
        for (const auto& [name, value] : UrlTemplates) {
            const auto match = standard.match(QString::fromStdString(value));
            if (!match.hasMatch())
                continue;
            ++checked;
            const QString source = match.captured(1);
            const QString key = QString::fromStdString(name);
            QVERIFY2(source.isEmpty() ? !key.contains(QLatin1String("_URL_"))
                                      : key.endsWith(QLatin1Char('_') + source),
                     name.c_str());
        }
        QVERIFY(checked > 50);
    }
};

OSTREL_TEST_MAIN(TestUrlKeys)
#include "tst_urlkeys.moc"
