#pragma once

class QMenuBar;

namespace Ostrel::App {
class Application;
}

/// The Help menu: each entry opens its link through the application's links manager, so that it
/// passes the URL handler, opens in the preferred browser and is reported as "URL_OPEN".
void addHelpMenu(QMenuBar& menuBar, Ostrel::App::Application& application);
