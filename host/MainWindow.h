#pragma once

#include <QMainWindow>

#include <memory>

namespace Ostrel::App {
class Application;
}

/// The sample host's main window: what a product builds on top of the shell.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit MainWindow(Ostrel::App::Application& application, QWidget* parent = nullptr);
    ~MainWindow() override;

protected:
    /// The window is built before the stored locale is loaded, and the locale may change later:
    /// its texts are set again whenever the translators change.
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    class Impl;
    std::unique_ptr<Impl> d;
    Ostrel::App::Application& m_application;
};
