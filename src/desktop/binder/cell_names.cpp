#include "desktop/binder/cell_names.h"

#include <utility>

#include "desktop/base/byte_words.h"
#include "desktop/views/text_view.h"

namespace wb::desktop {

void CellNames::refresh(const Workbench& workbench, const LiveReading& live) const {
    if (live.readingBesides() == nullptr) {
        return;
    }
    for (const auto& [id, firstByte] : {std::pair(ScreenId::Edid, 0), std::pair(ScreenId::CeaExt, blockSize)}) {
        if (auto* screen = static_cast<BlockScreen*>(workbench.loaded(id))) {
            name(*screen, live, static_cast<std::size_t>(firstByte));
        }
    }
}

void CellNames::name(BlockScreen& screen, const LiveReading& live, std::size_t firstByte) const {
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        const Control& cell = screen.txtEdit(i);
        const std::size_t byte = firstByte + static_cast<std::size_t>(i);
        auto* view = live.changed(byte) ? static_cast<TextView*>(find_(cell)) : nullptr;
        if (view != nullptr) {
            const ByteWords words = byteWords(*live.readingBesides(), byte, cell.text());
            view->speakAlso(words.labels, words.description());
            view->setTip(words.line());
        }
    }
}

} // namespace wb::desktop
