#pragma once

#include <deque>
#include <functional>

namespace wb::desktop {

/// What wants to know about calls into the model.
class GateObserver {
public:
    virtual ~GateObserver() = default;
    /// A call has returned: everything on view is to be brought in line with the model.
    virtual void callReturned() = 0;
    /// An event loop is about to run inside a call: what is on view is to show what the model says, the focus apart.
    virtual void eventLoopStarts() = 0;
};

/// The one way from widgets into the model. Calls run one after the other: one that arrives while another runs, in the
/// event loop of a box or among pending events, waits until that has returned.
class ModelGate {
public:
    using Call = std::function<void()>;

    ModelGate() = default;
    ModelGate(const ModelGate&) = delete;
    ModelGate& operator=(const ModelGate&) = delete;

    /// Runs the call now, or as soon as the running one has returned.
    void run(Call call);
    /// Whether a call runs, or the view is being brought in line after one.
    bool running() const { return running_; }
    /// To be called by whatever runs an event loop on behalf of the model.
    void announceEventLoop();
    /// The observer must outlive the gate or be taken away with null.
    void setObserver(GateObserver* observer) { observer_ = observer; }

private:
    std::deque<Call> waiting_;
    bool running_ = false;
    GateObserver* observer_ = nullptr;
};

} // namespace wb::desktop
