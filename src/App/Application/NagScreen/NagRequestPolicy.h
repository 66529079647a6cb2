#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QString>
#include <QStringList>

#include <memory>

class QUrl;

namespace Ostrel::App {
class ICustomizationManager;
}

namespace Ostrel::App::NagScreen {

class NagConfig;

/// Which nags another process may ask for: only one that the product could show anyway. That is a
/// "qrc:" nag among the product's own nag sources, or an "https" address ("http" too while SSL is
/// switched off for a test run) on the host of one of the product's nag servers, whatever the port.
/// Everything else (local files, QML from other hosts, other schemes, empty or malformed addresses) is
/// refused, since whatever loads runs with the product's rights.
///
/// The rule knows nothing of where the request came from, so that whatever else loads nag
/// content on another's word (the nag engine's URL interceptor) can ask the same question.
class OSTREL_APP_EXPORT NagRequestPolicy
{
public:
    /// `ownSources`: the product's own nags; only the "qrc:" ones count. `nagHosts`: the hosts of
    /// the product's nag servers (a port that comes with one is not compared). `allowHttp`: "http"
    /// is taken besides "https".
    NagRequestPolicy(const QStringList& ownSources, const QStringList& nagHosts, bool allowHttp);
    ~NagRequestPolicy();
    NagRequestPolicy(NagRequestPolicy&&) noexcept;
    NagRequestPolicy& operator=(NagRequestPolicy&&) noexcept;

    /// The policy of the running product: the sources of `config` (rows of the action "open_nag",
    /// which are requests themselves, left out), the hosts of ProductNagHosts(), and "http" only while
    /// the process-wide SSL usage is off. Both arguments may be null.
    static NagRequestPolicy ForProduct(const ICustomizationManager* customization, const NagConfig* config);

    /// Empty when the nag at `url` may be shown; otherwise why not, in words for the log.
    QString Refusal(const QUrl& url) const;
    bool Allows(const QUrl& url) const;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App::NagScreen
