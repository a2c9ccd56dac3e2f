#include "desktop/base/live_reading.h"

#include <QTimer>
#include <algorithm>
#include <utility>

#include "core/base/digits.h"
#include "core/base/image_layout.h"
#include "core/base/text.h"
#include "core/screens/block_screen.h"
#include "desktop/base/changed_bytes.h"
#include "desktop/base/text_codec.h"

namespace wb::desktop {

namespace {

void addCells(BlockScreen& screen, std::vector<std::string>& cells) {
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        cells.push_back(screen.txtEdit(i).text());
    }
}

/// The blocks behind those that have cells, as cells would hold them: the program keeps them as they were loaded.
void addFurtherBlocks(const std::string& loaded, std::vector<std::string>& cells) {
    for (std::size_t i = cells.size(); i < loaded.size(); ++i) {
        cells.push_back(ByteToHex2(static_cast<unsigned char>(loaded[i])));
    }
}

/// The texts of the cells that make up the image; none while there is no image. Touches no screen.
std::vector<std::string> imageCells(const Workbench& workbench) {
    std::vector<std::string> cells;
    if (auto* block0 = static_cast<BlockScreen*>(workbench.loaded(ScreenId::Edid))) {
        addCells(*block0, cells);
        auto* extension = static_cast<BlockScreen*>(workbench.loaded(ScreenId::CeaExt));
        if (extension != nullptr && hexPair(cells[extensionCountCell]) != 0) {
            addCells(*extension, cells);
            addFurtherBlocks(workbench.LoadedBytes, cells);
        }
    }
    return cells;
}

QString complaintAbout(std::size_t number, const std::string& text) {
    const std::size_t block = number / BlockScreen::cellCount;
    return QString("Cell %1 of %2 holds \"%3\", which is not a byte of two hexadecimal digits.")
        .arg(number % BlockScreen::cellCount)
        .arg(block == 0 ? "block 0" : "the extension block", toUnicode(text));
}

} // namespace

void LiveReading::listen(QObject& context, std::function<void()> listener) {
    listeners_.push_back({&context, std::move(listener)});
}

void LiveReading::noteCall() {
    if (!std::exchange(willUpdate_, true)) {
        QTimer::singleShot(0, this, [this] { update(); });
    }
}

void LiveReading::update() {
    willUpdate_ = false;
    std::vector<std::string> cells = imageCells(workbench_);
    if (cells == cells_) {
        return;
    }
    const std::optional<fields::Reading> before = std::exchange(reading_, std::nullopt);
    read(cells);
    compare(cells, before);
    cells_ = std::move(cells);
    std::erase_if(listeners_, [](const Listener& listener) { return listener.context.isNull(); });
    for (const Listener& listener : std::vector<Listener>(listeners_)) { // a listener may make more of them
        if (!listener.context.isNull()) {
            listener.call();
        }
    }
}

void LiveReading::read(const std::vector<std::string>& cells) {
    complaint_.clear();
    std::string bytes;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const int byte = hexPair(cells[i]);
        if (byte < 0 && complaint_.isEmpty()) {
            complaint_ = complaintAbout(i, cells[i]);
        }
        bytes += static_cast<char>(std::max(byte, 0));
    }
    if (const auto image = Image::fromBytes(bytes)) {
        reading_.emplace(fields::read(*image));
    }
}

void LiveReading::compare(const std::vector<std::string>& cells, const std::optional<fields::Reading>& before) {
    changed_.clear();
    if (cells_.empty() || !before || !reading_) {
        return; // nobody has been told of any of them
    }
    changed_ = changedBytes(*before, *reading_);
    for (std::size_t i = 0; i < changed_.size(); ++i) {
        changed_[i] = changed_[i] || i >= cells_.size() || cells_[i] != cells[i];
    }
}

} // namespace wb::desktop
