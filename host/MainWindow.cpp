#include "MainWindow.h"

#include "GestureWiring.h"
#include "HelpMenu.h"
#include "LookAndFeelWiring.h"
#include "MenuTexts.h"

#include "App/Application/Application.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/ILaunchTypeProcessor.h"
#include "Interfaces/ILifetimeManager.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/IProductSettingsManager.h"

#include <QAction>
#include <QFormLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QVBoxLayout>

using namespace Ostrel::App;

class MainWindow::Impl
{
public:
    QLabel* version = nullptr;
    QLabel* organization = nullptr;
    QLabel* partner = nullptr;
    QLabel* launchType = nullptr;
    QLabel* launchTypeValue = nullptr;
    bool launchTypeKnown = false;
    QLabel* days = nullptr;
    QLabel* brand = nullptr;
    QString ready;
};

MainWindow::MainWindow(Application& application, QWidget* parent)
    : QMainWindow(parent), d(std::make_unique<Impl>()), m_application(application)
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(QCoreApplication::applicationName());
    resize(720, 460);

    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    auto* title = new QLabel(QCoreApplication::applicationName(), central);
    title->setObjectName(QStringLiteral("titleLabel"));
    QFont font = title->font();
    font.setPointSize(font.pointSize() * 2);
    title->setFont(font);
    layout->addWidget(title, 0, Qt::AlignHCenter);
    d->version = new QLabel(central);
    layout->addWidget(d->version, 0, Qt::AlignHCenter);
    layout->addSpacing(16);

    // What the shell knows about this run, as a product's "About" page would show it.
    auto* facts = new QFormLayout;
    facts->setLabelAlignment(Qt::AlignRight);
    const auto customization = m_application.GetCustomizationManager();
    const auto product = m_application.GetProductSettingsManager();
    const auto launchType = m_application.GetLaunchTypeProcessor();
    const auto addFact = [&](QLabel*& label, const QString& value) {
        label = new QLabel(central);
        auto* field = new QLabel(value, central);
        field->setTextInteractionFlags(Qt::TextSelectableByMouse);
        facts->addRow(label, field);
        return field;
    };
    addFact(d->organization, QCoreApplication::organizationName());
    addFact(d->partner,
            product ? QString::fromStdString(product->GetString("PartnerName", std::string())) : QString());
    d->launchTypeKnown = launchType != nullptr;
    d->launchTypeValue =
        addFact(d->launchType, launchType ? QString::number(launchType->GetLaunchType()) : QString());
    addFact(d->days, QString::number(m_application.GetDaysPassed()));
    addFact(d->brand, customization ? QString::fromStdString(customization->GetBrand()) : QString());
    layout->addLayout(facts);
    layout->addSpacing(8);
    layout->addStretch(1);
    setCentralWidget(central);
    new GestureWiring(this);

    QMenu* fileMenu = menuBar()->addMenu(QString());
    fileMenu->setObjectName(QStringLiteral("fileMenu"));
    auto* fileTexts = new MenuTexts(*fileMenu, "FileMenu", QT_TRANSLATE_NOOP("MenuBar", "&File"));
    QAction* restart = fileTexts->addAction(QT_TRANSLATE_NOOP("FileMenu", "&Restart"));
    restart->setObjectName(QStringLiteral("restartAction"));
    connect(restart, &QAction::triggered, this, [this]() {
        // The new process knows it was restarted (launch type 3), not installed or started anew.
        m_application.get<ILifetimeManager>()->tryToRestart(
            Interactive, std::string(), "--launch-type=" + std::to_string(ILaunchTypeProcessor::Restarted));
    });
    QAction* quit = fileTexts->addAction(QT_TRANSLATE_NOOP("FileMenu", "&Quit"));
    quit->setObjectName(QStringLiteral("quitAction"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this,
            [this]() { m_application.get<ILifetimeManager>()->tryToQuit(); });

    retranslate();
    statusBar()->showMessage(d->ready);
    // A menu entry under the pointer sets its (empty) status tip, which clears the bar: the
    // greeting comes back whenever nothing else is shown.
    connect(statusBar(), &QStatusBar::messageChanged, this, [this](const QString& message) {
        if (message.isEmpty())
            statusBar()->showMessage(d->ready);
    });

    // Language and Theme menus, the stylesheet and the remembered answers.
    new LookAndFeelWiring(m_application, *this);
    addHelpMenu(*menuBar(), m_application);
}

MainWindow::~MainWindow() = default;

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

void MainWindow::retranslate()
{
    d->version->setText(tr("Version %1").arg(QCoreApplication::applicationVersion()));
    d->organization->setText(tr("Organization:"));
    d->partner->setText(tr("Partner:"));
    d->launchType->setText(tr("Launch type:"));
    if (!d->launchTypeKnown)
        d->launchTypeValue->setText(tr("unknown"));
    d->days->setText(tr("Days since first start:"));
    d->brand->setText(tr("Brand:"));
    // Only the greeting follows the language; a message shown meanwhile stays as it is.
    const bool greeting = !d->ready.isEmpty() && statusBar()->currentMessage() == d->ready;
    d->ready = tr("Ready");
    if (greeting)
        statusBar()->showMessage(d->ready);
}
