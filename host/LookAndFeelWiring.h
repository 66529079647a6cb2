#pragma once

#include "Interfaces/LifetimeObserver.h"

#include <QObject>

#include <memory>

class QMainWindow;
class QMenu;

namespace Ostrel::App {
class Application;
class ColorDialogHelper;
class LookAndFeelHandler;
class LookAndFeelManager;
} // namespace Ostrel::App

/// The host's look and feel: the manager over the "resources" tree, the Language and Theme menus,
/// the stylesheet applied on every theme change, the last locale and theme restored at start,
/// custom colours kept between runs, the usage statistics question asked once, and a way to undo
/// every "Don't show this again".
///
/// The tree is looked for beside the executable (the shipped layout) and then one level up (the
/// build folder, where bin/ and resources/ are siblings).
class LookAndFeelWiring : public QObject, public Ostrel::App::LifetimeObserver
{
    Q_OBJECT
public:
    LookAndFeelWiring(Ostrel::App::Application& application, QMainWindow& window);
    ~LookAndFeelWiring() override;

    /// After the start, once the main window shows: the usage statistics question.
    void onStart() override;

private:
    void applyTheme();
    void retranslate();
    bool eventFilter(QObject* watched, QEvent* event) override;

    class Impl;
    std::unique_ptr<Impl> d;
};
