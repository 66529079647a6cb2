#include "App/Application/Testing/NagTest.h"

#include "App/Application/NagScreen/DialogStrategy.h"
#include "App/Application/NagScreen/NagScreenTestForm.h"
#include "App/Application/Testing/DummytTestLocales.h"
#include "App/Application/Testing/TestNagContext_p.h"
#include "Foundation/Utf8.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/ILookAndFeelManager.h"
#include "Nag/AbstractContent.h"
#include "Nag/DefaultNagsSettings.h"
#include "Nag/IManager.h"

#include <glog/logging.h>

#include <QCommandLineParser>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTextStream>
#include <QTimer>

#include <cstdio>

namespace Ostrel::App {

namespace {

const QCommandLineOption& delayOption()
{
    static const QCommandLineOption option(QStringLiteral("test-show-nag-delay"),
                                           QStringLiteral("Set show nag delay in ms"),
                                           QStringLiteral("delay"), QStringLiteral("1000"));
    return option;
}

const QCommandLineOption& screensOption()
{
    static const QCommandLineOption option(QStringLiteral("test-nag-screens"),
                                           QStringLiteral("Get NagScreens screenshots"),
                                           QStringLiteral("appActions"));
    return option;
}

const QCommandLineOption& groupOption()
{
    static const QCommandLineOption option(QStringLiteral("test-nag-group-by-module"),
                                           QStringLiteral("Group nag by module"));
    return option;
}

const QCommandLineOption& dirOption()
{
    static const QCommandLineOption option(QStringLiteral("test-nag-screens-dir"),
                                           QStringLiteral("NagScreens screenshots dir"),
                                           QStringLiteral("dir"));
    return option;
}

const QCommandLineOption& pathOption()
{
    static const QCommandLineOption option(QStringLiteral("test-nag-path"), QStringLiteral("Test nag path"),
                                           QStringLiteral("path"));
    return option;
}

const QCommandLineOption& helperOption()
{
    static const QCommandLineOption option(QStringLiteral("test-nag-helper"),
                                           QStringLiteral("Show nag executer window"));
    return option;
}

void writeText(const QString& path, const QString& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text | QIODevice::Truncate)) {
        LOG(ERROR) << "Nag test: can't write " << Util::QStringToUtf8(path);
        return;
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    stream << text;
}

} // namespace

class NagTest::Impl
{
public:
    std::shared_ptr<ICustomizationManager> customizationManager;
    std::shared_ptr<ILookAndFeelManager> lookAndFeelManager;
    std::shared_ptr<NagScreen::IManager> nagManager;
    DummytTestLocales locales;
    // The moment a nag stays before its picture is taken: long enough for the first frame and the
    // dialog's own placement.
    std::chrono::milliseconds pictureDelay{300};

    void prepare(TestNagContext& context) const;
    void walk(const TestNagContext& context) const;
    void show(NagScreen::AbstractContent& content, const QString& folder, const QString& name,
              const QString& locale, int delay, NagHashTable& hashes) const;
};

void NagTest::Impl::prepare(TestNagContext& context) const
{
    if (!context.path.isEmpty()) {
        NagScreen::NagRecord single;
        single.implementation = NagScreen::Implementation::Local;
        context.actions[QString()][QString()] = single;
        return;
    }
    const auto config = nagManager ? nagManager->GetNagConfig() : nullptr;
    if (!config) {
        LOG(ERROR) << "Nag screen manager is not configured";
        return;
    }
    for (const QString& mode :
         {NagScreen::AppMode::Free(), NagScreen::AppMode::Trial(), NagScreen::AppMode::Licensed()})
        context.actions[mode] = config->ActionsForMode(mode);
    if (context.appActions.isEmpty())
        return;
    for (auto& entry : context.actions) {
        auto& byAction = entry.second;
        for (auto it = byAction.begin(); it != byAction.end();)
            it = context.appActions.contains(it->first) ? std::next(it) : byAction.erase(it);
    }
}

void NagTest::Impl::walk(const TestNagContext& context) const
{
    const auto factory = nagManager ? nagManager->GetContentFactory() : nullptr;
    if (!factory || !lookAndFeelManager) {
        LOG(ERROR) << "Nag screen manager is not configured";
        return;
    }
    const std::string previousLocale = lookAndFeelManager->GetCurrentLocale();
    const QString root =
        context.dir.isEmpty()
            ? QDir::toNativeSeparators(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation))
            : context.dir;
    const QString separator = QDir::separator();
    // root/NagScreenshots/<locale>/<module>/, or root/NagScreenshots/<module>/ for all locales together.
    // Joined, not filled into a template: a root or module name may hold "%1" itself.
    const auto folderOf = [&](const QString& locale) -> QString {
        return root + separator + QStringLiteral("NagScreenshots") + separator +
               (locale.isEmpty() ? QString() : locale + separator) + context.moduleName + separator;
    };
    const QString moduleFolder = folderOf(QString());
    NagHashTable hashes;
    const auto forThisModule = [&context](const NagScreen::NagRecord& record) {
        return record.modules.isEmpty() || record.modules.contains(context.moduleName);
    };
    // The walk takes its time (a picture delay and a show delay for every nag in every locale):
    // whoever started it sees on the console how far it is.
    int total = 0;
    for (const auto& entry : context.actions) {
        for (const auto& action : entry.second)
            total += forThisModule(action.second) ? 1 : 0;
    }
    total *= context.locales.size();
    int done = 0;

    for (const QString& locale : context.locales) {
        lookAndFeelManager->SetLocale(Util::QStringToUtf8(locale));
        const QString folder = folderOf(context.groupByModule ? QString() : locale);
        QDir().mkpath(folder);
        const QString suffix = context.groupByModule ? QLatin1Char('_') + locale : QString();
        QString webUrls;

        for (const auto& [mode, byAction] : context.actions) {
            for (const auto& [action, record] : byAction) {
                if (!forThisModule(record))
                    continue;
                const NagScreen::NagContext nagContext{action, mode, 1};
                const QString name =
                    (context.path.isEmpty()
                         ? mode + QLatin1Char('-') + NagScreen::ImplName(record.implementation) +
                               QLatin1Char('-') + action
                         : QFileInfo(context.path).absoluteDir().dirName()) +
                    suffix;
                std::printf("Nag %d/%d (%s): %s\n", ++done, total, qPrintable(locale), qPrintable(name));
                std::fflush(stdout);
                QString webUrl = QStringLiteral("UNDEFINED");
                std::unique_ptr<NagScreen::AbstractContent> content =
                    factory->Create(record.implementation, nagContext);
                if (content) {
                    QEventLoop loop;
                    QObject::connect(content.get(), &NagScreen::AbstractContent::StateChanged, &loop,
                                     &QEventLoop::quit);
                    if (context.path.isEmpty())
                        content->Load();
                    else
                        content->LoadFromPath(context.path);
                    if (content->State() == NagScreen::ContentState::Loading)
                        loop.exec();
                    webUrl = content->SourceUrl().toString();
                }
                webUrls += name + QStringLiteral(" : ") + webUrl + QStringLiteral("\n\n");
                if (content && content->State() == NagScreen::ContentState::Ready)
                    show(*content, folder, name, locale, context.delay, hashes);
                else
                    StorePixmap(PlaceholderPixmap(), folder, name);
            }
        }
        writeText(folder + QStringLiteral("webNagUrls") + suffix + QStringLiteral(".txt"), webUrls);
    }
    // With a folder per locale nothing has made the module's common folder yet.
    QDir().mkpath(moduleFolder);
    writeText(moduleFolder + QStringLiteral("NagHash.md"), NagHashReport(hashes));
    lookAndFeelManager->SetLocale(previousLocale);
    LOG(INFO) << "Nag screenshots of " << context.locales.size() << " locales written below "
              << Util::QStringToUtf8(moduleFolder);
}

void NagTest::Impl::show(NagScreen::AbstractContent& content, const QString& folder, const QString& name,
                         const QString& locale, int delay, NagHashTable& hashes) const
{
    // Both timers have the content as context: they die with it, which is what keeps the
    // references to the walk's locals safe.
    NagScreen::AbstractContent* shown = &content;
    QTimer::singleShot(pictureDelay, shown, [shown, &folder, &name, &locale, delay, &hashes]() {
        const QPixmap picture = shown->Picture();
        StorePixmap(picture.isNull() ? PlaceholderPixmap() : picture, folder, name);
        hashes[name][locale] = {shown->DeclaredHash(), shown->ComputedHash()};
        QTimer::singleShot(delay, shown, [shown]() { Q_EMIT shown->AcceptRequested({}); });
    });
    const auto settings = std::make_shared<WebConfig::DefaultNagsSettings>();
    NagScreen::DialogStrategy strategy(settings);
    strategy.SetDefaultWindowFlags(strategy.GetDefaultWindowFlags() | Qt::WindowStaysOnTopHint);
    strategy.ShowNag(content);
}

NagTest::NagTest(const std::shared_ptr<ICustomizationManager>& customizationManager,
                 const std::shared_ptr<ILookAndFeelManager>& lookAndFeelManager,
                 const std::shared_ptr<NagScreen::IManager>& nagManager)
    : d(std::make_unique<Impl>())
{
    d->customizationManager = customizationManager;
    d->lookAndFeelManager = lookAndFeelManager;
    d->nagManager = nagManager;
}

NagTest::~NagTest() = default;

void NagTest::initialize(const QCommandLineParser&) {}

void NagTest::run(const QCommandLineParser& parser)
{
    if (parser.isSet(screensOption())) {
        TestNagContext context;
        context.delay = parser.value(delayOption()).toInt(nullptr, 10);
        const QString actions = parser.value(screensOption());
        if (!actions.isEmpty())
            context.appActions = actions.split(QLatin1Char(','));
        context.groupByModule = parser.isSet(groupOption());
        context.dir = parser.value(dirOption());
        context.path = parser.value(pathOption());
        for (const std::string& locale : d->locales.selectedLocales(parser, d->lookAndFeelManager))
            context.locales += Util::Utf8ToQString(locale);
        if (d->customizationManager)
            context.moduleName = Util::Utf8ToQString(d->customizationManager->GetModuleName());
        d->prepare(context);
        d->walk(context);
    }
    if (parser.isSet(helperOption())) {
        if (!d->nagManager) {
            LOG(ERROR) << "Nag screen manager is not configured";
            return;
        }
        auto* form = new NagScreen::NagScreenTestForm(d->nagManager);
        form->setAttribute(Qt::WA_DeleteOnClose);
        form->show();
    }
}

void NagTest::setPictureDelay(std::chrono::milliseconds delay)
{
    d->pictureDelay = delay;
}

QList<QCommandLineOption> NagTest::getCLO() const
{
    return QList<QCommandLineOption>{delayOption(), screensOption(), groupOption(),
                                     dirOption(),   pathOption(),    helperOption()} +
           d->locales.getCLO();
}

} // namespace Ostrel::App
