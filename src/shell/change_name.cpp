#include "shell/change_name.h"

#include <algorithm>
#include <vector>

#include "fields/reading.h"

namespace wb::shell {

namespace {

/// The bits in which a cell differs; all of them where its text does and its byte does not.
unsigned changedBits(const ImageState& before, const ImageState& after, const Image& old, const Image& now, int cell) {
    if (before.text(cell) == after.text(cell)) {
        return 0;
    }
    const auto place = static_cast<std::size_t>(cell);
    const unsigned bits = static_cast<unsigned>(old.byte(place)) ^ now.byte(place);
    return bits != 0 ? bits : 0xFFU;
}

/// The fields that hold changed bits, in the order of their bytes.
std::vector<const fields::Field*> changedFields(const fields::Reading& reading, const ImageState& before,
                                                const ImageState& after) {
    constexpr int highestBit = 7;
    const Image old = before.bytes();
    std::vector<const fields::Field*> found;
    for (int cell = 0; cell < imageSize; ++cell) {
        const auto block = static_cast<std::size_t>(cell / blockSize);
        if (cell % blockSize == checksumCell || !before.hasBlock(block) || !after.hasBlock(block)) {
            continue;
        }
        const unsigned bits = changedBits(before, after, old, reading.image, cell);
        for (int bit = highestBit; bit >= 0; --bit) {
            const bool changed = (bits >> static_cast<unsigned>(bit) & 1U) != 0;
            const fields::Field* field =
                changed ? fields::fieldAt(reading, static_cast<std::size_t>(cell), bit) : nullptr;
            if (field != nullptr && std::find(found.begin(), found.end(), field) == found.end()) {
                found.push_back(field);
            }
        }
    }
    return found;
}

} // namespace

std::string changeName(const ImageState& before, const ImageState& after) {
    const fields::Reading reading = fields::read(after.bytes());
    const std::vector<const fields::Field*> fields = changedFields(reading, before, after);
    if (fields.empty()) {
        return "Extension block"; // whose screen has been closed
    }
    std::string name(fields.front()->label);
    if (fields.size() > 1) {
        name += " and " + std::to_string(fields.size() - 1) + " more";
    }
    return name;
}

} // namespace wb::shell
