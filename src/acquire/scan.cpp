#include "acquire/scan.h"

#include "acquire/get_edid.h"

namespace wb::acquire {

namespace {

/// The one place where the tool is looked for.
constexpr const char* toolFolder = "c:/QOR/EDID/EDIDv314d";
constexpr double secondsAfterRemoval = 3;
constexpr double secondsAfterRescan = 10;
constexpr double secondsPerDay = 24 * 60 * 60;

void startTool(Workbench& workbench, const std::string& arguments) {
    workbench.platform.shell.start({.verb = "open",
                                    .program = platform::deviceToolName,
                                    .arguments = arguments,
                                    .folder = toolFolder,
                                    .hidden = true});
}

/// The rest of a wait that ends when the clock shows `seconds` more than `start` (both clock readings in seconds since
/// midnight); not above 0 when it is over. The clock starts at 0 again at midnight: a wait that meets it ends when the
/// new day is `seconds` old.
double restOfWait(double start, double now, double seconds) {
    const double passed = now - start;
    if (passed < 0) {
        return seconds - now;
    }
    if (passed < seconds && start + seconds >= secondsPerDay) {
        return secondsPerDay - now + seconds;
    }
    return seconds - passed;
}

} // namespace

void Command5_Click(Workbench& workbench) {
    const std::string monitor = workbench.IDManufacturerName + workbench.ProductHardwareCode;
    // Without an image the name is empty, which is not a blank either: the tool then gets no name at all.
    if (monitor != " ") {
        startTool(workbench, "remove monitor\\" + monitor);
        workbench.platform.clock.wait(secondsAfterRemoval);
    }
    startTool(workbench, "rescan");
    platform::Clock& clock = workbench.platform.clock;
    const double start = clock.secondsSinceMidnight();
    workbench.platform.messageBoxes.show({.text = "These processes take several seconds.",
                                          .title = "Scan Hardware & Read EDID",
                                          .icon = platform::Icon::Information});
    const double rest = restOfWait(start, clock.secondsSinceMidnight(), secondsAfterRescan);
    if (rest > 0) {
        clock.wait(rest);
    }
    GetEDIDData(workbench);
}

} // namespace wb::acquire
