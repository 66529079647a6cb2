// The Language and Theme menus kept in step with the manager.

#include "App/Application/LookAndFeelHandler.h"
#include "App/Application/LookAndFeelManager.h"

#include "EnglishLookAndFeel.h"
#include "TestEnvironment.h"

#include <QAction>
#include <QMenu>
#include <QSignalSpy>

#include <algorithm>

using namespace Ostrel;
using namespace Ostrel::App;

Q_DECLARE_METATYPE(std::string)

namespace {

QStringList texts(const QMenu& menu)
{
    QStringList out;
    const QList<QAction*> actions = menu.actions();
    for (const QAction* action : actions)
        out << (action->isSeparator() ? QStringLiteral("--") : action->text());
    return out;
}

QString checked(const QMenu& menu)
{
    const QList<QAction*> actions = menu.actions();
    for (const QAction* action : actions)
        if (action->isChecked())
            return action->data().toString();
    return QString();
}

QAction* entry(const QMenu& menu, const QString& key)
{
    const QList<QAction*> actions = menu.actions();
    for (QAction* action : actions)
        if (action->data().toString() == key)
            return action;
    return nullptr;
}

} // namespace

class HandlerTest : public QObject
{
    Q_OBJECT
private:
    std::shared_ptr<Test::EnglishLookAndFeel> m_manager;
    QMenu* m_locales = nullptr;
    QMenu* m_themes = nullptr;
    std::unique_ptr<LookAndFeelHandler> m_handler;

private slots:
    void initTestCase() { qRegisterMetaType<std::string>(); }

    void init()
    {
        m_manager = std::make_shared<Test::EnglishLookAndFeel>(
            Core::ioPath(QStringLiteral(OSTREL_BUILD_ROOT)), "theme.title",
            std::list<std::string>{"base", "controls", "ostrel"}, std::list<std::string>());
        m_manager->Initialize("en_US", "dark");
        m_locales = new QMenu;
        m_themes = new QMenu;
        m_handler = std::make_unique<LookAndFeelHandler>(m_manager, m_locales, m_themes);
        m_handler->SetLocaleList({"en_US", "de_DE", "ru_RU"});
        m_handler->SetThemeList({"dark", "light"});
        m_handler->SelectLocale("en_US");
        m_handler->SelectTheme("dark");
    }

    void cleanup()
    {
        m_handler.reset();
        delete m_locales;
        delete m_themes;
        m_manager->SetTheme(std::string());
        m_manager.reset();
    }

    void buildsCheckableEntries()
    {
        QCOMPARE(texts(*m_locales), (QStringList{QStringLiteral("English"), QStringLiteral("Deutsch"),
                                                 QStringLiteral("Русский"), QStringLiteral("--")}));
        QCOMPARE(texts(*m_themes), (QStringList{QStringLiteral("Dark"), QStringLiteral("Light")}));
        QCOMPARE(checked(*m_locales), QStringLiteral("en_US"));
        QCOMPARE(checked(*m_themes), QStringLiteral("dark"));
    }

    void rebuildsLeaveOneSeparator()
    {
        m_handler->SetLocaleList({"en_US", "de_DE"});
        m_handler->Refresh();
        m_handler->Refresh();
        QCOMPARE(texts(*m_locales),
                 (QStringList{QStringLiteral("English"), QStringLiteral("Deutsch"), QStringLiteral("--")}));
        QCOMPARE(checked(*m_locales), QStringLiteral("en_US"));
        // Nor does the menu keep the separators of the earlier builds.
        const auto owned = m_locales->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(
            std::count_if(owned.cbegin(), owned.cend(), [](const QAction* a) { return a->isSeparator(); }),
            1);
    }

    void clickSwitchesRetitlesAndSignals()
    {
        QSignalSpy localeSpy(m_handler.get(), &LookAndFeelHandler::LocaleChanged);
        QSignalSpy themeSpy(m_handler.get(), &LookAndFeelHandler::ThemeChanged);
        entry(*m_locales, QStringLiteral("de_DE"))->trigger();
        QCOMPARE(m_manager->GetCurrentLocale(), std::string("de_DE"));
        QCOMPARE(localeSpy.count(), 1);
        QCOMPARE(localeSpy.at(0).at(0).value<std::string>(), std::string("de_DE"));
        QCOMPARE(checked(*m_locales), QStringLiteral("de_DE"));
        QCOMPARE(texts(*m_themes), (QStringList{QStringLiteral("Dunkel"), QStringLiteral("Hell")}));

        entry(*m_themes, QStringLiteral("light"))->trigger();
        QCOMPARE(m_manager->GetCurrentTheme(), std::string("light"));
        QCOMPARE(themeSpy.count(), 1);
        QCOMPARE(checked(*m_themes), QStringLiteral("light"));
    }

    void managerChangeMovesTheCheckOnly()
    {
        QSignalSpy localeSpy(m_handler.get(), &LookAndFeelHandler::LocaleChanged);
        QSignalSpy themeSpy(m_handler.get(), &LookAndFeelHandler::ThemeChanged);
        m_manager->SetLocale("ru_RU");
        m_manager->SetTheme("light");
        QCOMPARE(checked(*m_locales), QStringLiteral("ru_RU"));
        QCOMPARE(checked(*m_themes), QStringLiteral("light"));
        QCOMPARE(localeSpy.count() + themeSpy.count(), 0);
        QCOMPARE(texts(*m_themes), (QStringList{QStringLiteral("Dark"), QStringLiteral("Light")}));
    }

    void menusComeAndGo()
    {
        m_handler->SetLocaleMenu(nullptr);
        QVERIFY(m_locales->actions().isEmpty());
        m_manager->SetLocale("de_DE"); // no menu: nothing to check, nothing breaks

        LookAndFeelHandler late(m_manager, nullptr, nullptr);
        late.SetLocaleList({"en_US", "de_DE"});
        QMenu menu;
        late.SetLocaleMenu(&menu);
        QVERIFY2(menu.actions().isEmpty(), "nothing selected yet, nothing built");
        late.SelectLocale("de_DE");
        late.SetLocaleMenu(&menu);
        QCOMPARE(texts(menu),
                 (QStringList{QStringLiteral("English"), QStringLiteral("Deutsch"), QStringLiteral("--")}));
        QCOMPARE(checked(menu), QStringLiteral("de_DE"));
    }

    void nullManagerShowsKeysAndOnlySignals()
    {
        QMenu locales;
        QMenu themes;
        LookAndFeelHandler handler(nullptr, &locales, &themes);
        handler.SetLocaleList({"en_US"});
        handler.SetThemeList({"dark"});
        QCOMPARE(texts(themes), QStringList{QStringLiteral("dark")});
        QSignalSpy localeSpy(&handler, &LookAndFeelHandler::LocaleChanged);
        QSignalSpy themeSpy(&handler, &LookAndFeelHandler::ThemeChanged);
        entry(locales, QStringLiteral("en_US"))->trigger();
        entry(themes, QStringLiteral("dark"))->trigger();
        QCOMPARE(localeSpy.count() + themeSpy.count(), 2);
        QCOMPARE(checked(themes), QStringLiteral("dark"));
    }
};

int main(int argc, char** argv)
{
    Ostrel::Test::initTestEnvironment(argv[0]);
    QApplication app(argc, argv);
    HandlerTest test;
    return Ostrel::Test::exec(&test, argc, argv);
}
#include "tst_handler.moc"
