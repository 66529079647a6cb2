#pragma once

#include "Nag/ostrel_nag_export.h"

#include <QMetaType>
#include <QString>

namespace Ostrel::App::NagScreen {

/// The moments a nag can be shown at. Hosts may use actions of their own: an action is a string.
namespace AppAction {
inline QString AppStart()
{
    return QStringLiteral("app_start");
}
inline QString AppClose()
{
    return QStringLiteral("app_close");
}
inline QString BeforeRoutine()
{
    return QStringLiteral("before_routine");
}
inline QString MajorUpdate()
{
    return QStringLiteral("major_update");
}
inline QString MinorUpdate()
{
    return QStringLiteral("minor_update");
}
inline QString OpenNag()
{
    return QStringLiteral("open_nag");
}
inline QString FirstFeedback()
{
    return QStringLiteral("first_feedback");
}
inline QString SecondFeedback()
{
    return QStringLiteral("second_feedback");
}
inline QString ThirdFeedback()
{
    return QStringLiteral("third_feedback");
}
inline QString AskForReview()
{
    return QStringLiteral("ask_for_review");
}
inline QString AuthorizationWindow()
{
    return QStringLiteral("authorization_window");
}
} // namespace AppAction

/// The modes of the product as the nag map knows them. The mode says which commercial state the
/// user is in, since that is what decides what a nag may offer:
///  - "free": the free edition, never licensed;
///  - "trial": a time-limited trial of the paid edition is running;
///  - "licensed": a paid licence is active.
/// "any_mode" is a row of the map that applies in every mode; only the manager compares with it.
namespace AppMode {
inline QString Free()
{
    return QStringLiteral("free");
}
inline QString Trial()
{
    return QStringLiteral("trial");
}
inline QString Licensed()
{
    return QStringLiteral("licensed");
}
inline QString AnyMode()
{
    return QStringLiteral("any_mode");
}
} // namespace AppMode

/// What a nag is shown for. `preview` is set by tools that make a content outside the product's
/// own moments (the nag walk of the test harness): such a content reports nothing to the user's
/// settings.
struct NagContext
{
    QString action;
    QString mode;
    int preview = 0;
};

/// How far a content has come. Value 1 is kept free: nothing uses it.
enum ContentState
{
    Loading = 0,
    Ready = 3,
    Failed = 2,
};

} // namespace Ostrel::App::NagScreen

Q_DECLARE_METATYPE(Ostrel::App::NagScreen::ContentState)
