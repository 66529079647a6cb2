#include "App/Application/LookAndFeelManager.h"

#include "App/Application/StylesheetMacros.h"

#include "Events/EventHandlerList.h"
#include "Events/SyncExecutePolicy.h"
#include "Foundation/DataInputString.h"
#include "Foundation/Property.h"
#include "Foundation/PropertySerializer.h"
#include "Foundation/Utf8.h"
#include "Interfaces/IQssPreprocessor.h"
#include "QtUtil/FontDatabase.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QLocale>
#include <QPixmapCache>
#include <QResource>
#include <QTextStream>
#include <QTranslator>
#include <QVariantMap>

#include <cstring>
#include <functional>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

namespace Ostrel::App {

using Util::QStringToUtf8;
using Util::Utf8ToQString;

namespace {

// The one platform token of file names and JSON sections; builds for other systems share it.
const char* const PlatformName = "win";
const char* const UnknownLocale = "unknown";
const char* const FallbackLocale = "en_US";

QString platformToken()
{
    return QString::fromLatin1(PlatformName);
}

std::list<std::string> subdirectoryNames(const QString& directory)
{
    std::list<std::string> names;
    const QFileInfoList entries =
        QDir(directory).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::NoSort);
    for (const QFileInfo& entry : entries)
        names.push_back(QStringToUtf8(entry.baseName()));
    return names;
}

// A theme's fonts stay registered when the theme changes, so a font is registered once a process.
// Known by its bytes: two themes' resources may carry different fonts under one path and size.
// Qt gives a removed font's id to the next font added, so a cached id counts only while it still
// names the families it was registered with.
// What tells two font files apart: their size and a 64-bit hash of their bytes as stored (a
// resource's compressed bytes where the resource system keeps them, a file's through a mapping),
// so that no copy of the font is made for it. Fonts of two themes are not crafted to collide; a
// cryptographic digest of a font cost as much as the rest of the start together. Null when the
// file does not open.
std::optional<QByteArray> fontKey(const QString& path)
{
    const auto key = [](const uchar* data, qint64 size, int compression) -> QByteArray {
        const std::string_view bytes(reinterpret_cast<const char*>(data), size_t(size));
        return QByteArray::number(size) + ':' + QByteArray::number(compression) + ':' +
               QByteArray::number(quint64(std::hash<std::string_view>{}(bytes)));
    };
    const QResource resource(path);
    if (resource.isValid() && resource.data())
        return key(resource.data(), resource.size(), int(resource.compressionAlgorithm()));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    if (const uchar* mapped = file.map(0, file.size()))
        return key(mapped, file.size(), 0);
    const QByteArray bytes = file.readAll();
    return key(reinterpret_cast<const uchar*>(bytes.constData()), bytes.size(), 0);
}

void addFontOnce(const QString& path)
{
    struct Registered
    {
        int id;
        QStringList families;
    };
    static QHash<QByteArray, Registered> registered;
    const std::optional<QByteArray> key = fontKey(path);
    if (!key) {
        Util::FontDatabase::addApplicationFont(QStringToUtf8(path)); // logs the missing file
        return;
    }
    const auto it = registered.constFind(*key);
    if (it != registered.constEnd() && QFontDatabase::applicationFontFamilies(it->id) == it->families)
        return;
    const int id = Util::FontDatabase::addApplicationFont(QStringToUtf8(path));
    if (id >= 0)
        registered.insert(*key, {id, QFontDatabase::applicationFontFamilies(id)});
}

// The bytes of a file opened as text, or nothing when it does not open.
std::optional<QByteArray> readText(const std::string& path)
{
    const QString name = Utf8ToQString(path);
    // A theme's texts live in its resources: taken from the resource in one piece rather than
    // through a device's reads. Text mode only drops "\r" before "\n"; a text holding a "\r" at
    // all is read through the device as before.
    if (name.startsWith(QLatin1String(":/")) && QFileInfo(name).isFile()) {
        const QResource resource(name);
        QByteArray bytes = resource.uncompressedData();
        if (!std::memchr(bytes.constData(), '\r', size_t(bytes.size()))) {
            bytes.detach(); // an uncompressed resource's bytes belong to the registered file
            return bytes;
        }
    }
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return std::nullopt;
    return file.readAll();
}

// Everything a composed stylesheet depends on before the preprocessor: the same inputs give the
// same text, so it is not composed again.
struct CompositionInputs
{
    std::string locale;
    std::vector<std::optional<QByteArray>> macroFiles;
    std::vector<std::optional<QByteArray>> styleFiles;

    bool operator==(const CompositionInputs& other) const
    {
        return locale == other.locale && macroFiles == other.macroFiles && styleFiles == other.styleFiles;
    }
};

} // namespace

class LookAndFeelManager::Impl
{
public:
    Core::ioPath m_path;
    std::list<std::string> m_resourceBaseNames;
    std::list<std::string> m_locales;
    std::string m_currentLocale;
    std::list<std::string> m_themes;
    std::string m_currentTheme;
    std::map<std::string, Core::Property> m_themeTitles;
    QString m_unitedStylesheet;
    std::list<std::shared_ptr<QTranslator>> m_translators;
    Core::EventHandlerList<ILookAndFeelObserver, Core::SyncExecutePolicy> m_observers;
    std::shared_ptr<IQssPreprocessor> m_qssPreprocessor;

    // The current theme's resource files that registered: each once while the theme is current.
    QStringList m_registeredResources;
    std::optional<CompositionInputs> m_composedFrom;
    QString m_composed; // the text composed from m_composedFrom, before the preprocessor

    // The system's languages are worked out again only when Qt's default locale is no longer the
    // one they were read under (a product may call QLocale::setDefault at any time; comparing two
    // QLocale is cheap, reading the languages is not). The locale folders are read once, like the
    // lists of locales and themes.
    mutable std::optional<std::list<std::string>> m_candidates;
    mutable QLocale m_candidatesLocale;
    std::map<std::string, QStringList> m_translationFiles;

    QString resourcesDir() const { return (m_path / Core::ioPath("resources")).toQString(); }
    QString themeDir(const std::string& theme) const
    {
        return resourcesDir() + QStringLiteral("/themes/") + Utf8ToQString(theme);
    }

    QString titleFile(const std::string& theme, const std::string& titleFileName) const
    {
        return themeDir(theme) + QLatin1Char('/') + Utf8ToQString(titleFileName);
    }

    QList<QFileInfo> GetFilteredResourceList() const
    {
        const QString directory = themeDir(m_currentTheme);
        QDir dir(directory);
        if (!dir.exists()) {
            LOG(ERROR) << "The directory [" << QStringToUtf8(directory) << "] doesn't exist!";
            return {};
        }
        if (m_resourceBaseNames.empty())
            return dir.entryInfoList({QStringLiteral("*.rcc")}, QDir::Files, QDir::NoSort);
        QList<QFileInfo> result;
        for (const std::string& name : m_resourceBaseNames) {
            const QFileInfo file(dir, Utf8ToQString(name) + QStringLiteral(".rcc"));
            if (file.exists())
                result.append(file);
        }
        return result;
    }

    void ClearCurrentTheme()
    {
        if (!m_currentTheme.empty()) {
            for (const QString& file : std::as_const(m_registeredResources))
                QResource::unregisterResource(file, QString());
            m_registeredResources.clear();
            m_currentTheme.clear();
        }
        QPixmapCache::clear();
    }

    // Qt's translation of its own texts for the current locale: "qtbase_<locale>.qm" in the
    // locale's folder, else the most specific one in Qt's translations folder; empty for none.
    QString qtTranslationFile(const QDir& localeDir) const
    {
        const QString name =
            QStringLiteral("qtbase_") + Utf8ToQString(m_currentLocale) + QStringLiteral(".qm");
        if (localeDir.exists(name))
            return localeDir.absoluteFilePath(name);
        const QString qtDir = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
        const QString locale = Utf8ToQString(m_currentLocale);
        for (const QString& candidate : {locale, locale.section(QLatin1Char('_'), 0, 0)}) {
            const QFileInfo file(qtDir + QStringLiteral("/qtbase_") + candidate + QStringLiteral(".qm"));
            if (!candidate.isEmpty() && file.isFile())
                return file.absoluteFilePath();
        }
        return QString();
    }

    // The current locale's translation files, as absolute paths of files.
    const QStringList& translationFiles()
    {
        const auto known = m_translationFiles.find(m_currentLocale);
        if (known != m_translationFiles.end())
            return known->second;
        const QDir dir(resourcesDir() + QStringLiteral("/locales/") + Utf8ToQString(m_currentLocale));
        QFileInfoList entries;
        if (m_resourceBaseNames.empty()) {
            entries = dir.entryInfoList({QStringLiteral("*.qm")}, QDir::Files, QDir::NoSort);
        } else {
            for (const std::string& name : m_resourceBaseNames) {
                const QFileInfo file(dir, Utf8ToQString(name + "_" + m_currentLocale + ".qm"));
                if (file.exists())
                    entries.append(file);
            }
        }
        QStringList files;
        bool qtOwn = false;
        for (const QFileInfo& entry : std::as_const(entries)) {
            if (entry.isFile())
                files.append(entry.absoluteFilePath());
            qtOwn = qtOwn || entry.fileName().startsWith(QLatin1String("qtbase_"));
        }
        // Qt's own texts (its dialogs and standard buttons) come with every locale, whatever
        // names the product lists: the tree's copy, else Qt's installed translations.
        if (!qtOwn) {
            const QString qtFile = qtTranslationFile(dir);
            if (!qtFile.isEmpty())
                files.append(qtFile);
        }
        return m_translationFiles[m_currentLocale] = files;
    }

    void mergeMacros(const QVariantMap& root, const QString& section, const QString& block,
                     std::map<QString, QString>* macros) const
    {
        const auto sectionIt = root.find(section);
        if (sectionIt == root.end())
            return;
        const QVariantMap blocks = sectionIt->toMap();
        const auto blockIt = blocks.find(block);
        if (blockIt == blocks.end())
            return;
        const QVariantMap values = blockIt->toMap();
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            (*macros)[QLatin1Char('@') + it.key()] = it.value().toString();
    }
};

LookAndFeelManager::LookAndFeelManager(const Core::ioPath& path, const std::string& themeTitleFileName,
                                       const std::list<std::string>& resourceBaseNames,
                                       const std::list<std::string>& /*unused*/)
    : d(std::make_unique<Impl>())
{
    d->m_path = path;
    d->m_resourceBaseNames = resourceBaseNames;

    const QString root = d->resourcesDir();
    const QFileInfoList entries = QDir(root).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::NoSort);
    for (const QFileInfo& entry : entries) {
        if (!entry.isDir())
            continue;
        const QString base = entry.baseName();
        if (base == QLatin1String("locales")) {
            d->m_locales = subdirectoryNames(entry.absoluteFilePath());
        } else if (base == QLatin1String("themes")) {
            for (const std::string& theme : subdirectoryNames(entry.absoluteFilePath())) {
                QFile title(d->titleFile(theme, themeTitleFileName));
                if (title.open(QIODevice::ReadOnly | QIODevice::Text))
                    d->m_themes.push_back(theme);
            }
        }
    }

    for (const std::string& theme : d->m_themes) {
        QFile title(d->titleFile(theme, themeTitleFileName));
        // A title file that vanished since the listing leaves the theme without a record; its
        // menu entry then shows the folder name.
        if (!title.open(QIODevice::ReadOnly | QIODevice::Text))
            continue;
        const QByteArray bytes = title.readAll();
        Core::Property property;
        if (!Core::PropertySerializer::Deserialize(
                property, Core::DataInputString::Create(std::string(bytes.constData(), size_t(bytes.size()))),
                true))
            LOG(WARNING) << "The title file of theme [" << theme << "] is damaged; using what could be read";
        d->m_themeTitles[theme] = std::move(property);
    }
}

LookAndFeelManager::~LookAndFeelManager() = default;

void LookAndFeelManager::Initialize(const std::string& locale, const std::string& theme)
{
    SetLocale(locale);
    SetTheme(theme);
}

const std::string& LookAndFeelManager::GetCurrentLocale() const
{
    return d->m_currentLocale;
}

const std::list<std::string>& LookAndFeelManager::GetLocales() const
{
    return d->m_locales;
}

const std::list<std::string>& LookAndFeelManager::GetThemes() const
{
    return d->m_themes;
}

QStringList LookAndFeelManager::GetSystemLanguages() const
{
    return QLocale().uiLanguages();
}

std::list<std::string> LookAndFeelManager::systemCandidates() const
{
    std::list<std::string> candidates;
    for (const QString& language : GetSystemLanguages()) {
        std::string candidate = QStringToUtf8(QLocale(language).name());
        // Every Portuguese counts as the Brazilian one, every Chinese but the mainland's as the
        // traditional one; "zh_CN" must be tested before "zh".
        if (candidate.rfind("pt", 0) == 0)
            candidate = "pt_BR";
        else if (candidate.rfind("zh_CN", 0) == 0)
            candidate = "zh_CN";
        else if (candidate.rfind("zh", 0) == 0)
            candidate = "zh_TW";
        candidates.push_back(candidate);
    }
    return candidates;
}

std::string LookAndFeelManager::ValidateLocale(const std::string& requested) const
{
    const auto& locales = d->m_locales;
    if (!requested.empty() && requested != UnknownLocale &&
        std::find(locales.begin(), locales.end(), requested) != locales.end())
        return requested;

    const QLocale current;
    if (!d->m_candidates || d->m_candidatesLocale != current) {
        d->m_candidates = systemCandidates();
        d->m_candidatesLocale = current;
    }
    const std::list<std::string>& candidates = *d->m_candidates;

    std::string result = GetDefaultLocale();
    if (result.empty() || result == UnknownLocale)
        result = FallbackLocale;

    for (const std::string& candidate : candidates) {
        for (const std::string& installed : locales) {
            if (installed.rfind(candidate, 0) == 0)
                return installed;
        }
    }
    return result;
}

void LookAndFeelManager::SetLocale(const std::string& locale)
{
    const std::string validated = ValidateLocale(locale);
    if (validated == d->m_currentLocale)
        return;
    d->m_currentLocale = validated;

    for (const auto& translator : d->m_translators)
        QCoreApplication::removeTranslator(translator.get());
    d->m_translators.clear();

    for (const QString& file : d->translationFiles()) {
        auto translator = std::make_shared<QTranslator>();
        if (translator->load(file, QString(), QString(), QString())) {
            QCoreApplication::installTranslator(translator.get());
            d->m_translators.push_back(translator);
        }
    }

    d->m_observers.Notify(&ILookAndFeelObserver::OnLocaleChanged, d->m_currentLocale);
}

void LookAndFeelManager::SetTheme(const std::string& theme)
{
    // No early return for the current name: setting it again recomposes what changed (a new
    // locale's macros) and notifies. Its resources stay registered once.
    if (theme != d->m_currentTheme)
        d->ClearCurrentTheme();
    if (theme.empty())
        return;
    d->m_currentTheme = theme;

    ThemeDescription description;
    const QString platform = platformToken();
    for (const QFileInfo& file : d->GetFilteredResourceList()) {
        if (!file.isFile())
            continue;
        const QString path = file.absoluteFilePath();
        if (!d->m_registeredResources.contains(path) && QResource::registerResource(path, QString()))
            d->m_registeredResources.append(path);
        const QString prefix = QStringLiteral(":/") + file.baseName() + QLatin1Char('/');
        description.styleFiles.push_back(QStringToUtf8(prefix + QStringLiteral("style.qss")));
        description.styleFiles.push_back(
            QStringToUtf8(prefix + QStringLiteral("fonts_") + platform + QStringLiteral(".qss")));
        description.macroFiles.push_back(QStringToUtf8(prefix + QStringLiteral("fonts.json")));
        description.fontManifestFiles.push_back(QStringToUtf8(prefix + QStringLiteral("fonts.manifest")));
    }
    description.styleFiles.push_back(":/productStyle.qss");
    description.styleFiles.push_back(
        QStringToUtf8(QStringLiteral(":/productStyle_") + platform + QStringLiteral(".qss")));

    ApplyTheme(description);
    d->m_observers.Notify(&ILookAndFeelObserver::OnThemeChanged, d->m_currentTheme);
}

const std::string& LookAndFeelManager::GetCurrentTheme() const
{
    return d->m_currentTheme;
}

std::string LookAndFeelManager::GetLocalizedThemeName(const std::string& theme) const
{
    const auto it = d->m_themeTitles.find(theme);
    if (it != d->m_themeTitles.end() && it->second.ChildExists(d->m_currentLocale))
        return it->second.GetChildString(d->m_currentLocale);
    LOG(WARNING) << "No title found for theme [" << theme << "] on language [" << d->m_currentLocale << "]!";
    return theme;
}

void LookAndFeelManager::ApplyTheme(const ThemeDescription& description)
{
    d->m_unitedStylesheet.clear();

    CompositionInputs inputs;
    inputs.locale = d->m_currentLocale;
    for (const std::string& path : description.macroFiles)
        inputs.macroFiles.push_back(readText(path));
    for (const std::string& path : description.styleFiles)
        inputs.styleFiles.push_back(readText(path));

    for (const std::string& path : description.fontManifestFiles) {
        const std::optional<QByteArray> manifest = readText(path);
        if (!manifest)
            continue;
        QTextStream stream(*manifest);
        while (!stream.atEnd()) {
            QString token;
            stream >> token;
            if (!token.isEmpty())
                addFontOnce(token);
        }
    }

    if (!d->m_composedFrom || !(*d->m_composedFrom == inputs)) {
        std::map<QString, QString> macros;
        const QString platform = platformToken();
        const QString allPlatforms = QStringLiteral("all_platforms");
        const QString allLanguages = QStringLiteral("all_languages");
        const QString locale = Utf8ToQString(d->m_currentLocale);
        for (const std::optional<QByteArray>& bytes : inputs.macroFiles) {
            if (!bytes)
                continue;
            QTextStream stream(*bytes);
            const QVariantMap root =
                QJsonDocument::fromJson(stream.readAll().toLocal8Bit()).object().toVariantMap();
            // The most specific block comes last and wins.
            d->mergeMacros(root, allPlatforms, allLanguages, &macros);
            d->mergeMacros(root, allPlatforms, locale, &macros);
            d->mergeMacros(root, platform, allLanguages, &macros);
            d->mergeMacros(root, platform, locale, &macros);
        }

        QString text;
        for (const std::optional<QByteArray>& bytes : inputs.styleFiles) {
            if (bytes)
                text += QString::fromUtf8(*bytes);
            text += QLatin1Char('\n');
        }
        // Ascending key order, as if each macro were replaced in turn over the whole text: a macro
        // whose name is a prefix of another's replaces inside the longer one's occurrences too, so
        // theme authors must avoid such pairs.
        d->m_composed = StylesheetMacros(macros).apply(std::move(text));
        d->m_composedFrom = std::move(inputs);
    }
    d->m_unitedStylesheet = d->m_composed;

    if (d->m_qssPreprocessor)
        d->m_qssPreprocessor->Preprocess(d->m_unitedStylesheet);
}

std::string LookAndFeelManager::GetUnitedStylesheet()
{
    return QStringToUtf8(d->m_unitedStylesheet);
}

std::string LookAndFeelManager::GetDefaultLocale() const
{
    return UnknownLocale;
}

void LookAndFeelManager::RegisterObserver(ILookAndFeelObserver* observer)
{
    d->m_observers.RegisterEventHandler(observer);
}

void LookAndFeelManager::UnregisterObserver(ILookAndFeelObserver* observer)
{
    d->m_observers.UnregisterEventHandler(observer);
}

void LookAndFeelManager::SetQssPreprocessor(const std::shared_ptr<IQssPreprocessor>& preprocessor)
{
    d->m_qssPreprocessor = preprocessor;
}

} // namespace Ostrel::App
