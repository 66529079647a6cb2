#pragma once

#include "Tracking/IApplicationTracker.h"
#include "Tracking/ostrel_tracking_export.h"

#include <memory>

namespace Ostrel::Tracking {

/// The process-wide tracker. The host installs one (a GeneralOstrelTracker) at start; tests install
/// a recording one. Until then there is none, and callers skip tracking. Thread-safe.
class OSTREL_TRACKING_EXPORT ApplicationTrackerFactory
{
public:
    ApplicationTrackerFactory() = delete;

    /// The installed tracker, or null when none was installed.
    static std::shared_ptr<IApplicationTracker> getApplicationTracker();

    /// Installs `tracker` in place of the previous one; null removes it.
    static void setApplicationTracker(std::shared_ptr<IApplicationTracker> tracker);
};

} // namespace Ostrel::Tracking
