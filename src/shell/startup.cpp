#include "shell/startup.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "core/base/numbers.h"

namespace wb::shell {

namespace {

constexpr const char* defaultBaseLocation = "SYSTEM\\CurrentControlSet\\Enum\\Display";
constexpr int splashMilliseconds = 2000;

float positionSetting(Workbench& workbench, const char* name, float otherwise) {
    const auto stored = workbench.platform.settings.read(name);
    if (!stored) {
        return otherwise;
    }
    const double value = strictNumber(*stored);
    if (std::fabs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
        throw Failure(FailureKind::Overflow);
    }
    return static_cast<float>(value);
}

/// The digits that a single-precision number has, not those of the double next to it.
std::string singleText(float value) {
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
    return {buffer.data(), result.ptr};
}

void endProgram(Workbench& workbench) {
    workbench.ended = true;
}

} // namespace

void Main(Workbench& workbench) {
    trapped(workbench, [&] {
        platform::EventLoop& events = workbench.platform.eventLoop;
        events.setPointer(platform::Pointer::Hourglass);
        events.processPending();
        workbench.SplashShowing = flagTrue;
        workbench.windows.reveal(workbench.frmSplash());
        FrmMain& frame = workbench.frmMain();
        events.startTimer(splashMilliseconds, [&workbench] { workbench.SplashShowing = flagFalse; });
        while (workbench.SplashShowing != flagFalse) {
            events.processPending();
        }
        workbench.windows.reveal(frame);
        frmMain_Activate(workbench);
        workbench.windows.unload(ScreenId::Splash);
        events.setPointer(platform::Pointer::Normal);
        events.processPending();
    });
}

void frmMain_Load(Workbench& workbench) {
    trapped(workbench, [&] {
        FrmMain& frame = workbench.frmMain();
        // One after the other: the first bad setting is the one that is told.
        const float left = positionSetting(workbench, "MainLeft", 1000);
        const float top = positionSetting(workbench, "MainTop", 1000);
        const float width = positionSetting(workbench, "MainWidth", 6500);
        const float height = positionSetting(workbench, "MainHeight", 6500);
        frame.setPosition(left, top, width, height);
        workbench.RegBaseLocation = defaultBaseLocation;
        // The location has just been set, so that this does not run; the entry is visible from the start.
        if (workbench.RegBaseLocation.empty() &&
            workbench.platform.operatingSystem.majorVersion() == platform::registryMajorVersion) {
            frame.Windows2000.setVisible(true);
        }
        frame.FirstActivation = flagTrue;
        frame.setCaption(programTitle);
        workbench.HexCalculatorOpen = flagFalse;
        workbench.CEAScreenOpen = flagFalse;
        workbench.ModifyEDIDOn = flagFalse;
        workbench.AutoCellSeekOn = flagFalse;
    });
}

void frmMain_Activate(Workbench& workbench) {
    FrmMain& frame = workbench.frmMain();
    // The fallback of an empty base location; the load step sets one, so that it does not run.
    if (workbench.RegBaseLocation.empty() && frame.FirstActivation != flagFalse &&
        workbench.platform.operatingSystem.majorVersion() == platform::registryMajorVersion) {
        workbench.RegBaseLocation = defaultBaseLocation;
        workbench.windows.showModal(workbench.frmEDIDREG());
    }
    frame.FirstActivation = flagFalse;
}

void frmMain_Unload(Workbench& workbench, bool& cancel) {
    for (const Screen* screen : workbench.loadedInOrder()) {
        if (screen->isChild() && !workbench.windows.unload(screen->id())) {
            cancel = true;
            return;
        }
    }
    const FrmMain& frame = workbench.frmMain();
    if (!frame.minimised) {
        platform::Settings& settings = workbench.platform.settings;
        settings.write("MainLeft", singleText(frame.Left));
        settings.write("MainTop", singleText(frame.Top));
        settings.write("MainWidth", singleText(frame.Width));
        settings.write("MainHeight", singleText(frame.Height));
    }
    endProgram(workbench);
}

void mnuFileExit(Workbench& workbench) {
    workbench.windows.unload(ScreenId::Main);
    endProgram(workbench);
}

} // namespace wb::shell
