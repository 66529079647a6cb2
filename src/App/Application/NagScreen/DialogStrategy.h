#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Nag/IShowStrategy.h"
#include "Nag/NagContext.h"

#include <QSize>

#include <memory>

class QDialog;
class QWidget;

namespace Ostrel::App::WebConfig {
class INagsSettings;
}

namespace Ostrel::App::NagScreen {

class DimmingProvider;

/// Shows a nag in a frameless modal dialog centred over the window in use, with that window
/// dimmed ("color", "shadow" or "gif"), and blocks until the nag has finished.
///
/// The exit code is the nag's, except that 0 becomes 2: a caller never sees 0.
/// Copies share the dimmers and have flags of their own.
///
/// A parent window destroyed while the nag is up takes neither the dialog nor the dimmer with it:
/// both leave it first, and the nag ends as rejected (2). (A deliberate departure, for safety: as
/// its children they would be deleted twice.)
class OSTREL_APP_EXPORT DialogStrategy : public IShowStrategy
{
public:
    /// `settings` gives the dimmer for nags that don't name one; it may go away at any time.
    explicit DialogStrategy(const std::weak_ptr<WebConfig::INagsSettings>& settings);
    ~DialogStrategy() override;
    DialogStrategy(const DialogStrategy& other);
    DialogStrategy(DialogStrategy&& other) noexcept;
    DialogStrategy& operator=(const DialogStrategy& other);
    DialogStrategy& operator=(DialogStrategy&& other) noexcept;

    int ShowNag(AbstractContent& content) override;

    Qt::WindowFlags GetDefaultWindowFlags() const;
    void SetDefaultWindowFlags(Qt::WindowFlags flags);
    std::shared_ptr<DimmingProvider> GetDimmingProvider() const;

protected:
    /// The active modal window, else the main window, else null (a top-level dialog).
    virtual QWidget* ParentFor(const NagContext& context) const;
    virtual Qt::WindowFlags WindowFlagsFor(const NagContext& context) const;
    /// Centres the dialog, by the nag's `size`, on its parent; leaves it alone without a parent.
    virtual void LocateDialog(QDialog* dialog, const QSize& size) const;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App::NagScreen
