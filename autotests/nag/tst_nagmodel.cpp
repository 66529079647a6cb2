// The nag library's contract: the nag map and its modes, the web configuration with its criteria,
// the manager's decisions, the shipped nags and their conventions, the rendering fingerprint.

#include "Interfaces/IProductSettingsManager.h"
#include "Nag/AbstractContent.h"
#include "Nag/DefaultNagsSettings.h"
#include "Nag/DifferenceHash.h"
#include "Nag/IManagerObserver.h"
#include "Nag/IShowStrategy.h"
#include "Nag/NagConfig.h"
#include "Nag/NagManager.h"
#include "Nag/QuickContent.h"

#include "AccessibleTree.h"
#include "Contrast.h"
#include "MemorySettings.h"
#include "NagModelData.h"
#include "TestEnvironment.h"

#include <QAccessible>
#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QJSValue>
#include <QPainter>
#include <QQmlListReference>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QRegularExpression>

#include <map>

using namespace Ostrel::App;
using namespace Ostrel::App::NagScreen;

namespace {

using MemorySettings = Ostrel::Test::MemoryProductSettings;
using Ostrel::Test::accessibleNodes;

// How many of a fingerprint's bits may differ from the published one before a test calls the nag
// changed: the antialiased edges of a few glyphs may fall either side of a neighbour's grey on
// another CPU or Qt build, while a changed text, font or layout flips many more.
constexpr int FingerprintTolerance = 4;

// Every text item of a nag, those its repeaters made too.
QList<QQuickItem*> textItems(QQuickItem* item)
{
    QList<QQuickItem*> texts;
    if (item->inherits("QQuickText"))
        texts << item;
    for (QQuickItem* child : item->childItems())
        texts += textItems(child);
    return texts;
}

// Ends each nag at once with the code given, remembering what it was shown.
class RecordingStrategy : public IShowStrategy
{
public:
    int code = 1;
    QStringList shown;
    QStringList ids;
    int ShowNag(AbstractContent& content) override
    {
        shown << content.AppAction();
        ids << content.Id();
        return code;
    }
};

class RecordingObserver : public IManagerObserver
{
public:
    std::map<QString, bool> available;
    std::map<QString, bool> dontShow;
    int reloads = 0;
    void onNagAvailable(const QString& action, bool value) override { available[action] = value; }
    void onNagDontShow(const QString& action, bool value) override { dontShow[action] = value; }
    void onSkipUpdate(const QString&, bool) override {}
    void onNagsReloaded() override { ++reloads; }
};

const char* const MapJson = Json0();

QString writeMap(QTemporaryDir& dir)
{
    const QString path = dir.filePath(QStringLiteral("map.json"));
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(MapJson);
    return path;
}

const char* const Locales[] = {"de_DE", "en_US", "es_ES", "fr_FR", "it_IT", "ja_JP", "ko_KR",
                               "nl_NL", "pl_PL", "pt_BR", "ru_RU", "tr_TR", "zh_CN", "zh_TW"};

std::unique_ptr<QuickContent> loadShipped(const QString& folder, const QString& locale = QString())
{
    ContentEnvironment environment;
    if (!locale.isEmpty())
        environment.locale = [locale]() { return locale; };
    auto content = std::make_unique<QuickContent>(
        NagContext{folder, QStringLiteral("free")},
        QUrl(QStringLiteral("qrc:/NagScreen/") + folder + QStringLiteral("/main.qml")), environment);
    content->Load();
    return content;
}

QQuickItem* rootItem(const AbstractContent& content)
{
    return qobject_cast<QQuickWidget*>(content.GetUi())->rootObject();
}

// The nodes a user presses, in reading order.
QList<QAccessibleInterface*> controls(QWidget* window)
{
    QList<QAccessibleInterface*> nodes;
    accessibleNodes(QAccessible::queryAccessibleInterface(window), nodes);
    QList<QAccessibleInterface*> result;
    for (QAccessibleInterface* node : nodes) {
        if (node->state().focusable && node->object() != window && !node->object()->isWidgetType())
            result << node;
    }
    return result;
}

QString focusedName(const AbstractContent& content)
{
    QQuickItem* item = qobject_cast<QQuickWidget*>(content.GetUi())->quickWindow()->activeFocusItem();
    return item ? QAccessible::queryAccessibleInterface(item)->text(QAccessible::Name) : QString();
}

// A rectangle's gradient, which QML hands over as a script value.
QObject* gradientOf(const QQuickItem* rectangle)
{
    return rectangle->property("gradient").value<QJSValue>().toQObject();
}

// The colour a rectangle paints at `y` of its own height: its colour, or its vertical gradient.
QColor paintAt(const QQuickItem* rectangle, qreal y)
{
    QObject* gradient = gradientOf(rectangle);
    if (!gradient)
        return rectangle->property("color").value<QColor>();
    QQmlListReference stops(gradient, "stops");
    const qreal at = qBound<qreal>(0, y / rectangle->height(), 1);
    QObject* before = stops.at(0);
    for (int i = 0; i < stops.count(); ++i) {
        QObject* after = stops.at(i);
        const qreal position = after->property("position").toReal();
        if (position >= at) {
            const qreal from = before->property("position").toReal();
            const double t = position > from ? (at - from) / (position - from) : 1;
            return Ostrel::Test::blend(after->property("color").value<QColor>(),
                                       before->property("color").value<QColor>(), t);
        }
        before = after;
    }
    return before->property("color").value<QColor>();
}

bool isPainted(const QQuickItem* item)
{
    return item->inherits("QQuickRectangle") &&
           (gradientOf(item) || item->property("color").value<QColor>().alpha() == 255);
}

// The topmost painted rectangle of `item` and what it holds at `point` (scene coordinates).
const QQuickItem* paintedAt(const QQuickItem* item, const QPointF& point)
{
    const QList<QQuickItem*> children = item->childItems();
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
        if ((*child)->isVisible() && (*child)->contains((*child)->mapFromScene(point)))
            if (const QQuickItem* found = paintedAt(*child, point))
                return found;
    }
    return isPainted(item) ? item : nullptr;
}

// The lowest contrast of a text against the painted rectangle under its middle, over the text's
// height (a gradient changes along it), with the opacity of the text and its parents.
double textContrast(const QQuickItem* text)
{
    QColor colour = text->property("color").value<QColor>();
    if (text->property("textFormat").toInt() == 1 /* Text.RichText */ &&
        text->property("text").toString().contains(QLatin1String("<a ")))
        colour = text->property("linkColor").value<QColor>();
    double alpha = colour.alphaF();
    for (const QQuickItem* item = text; item; item = item->parentItem())
        alpha *= item->opacity();
    const QPointF middle = text->mapToScene(QPointF(text->width() / 2, text->height() / 2));
    const QQuickItem* under = nullptr;
    for (const QQuickItem* item = text; !under && item->parentItem(); item = item->parentItem()) {
        const QList<QQuickItem*> siblings = item->parentItem()->childItems();
        for (int i = siblings.indexOf(const_cast<QQuickItem*>(item)) - 1; !under && i >= 0; --i) {
            if (siblings.at(i)->isVisible() && siblings.at(i)->contains(siblings.at(i)->mapFromScene(middle)))
                under = paintedAt(siblings.at(i), middle);
        }
        if (!under && isPainted(item->parentItem()))
            under = item->parentItem();
    }
    if (!under)
        return 0;
    double lowest = 21;
    for (const qreal y : {qreal(0), text->height()}) {
        const QColor behind = paintAt(under, text->mapToItem(under, QPointF(0, y)).y());
        lowest =
            qMin(lowest, Ostrel::Test::contrastRatio(Ostrel::Test::blend(colour, behind, alpha), behind));
    }
    return lowest;
}

// WCAG's large text: 18 points, or 14 points in bold (a point is 4/3 px).
bool isLargeText(const QQuickItem* text)
{
    const QFont font = text->property("font").value<QFont>();
    return font.pixelSize() >= 24 || (font.bold() && font.pixelSize() * 3 >= 14 * 4);
}

} // namespace

class NagModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mapRowsAndModes()
    {
        const auto config = NagConfig::fromJson(MapJson);
        QVERIFY(config);
        QCOMPARE(config->size(), std::size_t(6));
        // A mode's own row wins over the any_mode row; any_mode fills in for the others.
        QCOMPARE(config->Find(QStringLiteral("licensed"), QStringLiteral("app_start"))->id,
                 QStringLiteral("s2"));
        QCOMPARE(config->Find(QStringLiteral("trial"), QStringLiteral("app_start"))->id,
                 QStringLiteral("s1"));
        QVERIFY(!config->Find(QStringLiteral("trial"), QStringLiteral("app_close")));
        QCOMPARE(config->Find(QStringLiteral("free"), QStringLiteral("ask_for_review"))->implementation,
                 Implementation::Web);
        // ActionsForMode lists a mode's own rows only: "any_mode" is a mode like the others there.
        QCOMPARE(config->ActionsForMode(QStringLiteral("trial")).size(), std::size_t(0));
        QCOMPARE(config->ActionsForMode(QStringLiteral("any_mode")).count(QStringLiteral("app_start")),
                 std::size_t(1));
    }

    void badMaps_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<int>("rows"); // -1: refused
        QTest::newRow("not JSON") << QByteArray("<nags/>") << -1;
        QTest::newRow("no nags array") << QByteArray(Json1()) << -1;
        QTest::newRow("an array at the top") << QByteArray("[]") << -1;
        QTest::newRow("rows without action or source") << QByteArray(Json2()) << 0;
        QTest::newRow("unknown implementation") << QByteArray(Json3()) << 0;
        QTest::newRow("a later row replaces") << QByteArray(Json4()) << 1;
    }
    void badMaps()
    {
        QFETCH(QByteArray, json);
        QFETCH(int, rows);
        const auto config = NagConfig::fromJson(json);
        QCOMPARE(config.has_value(), rows >= 0);
        if (config)
            QCOMPARE(int(config->size()), rows);
    }

    void nagSettingsFromTheWebConfiguration()
    {
        using WebConfig::WebConfigDocument;
        QCOMPARE(WebConfig::DefaultNagsSettings().sendNagHashEvent(), false);
        const auto server = WebConfigDocument::fromJson(Json5());
        // The nag library carries no defaults: the shell does, so that they outlive a nag library
        // of the product's own. A stand-in for them here.
        QVERIFY(WebConfigDocument::defaults().isEmpty());
        const auto merged = WebConfigDocument::fromJson(Json9()).mergedWith(server);
        const WebConfig::DefaultNagsSettings german(merged, QStringLiteral("de_DE"));
        const WebConfig::DefaultNagsSettings english(merged, QStringLiteral("en_US"));
        QVERIFY(german.sendNagHashEvent());
        QVERIFY(!english.sendNagHashEvent());
        QCOMPARE(english.nagDimmingName(), std::string("color")); // a number where text belongs
        QCOMPARE(english.nagsProhibitedToDisable(), (std::vector<std::string>{"app_start", "app_close"}));
        QVERIFY(WebConfigDocument::fromJson("not json").isEmpty());
        // The built-in sections survive the merge.
        QCOMPARE(merged.value(QStringLiteral("UpdateCheckerResolver"), QStringLiteral("IsUpdateAllowed"), {}),
                 QVariant(true));
    }

    void differenceHash_data()
    {
        // Pictures already at the hash's sampling size (hash width + 1 columns), so that scaling
        // leaves the grey values alone and the bits can be written down.
        QTest::addColumn<QList<QList<int>>>("rows");
        QTest::addColumn<QString>("bits");
        QTest::newRow("equal neighbours give 0") << QList<QList<int>>{{128, 128, 128, 128, 128}} << "0000";
        QTest::newRow("brighter on the left gives 1") << QList<QList<int>>{{200, 150, 100, 50, 0}} << "1111";
        QTest::newRow("brighter on the right gives 0") << QList<QList<int>>{{0, 50, 100, 150, 200}} << "0000";
        QTest::newRow("steps and plateaus") << QList<QList<int>>{{200, 200, 100, 100, 150}} << "0100";
        QTest::newRow("row by row, top first")
            << QList<QList<int>>{{9, 8, 8, 7, 7}, {1, 1, 2, 2, 1}} << "10100001";
    }

    void differenceHash()
    {
        QFETCH(QList<QList<int>>, rows);
        QFETCH(QString, bits);
        QImage picture(rows.at(0).size(), rows.size(), QImage::Format_Grayscale8);
        for (int y = 0; y < rows.size(); ++y)
            for (int x = 0; x < rows.at(y).size(); ++x)
                picture.setPixel(x, y, qRgb(rows.at(y).at(x), rows.at(y).at(x), rows.at(y).at(x)));
        const QSize hashSize(picture.width() - 1, picture.height());
        QCOMPARE(DifferenceHash(picture, hashSize), bits);
        QCOMPARE(DifferenceHash(picture.convertToFormat(QImage::Format_ARGB32), hashSize), bits);
    }

    void differenceHashOfARealPicture()
    {
        QImage left(64, 32, QImage::Format_ARGB32);
        left.fill(Qt::white);
        QPainter(&left).fillRect(0, 0, 32, 32, Qt::black);
        const QString hash = DifferenceHash(left, QSize(8, 4));
        QCOMPARE(hash.size(), 32);
        QCOMPARE(DifferenceHash(left.scaled(128, 64), QSize(8, 4)), hash); // scale-independent
        const QString mirrored = DifferenceHash(left.mirrored(true, false), QSize(8, 4));
        QCOMPARE(DifferenceHashDistance(hash, mirrored), 8); // both sides of the edge, in each row
        QCOMPARE(DifferenceHashDistance(hash, hash), 0);
        QCOMPARE(DifferenceHashDistance(hash, hash.left(31)), -1);
        QCOMPARE(DifferenceHashDistance(QString(), QString()), -1);
        QVERIFY(DifferenceHash(QImage(), QSize(8, 4)).isEmpty());
        QVERIFY(DifferenceHash(left, QSize()).isEmpty());
    }

    void managerDecides()
    {
        QTemporaryDir dir;
        const auto settings = std::make_shared<MemorySettings>();
        NagManager manager(settings, writeMap(dir));
        manager.SetModuleName(QStringLiteral("capture"));
        QCOMPARE(manager.GetAppMode(), QStringLiteral("free"));
        QVERIFY(manager.IsNagAvailable(QStringLiteral("app_start"))); // from any_mode
        QVERIFY(manager.IsNagAvailable(QStringLiteral("app_close")));
        QVERIFY(!manager.IsNagAvailable(QStringLiteral("no_such_action")));
        QVERIFY(!manager.IsNagDisabled(QStringLiteral("no_such_action")));
        QVERIFY(manager.IsNagDisabled(QStringLiteral("before_routine"))); // the configuration
        QVERIFY(!manager.IsNagAvailable(QStringLiteral("before_routine")));
        QVERIFY(!manager.IsNagAvailable(QStringLiteral("major_update")));   // its file is missing
        QVERIFY(!manager.IsNagAvailable(QStringLiteral("ask_for_review"))); // another module's

        // The user's choice, kept under the mode of the row.
        settings->SetBool("dontShowNag_app_start_any_mode/s1", true);
        QVERIFY(manager.IsNagDisabled(QStringLiteral("app_start")));
        auto nagsSettings = std::make_shared<WebConfig::DefaultNagsSettings>(
            WebConfig::WebConfigDocument::fromJson(Json6()), QStringLiteral("en_US"));
        manager.SetNagsSettings(nagsSettings);
        QVERIFY(!manager.IsNagDisabled(QStringLiteral("app_start")));

        manager.SetAppMode(QStringLiteral("trial"));
        QVERIFY(!manager.IsNagAvailable(QStringLiteral("app_close")));
    }

    void showingGoesThroughTheStrategy()
    {
        QTemporaryDir dir;
        NagManager manager(nullptr, writeMap(dir));
        QCOMPARE(manager.ShowNag(QStringLiteral("app_start")), -1); // no strategy yet
        const auto strategy = std::make_shared<RecordingStrategy>();
        manager.SetShowStrategy(strategy);
        strategy->code = 7;
        QCOMPARE(manager.ShowNag(QStringLiteral("app_start")), 7);
        QCOMPARE(manager.ShowNag(QStringLiteral("unknown_action")), -1);
        QCOMPARE(manager.ShowNag(QStringLiteral("before_routine")), -1);
        QCOMPARE(strategy->shown, QStringList{QStringLiteral("app_start")});
        QCOMPARE(strategy->ids, QStringList{QStringLiteral("app_start_welcome_1")}); // the nag's own id

        // An override takes any action, even one without a row, from a local main.qml.
        manager.OverrideNagPath(QStringLiteral("unknown_action"),
                                QStringLiteral(":/NagScreen/app_close/main.qml"));
        QVERIFY(manager.IsNagAvailable(QStringLiteral("unknown_action")));
        QCOMPARE(manager.ShowNag(QStringLiteral("unknown_action")), 7);
        QCOMPARE(strategy->ids.last(), QStringLiteral("app_close_upgrade_1"));
        manager.OverrideNagPath(QStringLiteral("unknown_action"), QString());
        QVERIFY(!manager.IsNagAvailable(QStringLiteral("unknown_action")));

        // A nag added at run time, as a request from another process does.
        manager.AddNag(QStringLiteral("free"), QStringLiteral("open_nag"),
                       QUrl(QStringLiteral("qrc:/NagScreen/before_routine/main.qml")), "x", "y", 0);
        QCOMPARE(manager.ShowNag(QStringLiteral("open_nag")), 7);
        QCOMPARE(strategy->ids.last(), QStringLiteral("before_routine_watermark_1"));
    }

    void reloadReportsFromTheEventLoop()
    {
        QTemporaryDir dir;
        NagManager manager(nullptr, writeMap(dir));
        RecordingObserver observer;
        manager.AddObserver(&observer);
        manager.AddObserver(&observer);
        manager.ReloadNags("REASON_UNKNOWN");
        QCOMPARE(observer.reloads, 0);
        QTRY_COMPARE(observer.reloads, 1);
        QCOMPARE(observer.available.size(), std::size_t(5)); // free rows and any_mode rows
        QVERIFY(observer.available.at(QStringLiteral("app_start")));
        QVERIFY(!observer.available.at(QStringLiteral("before_routine")));
        QVERIFY(observer.dontShow.at(QStringLiteral("before_routine")));
        manager.RemoveObserver(&observer);
        manager.ReloadNags("REASON_UNKNOWN");
        // A check that nothing comes: the reload is queued, and a removed observer must not hear it.
        QTest::qWait(20);
        QCOMPARE(observer.reloads, 1);
    }

    void aMissingOrBrokenMapShowsNothing()
    {
        QTemporaryDir dir;
        NagManager missing(nullptr, dir.filePath(QStringLiteral("none.json")));
        QVERIFY(!missing.GetNagConfig());
        QVERIFY(!missing.IsNagAvailable(QStringLiteral("app_start")));
        missing.SetShowStrategy(std::make_shared<RecordingStrategy>());
        QCOMPARE(missing.ShowNag(QStringLiteral("app_start")), -1);
    }

    void shippedNagsFollowTheConventions_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<int>("secondCode"); // what pressing the second control ends the nag with
        QTest::newRow("app_start") << "app_start" << 0;
        QTest::newRow("app_close") << "app_close" << 0;
        QTest::newRow("before_routine") << "before_routine" << 1;
    }
    void shippedNagsFollowTheConventions()
    {
        QFETCH(QString, folder);
        QFETCH(int, secondCode);
        const QString base = QStringLiteral(":/NagScreen/") + folder;
        // A locale no nag has: every text falls back to its English one.
        const auto content = loadShipped(folder, QStringLiteral("xx_XX"));
        QSignalSpy finished(content.get(), &AbstractContent::Finished);
        QCOMPARE(content->State(), ContentState::Ready);
        QCOMPARE(content->GetUi()->size(), QSize(850, 472));
        QVERIFY(!content->Id().isEmpty());

        // Every text names a family of the nags' style and draws with the face the library
        // registered itself for it, unhinted and rendered by Qt, so the pixels are the same on
        // every machine; it reads against what is behind it (WCAG 2.1 AA). No text is a literal:
        // each one goes through the nag's translations.
        QStringList registered;
        for (int id = 0; id < 16; ++id)
            registered += QFontDatabase::applicationFontFamilies(id);
        QVERIFY(registered.contains(QStringLiteral("DejaVu Sans")));
        const QList<QQuickItem*> texts = textItems(rootItem(*content));
        QVERIFY(texts.size() >= 8);
        double lowest = 21;
        for (const QQuickItem* text : texts) {
            const QFont font = text->property("font").value<QFont>();
            QVERIFY2(
                QStringList({QStringLiteral("Arial"), QStringLiteral("Verdana")}).contains(font.family()),
                qPrintable(font.family()));
            QCOMPARE(QFontInfo(font).family(), QStringLiteral("DejaVu Sans"));
            QCOMPARE(font.hintingPreference(), QFont::PreferNoHinting);
            QCOMPARE(text->property("renderType").toInt(), 0); // Text.QtRendering
            QVERIFY(!text->property("text").toString().isEmpty());
            const double ratio = textContrast(text);
            QVERIFY2(ratio >= (isLargeText(text) ? 3.0 : 4.5),
                     qPrintable(text->property("text").toString() + QStringLiteral(": ") +
                                QString::number(ratio)));
            lowest = qMin(lowest, ratio);
        }
        qInfo("%s: lowest text contrast %.2f:1", qPrintable(folder), lowest);

        QFile qml(base + QStringLiteral("/main.qml"));
        QVERIFY(qml.open(QIODevice::ReadOnly));
        QVERIFY(
            !QString::fromUtf8(qml.readAll()).contains(QRegularExpression(QStringLiteral("\\btext: *\""))));

        // A constant map, every tag in all fourteen locales.
        QFile translations(base + QStringLiteral("/TranslationUtils.js"));
        QVERIFY(translations.open(QIODevice::ReadOnly));
        const QString script = QString::fromUtf8(translations.readAll());
        QVERIFY(script.contains(QLatin1String("\nconst translationMap = {")));
        const int tags = script.count(
            QRegularExpression(QString::fromLatin1(Json7()), QRegularExpression::MultilineOption));
        QVERIFY(tags >= 5);
        for (const char* locale : Locales)
            QCOMPARE(script.count(QLatin1String("\"") + QLatin1String(locale) + QLatin1String("\":")), tags);

        // By keyboard: shown, the nag holds the focus with no control marked (the first frame is
        // the one a mouse user sees); Tab walks the controls in reading order and round again,
        // Shift+Tab back, each marked; Space on the close control ends the nag as Escape does.
        const auto show = [](AbstractContent& nag) {
            nag.GetUi()->show();
            QVERIFY(QTest::qWaitForWindowExposed(nag.GetUi()));
            nag.GetUi()->activateWindow();
            nag.GetUi()->setFocus();
            QTRY_VERIFY(rootItem(nag)->hasActiveFocus());
        };
        auto* view = qobject_cast<QQuickWidget*>(content->GetUi());
        show(*content);
        const QImage unmarked = view->grabFramebuffer();
        QStringList order;
        for (QAccessibleInterface* control : controls(view))
            order << control->text(QAccessible::Name);
        QCOMPARE(order.size(), 5);
        QStringList walked;
        for (int i = 0; i < order.size(); ++i) {
            QTest::keyClick(view, Qt::Key_Tab);
            walked << focusedName(*content);
        }
        QCOMPARE(walked, order);
        QVERIFY(view->grabFramebuffer() != unmarked);
        QTest::keyClick(view, Qt::Key_Tab);
        QCOMPARE(focusedName(*content), order.first());
        QTest::keyClick(view, Qt::Key_Backtab);
        QCOMPARE(focusedName(*content), order.last());
        QTest::keyClick(view, Qt::Key_Space);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(finished.at(0).at(0).toInt(), 0);

        // Escape closes with 0, once, whatever follows.
        const auto escaped = loadShipped(folder);
        QSignalSpy escapedFinished(escaped.get(), &AbstractContent::Finished);
        show(*escaped);
        QTest::keyClick(escaped->GetUi(), Qt::Key_Escape);
        QTest::keyClick(escaped->GetUi(), Qt::Key_Escape);
        QCOMPARE(escapedFinished.size(), 1);
        QCOMPARE(escapedFinished.at(0).at(0).toInt(), 0);

        // Enter presses the control that has the focus, not the nag's own default.
        const auto entered = loadShipped(folder);
        QSignalSpy enteredFinished(entered.get(), &AbstractContent::Finished);
        show(*entered);
        QTest::keyClick(entered->GetUi(), Qt::Key_Tab);
        QTest::keyClick(entered->GetUi(), Qt::Key_Tab);
        QTest::keyClick(entered->GetUi(), Qt::Key_Return);
        QCOMPARE(enteredFinished.size(), 1);
        QCOMPARE(enteredFinished.at(0).at(0).toInt(), secondCode);
    }

    // What a screen reader finds in each shipped nag in each locale: a dialog named by the nag's
    // title, every control with a role and a name in the nag's language, on screen where the
    // control is, and every text with its words (never its markup).
    void shippedNagsSpeakToScreenReaders_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("locale");
        for (const char* folder : {"app_start", "app_close", "before_routine"}) {
            for (const char* locale : Locales)
                QTest::addRow("%s %s", folder, locale)
                    << QString::fromLatin1(folder) << QString::fromLatin1(locale);
        }
    }
    void shippedNagsSpeakToScreenReaders()
    {
        QFETCH(QString, folder);
        QFETCH(QString, locale);
        const auto content = loadShipped(folder, locale);
        QCOMPARE(content->State(), ContentState::Ready);
        QWidget* view = content->GetUi();
        view->move(40, 30);
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view));

        QList<QAccessibleInterface*> nodes;
        accessibleNodes(QAccessible::queryAccessibleInterface(view), nodes);
        const QString title = rootItem(*content)
                                  ->findChild<QQuickItem*>(QStringLiteral("body"))
                                  ->childItems()
                                  .value(0)
                                  ->property("text")
                                  .toString();
        const auto dialog = std::find_if(nodes.begin(), nodes.end(), [](QAccessibleInterface* node) {
            return node->role() == QAccessible::Dialog;
        });
        QVERIFY(dialog != nodes.end());
        QCOMPARE((*dialog)->text(QAccessible::Name), title);
        QVERIFY(!title.isEmpty());
        const QRect screen(view->mapToGlobal(QPoint(0, 0)), view->size());
        for (QAccessibleInterface* node : nodes) {
            const QString name = node->text(QAccessible::Name);
            if (node->role() == QAccessible::StaticText)
                QVERIFY2(!name.isEmpty() && !name.contains(QLatin1Char('<')), qPrintable(name));
        }
        const QList<QAccessibleInterface*> pressable = controls(view);
        QCOMPARE(pressable.size(), 5);
        for (QAccessibleInterface* control : pressable) {
            const QString name = control->text(QAccessible::Name);
            const QString where = QStringLiteral("%1 (role %2)").arg(name).arg(control->role());
            QVERIFY2(control->role() == QAccessible::Button || control->role() == QAccessible::Link,
                     qPrintable(where));
            QVERIFY2(!name.trimmed().isEmpty() && !name.contains(QLatin1Char('<')), qPrintable(where));
            QVERIFY2(screen.contains(control->rect()), qPrintable(where));
            QVERIFY(control->actionInterface()->actionNames().contains(
                QAccessibleActionInterface::pressAction()));
        }
        // The close control reads in the nag's language, like everything else in it.
        QCOMPARE(pressable.last()->text(QAccessible::Name) == QLatin1String("Close"),
                 locale == QLatin1String("en_US"));
    }

    // Each shipped nag in each locale whose text the library's own fonts draw: every text stays
    // inside the item that holds it and inside the nag, and the first frame's fingerprint is the
    // one published for that locale. (Japanese, Korean and Chinese text comes from the machine's
    // fonts, so neither its width nor its fingerprint is the same on every machine.)
    void shippedNagsFitAndRenderAsPublished_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("locale");
        for (const char* folder : {"app_start", "app_close", "before_routine"}) {
            for (const char* locale :
                 {"de_DE", "en_US", "es_ES", "fr_FR", "it_IT", "nl_NL", "pl_PL", "pt_BR", "ru_RU", "tr_TR"})
                QTest::addRow("%s %s", folder, locale)
                    << QString::fromLatin1(folder) << QString::fromLatin1(locale);
        }
    }
    void shippedNagsFitAndRenderAsPublished()
    {
        QFETCH(QString, folder);
        QFETCH(QString, locale);
        const auto loaded = loadShipped(folder, locale);
        QuickContent& content = *loaded;
        QCOMPARE(content.State(), ContentState::Ready);
        QSignalSpy rendered(&content, &AbstractContent::Rendered);
        content.GetUi()->show();
        QVERIFY(rendered.wait());

        QQuickItem* root = rootItem(content);
        const QRectF nag(0, 0, root->width(), root->height());
        for (QQuickItem* text : textItems(root)) {
            if (!text->isVisible() || text->property("text").toString().isEmpty())
                continue;
            const QRectF drawn(0, 0, qMax(text->width(), text->property("contentWidth").toReal()),
                               qMax(text->height(), text->property("contentHeight").toReal()));
            const QRectF inParent = text->mapRectToItem(text->parentItem(), drawn);
            const QRectF parent(0, 0, text->parentItem()->width(), text->parentItem()->height());
            const QString where = text->property("text").toString();
            QVERIFY2(parent.contains(inParent.adjusted(0.5, 0.5, -0.5, -0.5)), qPrintable(where));
            QVERIFY2(nag.contains(text->mapRectToItem(root, drawn).adjusted(0.5, 0.5, -0.5, -0.5)),
                     qPrintable(where));
        }

        // The buttons, however they wrap, stay below the texts above them.
        const auto* body = root->findChild<QQuickItem*>(QStringLiteral("body"));
        const auto* buttons = root->findChild<QQuickItem*>(QStringLiteral("buttons"));
        QVERIFY(body && buttons);
        QVERIFY2(body->y() + body->height() < buttons->y(), qPrintable(QString::number(buttons->y())));

        // A link draws in the nag's own colour, never in the palette's blue.
        const QImage picture = content.Picture().toImage();
        for (QQuickItem* text : textItems(root)) {
            if (!text->property("text").toString().contains(QLatin1String("<a ")))
                continue;
            const QColor link = text->property("linkColor").value<QColor>();
            const qreal scale = content.GetUi()->devicePixelRatioF(); // the picture is in device pixels
            const QRectF item = text->mapRectToItem(root, QRectF(0, 0, text->width(), text->height()));
            const QRect area = QRectF(item.topLeft() * scale, item.size() * scale)
                                   .toAlignedRect()
                                   .intersected(picture.rect());
            int inLinkColour = 0;
            int blue = 0;
            for (int y = area.top(); y <= area.bottom(); ++y) {
                for (int x = area.left(); x <= area.right(); ++x) {
                    const QColor pixel = picture.pixelColor(x, y);
                    inLinkColour += qAbs(pixel.red() - link.red()) + qAbs(pixel.green() - link.green()) +
                                        qAbs(pixel.blue() - link.blue()) <
                                    60;
                    blue += pixel.blue() > 200 && pixel.red() < 60 && pixel.green() < 60;
                }
            }
            QVERIFY2(
                inLinkColour > 20 && blue == 0,
                qPrintable(
                    QStringLiteral("%1 pixels in %2, %3 blue").arg(inLinkColour).arg(link.name()).arg(blue)));
        }

        QCOMPARE(content.Picture().size(),
                 QSize(850, 472) * content.GetUi()->devicePixelRatioF()); // device pixels
        QCOMPARE(content.HashSize(), QSize(16, 8));
        const QString hash = content.ComputedHash();
        QCOMPARE(hash.size(), 16 * 8);
        QCOMPARE(content.ComputedHash(), hash);
        // Published as it renders here, with the fonts the library carries.
        const int distance = DifferenceHashDistance(content.DeclaredHash(), hash);
        QVERIFY2(distance >= 0 && distance <= FingerprintTolerance,
                 qPrintable(QStringLiteral("%1 bits apart; computed %2").arg(distance).arg(hash)));
    }

    void eachNagReportsItsOwnHash_data()
    {
        QTest::addColumn<QByteArray>("hashLine");
        QTest::addColumn<QString>("expected");
        QTest::newRow("another fingerprint")
            << QByteArray("readonly property string hash_name: \"second\"\n"
                          "readonly property size hash_size: Qt.size(8, 4)\n")
            << QStringLiteral("second");
        QTest::newRow("no fingerprint") << QByteArray() << QString();
    }

    // The fingerprint is the shown nag's: a nag right after another starts without one and gets
    // its own from its first frame, or none when it declares none.
    void eachNagReportsItsOwnHash()
    {
        QFETCH(QByteArray, hashLine);
        QFETCH(QString, expected);
        QTemporaryDir dir;
        const QString second = dir.filePath(QStringLiteral("second.qml"));
        QFile file(second);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("import QtQuick 2.15\nRectangle {\nwidth: 200; height: 100; color: \"#3366cc\"\n" +
                   hashLine + "}\n");
        file.close();

        NagManager manager(nullptr, writeMap(dir));
        manager.SetNagsSettings(std::make_shared<WebConfig::DefaultNagsSettings>(
            WebConfig::WebConfigDocument::fromJson(Json8()), QStringLiteral("en_US")));
        manager.OverrideNagPath(QStringLiteral("second"), second);
        const auto setter = manager.GetNagHashSetter();
        // Shows the nag for real, long enough for its first frame, and notes whether a
        // fingerprint was already there when the show began.
        class ShowingStrategy : public IShowStrategy
        {
        public:
            explicit ShowingStrategy(std::shared_ptr<IManager::NagHashSetter> setter)
                : m_setter(std::move(setter))
            {
            }
            int ShowNag(AbstractContent& content) override
            {
                setAtStart << m_setter->IsSet();
                QSignalSpy rendered(&content, &AbstractContent::Rendered);
                content.GetUi()->show();
                rendered.wait();
                content.GetUi()->hide();
                return 1;
            }
            QList<bool> setAtStart;

        private:
            std::shared_ptr<IManager::NagHashSetter> m_setter;
        };
        const auto strategy = std::make_shared<ShowingStrategy>(setter);
        manager.SetShowStrategy(strategy);

        QCOMPARE(manager.ShowNag(QStringLiteral("app_start")), 1);
        QVERIFY(setter->IsSet());
        QCOMPARE(setter->get()->hashName, QStringLiteral("app_start_welcome"));
        QCOMPARE(setter->get()->computedHash.size(), 128);

        QCOMPARE(manager.ShowNag(QStringLiteral("second")), 1);
        QCOMPARE(strategy->setAtStart, (QList<bool>{false, false}));
        if (expected.isEmpty()) {
            QVERIFY(!setter->IsSet());
        } else {
            QVERIFY(setter->IsSet());
            QCOMPARE(setter->get()->hashName, expected);
            QCOMPARE(setter->get()->computedHash.size(), 32);
        }
    }
};

OSTREL_TEST_MAIN(NagModelTest)

#include "tst_nagmodel.moc"
