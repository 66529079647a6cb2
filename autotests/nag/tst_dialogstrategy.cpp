// The dialog strategy with real QML contents on the offscreen platform: exit codes, a nag that
// grows while shown, the three dimmers over the parent and gone after, the widget given back.

#include "App/Application/NagScreen/ColorDimmer.h"
#include "App/Application/NagScreen/DialogStrategy.h"
#include "App/Application/NagScreen/DimmingProvider.h"
#include "App/Application/NagScreen/GifDimmer.h"
#include "App/Application/NagScreen/ShadowDimmer.h"
#include "Nag/INagsSettings.h"
#include "Nag/QuickContent.h"

#include "TestEnvironment.h"

#include <QDialog>
#include <QMainWindow>
#include <QMovie>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWidget>
#include <QTimer>

#include <functional>

using namespace Ostrel::App;
using namespace Ostrel::App::NagScreen;

namespace {

class FixedSettings : public WebConfig::INagsSettings
{
public:
    std::string name;
    std::string parameters;
    int nagIdleAfterStartTimeout() const override { return 0; }
    int nagIdleAfterEditTimeout() const override { return 0; }
    int delayBetweenDownload() const override { return 0; }
    bool useOldConfigDownloader() const override { return false; }
    bool storeConfigBetweenSessions() const override { return false; }
    bool useExtractedNagCache() const override { return false; }
    bool preloadNagContentOnStart() const override { return false; }
    bool storeNagsBetweenSessions() const override { return false; }
    std::string nagDimmingName() const override { return name; }
    std::string nagDimmingParameters() const override { return parameters; }
    bool sendNagHashEvent() const override { return false; }
    std::vector<std::string> nagsProhibitedToDisable() const override { return {}; }
    std::vector<std::string> nagsPriority() const override { return {}; }
    bool asyncNagsLoad() const override { return false; }
    bool useNewNagsDrawer() const override { return false; }
};

// Exposes the protected centring for a check against the rule.
class OpenDialogStrategy : public DialogStrategy
{
public:
    using DialogStrategy::DialogStrategy;
    using DialogStrategy::LocateDialog;
};

// Shows over the window the test names.
class ParentedStrategy : public DialogStrategy
{
public:
    using DialogStrategy::DialogStrategy;
    QWidget* parent = nullptr;

protected:
    QWidget* ParentFor(const NagContext&) const override { return parent; }
};

QDialog* shownNag()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("WebNag") && widget->isVisible())
            return qobject_cast<QDialog*>(widget);
    }
    return nullptr;
}

QQuickItem* rootOf(const AbstractContent& content)
{
    return qobject_cast<QQuickWidget*>(content.GetUi())->rootObject();
}

// Runs `whileShown` once the nag's dialog is up, from inside its event loop. A check that fails in
// `whileShown` returns before the nag is ended: five seconds later the dialog is ended with a code
// no row expects, so that the row fails instead of hanging the test.
void whenShown(std::function<void(QDialog*)> whileShown)
{
    auto* timer = new QTimer;
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, whileShown]() {
        if (QDialog* dialog = shownNag()) {
            timer->stop();
            timer->deleteLater();
            whileShown(dialog);
            QTimer::singleShot(5000, dialog, [dialog]() {
                if (dialog->isVisible())
                    dialog->done(-99);
            });
        }
    });
    timer->start();
}

// A key sent before the nag's scene has taken the focus is lost, as it would be for a person who
// pressed it that early: press again, as a person would, until the dialog has gone. After ten
// seconds the content is ended with a code no row expects, so that a lost key fails the row
// instead of hanging the test.
void pressEscapeUntilClosed(QWidget* ui)
{
    auto* timer = new QTimer;
    timer->setInterval(100);
    auto attempts = std::make_shared<int>(0);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, ui = QPointer<QWidget>(ui), attempts]() {
        if (!ui || !shownNag()) {
            timer->stop();
            timer->deleteLater();
            return;
        }
        if (++*attempts > 100) {
            timer->stop();
            timer->deleteLater();
            shownNag()->done(-99);
            return;
        }
        QTest::keyClick(ui, Qt::Key_Escape);
    });
    QTest::keyClick(ui, Qt::Key_Escape);
    timer->start();
}

QPoint expectedTopLeft(const QWidget* parent, const QSize& size)
{
    const QPoint center = parent->mapToGlobal(parent->rect().center());
    return {center.x() - size.width() / 2, center.y() - size.height() / 2};
}

} // namespace

class DialogStrategyTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QuickContent> makeContent(const QString& qml = QStringLiteral("Growing.qml"))
    {
        auto content = std::make_unique<QuickContent>(
            NagContext{QStringLiteral("app_start"), QStringLiteral("free")},
            QUrl(QStringLiteral("qrc:/test/qml/") + qml), ContentEnvironment());
        content->Load();
        return content;
    }

    QMainWindow m_window;
    std::shared_ptr<FixedSettings> m_settings = std::make_shared<FixedSettings>();

private Q_SLOTS:
    void initTestCase()
    {
        m_window.setGeometry(100, 80, 900, 600);
        m_window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&m_window));
    }

    void init()
    {
        m_settings->name.clear();
        m_settings->parameters.clear();
    }

    void exitCodes_data()
    {
        QTest::addColumn<QString>("how");
        QTest::addColumn<int>("expected");
        QTest::newRow("nag accepts: 1") << "accept" << 1;
        QTest::newRow("nag rejects: 0 reads 2") << "reject" << 2;
        QTest::newRow("Escape key rejects") << "escape" << 2;
        QTest::newRow("other code passes as it is") << "seven" << 7;
        QTest::newRow("2 stays 2") << "two" << 2;
    }
    void exitCodes()
    {
        QFETCH(QString, how);
        QFETCH(int, expected);
        auto content = makeContent();
        QCOMPARE(content->State(), ContentState::Ready);
        DialogStrategy strategy(m_settings);
        AbstractContent* raw = content.get();
        whenShown([raw, how](QDialog*) {
            QQuickItem* root = rootOf(*raw);
            if (how == QLatin1String("accept"))
                QMetaObject::invokeMethod(root, "accept");
            else if (how == QLatin1String("reject"))
                QMetaObject::invokeMethod(root, "close");
            else if (how == QLatin1String("escape"))
                pressEscapeUntilClosed(raw->GetUi());
            else
                Q_EMIT raw->Finished(how == QLatin1String("seven") ? 7 : 2, {});
        });
        QCOMPARE(strategy.ShowNag(*content), expected);
    }

    void dialogIsFramelessModalCentredOnTheParent()
    {
        auto content = makeContent();
        DialogStrategy strategy(m_settings);
        AbstractContent* raw = content.get();
        bool checked = false;
        whenShown([&](QDialog* dialog) {
            checked = true;
            QVERIFY(dialog->isModal());
            QVERIFY(dialog->windowFlags() & Qt::FramelessWindowHint);
            QCOMPARE(dialog->parentWidget(), &m_window);
            QCOMPARE(dialog->property("AppAction").toString(), QStringLiteral("app_start"));
            QCOMPARE(raw->GetUi()->size(), QSize(300, 200));
            QCOMPARE(dialog->pos(), expectedTopLeft(&m_window, QSize(300, 200)));
            Q_EMIT raw->Finished(1, {});
        });
        strategy.ShowNag(*content);
        QVERIFY(checked);
    }

    void aGrowingNagResizesAndRecentresTheDialog()
    {
        auto content = makeContent();
        DialogStrategy strategy(m_settings);
        AbstractContent* raw = content.get();
        QSize dialogSize;
        QPoint dialogPos;
        whenShown([&](QDialog* dialog) {
            QMetaObject::invokeMethod(rootOf(*raw), "grow");
            QTimer::singleShot(50, dialog, [&, dialog]() {
                dialogSize = dialog->size();
                dialogPos = dialog->pos();
                Q_EMIT raw->Finished(1, {});
            });
        });
        strategy.ShowNag(*content);
        QCOMPARE(dialogSize, QSize(500, 320));
        QCOMPARE(dialogPos, expectedTopLeft(&m_window, QSize(500, 320)));
    }

    // On the offscreen platform's 800 x 600 screen.
    void locateDialog_data()
    {
        QTest::addColumn<QRect>("window");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("topLeft");
        QTest::newRow("centred on its window, halves truncated")
            << QRect(100, 80, 400, 300) << QSize(301, 201) << QPoint(149, 129);
        QTest::newRow("larger than its window: centred on the screen")
            << QRect(0, 0, 200, 150) << QSize(400, 300) << QPoint(199, 149);
        QTest::newRow("a window partly off the screen: the nag stays on it")
            << QRect(700, 500, 200, 150) << QSize(100, 100) << QPoint(700, 500);
        QTest::newRow("larger than the screen: its top-left corner on the screen")
            << QRect(0, 0, 200, 150) << QSize(1000, 700) << QPoint(0, 0);
    }

    void locateDialog()
    {
        QFETCH(QRect, window);
        QFETCH(QSize, size);
        QFETCH(QPoint, topLeft);
        OpenDialogStrategy strategy(m_settings);
        QWidget parent;
        parent.setGeometry(window);
        QDialog dialog(&parent);
        strategy.LocateDialog(&dialog, size);
        QCOMPARE(dialog.pos(), topLeft);
        QDialog orphan;
        orphan.move(7, 9);
        strategy.LocateDialog(&orphan, size);
        QCOMPARE(orphan.pos(), QPoint(7, 9));
        strategy.LocateDialog(nullptr, size); // no crash
    }

    void eachDimmerCoversTheParentWhileShownAndLeavesAfter_data()
    {
        QTest::addColumn<QString>("settingsName");
        QTest::addColumn<QString>("settingsParameters");
        QTest::addColumn<QString>("contentName");
        QTest::addColumn<QString>("expectedDimmer");
        QTest::newRow("color from the settings") << "color"
                                                 << "color=#80ff0000"
                                                 << ""
                                                 << "color";
        QTest::newRow("shadow from the settings") << "shadow"
                                                  << "shadowPadding=20"
                                                  << ""
                                                  << "shadow";
        QTest::newRow("gif from the settings") << "gif"
                                               << "fileName=:/test/data/pulse.gif"
                                               << ""
                                               << "gif";
        QTest::newRow("the nag's own dimmer wins") << "color"
                                                   << ""
                                                   << "shadow"
                                                   << "shadow";
        QTest::newRow("unknown name: no dimmer") << "curtain"
                                                 << ""
                                                 << ""
                                                 << "";
    }
    void eachDimmerCoversTheParentWhileShownAndLeavesAfter()
    {
        QFETCH(QString, settingsName);
        QFETCH(QString, settingsParameters);
        QFETCH(QString, contentName);
        QFETCH(QString, expectedDimmer);
        m_settings->name = settingsName.toStdString();
        m_settings->parameters = settingsParameters.toStdString();
        auto content = makeContent();
        rootOf(*content)->setProperty("dimming_name", contentName);
        DialogStrategy strategy(m_settings);
        const auto provider = strategy.GetDimmingProvider();
        AbstractContent* raw = content.get();
        QStringList shownDimmers;
        whenShown([&](QDialog* dialog) {
            for (const QString& name :
                 {QStringLiteral("color"), QStringLiteral("shadow"), QStringLiteral("gif")}) {
                const auto dimmer = provider->Get(name);
                if (dimmer->isVisible()) {
                    shownDimmers << name;
                    QCOMPARE(dimmer->parentWidget(), &m_window);
                    QCOMPARE(dimmer->size(), m_window.size());
                    QCOMPARE(dimmer->Target(), dialog);
                }
            }
            Q_EMIT raw->Finished(1, {});
        });
        strategy.ShowNag(*content);
        QCOMPARE(shownDimmers, expectedDimmer.isEmpty() ? QStringList() : QStringList{expectedDimmer});
        for (const QString& name :
             {QStringLiteral("color"), QStringLiteral("shadow"), QStringLiteral("gif")}) {
            const auto dimmer = provider->Get(name);
            QVERIFY(!dimmer->isVisible());
            QVERIFY(!dimmer->parentWidget());
            QVERIFY(!dimmer->Target());
        }
        if (expectedDimmer == QLatin1String("color"))
            QVERIFY(
                provider->Get(QStringLiteral("color"))->styleSheet().contains(QLatin1String("#80ff0000")));
    }

    void settingsGoneLeavesTheNagsOwnChoice()
    {
        auto settings = std::make_shared<FixedSettings>();
        settings->name = "shadow";
        DialogStrategy strategy(settings);
        settings.reset();
        auto content = makeContent();
        AbstractContent* raw = content.get();
        bool anyDimmer = true;
        whenShown([&](QDialog*) {
            anyDimmer = false;
            for (const QString& name :
                 {QStringLiteral("color"), QStringLiteral("shadow"), QStringLiteral("gif")})
                anyDimmer = anyDimmer || strategy.GetDimmingProvider()->Get(name)->isVisible();
            Q_EMIT raw->Finished(1, {});
        });
        strategy.ShowNag(*content);
        QVERIFY(!anyDimmer);
    }

    void theWidgetIsGivenBackBeforeTheDialogDies()
    {
        auto content = makeContent();
        DialogStrategy strategy(m_settings);
        QPointer<QWidget> ui = content->GetUi();
        AbstractContent* raw = content.get();
        QPointer<QDialog> dialogSeen;
        whenShown([&](QDialog* dialog) {
            dialogSeen = dialog;
            QCOMPARE(raw->GetUi()->parentWidget(), dialog);
            Q_EMIT raw->Finished(1, {});
        });
        strategy.ShowNag(*content);
        QVERIFY(dialogSeen.isNull());
        QVERIFY(!ui.isNull());
        QVERIFY(!ui->parentWidget());
        // The same content can be shown again: nothing of it went with the first dialog.
        rearm(*content);
        whenShown([raw](QDialog*) { Q_EMIT raw->Finished(1, {}); });
        QCOMPARE(strategy.ShowNag(*content), 1);
    }

    void parentDestroyedWhileShownTakesNothingOfTheNag()
    {
        m_settings->name = "color";
        auto* parent = new QWidget;
        parent->resize(400, 300);
        parent->show();
        ParentedStrategy strategy(m_settings);
        strategy.parent = parent;
        auto content = makeContent();
        QPointer<QWidget> ui = content->GetUi();
        whenShown([parent](QDialog*) { delete parent; });
        QCOMPARE(strategy.ShowNag(*content), 2);
        QVERIFY(!ui.isNull());
        QVERIFY(!strategy.GetDimmingProvider()->Get(QStringLiteral("color"))->parentWidget());
    }

    void aCopySharesTheDimmersAndNotTheFlags()
    {
        DialogStrategy strategy(m_settings);
        DialogStrategy copy(strategy);
        copy.SetDefaultWindowFlags(copy.GetDefaultWindowFlags() | Qt::WindowStaysOnTopHint);
        QCOMPARE(copy.GetDimmingProvider(), strategy.GetDimmingProvider());
        QCOMPARE(strategy.GetDefaultWindowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
    }

private:
    static void rearm(AbstractContent& content) { content.Load(); }
};

int main(int argc, char** argv)
{
    Ostrel::Test::initTestEnvironment(argv[0]);
    QApplication app(argc, argv);
    DialogStrategyTest test;
    return Ostrel::Test::exec(&test, argc, argv);
}

#include "tst_dialogstrategy.moc"
