#include "desktop/base/model_gate.h"

#include <QScopeGuard>
#include <utility>

namespace wb::desktop {

void ModelGate::run(Call call) {
    waiting_.push_back(std::move(call));
    if (running_) {
        return;
    }
    running_ = true;
    const auto stopped = qScopeGuard([this] { running_ = false; }); // a call that throws must not hold up all others
    while (!waiting_.empty()) {
        const Call next = std::move(waiting_.front());
        waiting_.pop_front();
        next();
        if (observer_ != nullptr) {
            observer_->callReturned();
        }
    }
}

void ModelGate::announceEventLoop() {
    if (running_ && observer_ != nullptr) {
        observer_->eventLoopStarts();
    }
}

} // namespace wb::desktop
