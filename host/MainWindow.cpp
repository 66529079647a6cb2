#include "MainWindow.h"

#include "GestureWiring.h"
#include "HelpMenu.h"
#include "LinksPanel.h"
#include "LookAndFeelWiring.h"

#include "App/Application/Application.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/ILaunchTypeProcessor.h"
#include "Interfaces/ILifetimeManager.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/IProductSettingsManager.h"

#include <QAction>
#include <QFormLayout>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QVBoxLayout>

using namespace Ostrel::App;

MainWindow::MainWindow(Application& application, QWidget* parent)
    : QMainWindow(parent)
    , m_application(application)
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
    auto* version = new QLabel(tr("Version %1").arg(QCoreApplication::applicationVersion()), central);
    layout->addWidget(version, 0, Qt::AlignHCenter);
    layout->addSpacing(16);

    // What the shell knows about this run, as a product's "About" page would show it.
    auto* facts = new QFormLayout;
    facts->setLabelAlignment(Qt::AlignRight);
    const auto customization = m_application.GetCustomizationManager();
    const auto product = m_application.GetProductSettingsManager();
    const auto launchType = m_application.GetLaunchTypeProcessor();
    const auto addFact = [&](const QString& label, const QString& value) {
        auto* field = new QLabel(value, central);
        field->setTextInteractionFlags(Qt::TextSelectableByMouse);
        facts->addRow(label, field);
    };
    addFact(tr("Organization:"), QCoreApplication::organizationName());
    addFact(tr("Partner:"), product ? QString::fromStdString(product->GetString("PartnerName", std::string())) : QString());
    addFact(tr("Launch type:"), launchType ? QString::number(launchType->GetLaunchType()) : tr("unknown"));
    addFact(tr("Days since first start:"), QString::number(m_application.GetDaysPassed()));
    addFact(tr("Brand:"), customization ? QString::fromStdString(customization->GetBrand()) : QString());
    layout->addLayout(facts);
    layout->addSpacing(8);
    layout->addWidget(new QLabel(tr("Links:"), central));
    // The links manager is asked at activation: the host sets it after the window exists.
    layout->addWidget(new LinksPanel(
                          [this](URLKeys key) {
                              if (const auto links = m_application.GetLinksManager())
                                  links->OpenUrl(key);
                          },
                          central),
                      1);
    setCentralWidget(central);
    new GestureWiring(this);

    QMenu* fileMenu = menuBar()->addMenu(tr("&File"));
    QAction* restart = fileMenu->addAction(tr("&Restart"));
    restart->setObjectName(QStringLiteral("restartAction"));
    connect(restart, &QAction::triggered, this, [this]() {
        m_application.get<ILifetimeManager>()->tryToRestart(Interactive, std::string(), std::string());
    });
    QAction* quit = fileMenu->addAction(tr("&Quit"));
    quit->setObjectName(QStringLiteral("quitAction"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, [this]() { m_application.get<ILifetimeManager>()->tryToQuit(); });

    statusBar()->showMessage(tr("Ready"));

    // Language and Theme menus, the stylesheet and the remembered answers.
    new LookAndFeelWiring(m_application, *this);
    addHelpMenu(*menuBar(), m_application);
}
