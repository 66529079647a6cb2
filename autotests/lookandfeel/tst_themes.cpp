// The theme half of the look-and-feel manager, on the tree the build generates and on broken
// copies of it.

#include "App/Application/LookAndFeelManager.h"
#include "Interfaces/IQssPreprocessor.h"

#include "Contrast.h"
#include "EnglishLookAndFeel.h"
#include "LogCapture.h"
#include "TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QPixmapCache>
#include <QProcess>
#include <QRegularExpression>
#include <QResource>
#include <QTemporaryDir>

#include <map>

using namespace Ostrel;
using namespace Ostrel::App;

namespace {

const QString BuildRoot = QStringLiteral(OSTREL_BUILD_ROOT);
const char* const TitleFile = "theme.title";

// Markers that stand once in each style file of the generated themes.
const QString BaseStyle = QStringLiteral("QMainWindow, QDialog, QMessageBox");
const QString BaseFonts = QStringLiteral("/* Font sizes;");
const QString ControlsStyle = QStringLiteral("/* Menus and buttons");
const QString ProductStyle = QStringLiteral("Ostrel--App--AboutBoxDialog {");

class Recorder : public ILookAndFeelObserver
{
public:
    QStringList events;
    void OnLocaleChanged(const std::string& locale) override
    {
        events << QStringLiteral("locale:") + QString::fromStdString(locale);
    }
    void OnThemeChanged(const std::string& theme) override
    {
        events << QStringLiteral("theme:") + QString::fromStdString(theme);
    }
};

class Upper : public IQssPreprocessor
{
public:
    void Preprocess(QString& stylesheet) override { stylesheet = stylesheet.toUpper(); }
};

std::unique_ptr<LookAndFeelManager> realTree(const std::list<std::string>& baseNames = {})
{
    return std::make_unique<Test::EnglishLookAndFeel>(Core::ioPath(BuildRoot), TitleFile, baseNames,
                                                      std::list<std::string>());
}

// The families of the fonts the process registered itself. The machine's own fonts never count,
// even when they are the same family as a theme's.
QStringList applicationFontFamilies()
{
    QStringList families;
    for (int id = 0; id < 16; ++id)
        families += QFontDatabase::applicationFontFamilies(id);
    return families;
}

// A font file of the build's DejaVu folder (the themes' fonts come from it too).
QByteArray dejaVu(const char* name)
{
    QFile file(QStringLiteral(OSTREL_DEJAVU_DIR "/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString sheet(LookAndFeelManager& manager)
{
    return QString::fromStdString(manager.GetUnitedStylesheet());
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// A copy of the generated tree that a test may damage.
void copyTree(const QString& from, const QString& to)
{
    QDir().mkpath(to);
    const QFileInfoList entries = QDir(from).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QFileInfo& entry : entries) {
        const QString target = to + QLatin1Char('/') + entry.fileName();
        if (entry.isDir())
            copyTree(entry.absoluteFilePath(), target);
        else
            QFile::copy(entry.absoluteFilePath(), target);
    }
}

} // namespace

class ThemesTest : public QObject
{
    Q_OBJECT
private slots:
    void discoversTheGeneratedTree()
    {
        const auto manager = realTree();
        std::list<std::string> themes = manager->GetThemes();
        themes.sort();
        QCOMPARE(themes, (std::list<std::string>{"dark", "light"}));
        QCOMPARE(manager->GetLocales().size(), size_t(14));
    }

    void styleFilesComeInResourceOrder_data()
    {
        QTest::addColumn<QStringList>("baseNames");
        QTest::addColumn<QStringList>("markers");
        QTest::newRow("base first") << QStringList{QStringLiteral("base"), QStringLiteral("controls")}
                                    << QStringList{BaseStyle, BaseFonts, ControlsStyle, ProductStyle};
        QTest::newRow("reversed, with a name that has no file")
            << QStringList{QStringLiteral("controls"), QStringLiteral("missing"), QStringLiteral("base")}
            << QStringList{ControlsStyle, BaseStyle, BaseFonts, ProductStyle};
        QTest::newRow("controls only")
            << QStringList{QStringLiteral("controls")} << QStringList{ControlsStyle, ProductStyle};
    }

    void styleFilesComeInResourceOrder()
    {
        QFETCH(QStringList, baseNames);
        QFETCH(QStringList, markers);
        std::list<std::string> names;
        for (const QString& name : baseNames)
            names.push_back(name.toStdString());
        const auto manager = realTree(names);
        manager->Initialize("en_US", "dark");
        const QString text = sheet(*manager);
        int last = -1;
        for (const QString& marker : markers) {
            const int at = text.indexOf(marker);
            QVERIFY2(at > last, qPrintable(marker));
            last = at;
        }
        if (!baseNames.contains(QStringLiteral("base")))
            QVERIFY(!text.contains(BaseStyle));
        manager->SetTheme(std::string());
    }

    void macroBlocksOverrideInOrder_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QStringList>("expected");
        // all_platforms/all_languages says 11pt and 22pt; the "win" section 10pt; its ru_RU block 20pt.
        QTest::newRow("en_US") << QStringLiteral("en_US")
                               << QStringList{QStringLiteral("font-size: 10pt;"),
                                              QStringLiteral("font-size: 22pt;"),
                                              QStringLiteral("font-family: \"DejaVu Sans Condensed\"")};
        QTest::newRow("ru_RU") << QStringLiteral("ru_RU")
                               << QStringList{QStringLiteral("font-size: 10pt;"),
                                              QStringLiteral("font-size: 20pt;")};
        QTest::newRow("ja_JP language block")
            << QStringLiteral("ja_JP") << QStringList{QStringLiteral("font-family: \"DejaVu Sans\"")};
    }

    void macroBlocksOverrideInOrder()
    {
        QFETCH(QString, locale);
        QFETCH(QStringList, expected);
        const auto manager = realTree({"base", "controls"});
        manager->Initialize(locale.toStdString(), "dark");
        const QString text = sheet(*manager);
        for (const QString& piece : expected)
            QVERIFY2(text.contains(piece), qPrintable(piece));
        // Every macro of the theme is defined; the "@" left is the product's "about-top@2x.png".
        QCOMPARE(text.count(QRegularExpression(QStringLiteral("@[A-Za-z]"))), 0);
        // The second part's macros reach the first part's rules and the other way round.
        QVERIFY(text.contains(QStringLiteral("border: 1px solid #3a3e47")));
        // Qt parses it without complaint (a complaint is a warning, which fails the test).
        QWidget widget;
        widget.setStyleSheet(text);
        widget.ensurePolished();
        manager->SetTheme(std::string());
    }

    void switchingThemesSwapsResources()
    {
        const auto manager = realTree({"base", "controls"});
        Recorder recorder;
        manager->RegisterObserver(&recorder);
        manager->Initialize("en_US", "dark");
        QVERIFY(QFile::exists(QStringLiteral(":/base/fonts.json")));
        QVERIFY(sheet(*manager).contains(QStringLiteral("#1d1f24")));

        manager->SetTheme("light");
        QVERIFY(sheet(*manager).contains(QStringLiteral("#f6f7f9")));
        QVERIFY(!sheet(*manager).contains(QStringLiteral("#1d1f24")));

        QCOMPARE(recorder.events, (QStringList{QStringLiteral("locale:en_US"), QStringLiteral("theme:dark"),
                                               QStringLiteral("theme:light")}));

        // The empty theme unregisters, tells nobody and keeps the last text.
        const QString before = sheet(*manager);
        QPixmapCache::insert(QStringLiteral("probe"), QPixmap(4, 4));
        manager->SetTheme(std::string());
        QVERIFY(manager->GetCurrentTheme().empty());
        QVERIFY(!QFile::exists(QStringLiteral(":/base/fonts.json")));
        QPixmap cached;
        QVERIFY(!QPixmapCache::find(QStringLiteral("probe"), &cached));
        QCOMPARE(sheet(*manager), before);
        QCOMPARE(recorder.events.size(), 3);
        manager->UnregisterObserver(&recorder);
    }

    void themesRegisterTheFontsTheyCarry_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<QStringList>("families");
        QTest::newRow("dark") << "dark" << QStringList{QStringLiteral("DejaVu Sans")};
        QTest::newRow("light") << "light" << QStringList{QStringLiteral("DejaVu Sans")};
    }

    void themesRegisterTheFontsTheyCarry()
    {
        QFETCH(QString, theme);
        QFETCH(QStringList, families);
        QFontDatabase::removeAllApplicationFonts();
        const auto manager = realTree({"base"});
        manager->Initialize("en_US", theme.toStdString());
        QCOMPARE(applicationFontFamilies(), families);
        // Once per file and process: setting the theme again adds no second copy.
        manager->SetTheme(std::string());
        manager->SetTheme(theme.toStdString());
        QCOMPARE(applicationFontFamilies(), families);
        // All removed, and the product's own font takes the freed id: the theme's comes back.
        manager->SetTheme(std::string());
        QFontDatabase::removeAllApplicationFonts();
        QCOMPARE(QFontDatabase::addApplicationFontFromData(dejaVu("DejaVuSerif.ttf")), 0);
        manager->SetTheme(theme.toStdString());
        QCOMPARE(applicationFontFamilies(), QStringList{QStringLiteral("DejaVu Serif")} + families);
        manager->SetTheme(std::string());
        QFontDatabase::removeAllApplicationFonts();
    }

    // Two themes' fonts under one path and of one size are two fonts.
    void fontsAreKnownByTheirBytes()
    {
        QFontDatabase::removeAllApplicationFonts();
        const QByteArray serif = dejaVu("DejaVuSerif.ttf");
        QByteArray mono = dejaVu("DejaVuSansMono.ttf");
        QVERIFY(mono.size() < serif.size());
        mono.append(QByteArray(serif.size() - mono.size(), '\0'));
        QTemporaryDir dir;
        const QString font = dir.filePath(QStringLiteral("font.ttf"));
        writeFile(dir.filePath(QStringLiteral("fonts.manifest")), font.toUtf8());
        ILookAndFeelManager::ThemeDescription description;
        description.fontManifestFiles = {dir.filePath(QStringLiteral("fonts.manifest")).toStdString()};
        const auto manager = realTree();
        writeFile(font, serif);
        manager->ApplyTheme(description);
        writeFile(font, mono);
        manager->ApplyTheme(description);
        QCOMPARE(applicationFontFamilies(),
                 (QStringList{QStringLiteral("DejaVu Serif"), QStringLiteral("DejaVu Sans Mono")}));
        QFontDatabase::removeAllApplicationFonts();
    }

    // Every text colour of a theme's composed style against the background it is drawn on: its own
    // rule's, else the one of the widget its selector starts from, else the window's (WCAG AA).
    void themesReadAsWcagAsks_data() { themesRegisterTheFontsTheyCarry_data(); }
    void themesReadAsWcagAsks()
    {
        QFETCH(QString, theme);
        const auto manager = realTree();
        manager->Initialize("en_US", theme.toStdString());
        const QString style = sheet(*manager);
        const QRegularExpression rule(QStringLiteral(R"(([^{}/]+)\{([^}]*)\})"));
        const QRegularExpression colour(
            QStringLiteral(R"((?:^|;)\s*(color|background-color|background)\s*:\s*(#[0-9a-fA-F]{6}))"));
        std::map<QString, QColor> backgrounds;
        std::vector<std::pair<QString, QColor>> texts;
        for (auto block = rule.globalMatch(style); block.hasNext();) {
            const auto match = block.next();
            QColor text;
            QColor background;
            for (auto property = colour.globalMatch(match.captured(2)); property.hasNext();) {
                const auto found = property.next();
                (found.captured(1) == QLatin1String("color") ? text : background) = QColor(found.captured(2));
            }
            for (QString selector : match.captured(1).split(QLatin1Char(','))) {
                selector = selector.trimmed();
                if (background.isValid())
                    backgrounds[selector] = background;
                if (text.isValid())
                    texts.emplace_back(selector, text);
            }
        }
        QVERIFY(backgrounds.count(QStringLiteral("QMainWindow")));
        QVERIFY(texts.size() >= 5);
        for (const auto& [selector, text] : texts) {
            const auto own = backgrounds.find(selector);
            const auto outer = backgrounds.find(selector.section(QLatin1Char(' '), 0, 0));
            const QColor behind = own != backgrounds.end() ? own->second
                                  : outer != backgrounds.end()
                                      ? outer->second
                                      : backgrounds.at(QStringLiteral("QMainWindow"));
            const double ratio = Test::contrastRatio(text, behind);
            QVERIFY2(ratio >= 4.5, qPrintable(selector + QStringLiteral(": ") + QString::number(ratio)));
        }
        manager->SetTheme(std::string());
    }

    void unknownThemeComposesOnlyTheProductFiles()
    {
        Test::LogCapture log;
        const auto manager = realTree();
        Recorder recorder;
        manager->RegisterObserver(&recorder);
        manager->Initialize("en_US", "nosuch");
        QCOMPARE(manager->GetCurrentTheme(), std::string("nosuch"));
        QCOMPARE(log.matching("doesn't exist!").size(), size_t(1));
        QVERIFY(log.matching("doesn't exist!").front().find("/resources/themes/nosuch]") !=
                std::string::npos);
        QFile product(QStringLiteral(":/productStyle.qss"));
        QVERIFY(product.open(QIODevice::ReadOnly));
        QCOMPARE(sheet(*manager), QString::fromUtf8(product.readAll()) + QStringLiteral("\n\n"));
        QCOMPARE(recorder.events.last(), QStringLiteral("theme:nosuch"));
        manager->UnregisterObserver(&recorder);
    }

    void localizedTitles_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("title");
        QTest::newRow("de_DE") << QStringLiteral("de_DE") << QStringLiteral("Dunkel");
        QTest::newRow("ru_RU") << QStringLiteral("ru_RU") << QStringLiteral("Тёмная");
        QTest::newRow("zh_TW") << QStringLiteral("zh_TW") << QStringLiteral("深色");
    }

    void localizedTitles()
    {
        QFETCH(QString, locale);
        QFETCH(QString, title);
        const auto manager = realTree();
        manager->SetLocale(locale.toStdString());
        QCOMPARE(QString::fromStdString(manager->GetLocalizedThemeName("dark")), title);
    }

    // The product style composed into every theme (styleFilesComeInResourceOrder) draws this.
    void theAboutBoxPictureIsShipped()
    {
        QVERIFY(!QPixmap(QStringLiteral(":/About/about-top@2x.png")).isNull());
    }

    // Composition from plain files: the macro rules without a theme around them.
    void applyThemeComposition_data()
    {
        QTest::addColumn<QByteArray>("macros");
        QTest::addColumn<QByteArray>("style");
        QTest::addColumn<QString>("expected");
        QTest::newRow("undefined macro stays")
            << QByteArray(R"({"all_platforms":{"all_languages":{"a":"1"}}})") << QByteArray("x: @a @missing;")
            << QStringLiteral("x: 1 @missing;\n");
        QTest::newRow("prefix macro replaces inside the longer one")
            << QByteArray(R"({"all_platforms":{"all_languages":{"A":"red","AB":"blue"}}})")
            << QByteArray("c: @AB;") << QStringLiteral("c: redB;\n");
        QTest::newRow("platform section beats all_platforms")
            << QByteArray(
                   R"({"win":{"all_languages":{"a":"win"}},"all_platforms":{"all_languages":{"a":"all"}}})")
            << QByteArray("@a") << QStringLiteral("win\n");
        QTest::newRow("language block beats all_languages")
            << QByteArray(R"({"all_platforms":{"de_DE":{"a":"de"},"all_languages":{"a":"all"}}})")
            << QByteArray("@a") << QStringLiteral("de\n");
        QTest::newRow("other language block is ignored")
            << QByteArray(R"({"all_platforms":{"ru_RU":{"a":"ru"},"all_languages":{"a":"all"}}})")
            << QByteArray("@a") << QStringLiteral("all\n");
        QTest::newRow("numbers and booleans become text")
            << QByteArray(R"({"all_platforms":{"all_languages":{"n":12,"b":true}}})") << QByteArray("@n @b")
            << QStringLiteral("12 true\n");
        QTest::newRow("macro file not JSON")
            << QByteArray("{ not json") << QByteArray("@a") << QStringLiteral("@a\n");
        QTest::newRow("JSON but not an object")
            << QByteArray("[1,2]") << QByteArray("@a") << QStringLiteral("@a\n");
    }

    void applyThemeComposition()
    {
        QFETCH(QByteArray, macros);
        QFETCH(QByteArray, style);
        QFETCH(QString, expected);
        QTemporaryDir dir;
        writeFile(dir.filePath(QStringLiteral("fonts.json")), macros);
        writeFile(dir.filePath(QStringLiteral("style.qss")), style);
        const auto manager = realTree();
        manager->SetLocale("de_DE");
        ILookAndFeelManager::ThemeDescription description;
        description.macroFiles = {dir.filePath(QStringLiteral("fonts.json")).toStdString()};
        description.styleFiles = {dir.filePath(QStringLiteral("style.qss")).toStdString()};
        manager->ApplyTheme(description);
        QCOMPARE(sheet(*manager), expected);
    }

    void laterMacroFileWinsAndMissingFilesAreSoft()
    {
        QTemporaryDir dir;
        writeFile(dir.filePath(QStringLiteral("1.json")),
                  R"({"all_platforms":{"all_languages":{"a":"first","b":"kept"}}})");
        writeFile(dir.filePath(QStringLiteral("2.json")),
                  R"({"all_platforms":{"all_languages":{"a":"second"}}})");
        writeFile(dir.filePath(QStringLiteral("s.qss")), "@a @b");
        const auto manager = realTree();
        ILookAndFeelManager::ThemeDescription description;
        description.macroFiles = {dir.filePath(QStringLiteral("1.json")).toStdString(),
                                  "/nonexistent/fonts.json",
                                  dir.filePath(QStringLiteral("2.json")).toStdString()};
        description.styleFiles = {"/nonexistent/a.qss", dir.filePath(QStringLiteral("s.qss")).toStdString(),
                                  "/nonexistent/b.qss"};
        description.fontManifestFiles = {"/nonexistent/fonts.manifest"};
        manager->ApplyTheme(description);
        QCOMPARE(sheet(*manager), QStringLiteral("\nsecond kept\n\n"));
    }

    // A composition is reused only while its inputs stay the same.
    void changedInputsAreComposedAgain_data()
    {
        QTest::addColumn<QByteArray>("macros");
        QTest::addColumn<QByteArray>("style");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("expected");
        const QByteArray macros = R"({"all_platforms":{"all_languages":{"a":"1"},"ru_RU":{"a":"ru"}}})";
        QTest::newRow("nothing changed")
            << macros << QByteArray("@a;") << QStringLiteral("en_US") << QStringLiteral("1;\n");
        QTest::newRow("style file") << macros << QByteArray("@a!") << QStringLiteral("en_US")
                                    << QStringLiteral("1!\n");
        QTest::newRow("macro file") << QByteArray(R"({"all_platforms":{"all_languages":{"a":"2"}}})")
                                    << QByteArray("@a;") << QStringLiteral("en_US") << QStringLiteral("2;\n");
        QTest::newRow("locale") << macros << QByteArray("@a;") << QStringLiteral("ru_RU")
                                << QStringLiteral("ru;\n");
    }

    void changedInputsAreComposedAgain()
    {
        QFETCH(QByteArray, macros);
        QFETCH(QByteArray, style);
        QFETCH(QString, locale);
        QFETCH(QString, expected);
        QTemporaryDir dir;
        const QString macroFile = dir.filePath(QStringLiteral("fonts.json"));
        const QString styleFile = dir.filePath(QStringLiteral("style.qss"));
        writeFile(macroFile, R"({"all_platforms":{"all_languages":{"a":"1"},"ru_RU":{"a":"ru"}}})");
        writeFile(styleFile, "@a;");
        const auto manager = realTree();
        manager->SetLocale("en_US");
        ILookAndFeelManager::ThemeDescription description;
        description.macroFiles = {macroFile.toStdString()};
        description.styleFiles = {styleFile.toStdString()};
        manager->ApplyTheme(description);
        QCOMPARE(sheet(*manager), QStringLiteral("1;\n"));
        writeFile(macroFile, macros);
        writeFile(styleFile, style);
        manager->SetLocale(locale.toStdString());
        manager->ApplyTheme(description);
        QCOMPARE(sheet(*manager), expected);
    }

    // Resource texts are read as text: a "\r\n" in a theme's files composes as "\n", whether
    // the resource is compressed or not.
    void resourceTextsReadAsText_data()
    {
        QTest::addColumn<QString>("compression");
        QTest::newRow("compressed") << QStringLiteral("-compress-algo=zlib");
        QTest::newRow("stored") << QStringLiteral("-no-compress");
    }

    void resourceTextsReadAsText()
    {
        QFETCH(QString, compression);
        QTemporaryDir dir;
        QByteArray style;
        for (int i = 0; i < 200; ++i)
            style += "a { color: @c; }\r\n";
        writeFile(dir.filePath(QStringLiteral("crlf/style.qss")), style);
        writeFile(dir.filePath(QStringLiteral("crlf/fonts.json")),
                  R"({"all_platforms":{"all_languages":{"c":"red"}}})");
        writeFile(dir.filePath(QStringLiteral("crlf.qrc")),
                  "<RCC><qresource prefix=\"/crlf\"><file alias=\"style.qss\">crlf/style.qss</file>"
                  "<file alias=\"fonts.json\">crlf/fonts.json</file></qresource></RCC>");
        const QString rcc = dir.filePath(QStringLiteral("crlf.rcc"));
        QCOMPARE(QProcess::execute(QStringLiteral(OSTREL_RCC),
                                   {QStringLiteral("-binary"), compression,
                                    dir.filePath(QStringLiteral("crlf.qrc")), QStringLiteral("-o"), rcc}),
                 0);
        QVERIFY(QResource::registerResource(rcc));
        const auto manager = realTree();
        ILookAndFeelManager::ThemeDescription description;
        description.macroFiles = {":/crlf/fonts.json"};
        description.styleFiles = {":/crlf/style.qss"};
        manager->ApplyTheme(description);
        QResource::unregisterResource(rcc);
        QCOMPARE(sheet(*manager), QString::fromLatin1(style)
                                          .replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
                                          .replace(QStringLiteral("@c"), QStringLiteral("red")) +
                                      QLatin1Char('\n'));
    }

    void preprocessorActsAtTheNextTheme()
    {
        const auto manager = realTree();
        manager->Initialize("en_US", "light");
        const QString before = sheet(*manager);
        manager->SetQssPreprocessor(std::make_shared<Upper>());
        manager->SetTheme(std::string());
        QCOMPARE(sheet(*manager), before);
        manager->SetTheme("light");
        QCOMPARE(sheet(*manager), before.toUpper());
        manager->SetTheme(std::string());
    }

    void brokenTrees()
    {
        QTemporaryDir dir;
        const QString root = dir.path();
        const QString themes = root + QStringLiteral("/resources/themes");
        copyTree(BuildRoot + QStringLiteral("/resources/themes/dark"), themes + QStringLiteral("/dark"));
        copyTree(BuildRoot + QStringLiteral("/resources/themes/light"), themes + QStringLiteral("/light"));
        // No title file: the theme does not exist.
        writeFile(themes + QStringLiteral("/untitled/base.rcc"), "whatever");
        // A title file in a broken syntax: the lines before the damage still count.
        writeFile(themes + QStringLiteral("/broken/theme.title"),
                  "en_US = Broken\nde_DE \"Kaputt\nru_RU = Сломанная\n");
        writeFile(themes + QStringLiteral("/broken/base.rcc"), "this is not a resource file");
        // A dotted name is listed under the part before the dot, and its title looked for there.
        writeFile(themes + QStringLiteral("/dotted.v2/theme.title"), "en_US = Dotted\n");
        writeFile(themes + QStringLiteral("/light.old/theme.title"), "en_US = Old\n");
        QDir().mkpath(root + QStringLiteral("/resources/locales/ru_RU"));

        Test::LogCapture log;
        Test::EnglishLookAndFeel manager(Core::ioPath(root), TitleFile, {}, {});
        std::list<std::string> listed = manager.GetThemes();
        listed.sort();
        QCOMPARE(listed, (std::list<std::string>{"broken", "dark", "light", "light"}));
        QCOMPARE(manager.GetLocales(), (std::list<std::string>{"ru_RU"}));

        manager.SetLocale("en_US"); // not installed, but the fallback when the system matches nothing
        QCOMPARE(manager.GetLocalizedThemeName("broken"), std::string("Broken"));
        manager.SetLocale("ru_RU");
        log.clear();
        QCOMPARE(manager.GetLocalizedThemeName("broken"), std::string("broken"));
        QCOMPARE(log.matching("No title found for theme [broken] on language [ru_RU]!").size(), size_t(1));

        // An ".rcc" that isn't one: nothing registers, the product's files still compose.
        manager.SetTheme("broken");
        QVERIFY(sheet(manager).startsWith(QStringLiteral("\n\n")));
        QVERIFY(sheet(manager).contains(ProductStyle));

        // The folder of a listed theme vanished.
        QVERIFY(QDir(themes + QStringLiteral("/dark")).removeRecursively());
        log.clear();
        manager.SetTheme("dark");
        QCOMPARE(log.matching("doesn't exist!").size(), size_t(1));
        QVERIFY(sheet(manager).endsWith(QStringLiteral("}\n\n\n")));
        QVERIFY(!sheet(manager).contains(BaseStyle));
        manager.SetTheme(std::string());
    }

    void noResourcesFolderAtAll()
    {
        QTemporaryDir dir;
        LookAndFeelManager manager(Core::ioPath(dir.path()), TitleFile, {}, {});
        QVERIFY(manager.GetThemes().empty());
        QVERIFY(manager.GetLocales().empty());
        manager.SetTheme("dark");
        QVERIFY(sheet(manager).contains(ProductStyle));
        manager.SetTheme(std::string());
    }

    void themeSetTwice()
    {
        const auto manager = realTree({"base", "controls"});
        Recorder recorder;
        manager->RegisterObserver(&recorder);
        manager->Initialize("en_US", "light");
        const QString first = sheet(*manager);
        manager->SetTheme("light");
        QCOMPARE(sheet(*manager), first);
        QCOMPARE(recorder.events, (QStringList{QStringLiteral("locale:en_US"), QStringLiteral("theme:light"),
                                               QStringLiteral("theme:light")}));
        // Registered once while in use, so one unregistration takes the resources away.
        manager->SetTheme(std::string());
        QVERIFY(!QFile::exists(QStringLiteral(":/base/fonts.json")));
        manager->UnregisterObserver(&recorder);
    }
};

int main(int argc, char** argv)
{
    Ostrel::Test::initTestEnvironment(argv[0]);
    QApplication app(argc, argv);
    ThemesTest test;
    return Ostrel::Test::exec(&test, argc, argv);
}
#include "tst_themes.moc"
