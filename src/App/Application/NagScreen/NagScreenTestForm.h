#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Events/ComponentSetterObserver.h"
#include "Events/NotNull.h"
#include "Nag/IManager.h"
#include "Nag/IManagerObserver.h"

#include <QWidget>

#include <memory>

namespace Ostrel::App::NagScreen {

/// "Nag Screen Tester": a developer's window that shows the nag of any action at once, replaces
/// it by a local main.qml, reloads every nag with a progress bar, and shows the rendered nag's
/// fingerprint next to the one stored in it, differences in red.
class OSTREL_APP_EXPORT NagScreenTestForm : public QWidget,
                                            private Core::ComponentSetterObserver,
                                            public IManagerObserver
{
    Q_OBJECT
public:
    NagScreenTestForm(const Core::NotNull<std::shared_ptr<IManager>>& manager, QWidget* parent = nullptr);
    ~NagScreenTestForm() override;

    void onNagAvailable(const QString& action, bool available) override;
    void onNagDontShow(const QString& action, bool dontShow) override;
    void onSkipUpdate(const QString& action, bool skip) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void onSet() override;
    void loadNagActions();
    void showNag();
    void chooseCustomPath();
    void reloadAll();
    void startNagReloadProgress();
    void updateNagReloadProgress(const QString& action);
    void updateActionItem(const QString& action);
    void updateActionItem(const QString& action, bool available);
    void updateCurrentActionStateLabel();
    void updateLabel(const IManager::NagHash& hash);

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App::NagScreen
