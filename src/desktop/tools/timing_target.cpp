#include "desktop/tools/timing_target.h"

#include "core/screens/block_screen.h"
#include "desktop/base/text_codec.h"

namespace wb::desktop {

std::optional<TimingTarget> shownTiming(const Workbench& workbench) {
    for (Screen* child : workbench.windows.children()) {
        const bool extension = child->id() == ScreenId::CeaExt;
        if (!extension && child->id() != ScreenId::Edid) {
            continue;
        }
        auto& screen = static_cast<BlockScreen&>(*child);
        const Control& values = screen.Hints(BlockScreen::timingValuePanel);
        if (!values.visible() && !screen.Hints(BlockScreen::timingFlagPanel).visible()) {
            return std::nullopt;
        }
        const QString name = toUnicode(values.caption()) + (extension ? " of the extension" : "");
        return TimingTarget{screen.CurrentBlockBase + (extension ? blockSize : 0), name};
    }
    return std::nullopt;
}

} // namespace wb::desktop
