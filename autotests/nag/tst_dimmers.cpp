// The dimmers' parameters from text, their fall-backs, the gif's passes and the file paths made
// absolute against the nag's folder.

#include "App/Application/NagScreen/ColorDimmer.h"
#include "App/Application/NagScreen/DimmingProvider.h"
#include "App/Application/NagScreen/ExpandFilePathParameters.h"
#include "App/Application/NagScreen/GifDimmer.h"
#include "App/Application/NagScreen/ParseDimmingParameters.h"
#include "App/Application/NagScreen/ShadowDimmer.h"
#include "Nag/QuickContent.h"

#include "TestEnvironment.h"

#include <QMovie>

using namespace Ostrel::App::NagScreen;

using Parameters = QMap<QString, QString>;
Q_DECLARE_METATYPE(Parameters)

class DimmersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Parameters>("expected");
        QTest::newRow("two pairs") << "fileName=dim.gif,loopCount=infinity"
                                   << Parameters{{"fileName", "dim.gif"}, {"loopCount", "infinity"}};
        QTest::newRow("empty text") << "" << Parameters{};
        QTest::newRow("empty parts are skipped") << ",,color=red,," << Parameters{{"color", "red"}};
        QTest::newRow("no value, no key, no =") << "=x,x=,x" << Parameters{};
        QTest::newRow("a later key wins") << "a=1,a=2" << Parameters{{"a", "2"}};
        QTest::newRow("pieces after a second = are dropped") << "a=1=2" << Parameters{{"a", "1"}};
        QTest::newRow("double = is one separator") << "a==1" << Parameters{{"a", "1"}};
        QTest::newRow("keys are case-sensitive") << "A=1,a=2" << Parameters{{"A", "1"}, {"a", "2"}};
        QTest::newRow("spaces are kept") << " a = 1 " << Parameters{{" a ", " 1 "}};
    }
    void parse()
    {
        QFETCH(QString, text);
        QFETCH(Parameters, expected);
        QCOMPARE(ParseDimmingParameters(text), expected);
    }

    void colorKeepsTheLastColourWhenNoneIsGiven()
    {
        ColorDimmer dimmer;
        QVERIFY(dimmer.styleSheet().contains(QLatin1String("#7f000000")));
        dimmer.SetParameters({{"color", "#80ff0000"}});
        QVERIFY(dimmer.styleSheet().contains(QLatin1String("#80ff0000")));
        dimmer.SetParameters({{"color", ""}});
        dimmer.SetParameters({});
        QVERIFY(dimmer.styleSheet().contains(QLatin1String("#80ff0000")));
    }

    void shadow_data()
    {
        QTest::addColumn<Parameters>("parameters");
        QTest::addColumn<int>("padding");
        QTest::addColumn<qreal>("blur");
        QTest::addColumn<bool>("original");
        QTest::addColumn<QString>("color");
        QTest::newRow("defaults") << Parameters{} << 30 << 250.0 << false << "#ff000000";
        QTest::newRow("all set") << Parameters{{"shadowPadding", "12"},
                                               {"blurRadius", "40"},
                                               {"originalColor", "true"},
                                               {"color", "#80112233"}}
                                 << 12 << 40.0 << true << "#80112233";
        QTest::newRow("bad padding is 30")
            << Parameters{{"shadowPadding", "abc"}} << 30 << 250.0 << false << "#ff000000";
        QTest::newRow("bad blur leaves it")
            << Parameters{{"blurRadius", "abc"}} << 30 << 250.0 << false << "#ff000000";
        QTest::newRow("TRUE is not true")
            << Parameters{{"originalColor", "TRUE"}} << 30 << 250.0 << false << "#ff000000";
        QTest::newRow("nonsense colour is black")
            << Parameters{{"color", "nonsense"}} << 30 << 250.0 << false << "#ff000000";
    }
    void shadow()
    {
        QFETCH(Parameters, parameters);
        ShadowDimmer dimmer;
        dimmer.SetParameters({{"color", "#ff00ff00"}});
        dimmer.SetParameters(parameters);
        QTEST(dimmer.ShadowPadding(), "padding");
        QTEST(dimmer.BlurRadius(), "blur");
        QTEST(dimmer.OriginalColor(), "original");
        QFETCH(QString, color);
        if (parameters.contains(QStringLiteral("color")))
            QCOMPARE(dimmer.Color().name(QColor::HexArgb), color);
    }

    void gifPasses_data()
    {
        QTest::addColumn<QString>("loopCount");
        QTest::addColumn<int>("expectedPasses"); // -1: still running
        QTest::newRow("1 pass") << "1" << 1;
        QTest::newRow("3 passes") << "3" << 3;
        QTest::newRow("not a number plays once") << "abc" << 1;
        QTest::newRow("infinity never stops") << "infinity" << -1;
    }
    void gifPasses()
    {
        QFETCH(QString, loopCount);
        QFETCH(int, expectedPasses);
        QWidget parent;
        parent.resize(200, 100);
        GifDimmer dimmer;
        dimmer.SetParameters({{"fileName", ":/test/data/pulse.gif"}, {"loopCount", loopCount}});
        dimmer.Attach(&parent, nullptr);
        QCOMPARE(dimmer.size(), parent.size());
        parent.show();
        for (int round = 0; round < 2; ++round) {
            // A second show counts its passes anew.
            dimmer.show();
            if (expectedPasses < 0) {
                QTRY_VERIFY(dimmer.LoopsDone() > 3);
                QCOMPARE(dimmer.Movie()->state(), QMovie::Running);
            } else {
                QTRY_COMPARE(dimmer.Movie()->state(), QMovie::NotRunning);
                QCOMPARE(dimmer.LoopsDone(), expectedPasses);
                QCOMPARE(dimmer.Movie()->currentFrameNumber(), dimmer.Movie()->frameCount() - 1);
            }
            dimmer.hide();
            QCOMPARE(dimmer.Movie()->state(), QMovie::NotRunning);
        }
    }

    void aMissingGifLeavesAnEmptyDimmer()
    {
        QWidget parent;
        GifDimmer dimmer;
        dimmer.SetParameters({{"fileName", "/nowhere/missing.gif"}});
        dimmer.Attach(&parent, nullptr);
        parent.show();
        dimmer.show();
        QCOMPARE(dimmer.Movie()->state(), QMovie::NotRunning);
    }

    void filePathsFollowTheNagsFolder_data()
    {
        QTest::addColumn<QUrl>("nag");
        QTest::addColumn<Parameters>("parameters");
        QTest::addColumn<Parameters>("expected");
        const QUrl local = QUrl::fromLocalFile(QStringLiteral("/x/y/main.qml"));
        QTest::newRow("relative on a local nag")
            << local << Parameters{{"fileName", "a.gif"}} << Parameters{{"fileName", "/x/y/a.gif"}};
        QTest::newRow("absolute stays")
            << local << Parameters{{"fileName", "/z/a.gif"}} << Parameters{{"fileName", "/z/a.gif"}};
        QTest::newRow("remote nag keeps it")
            << QUrl(QStringLiteral("https://nags.example/main.qml")) << Parameters{{"fileName", "a.gif"}}
            << Parameters{{"fileName", "a.gif"}};
        QTest::newRow("other keys untouched")
            << local << Parameters{{"color", "red"}} << Parameters{{"color", "red"}};
    }
    void filePathsFollowTheNagsFolder()
    {
        QFETCH(QUrl, nag);
        QFETCH(Parameters, parameters);
        DimmingProvider provider;
        provider.Add(QStringLiteral("color"), std::make_shared<ColorDimmer>());
        provider.Add(QStringLiteral("gif"), std::make_shared<GifDimmer>());
        QuickContent content(NagContext{}, nag, ContentEnvironment());
        ExpandFilePathParameters(provider, content, parameters);
        QTEST(parameters, "expected");
    }

    void providerReplacesAndForgets()
    {
        DimmingProvider provider;
        const auto first = std::make_shared<ColorDimmer>();
        const auto second = std::make_shared<ColorDimmer>();
        provider.Add(QStringLiteral("color"), first);
        provider.Add(QStringLiteral("color"), second);
        QCOMPARE(provider.Get(QStringLiteral("color")), std::shared_ptr<BaseDimmer>(second));
        QVERIFY(!provider.Get(QStringLiteral("Color")));
        QVERIFY(provider.FilePathParameters().empty());
    }
};

OSTREL_TEST_MAIN(DimmersTest)

#include "tst_dimmers.moc"
