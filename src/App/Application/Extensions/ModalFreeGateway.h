#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Interfaces/IGateway.h"

#include <memory>

namespace Ostrel::ExternalStimulus {

/// A gateway for actions that ask the user something: each action runs later, from the GUI
/// thread's event loop, and only while no modal window is open, so that one question never opens
/// on top of another (a start-up extension's dialog over the usage statistics question, say).
/// Actions run one at a time, in the order posted. What is still held when the gateway dies is
/// dropped.
class OSTREL_APP_EXPORT ModalFreeGateway : public IGateway
{
public:
    ModalFreeGateway();
    ~ModalFreeGateway() override;
    ModalFreeGateway(const ModalFreeGateway&) = delete;
    ModalFreeGateway& operator=(const ModalFreeGateway&) = delete;

    void post(const Stimulus& stimulus) override;
    /// Runs what is held at the next moment that no modal window is open.
    void flush() override;
    /// True while an action waits.
    bool isHolding() const override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::ExternalStimulus
