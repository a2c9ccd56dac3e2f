#include "cli/monitor_watch.h"

#include <gtest/gtest.h>

#include <map>

#include "cli/output.h"
#include "cli/samples.h"

namespace wb::cli {
namespace {

using adapters::HotplugEvent;
using Lines = std::vector<std::string>;

/// Hands out events one by one; before each the monitors change as the test wants.
class FakeSource : public adapters::Hotplug {
public:
    struct Step {
        HotplugEvent event;
        std::function<void()> before;
    };

    HotplugEvent next(std::optional<std::chrono::milliseconds> patience) override {
        waits.push_back(patience.has_value());
        const Step step = steps.at(waits.size() - 1);
        step.before();
        return step.event;
    }

    std::vector<Step> steps;
    std::vector<bool> waits; ///< whether each wait had an end
};

class Watch : public testing::Test {
protected:
    void run() {
        MonitorWatch([&] { return monitors; },
                     [&](std::string_view event, const Monitor& monitor, bool taken) {
                         told.push_back(std::string(event) + ' ' + monitor.name + (taken ? " taken" : ""));
                     })
            .run(source);
    }
    void then(
        HotplugEvent event, const std::function<void()>& before = [] {}) {
        source.steps.push_back({event, before});
    }
    static Monitor monitor(const std::string& name, const std::string& edid = "") {
        return {.name = name, .source = "there", .edid = edid};
    }

    std::vector<Monitor> monitors;
    FakeSource source;
    Lines told;
    const std::string edid = test::sample("zarqo-z40.bin");
};

TEST_F(Watch, TellsTheListAndThenEachChange) {
    monitors = {monitor("a", edid), monitor("b")};
    then(HotplugEvent::Change, [&] { monitors = {monitor("b"), monitor("c", edid)}; });
    then(HotplugEvent::Change, [&] { monitors[0].edid = edid; });
    then(HotplugEvent::Change, [&] { monitors.pop_back(); });
    then(HotplugEvent::Change);
    then(HotplugEvent::Stop);
    run();
    EXPECT_EQ(told, (Lines{"listed a taken", "listed b", "disconnected a", "connected c taken", "changed b taken",
                           "changed c", "disconnected c"}));
}

TEST_F(Watch, LooksAgainSomeTimesAfterAChangeForAnEdidThatComesLate) {
    then(HotplugEvent::Change, [&] { monitors = {monitor("a")}; });
    then(HotplugEvent::Quiet);
    then(HotplugEvent::Quiet, [&] { monitors = {monitor("a", edid)}; });
    then(HotplugEvent::Quiet);
    then(HotplugEvent::Quiet);
    then(HotplugEvent::Stop);
    run();
    EXPECT_EQ(told, (Lines{"connected a", "changed a taken"}));
    EXPECT_EQ(source.waits, (std::vector<bool>{false, true, true, true, true, false}));
}

TEST_F(Watch, AnErrorThatComesOrGoesIsAChange) {
    monitors = {monitor("a")};
    then(HotplugEvent::Change, [&] { monitors[0].error = std::make_error_code(std::errc::permission_denied); });
    then(HotplugEvent::Stop);
    run();
    EXPECT_EQ(told, (Lines{"listed a", "changed a"}));
}

TEST_F(Watch, EndsWhereNobodyReadsStandardOutput) {
    then(HotplugEvent::OutputClosed);
    try {
        run();
        FAIL() << "it goes on";
    } catch (const OutputError& error) {
        EXPECT_TRUE(error.readerGone());
    }
}

} // namespace
} // namespace wb::cli
