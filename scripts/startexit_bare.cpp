// The yardstick of scripts/startexit.sh: the least a Qt desktop program does, a main window with
// a menu, shown, then quit at once from the event loop.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QMainWindow window;
    window.menuBar()
        ->addMenu(QStringLiteral("&File"))
        ->addAction(QStringLiteral("&Quit"), &app, &QApplication::quit);
    window.resize(720, 460);
    window.show();
    QTimer::singleShot(0, &app, &QApplication::quit);
    return QApplication::exec();
}
