#include "LookAndFeelWiring.h"

#include "App/Application/AppStoreStatistics.h"
#include "App/Application/Application.h"
#include "App/Application/ColorDialogHelper.h"
#include "App/Application/LookAndFeelHandler.h"
#include "App/Application/LookAndFeelManager.h"
#include "Foundation/Utf8.h"
#include "Interfaces/IApplicationSettingsManager.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/ILifetimeManager.h"

#include <glog/logging.h>

#include <QAction>
#include <QColorDialog>
#include <QDir>
#include <QEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>

#include <algorithm>

using namespace Ostrel;
using namespace Ostrel::App;

namespace {

// Where the chosen locale and theme persist, in the application settings.
const char* const LocaleKey = "LookAndFeel/Locale";
const char* const ThemeKey = "LookAndFeel/Theme";
const char* const PreferredTheme = "dark";
const char* const TitleFile = "theme.title";

QString resourceRoot()
{
    const QString beside = QCoreApplication::applicationDirPath();
    if (QDir(beside + QStringLiteral("/resources")).exists())
        return beside;
    const QString above = QDir::cleanPath(beside + QStringLiteral("/.."));
    if (QDir(above + QStringLiteral("/resources")).exists())
        return above;
    LOG(WARNING) << "No \"resources\" folder beside " << Util::QStringToUtf8(beside)
                 << " or above it: no themes and no translations";
    return beside;
}

// The link colour of the driver messages follows the theme.
QString linkStyleFor(const std::string& theme)
{
    return theme == "light" ? QStringLiteral("color: #1f7a44;") : QStringLiteral("color: #58e47b;");
}

} // namespace

class LookAndFeelWiring::Impl
{
public:
    Application& application;
    QMainWindow& window;
    std::shared_ptr<LookAndFeelManager> manager;
    std::shared_ptr<IApplicationSettingsManager> settings;
    std::unique_ptr<ColorDialogHelper> colors;
    LookAndFeelHandler* handler = nullptr;
    QMenu* localeMenu = nullptr;
    QMenu* themeMenu = nullptr;
    QMenu* optionsMenu = nullptr;
    QAction* colorsAction = nullptr;
    QAction* resetAction = nullptr;
};

LookAndFeelWiring::LookAndFeelWiring(Application& application, QMainWindow& window)
    : QObject(&window),
      d(std::make_unique<Impl>(
          Impl{application, window, {}, {}, {}, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr}))
{
    d->settings = application.get<IApplicationSettingsManager>();
    d->manager = std::make_shared<LookAndFeelManager>(Core::ioPath(resourceRoot()), TitleFile,
                                                      std::list<std::string>{"base", "controls", "ostrel"},
                                                      std::list<std::string>());
    application.SetLookAndFeel(d->manager);
    if (d->settings)
        d->colors = std::make_unique<ColorDialogHelper>(d->settings);

    d->localeMenu = window.menuBar()->addMenu(QString());
    d->localeMenu->setObjectName(QStringLiteral("languageMenu"));
    d->themeMenu = window.menuBar()->addMenu(QString());
    d->themeMenu->setObjectName(QStringLiteral("themeMenu"));
    d->optionsMenu = window.menuBar()->addMenu(QString());
    d->optionsMenu->setObjectName(QStringLiteral("optionsMenu"));
    d->colorsAction = d->optionsMenu->addAction(QString());
    connect(d->colorsAction, &QAction::triggered, this,
            [this]() { QColorDialog::getColor(Qt::white, &d->window); });
    d->colorsAction->setObjectName(QStringLiteral("customColoursAction"));
    d->resetAction = d->optionsMenu->addAction(QString());
    d->resetAction->setObjectName(QStringLiteral("resetConfirmationsAction"));
    connect(d->resetAction, &QAction::triggered, this, [this]() {
        // Every remembered answer lives below "confirm/": all boxes ask again.
        if (d->settings)
            d->settings->RemoveGroup("confirm");
        d->window.statusBar()->showMessage(tr("Remembered answers were reset."), 5000);
    });

    d->handler = new LookAndFeelHandler(d->manager, d->localeMenu, d->themeMenu, this);
    connect(d->handler, &LookAndFeelHandler::LocaleChanged, this, [this](const std::string& locale) {
        if (d->settings)
            d->settings->SetString(LocaleKey, locale);
        // The theme's macros may differ by language: setting the current theme again composes
        // anew what the locale changed, and keeps its resources registered once.
        d->manager->SetTheme(d->manager->GetCurrentTheme());
    });
    connect(d->handler, &LookAndFeelHandler::ThemeChanged, this, [this](const std::string& theme) {
        if (d->settings)
            d->settings->SetString(ThemeKey, theme);
    });

    const std::string storedLocale =
        d->settings ? d->settings->GetString(LocaleKey, std::string()) : std::string();
    std::string theme = d->settings ? d->settings->GetString(ThemeKey, PreferredTheme) : PreferredTheme;
    const auto& themes = d->manager->GetThemes();
    if (std::find(themes.begin(), themes.end(), theme) == themes.end())
        theme = themes.empty() ? std::string() : themes.front();
    d->manager->Initialize(storedLocale, theme);

    std::list<std::string> sortedThemes = themes;
    sortedThemes.sort();
    std::list<std::string> sortedLocales = d->manager->GetLocales();
    sortedLocales.sort();
    d->handler->SetLocaleList(sortedLocales);
    d->handler->SetThemeList(sortedThemes);
    d->handler->SelectLocale(d->manager->GetCurrentLocale());
    d->handler->SelectTheme(d->manager->GetCurrentTheme());
    d->handler->Refresh();

    applyTheme();
    retranslate();
    window.installEventFilter(this);
    if (const auto lifetime = application.get<ILifetimeManager>())
        lifetime->RegisterEventHandler(this);
    // The stylesheet follows every theme change, whoever makes it.
    connect(d->handler, &LookAndFeelHandler::ThemeChanged, this, &LookAndFeelWiring::applyTheme);
    connect(d->handler, &LookAndFeelHandler::LocaleChanged, this, &LookAndFeelWiring::applyTheme);
}

LookAndFeelWiring::~LookAndFeelWiring()
{
    if (const auto lifetime = d->application.get<ILifetimeManager>())
        lifetime->UnregisterEventHandler(this);
    // Saves the custom colours while the settings can still be written.
    d->colors.reset();
}

void LookAndFeelWiring::onStart()
{
    // Through the event loop, so that the main window is painted behind the question.
    QTimer::singleShot(0, this, [this]() {
        requestAppStoreStatistics(d->settings, d->application.GetCustomizationManager());
    });
}

void LookAndFeelWiring::applyTheme()
{
    qApp->setProperty("linkStyle", linkStyleFor(d->manager->GetCurrentTheme()));
    qApp->setStyleSheet(Util::Utf8ToQString(d->manager->GetUnitedStylesheet()));
}

void LookAndFeelWiring::retranslate()
{
    // One context per menu, and the bar's titles together: what must not share a mnemonic.
    d->localeMenu->setTitle(QCoreApplication::translate("MenuBar", "&Language"));
    d->themeMenu->setTitle(QCoreApplication::translate("MenuBar", "&Theme"));
    d->optionsMenu->setTitle(QCoreApplication::translate("MenuBar", "&Options"));
    d->colorsAction->setText(QCoreApplication::translate("OptionsMenu", "Custom &Colours..."));
    d->resetAction->setText(QCoreApplication::translate("OptionsMenu", "&Reset Remembered Answers"));
}

bool LookAndFeelWiring::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &d->window && event->type() == QEvent::LanguageChange)
        retranslate();
    return QObject::eventFilter(watched, event);
}
