#pragma once

#include "Nag/Implementation.h"

class QUrl;

namespace Ostrel::App::NagScreen {

class AbstractContent;
struct ContentEnvironment;
struct NagContext;
struct NagRecord;

/// The one function the nag library looks up in its Qt Quick half (ContentFactory loads that
/// library when the first nag is made): a new QuickContent or WebQuickContent, owned by the caller,
/// with the nag map's row (or null) for its fallback identity; null for Implementation::None.
using CreateQuickContentFunction = AbstractContent*(Implementation implementation, const NagContext& context,
                                                    const QUrl& source, const NagRecord* record,
                                                    const ContentEnvironment& environment);
inline constexpr char CreateQuickContentSymbol[] = "OstrelNagCreateQuickContent";

} // namespace Ostrel::App::NagScreen
