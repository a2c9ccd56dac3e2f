#include "desktop/base/model_gate.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace wb::desktop {
namespace {

struct Recorder : GateObserver {
    void callReturned() override { log += "returned "; }
    void eventLoopStarts() override { log += "loop "; }
    std::string log;
};

class Gate : public testing::Test {
protected:
    Gate() { gate.setObserver(&recorder); }

    Recorder recorder;
    ModelGate gate;
};

TEST_F(Gate, RunsACallAtOnceAndThenShowsItsChanges) {
    gate.run([&] { recorder.log += "call "; });
    EXPECT_EQ(recorder.log, "call returned ");
    EXPECT_FALSE(gate.running());
}

TEST_F(Gate, LetsCallsWaitThatArriveInsideAnother) {
    gate.run([&] {
        recorder.log += "first ";
        gate.run([&] { recorder.log += "second "; });
        EXPECT_TRUE(gate.running());
        recorder.log += "end-of-first ";
    });
    EXPECT_EQ(recorder.log, "first end-of-first returned second returned ");
}

TEST_F(Gate, AnnouncesEventLoopsInsideACallOnly) {
    gate.announceEventLoop();
    EXPECT_EQ(recorder.log, "");
    gate.run([&] { gate.announceEventLoop(); });
    EXPECT_EQ(recorder.log, "loop returned ");
}

TEST_F(Gate, ManagesWithoutAnObserver) {
    gate.setObserver(nullptr);
    int calls = 0;
    gate.run([&] {
        gate.announceEventLoop();
        ++calls;
    });
    EXPECT_EQ(calls, 1);
}

TEST_F(Gate, StaysOpenAfterACallThatThrows) {
    EXPECT_THROW(gate.run([] { throw std::runtime_error("odd"); }), std::runtime_error);
    EXPECT_FALSE(gate.running());
    gate.run([&] { recorder.log += "call "; });
    EXPECT_EQ(recorder.log, "call returned ");
}

} // namespace
} // namespace wb::desktop
