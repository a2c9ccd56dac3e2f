#include "desktop/tools/focused_byte.h"

namespace wb::desktop {

std::optional<std::size_t> focusedByte(const Workbench& workbench) {
    const Control* control = workbench.focus.current();
    if (control == nullptr || control->name() != "txtEdit") {
        return std::nullopt;
    }
    const int block = control->screen().id() == ScreenId::CeaExt ? 1 : 0;
    return static_cast<std::size_t>(block * BlockScreen::cellCount + control->index());
}

const Control* cellOf(const Workbench& workbench, std::size_t byte) {
    const auto number = static_cast<int>(byte);
    auto* screen = static_cast<BlockScreen*>(workbench.loaded(number < blockSize ? ScreenId::Edid : ScreenId::CeaExt));
    return screen != nullptr && number < imageSize ? &screen->txtEdit(number % blockSize) : nullptr;
}

} // namespace wb::desktop
