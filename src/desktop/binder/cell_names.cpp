#include "desktop/binder/cell_names.h"

#include <utility>

#include "desktop/base/byte_words.h"
#include "desktop/views/text_view.h"

namespace wb::desktop {

void CellNames::refresh(const Workbench& workbench, const LiveReading& live) const {
    const fields::Reading* reading = live.readingBesides();
    if (reading == nullptr) {
        return;
    }
    for (const auto& [id, firstByte] : {std::pair(ScreenId::Edid, 0), std::pair(ScreenId::CeaExt, blockSize)}) {
        if (auto* screen = static_cast<BlockScreen*>(workbench.loaded(id))) {
            name(*screen, *reading, static_cast<std::size_t>(firstByte));
        }
    }
}

void CellNames::name(BlockScreen& screen, const fields::Reading& reading, std::size_t firstByte) const {
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        const Control& cell = screen.txtEdit(i);
        if (auto* view = static_cast<TextView*>(find_(cell))) {
            const ByteWords words = byteWords(reading, firstByte + static_cast<std::size_t>(i), cell.text());
            view->speakAlso(words.labels, words.description());
            view->setTip(words.line());
        }
    }
}

} // namespace wb::desktop
