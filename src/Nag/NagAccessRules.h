#pragma once

#include "Nag/ostrel_nag_export.h"

#include <QStringList>

class QUrl;

namespace Ostrel::App::NagScreen {

/// Where the QML of a nag may reach beyond the resources compiled into the product: the hosts of
/// the product's nag server. The product computes them (the nag library knows no product) and
/// gives them to the nag manager. Default-made rules name no host: nags then reach nothing but
/// "qrc:" and their own local folder.
struct OSTREL_NAG_EXPORT NagAccessRules
{
    /// Host names, compared without regard to case; the port is not part of the rule.
    QStringList hosts;
    /// Plain "http" to those hosts as well as "https": only for a test run with SSL switched off.
    bool allowHttp = false;

    /// `url` is an "https" (or, with allowHttp, "http") address on one of the hosts.
    bool allowsRemote(const QUrl& url) const;
};

} // namespace Ostrel::App::NagScreen
