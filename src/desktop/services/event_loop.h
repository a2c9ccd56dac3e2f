#pragma once

#include "desktop/base/model_gate.h"
#include "platform/services.h"

namespace wb::desktop {

/// Pending events, the pointer and timers. What the user does while pending events run waits until the call into the
/// model has returned.
class QtEventLoop : public platform::EventLoop {
public:
    explicit QtEventLoop(ModelGate& gate) : gate_(gate) {}

    void processPending() override;
    void setPointer(platform::Pointer pointer) override;
    void startTimer(int milliseconds, std::function<void()> fire) override;

private:
    ModelGate& gate_;
    bool hourglass_ = false;
    int timers_ = 0; ///< that have not fired yet
};

} // namespace wb::desktop
