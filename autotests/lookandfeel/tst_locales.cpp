// The locale half of the look-and-feel manager: which installed locale the wish and the system's
// languages lead to, and the translators that come with it.

#include "App/Application/LocaleNames.h"
#include "App/Application/LookAndFeelManager.h"

#include "TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Ostrel;
using namespace Ostrel::App;

Q_DECLARE_METATYPE(std::list<std::string>)

namespace {

const QString BuildRoot = QStringLiteral(OSTREL_BUILD_ROOT);

// The system's languages as Qt gives them (BCP 47 tags, most preferred first), and a fixed
// fallback when the product names one.
class SystemLanguages : public LookAndFeelManager
{
public:
    SystemLanguages(const QString& root, QStringList languages, std::string defaultLocale = "unknown",
                    std::list<std::string> baseNames = {})
        : LookAndFeelManager(Core::ioPath(root), "theme.title", baseNames, {}),
          m_languages(std::move(languages)), m_default(std::move(defaultLocale))
    {
    }
    std::string GetDefaultLocale() const override { return m_default; }

protected:
    QStringList GetSystemLanguages() const override { return m_languages; }

private:
    QStringList m_languages;
    std::string m_default;
};

class Counter : public ILookAndFeelObserver
{
public:
    QStringList locales;
    void OnLocaleChanged(const std::string& locale) override { locales << QString::fromStdString(locale); }
    void OnThemeChanged(const std::string&) override {}
};

QString restartQuestion()
{
    return QCoreApplication::translate("ApplicationRestarter", "Attention");
}

QString dontShowAgain()
{
    return QCoreApplication::translate("Ostrel::App::ConfirmationAlertBox", "Don't show this again");
}

} // namespace

class LocalesTest : public QObject
{
    Q_OBJECT
private slots:
    void validation_data()
    {
        QTest::addColumn<QStringList>("system");
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QString>("defaultLocale");
        QTest::addColumn<QString>("requested");
        QTest::addColumn<QString>("expected");

        const QString unknown = QStringLiteral("unknown");
        const QStringList enDe{QStringLiteral("en_US"), QStringLiteral("de_DE")};
        QTest::newRow("installed wish beats the system")
            << QStringList{QStringLiteral("en-US")} << enDe << unknown << QStringLiteral("de_DE")
            << QStringLiteral("de_DE");
        QTest::newRow("unknown asks the system")
            << QStringList{QStringLiteral("de-DE")} << enDe << unknown << unknown << QStringLiteral("de_DE");
        QTest::newRow("empty asks the system") << QStringList{QStringLiteral("de-DE")} << enDe << unknown
                                               << QString() << QStringLiteral("de_DE");
        QTest::newRow("uninstalled wish asks the system, not the default")
            << QStringList{QStringLiteral("ru-RU")}
            << QStringList{QStringLiteral("en_US"), QStringLiteral("ru_RU")} << QStringLiteral("en_US")
            << QStringLiteral("fr_FR") << QStringLiteral("ru_RU");
        QTest::newRow("portugal counts as brazil")
            << QStringList{QStringLiteral("pt-PT"), QStringLiteral("en-US")}
            << QStringList{QStringLiteral("en_US"), QStringLiteral("pt_BR")} << unknown << QString()
            << QStringLiteral("pt_BR");
        QTest::newRow("hong kong chinese is traditional")
            << QStringList{QStringLiteral("zh-HK")} << QStringList{QStringLiteral("zh_TW")} << unknown
            << QString() << QStringLiteral("zh_TW");
        QTest::newRow("mainland chinese does not take traditional")
            << QStringList{QStringLiteral("zh-CN"), QStringLiteral("de-DE")}
            << QStringList{QStringLiteral("zh_TW"), QStringLiteral("de_DE")} << unknown << QString()
            << QStringLiteral("de_DE");
        QTest::newRow("simplified script tag is mainland")
            << QStringList{QStringLiteral("zh-Hans-CN")}
            << QStringList{QStringLiteral("zh_TW"), QStringLiteral("zh_CN")} << unknown << QString()
            << QStringLiteral("zh_CN");
        QTest::newRow("taiwan chinese") << QStringList{QStringLiteral("zh-Hant-TW")}
                                        << QStringList{QStringLiteral("zh_CN"), QStringLiteral("zh_TW")}
                                        << unknown << QString() << QStringLiteral("zh_TW");
        QTest::newRow("candidate is a strict prefix of the installed name")
            << QStringList{QStringLiteral("de")}
            << QStringList{QStringLiteral("en_US"), QStringLiteral("de_DE_formal")} << unknown << QString()
            << QStringLiteral("de_DE_formal");
        QTest::newRow("english of another country matches nothing, next candidate wins")
            << QStringList{QStringLiteral("en-GB"), QStringLiteral("de-AT"), QStringLiteral("de-DE")} << enDe
            << unknown << QString() << QStringLiteral("de_DE");
        QTest::newRow("nothing matches: en_US even if not installed")
            << QStringList{QStringLiteral("fr-FR")} << QStringList{QStringLiteral("de_DE")} << unknown
            << QString() << QStringLiteral("en_US");
        QTest::newRow("nothing matches: the product's default")
            << QStringList{QStringLiteral("fr-FR")} << QStringList{QStringLiteral("de_DE")}
            << QStringLiteral("de_DE") << QString() << QStringLiteral("de_DE");
        QTest::newRow("no locale installed") << QStringList{QStringLiteral("de-DE")} << QStringList{}
                                             << unknown << QStringLiteral("de_DE") << QStringLiteral("en_US");
        QTest::newRow("the word unknown is never installed")
            << QStringList{QStringLiteral("de-DE")}
            << QStringList{QStringLiteral("unknown"), QStringLiteral("de_DE")} << unknown << unknown
            << QStringLiteral("de_DE");
    }

    void validation()
    {
        QFETCH(QStringList, system);
        QFETCH(QStringList, installed);
        QFETCH(QString, defaultLocale);
        QFETCH(QString, requested);
        QFETCH(QString, expected);
        QTemporaryDir dir;
        QDir().mkpath(dir.filePath(QStringLiteral("resources/locales")));
        for (const QString& locale : installed)
            QDir().mkpath(dir.filePath(QStringLiteral("resources/locales/") + locale));
        SystemLanguages manager(dir.path(), system, defaultLocale.toStdString());
        manager.SetLocale(requested.toStdString());
        QCOMPARE(QString::fromStdString(manager.GetCurrentLocale()), expected);
    }

    // Without the seam, the languages are Qt's own reading of the environment (LANGUAGE, set by
    // main), read again when the product changes Qt's default locale after the first reading.
    void defaultSeamReadsQt()
    {
        QTemporaryDir dir;
        for (const char* locale : {"en_US", "de_DE", "ru_RU"})
            QDir().mkpath(dir.filePath(QStringLiteral("resources/locales/") + QLatin1String(locale)));
        LookAndFeelManager manager(Core::ioPath(dir.path()), "theme.title", {}, {});
        manager.SetLocale(std::string());
        QCOMPARE(manager.GetCurrentLocale(), std::string("de_DE"));
        const QLocale before;
        QLocale::setDefault(QLocale(QStringLiteral("ru_RU")));
        manager.SetLocale("fr_FR");
        QLocale::setDefault(before);
        QCOMPARE(manager.GetCurrentLocale(), std::string("ru_RU"));
    }

    void translatorsFollowTheLocale()
    {
        SystemLanguages manager(BuildRoot, {QStringLiteral("en-US")});
        Counter counter;
        manager.RegisterObserver(&counter);
        manager.SetLocale("de_DE");
        QCOMPARE(dontShowAgain(), QStringLiteral("Nicht mehr anzeigen"));
        QCOMPARE(restartQuestion(), QStringLiteral("Achtung"));
        manager.SetLocale("de_DE");
        manager.SetLocale("ru_RU");
        QCOMPARE(dontShowAgain(), QStringLiteral("Больше не показывать"));
        manager.SetLocale("en_US");
        QCOMPARE(dontShowAgain(), QStringLiteral("Don't show this again"));
        QCOMPARE(counter.locales,
                 (QStringList{QStringLiteral("de_DE"), QStringLiteral("ru_RU"), QStringLiteral("en_US")}));
        manager.UnregisterObserver(&counter);
    }

    // The product's list picks its own files; Qt's own texts come whatever the list names.
    void baseNamesChooseTheTranslationFiles_data()
    {
        QTest::addColumn<std::list<std::string>>("baseNames");
        QTest::addColumn<QString>("ours");
        QTest::newRow("every file") << std::list<std::string>{} << QStringLiteral("Nicht mehr anzeigen");
        QTest::newRow("a name that matches nothing")
            << std::list<std::string>{"nosuch"} << QStringLiteral("Don't show this again");
        QTest::newRow("the product's names, Qt's not among them")
            << std::list<std::string>{"base", "ostrel"} << QStringLiteral("Nicht mehr anzeigen");
    }

    void baseNamesChooseTheTranslationFiles()
    {
        QFETCH(std::list<std::string>, baseNames);
        QFETCH(QString, ours);
        SystemLanguages manager(BuildRoot, {QStringLiteral("en-US")}, "unknown", baseNames);
        manager.SetLocale("de_DE");
        QCOMPARE(dontShowAgain(), ours);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Abbrechen"));
        manager.SetLocale("en_US");
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancel"));
    }

    // Qt's own buttons and dialogs (the confirmation boxes' Cancel, the colour dialog) speak every
    // locale, read from where the system installs Qt's translations, whatever list of base names
    // the product passes.
    void qtOwnTextsTranslated_data()
    {
        QTest::addColumn<QString>("locale");
        for (const QString& locale : QDir(BuildRoot + QStringLiteral("/resources/locales"))
                                         .entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
            if (locale != QLatin1String("en_US"))
                QTest::newRow(qPrintable(locale)) << locale;
        }
    }

    void qtOwnTextsTranslated()
    {
        QFETCH(QString, locale);
        SystemLanguages manager(BuildRoot, {QStringLiteral("en-US")}, "unknown", {"ostrel"});
        manager.SetLocale(locale.toStdString());
        const QString cancel = QCoreApplication::translate("QPlatformTheme", "Cancel");
        QVERIFY2(!cancel.isEmpty() && cancel != QLatin1String("Cancel"), qPrintable(cancel));
    }

    void damagedTranslationIsSkipped()
    {
        QTemporaryDir dir;
        const QString folder = dir.filePath(QStringLiteral("resources/locales/de_DE"));
        QDir().mkpath(folder);
        QVERIFY(QFile::copy(BuildRoot + QStringLiteral("/resources/locales/de_DE/ostrel_de_DE.qm"),
                            folder + QStringLiteral("/ostrel_de_DE.qm")));
        QFile broken(folder + QStringLiteral("/broken_de_DE.qm"));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write(QByteArray(64, '\x3c'));
        broken.close();
        QDir().mkpath(folder + QStringLiteral("/folder.qm"));

        SystemLanguages manager(dir.path(), {QStringLiteral("de-DE")});
        Counter counter;
        manager.RegisterObserver(&counter);
        manager.SetLocale(std::string());
        QCOMPARE(manager.GetCurrentLocale(), std::string("de_DE"));
        QCOMPARE(dontShowAgain(), QStringLiteral("Nicht mehr anzeigen"));
        QCOMPARE(counter.locales, QStringList{QStringLiteral("de_DE")});
        manager.UnregisterObserver(&counter);
    }

    void displayNames_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("name");
        QTest::newRow("own language") << QStringLiteral("ru_RU") << QStringLiteral("Русский");
        QTest::newRow("brazilian") << QStringLiteral("pt_BR") << QStringLiteral("Português Brasileiro");
        QTest::newRow("traditional chinese") << QStringLiteral("zh_TW") << QStringLiteral("繁體中文");
        QTest::newRow("three letters in english")
            << QStringLiteral("nob") << QStringLiteral("Norwegian Bokmål");
        QTest::newRow("undetermined is empty") << QStringLiteral("und") << QString();
        QTest::newRow("no row shows the key") << QStringLiteral("sv_SE") << QStringLiteral("sv_SE");
    }

    void displayNames()
    {
        QFETCH(QString, key);
        QFETCH(QString, name);
        QCOMPARE(QString::fromStdString(GetLocaleDisplayName(key.toStdString())), name);
        QCOMPARE(GetLocaleNameTable().size(), size_t(40));
    }
};

int main(int argc, char** argv)
{
    // What Qt reads as the user's languages on this platform, before any QLocale exists.
    qputenv("LANGUAGE", "de_DE:en_US");
    Ostrel::Test::initTestEnvironment(argv[0]);
    QApplication app(argc, argv);
    LocalesTest test;
    return Ostrel::Test::exec(&test, argc, argv);
}
#include "tst_locales.moc"
