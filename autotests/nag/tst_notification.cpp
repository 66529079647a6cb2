// The notification popup and strategy, and the two small adapters: the nag links opener and the
// custom path decorator.

#include "App/Application/NagScreen/CustomPathDecorator.h"
#include "App/Application/NagScreen/NagLinksOpener.h"
#include "App/Application/NagScreen/NotificationStrategy.h"
#include "Interfaces/ILinksOpener.h"
#include "Nag/QuickContent.h"
#include "Notification/NotificationPopup.h"

#include "TestEnvironment.h"

#include <QPointer>
#include <QScreen>
#include <QTimer>

using namespace Ostrel::App;
using namespace Ostrel::App::NagScreen;
using Ostrel::DesktopNotification::CloseReason;
using Ostrel::DesktopNotification::NotificationPopup;

namespace {

class RecordingOpener : public ILinksOpener
{
public:
    mutable QStringList opened;
    void OpenUrl(const QString& url) const override { opened << url; }
    void OpenUrl(URLKeys key) const override { opened << QString::number(key); }
};

class PassStrategy : public IShowStrategy
{
public:
    QUrl seen;
    int ShowNag(AbstractContent& content) override
    {
        seen = content.SourceUrl();
        return 4;
    }
};

// Tells how many connections reach its Finished, which a strategy must not leave behind.
class CountedNag : public QuickContent
{
public:
    using QuickContent::QuickContent;
    int finishedReceivers() const { return receivers(SIGNAL(Finished(int, QMap<QString, QVariant>))); }
};

std::unique_ptr<CountedNag> loadedNag()
{
    auto content =
        std::make_unique<CountedNag>(NagContext{QStringLiteral("app_start"), QStringLiteral("free")},
                                     QUrl(QStringLiteral("qrc:/test/qml/Growing.qml")), ContentEnvironment());
    content->Load();
    return content;
}

} // namespace

class NotificationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theClosedCallbackFiresOncePerClosing()
    {
        QWidget content;
        content.resize(200, 100);
        std::vector<CloseReason> reasons;
        {
            NotificationPopup popup(&content, false);
            QCOMPARE(popup.FadeDuration(), 220);
            popup.SetFadeDuration(1);
            popup.SetOnClosedCallback([&](CloseReason reason) { reasons.push_back(reason); });
            popup.SmoothShow();
            QVERIFY(popup.isVisible());
            popup.SmoothHide();
            popup.SmoothHide();
            QTRY_COMPARE(reasons.size(), std::size_t(1));
            QCOMPARE(reasons.back(), CloseReason::Hidden);
            QVERIFY(!popup.isVisible());
            popup.close(); // already closed: nothing to report
            QCOMPARE(reasons.size(), std::size_t(1));
            // A check that no second report comes: many times the fade's length.
            QTest::qWait(50);
            QCOMPARE(reasons.size(), std::size_t(1));

            popup.SmoothShow();
            popup.close();
            QCOMPARE(reasons.size(), std::size_t(2));
            QCOMPARE(reasons.back(), CloseReason::ClosedByUser);
            popup.SmoothHide();
            // A check that hiding a closed popup reports nothing: many times the fade's length.
            QTest::qWait(50);
            QCOMPARE(reasons.size(), std::size_t(2));

            popup.SetAutoHideTimeout(1);
            popup.SmoothShow();
            QTRY_COMPARE(reasons.size(), std::size_t(3));
            QCOMPARE(reasons.back(), CloseReason::TimedOut);
            QCOMPARE(content.parentWidget(), &popup);
        }
        QVERIFY(!content.parentWidget()); // given back, not deleted
        NotificationPopup autoHiding(nullptr, true);
        QCOMPARE(autoHiding.AutoHideTimeout(), 8000);
    }

    void thePopupSitsInACornerOfTheScreen()
    {
        QWidget content;
        content.setFixedSize(300, 120);
        NotificationPopup popup(&content, false);
        popup.SmoothShow();
        const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
        QVERIFY(area.contains(popup.geometry()));
        QVERIFY(popup.geometry().right() > area.center().x());
        QVERIFY(popup.geometry().bottom() > area.center().y());
        popup.SmoothHide();
    }

    void theStrategyReturnsZeroForAnyEnding_data()
    {
        QTest::addColumn<int>("code");
        QTest::newRow("accepted") << 1;
        QTest::newRow("rejected") << 0;
        QTest::newRow("other") << 7;
    }
    void theStrategyReturnsZeroForAnyEnding()
    {
        QFETCH(int, code);
        auto content = loadedNag();
        const int receiversBefore = content->finishedReceivers();
        QPointer<QWidget> ui = content->GetUi();
        AbstractContent* raw = content.get();
        int fade = -1;
        QTimer::singleShot(0, raw, [raw, code, &fade]() {
            if (const auto* popup = qobject_cast<NotificationPopup*>(raw->GetUi()->window()))
                fade = popup->FadeDuration();
            Q_EMIT raw->Finished(code, {});
        });
        // Bounded: a popup that the nag's ending does not hide is closed, and the row fails.
        bool stuck = false;
        QTimer guard;
        guard.setSingleShot(true);
        connect(&guard, &QTimer::timeout, raw, [raw, &stuck]() {
            stuck = true;
            raw->GetUi()->window()->close();
        });
        guard.start(5000);
        NotificationStrategy strategy;
        strategy.SetFadeDuration(1);
        QCOMPARE(strategy.ShowNag(*content), 0);
        QVERIFY(!stuck);
        QCOMPARE(fade, 1);
        QVERIFY(ui && !ui->parentWidget());
        // The popup is gone; a later ending of the same content must not reach it.
        QCOMPARE(content->finishedReceivers(), receiversBefore);
    }

    void linksGoToTheApplicationsOpenerWhileItLives()
    {
        auto opener = std::make_shared<RecordingOpener>();
        const auto nagOpener = fromLinksOpener(opener);
        auto content = loadedNag();
        nagOpener->OpenUrl(*content, QStringLiteral("https://x.example/?a=1"), {{"k", 1}});
        nagOpener->OpenUrl(*content, BUY_NOW_URL_nag_authorization_window_buynow, {});
        QCOMPARE(opener->opened,
                 (QStringList{QStringLiteral("https://x.example/?a=1"), QStringLiteral("14")}));
        opener.reset();
        nagOpener->OpenUrl(*content, QStringLiteral("https://y.example"), {}); // dropped, no crash
    }

    void customPathsReplaceOnlyTheirAction()
    {
        const auto inner = std::make_shared<PassStrategy>();
        CustomPathDecorator decorator(inner);
        decorator.SetCustomPath(QStringLiteral("app_start"),
                                QStringLiteral(":/NagScreen/app_close/main.qml"));
        auto content = loadedNag();
        QCOMPARE(decorator.ShowNag(*content), 4);
        QCOMPARE(inner->seen, QUrl(QStringLiteral("qrc:/NagScreen/app_close/main.qml")));
        QCOMPARE(content->Id(), QStringLiteral("app_close_upgrade_1"));

        QuickContent other(NagContext{QStringLiteral("app_close"), QStringLiteral("free")},
                           QUrl(QStringLiteral("qrc:/test/qml/Growing.qml")), ContentEnvironment());
        QCOMPARE(decorator.ShowNag(other), 4);
        QCOMPARE(inner->seen, QUrl(QStringLiteral("qrc:/test/qml/Growing.qml")));
        decorator.RemoveCustomPath(QStringLiteral("app_start"));
        QVERIFY(decorator.CustomPaths().isEmpty());
    }
};

OSTREL_TEST_MAIN(NotificationTest)

#include "tst_notification.moc"
