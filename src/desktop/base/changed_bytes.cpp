#include "desktop/base/changed_bytes.h"

#include <algorithm>
#include <limits>

namespace wb::desktop {

namespace {

using Fields = std::vector<fields::Field>;

bool sameBits(const fields::BitRange& a, const fields::BitRange& b) {
    return a.byte == b.byte && a.high == b.high && a.low == b.low && a.count == b.count;
}

bool sameWords(const fields::Field& a, const fields::Field& b) {
    return std::equal(a.where.begin(), a.where.end(), b.where.begin(), b.where.end(), &sameBits) &&
           a.label == b.label && a.text == b.text;
}

/// Where a field begins, counted in bits of the image; behind the last one the end.
std::size_t beginning(const Fields& fields, std::size_t number) {
    constexpr std::size_t bits = 8;
    std::size_t first = std::numeric_limits<std::size_t>::max();
    if (number < fields.size()) {
        for (const fields::BitRange& range : fields[number].where) {
            first = std::min(first, bits * (range.byte + 1) - range.high);
        }
    }
    return first;
}

void mark(const fields::Field& field, std::vector<bool>& bytes) {
    for (const fields::BitRange& range : field.where) {
        for (std::size_t byte = range.byte; byte < std::min(range.byte + range.count, bytes.size()); ++byte) {
            bytes[byte] = true;
        }
    }
}

} // namespace

std::vector<bool> changedBytes(const fields::Reading& before, const fields::Reading& now) {
    std::vector<bool> changed(now.image.blockCount() * Image::blockSize);
    const Fields& old = before.fields;
    const Fields& fresh = now.fields;
    std::size_t i = 0;
    std::size_t k = 0;
    while (k < fresh.size()) { // both are in the order of their bits
        if (i < old.size() && sameWords(old[i], fresh[k])) {
            ++i;
            ++k;
            continue;
        }
        const std::size_t oldPlace = beginning(old, i);
        const std::size_t freshPlace = beginning(fresh, k);
        i += oldPlace <= freshPlace ? 1 : 0;
        if (freshPlace <= oldPlace) {
            mark(fresh[k++], changed);
        }
    }
    return changed;
}

} // namespace wb::desktop
