#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QObject>
#include <QThread>

namespace Ostrel::App {

/// Waits on a helper thread until this process shows a visible top-level window: up to 40
/// attempts, 300 ms apart (the pause is taken after a successful attempt too). Finished carries
/// the number of attempts made and is emitted on the helper thread.
///
/// All waiters share one flag, so only one should wait at a time.
class OSTREL_APP_EXPORT OpenWindowWaiter : public QObject
{
    Q_OBJECT

public:
    /// On the GUI thread.
    OpenWindowWaiter();
    /// Stops the wait and blocks for at most one pause.
    ~OpenWindowWaiter() override;

    void Start();

signals:
    void Finished(int attemptCount);

private:
    void waitLoop();

    QThread thread;
};

} // namespace Ostrel::App
