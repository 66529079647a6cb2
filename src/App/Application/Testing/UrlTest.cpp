#include "App/Application/Testing/UrlTest.h"

#include "App/Application/Testing/DummytTestLocales.h"
#include "App/Application/Testing/LogURLHandler.h"
#include "Foundation/MaskedLogging.h"
#include "Foundation/UserOnlyFiles.h"
#include "Foundation/Utf8.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/ILookAndFeelManager.h"
#include "Interfaces/URLKeys.h"
#include "QtUtil/AlertBox.h"

#include <glog/logging.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <vector>

namespace Ostrel::App {

namespace {

const QCommandLineOption& dumpOption()
{
    static const QCommandLineOption option(QStringLiteral("test-dump-urls"),
                                           QStringLiteral("Write URLs to dump file"));
    return option;
}

const QCommandLineOption& openOption()
{
    static const QCommandLineOption option(QStringLiteral("test-open-urls"),
                                           QStringLiteral("Open URLs in browser"));
    return option;
}

const QCommandLineOption& logOption()
{
    static const QCommandLineOption option(QStringLiteral("test-log-urls"),
                                           QStringLiteral("Log opened URLs to file"), QStringLiteral("path"));
    return option;
}

const QCommandLineOption& delayOption()
{
    static const QCommandLineOption option(QStringLiteral("test-open-urls-delay"),
                                           QStringLiteral("Set open url delay in ms"),
                                           QStringLiteral("delay"), QStringLiteral("1000"));
    return option;
}

// When the next URL of an open run opens, in ms after its walk. Shared by every run of the process
// and never reset, so that a second run queues behind the first instead of opening all at once.
int& nextOpenDelay()
{
    static int delay = 10000;
    return delay;
}

// Raises glog's console threshold to errors while it lives. The dump warns once per key and
// locale for every link the module lacks (hundreds of lines for a product with few custom links):
// those lines belong in the log file, and the console gets their count.
class ConsoleWarningsOff
{
public:
    ConsoleWarningsOff() : m_saved(Core::MaskedLogging::consoleThreshold())
    {
        Core::MaskedLogging::setConsoleThreshold(std::max(m_saved, int(google::GLOG_ERROR)));
    }
    ~ConsoleWarningsOff() { Core::MaskedLogging::setConsoleThreshold(m_saved); }
    ConsoleWarningsOff(const ConsoleWarningsOff&) = delete;
    ConsoleWarningsOff& operator=(const ConsoleWarningsOff&) = delete;

private:
    const int m_saved;
};

struct UrlRecord
{
    std::string keyName;
    std::string url;
};

} // namespace

class UrlTest::Impl
{
public:
    std::shared_ptr<ICustomizationManager> customizationManager;
    std::shared_ptr<ILookAndFeelManager> lookAndFeelManager;
    std::shared_ptr<ILinksManager> linksManager;
    std::unique_ptr<LogURLHandler> logHandler;
    DummytTestLocales locales;
    // The opening timers die with the test.
    QObject timerContext;
    std::optional<int> ownNextOpenDelay;

    int& nextDelay() { return ownNextOpenDelay ? *ownNextOpenDelay : nextOpenDelay(); }

    std::string moduleName() const
    {
        return customizationManager ? customizationManager->GetModuleName() : std::string();
    }

    void setLocale(const std::string& locale)
    {
        // Links take their locale from the look and feel alone (the links manager reads it for
        // every URL); the customization keeps no locale, so there is nothing else to switch.
        lookAndFeelManager->SetLocale(locale);
    }

    void testUrls(const QString& path, const std::list<std::string>& chosen, bool open, int delay);
    void openRecords(const std::vector<UrlRecord>& records, int delay);
};

void UrlTest::Impl::testUrls(const QString& path, const std::list<std::string>& chosen, bool open, int delay)
{
    // Every link may carry the user's name and address: the dump starts afresh as a user-only file.
    QFile::remove(path);
    Core::UserOnlyFiles::prepareFile(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        LOG(ERROR) << "Can't open file to dump: " << Util::QStringToUtf8(path);
        Util::AlertBox box(Util::AlertBox::Question,
                           QCoreApplication::translate("UrlTest", "Config test error"),
                           QCoreApplication::translate("UrlTest", "Can't open file to dump: ") + path,
                           QMessageBox::Ok, nullptr, Qt::WindowFlags(0x103));
        box.Exec();
        return;
    }
    if (!lookAndFeelManager || !linksManager) {
        LOG(ERROR) << "URL test: no look and feel or no links manager, nothing to dump";
        return;
    }

    const std::string module = moduleName();
    std::vector<UrlRecord> records;
    int missing = 0;
    {
        const ConsoleWarningsOff quiet;
        // Whatever happens in the walk, the user's locale comes back.
        struct LocaleGuard
        {
            Impl& impl;
            std::string locale;
            ~LocaleGuard() { impl.setLocale(locale); }
        } guard{*this, lookAndFeelManager->GetCurrentLocale()};

        for (const std::string& locale : chosen) {
            setLocale(locale);
            const std::size_t first = records.size();
            // Every key the vocabulary defines, in ascending order; the numbering has gaps.
            for (const auto& entry : UrlKeyNames) {
                const URLKeys key = entry.first;
                const std::string url = Util::QStringToUtf8(linksManager->GetUrl(key));
                const std::string& name = UrlKeyNames.at(key);
                if (!url.empty())
                    records.push_back({name, url});
                else {
                    LOG(WARNING) << "Cannot find url " + name + "for module " + module;
                    ++missing;
                }
            }
            std::string block;
            for (std::size_t i = first; i < records.size(); ++i)
                block += locale + ';' + records[i].keyName + ';' + records[i].url + ";\n";
            file.write(block.data(), static_cast<qint64>(block.size()));
        }
    }
    file.close();
    LOG(INFO) << "URL dump of " << chosen.size() << " locales written to " << Util::QStringToUtf8(path);
    std::printf("URLs of %zu locales dumped, %d without a URL for module %s (listed in the log)\n",
                chosen.size(), missing, module.c_str());
    std::fflush(stdout);
    if (open)
        openRecords(records, delay);
}

void UrlTest::Impl::openRecords(const std::vector<UrlRecord>& records, int delay)
{
    for (const UrlRecord& record : records) {
        QTimer::singleShot(nextDelay(), &timerContext,
                           [this, record]() { linksManager->OpenUrl(Util::Utf8ToQString(record.url)); });
        nextDelay() += delay;
    }
}

UrlTest::UrlTest(const std::shared_ptr<ICustomizationManager>& customizationManager,
                 const std::shared_ptr<ILookAndFeelManager>& lookAndFeelManager,
                 const std::shared_ptr<ILinksManager>& linksManager)
    : d(std::make_unique<Impl>())
{
    d->customizationManager = customizationManager;
    d->lookAndFeelManager = lookAndFeelManager;
    d->linksManager = linksManager;
}

UrlTest::~UrlTest()
{
    // The desktop keeps a pointer to the handler: take it back before the handler goes.
    if (d->logHandler) {
        QDesktopServices::unsetUrlHandler(QStringLiteral("http"));
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    }
}

void UrlTest::initialize(const QCommandLineParser&) {}

void UrlTest::run(const QCommandLineParser& parser)
{
    const bool open = parser.isSet(openOption());
    if (parser.isSet(dumpOption()) || open) {
        const int delay = parser.value(delayOption()).toInt(nullptr, 10);
        d->testUrls(dumpFilePath(), d->locales.selectedLocales(parser, d->lookAndFeelManager), open, delay);
    }
    if (parser.isSet(logOption())) {
        d->logHandler = std::make_unique<LogURLHandler>(nullptr, parser.value(logOption()));
        QDesktopServices::setUrlHandler(QStringLiteral("http"), d->logHandler.get(), "logUrls");
        QDesktopServices::setUrlHandler(QStringLiteral("https"), d->logHandler.get(), "logUrls");
    }
}

QList<QCommandLineOption> UrlTest::getCLO() const
{
    return QList<QCommandLineOption>{dumpOption(), openOption(), logOption(), delayOption()} +
           d->locales.getCLO();
}

QString UrlTest::dumpFilePath() const
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QLatin1Char('/') +
           Util::Utf8ToQString(d->moduleName()) + QStringLiteral("-url-dump.csv");
}

void UrlTest::setFirstOpenDelay(std::chrono::milliseconds delay)
{
    d->ownNextOpenDelay = static_cast<int>(delay.count());
}

} // namespace Ostrel::App
