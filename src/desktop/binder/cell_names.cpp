#include "desktop/binder/cell_names.h"

#include <QStringList>
#include <utility>

namespace wb::desktop {

namespace {

/// The fields that have bits in a byte of the image, from the highest bit down.
std::vector<const fields::Field*> fieldsIn(const fields::Reading& reading, std::size_t byte) {
    constexpr int highestBit = 7;
    std::vector<const fields::Field*> found;
    for (int bit = highestBit; bit >= 0; --bit) {
        const fields::Field* field = fields::fieldAt(reading, byte, bit);
        if (field != nullptr && (found.empty() || found.back() != field)) {
            found.push_back(field);
        }
    }
    return found;
}

/// As many as are told one by one: nobody wants to hear the flags of a whole byte on the way over the grid.
constexpr std::size_t toldFields = 2;

QString labelsOf(const std::vector<const fields::Field*>& fields) {
    QStringList labels;
    for (std::size_t i = 0; i < fields.size() && i < toldFields; ++i) {
        labels += QString::fromUtf8(fields[i]->label.data(), static_cast<qsizetype>(fields[i]->label.size()));
    }
    QString text = labels.join(", ");
    if (fields.size() > toldFields) {
        text += QString(" and %1 more").arg(fields.size() - toldFields);
    }
    return text;
}

/// A long run of bytes without a meaning is heard cell by cell anyway.
QString valuesOf(const std::vector<const fields::Field*>& fields) {
    constexpr std::size_t longest = 60;
    QStringList values;
    for (std::size_t i = 0; i < fields.size() && i < toldFields; ++i) {
        if (fields[i]->text.size() <= longest) {
            values += QString::fromStdString(fields[i]->text);
        }
    }
    return values.join(", ");
}

} // namespace

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
        if (ControlView* view = find_(screen.txtEdit(i))) {
            const auto fields = fieldsIn(reading, firstByte + static_cast<std::size_t>(i));
            view->speakAlso(labelsOf(fields), valuesOf(fields));
        }
    }
}

} // namespace wb::desktop
