#include "desktop/binder/cell_names.h"

#include <QStringList>

#include "core/base/digits.h"

namespace wb::desktop {

namespace {

/// The byte that a cell holds; one that is no number counts as 0, which names its neighbours all the same.
char byteIn(const Control& cell) {
    constexpr std::size_t digits = 2;
    const auto number = cell.text().size() == digits ? wholeNumber<unsigned>(cell.text(), 16) : std::nullopt;
    return static_cast<char>(number.value_or(0));
}

void addBytes(BlockScreen& screen, std::string& bytes) {
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        bytes += byteIn(screen.txtEdit(i));
    }
}

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

void CellNames::refresh(const Workbench& workbench) {
    std::string bytes;
    auto* block0 = static_cast<BlockScreen*>(workbench.loaded(ScreenId::Edid));
    auto* extension = static_cast<BlockScreen*>(workbench.loaded(ScreenId::CeaExt));
    if (block0 != nullptr) {
        addBytes(*block0, bytes);
    }
    if (block0 != nullptr && extension != nullptr) {
        addBytes(*extension, bytes);
    }
    if (bytes == named_) {
        return;
    }
    named_ = bytes;
    if (const auto image = Image::fromBytes(bytes)) {
        const fields::Reading reading = fields::read(*image);
        name(*block0, reading, 0);
        if (extension != nullptr) {
            name(*extension, reading, Image::blockSize);
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
