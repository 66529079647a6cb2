#pragma once

#include <QMainWindow>

namespace Ostrel::App {
class Application;
}

/// The sample host's main window: what a product builds on top of the shell.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit MainWindow(Ostrel::App::Application& application, QWidget* parent = nullptr);

private:
    Ostrel::App::Application& m_application;
};
