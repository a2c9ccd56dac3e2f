#include "desktop/windows/idle_entries.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/screen.h"
#include "core/workbench.h"

namespace wb::desktop {

namespace {

/// What a command works on; without it the command does nothing.
enum class Needs { Image, Child, ImageAndChild, Icons, NoCalculator };

struct Row {
    std::string_view entry;
    std::string_view toolBarKey; ///< of the button that does the same, if there is one
    Needs needs;
};

constexpr auto rows = std::to_array<Row>({
    {"mnuFileClose", "", Needs::Child},
    {"mnuFileSave", "Save", Needs::Image},
    {"mnuFileSaveAs", "", Needs::Image},
    {"mnuFilePrintPreview", "Print Preview", Needs::Image},
    {"mnuFilePrint", "Print", Needs::ImageAndChild},
    {"ExportHex", "", Needs::Image},
    {"HexCalculator", "Calculator", Needs::NoCalculator},
    {"mnuWindowCascade", "", Needs::Child},
    {"mnuWindowTileHorizontal", "", Needs::Child},
    {"mnuWindowTileVertical", "", Needs::Child},
    {"mnuWindowArrangeIcons", "", Needs::Icons},
});

bool isThere(Needs needs, const Workbench& workbench, bool icons) {
    const bool image = workbench.EDIDLoaded != flagFalse;
    const bool child = workbench.windows.activeChild() != nullptr;
    switch (needs) {
        case Needs::Image:
            return image;
        case Needs::Child:
            return child;
        case Needs::ImageAndChild:
            return image && child;
        case Needs::Icons:
            return icons;
        case Needs::NoCalculator:
            break;
    }
    return workbench.HexCalculatorOpen == flagFalse;
}

} // namespace

bool isIdle(const Control& entry, bool icons) {
    const bool onToolBar = entry.array() != nullptr;
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const Row& r) {
        return onToolBar ? r.toolBarKey == entry.caption() : r.entry == entry.name();
    });
    return row != rows.end() && !isThere(row->needs, entry.screen().workbench(), icons);
}

} // namespace wb::desktop
