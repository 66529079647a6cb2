#include "MainWindow.h"

#include "App/Application/Application.h"
#include "Interfaces/ILifetimeManager.h"

#include <QAction>
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
    layout->addStretch();
    setCentralWidget(central);

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
}
