#pragma once

#include <memory>

class QMenu;

namespace Ostrel::App {
class IProductSettingsManager;
class PreferredBrowser;
} // namespace Ostrel::App

/// Options > Browser: the desktop's default, or one of the browsers the shell finds (the user's
/// and the system's desktop entries that open web pages). The choice is the preferred browser
/// from then on, and is kept in the product settings ("PreferredBrowser") for the next runs.
/// The list is read each time the menu opens: a browser installed meanwhile shows up.
void addBrowserMenu(QMenu& options, Ostrel::App::PreferredBrowser& browser,
                    const std::shared_ptr<Ostrel::App::IProductSettingsManager>& settings);
