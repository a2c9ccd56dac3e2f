#include "fields/reading.h"

#include <algorithm>

#include "fields/announced_extensions.h"
#include "fields/block0.h"
#include "fields/extensions.h"
#include "fields/scope.h"

namespace wb::fields {

namespace {

BlockInfo infoOf(const Image& image, std::size_t index) {
    const std::uint8_t tag = index == 0 ? 0 : image.block(index)[0];
    return {.index = index,
            .tag = tag,
            .name = index == 0 ? "base EDID" : extensionName(tag),
            .sum = sumsToZero(image.block(index)) ? Sum::Ok : Sum::Wrong};
}

void listBlocks(Reading& reading) {
    const Image& image = reading.image;
    for (std::size_t i = 0; i < image.blockCount(); ++i) {
        reading.blocks.push_back(infoOf(image, i));
    }
    const std::size_t announced = announcedExtensions(image);
    for (std::size_t i = image.blockCount(); i <= announced; ++i) {
        reading.blocks.push_back({.index = i, .name = "missing extension"});
    }
}

/// A read that ended early leaves the rest of the image as memory or a bus without an answer has it: all 00 or all FF.
/// So few bytes may end a sound block, and a sound block of which all are the same is empty and no more.
void tellOfEarlyEnd(Reading& reading) {
    constexpr std::size_t fewBytes = 16;
    const auto bytes = reading.image.bytes();
    const std::uint8_t last = bytes.back();
    if (last != 0x00 && last != 0xFF) {
        return;
    }
    const auto other = std::find_if(bytes.rbegin(), bytes.rend(), [&](std::uint8_t byte) { return byte != last; });
    const auto run = static_cast<std::size_t>(other - bytes.rbegin());
    const bool lastSumFits = reading.blocks[reading.image.blockCount() - 1].sum == Sum::Ok;
    if (run < fewBytes || (lastSumFits && run < Image::blockSize)) {
        return;
    }
    const std::size_t first = bytes.size() - run;
    const Scope scope(reading, first, "", "E-EDID 1.4, 3.11");
    scope.tell(Severity::Error, "image.ended_early", 0, "",
               "From byte " + std::to_string(first) + " on all is " + (last == 0 ? "00" : "FF") +
                   ", as where a read ended early, so that what stood there is lost; read the monitor again.");
}

void tellOfBlocks(Reading& reading) {
    const std::size_t there = reading.image.blockCount() - 1;
    const std::size_t announced = announcedExtensions(reading.image);
    const Scope base(reading, 0, "base", "E-EDID 1.4, 3.11");
    if (there < announced) {
        base.tell(Severity::Error, "image.blocks_missing", extensionCountCell, "extension_count",
                  "The image announces " + std::to_string(announced) + " extension blocks and " +
                      std::to_string(there) +
                      " are there, so that readers miss what the others tell; dump the whole image anew.");
    } else if (there > announced) {
        base.tell(Severity::Warning, "image.blocks_extra", extensionCountCell, "extension_count",
                  "The image announces " + std::to_string(announced) + " extension blocks and " +
                      std::to_string(there) +
                      " are there, so that readers pass over the last ones; correct the count or cut the image.");
    }
    if (reading.image.leftOver() != 0) {
        base.tell(Severity::Warning, "image.left_over", 0, "",
                  std::to_string(reading.image.leftOver()) +
                      " bytes after the last whole block belong to no block and are passed over.");
    }
    for (const BlockInfo& block : reading.blocks) {
        if (block.sum == Sum::Wrong) {
            const Scope scope(reading, block.index * Image::blockSize, "", "E-EDID 1.4, 3.11");
            scope.tell(Severity::Error, "block.checksum", checksumCell, "",
                       "The bytes of block " + std::to_string(block.index) +
                           " do not sum up to 0, so that careful readers refuse it; correct its last byte if the rest "
                           "is right.");
        }
    }
}

/// Where a field begins, counted in bits from the highest of the first byte.
std::size_t firstBit(const Field& field) {
    const BitRange* first = std::min_element(field.where.begin(), field.where.end(),
                                             [](const BitRange& a, const BitRange& b) { return a.byte < b.byte; });
    return first->byte * 8 + (7U - first->high);
}

/// Fields by their first bits. Fields are large: their places are sorted, and each of them is moved once.
void sortByPlace(std::vector<Field>& fields) {
    std::vector<std::pair<std::size_t, std::size_t>> order;
    order.reserve(fields.size());
    for (std::size_t i = 0; i < fields.size(); ++i) {
        order.emplace_back(firstBit(fields[i]), i);
    }
    std::sort(order.begin(), order.end());
    std::vector<Field> sorted;
    sorted.reserve(fields.size());
    for (const auto& [bit, index] : order) {
        sorted.push_back(std::move(fields[index]));
    }
    fields = std::move(sorted);
}

} // namespace

Reading read(const Image& image) {
    constexpr std::size_t usualFieldsOfBlock = 128;
    Reading reading{.image = image};
    reading.fields.reserve(usualFieldsOfBlock * image.blockCount());
    listBlocks(reading);
    tellOfBlocks(reading);
    tellOfEarlyEnd(reading);
    readBlock0(reading);
    readExtensions(reading);
    sortByPlace(reading.fields);
    std::stable_sort(reading.findings.begin(), reading.findings.end(),
                     [](const Finding& a, const Finding& b) { return a.byte < b.byte; });
    reading.summary.sumsOk = std::none_of(reading.blocks.begin(), reading.blocks.end(),
                                          [](const BlockInfo& block) { return block.sum == Sum::Wrong; });
    return reading;
}

const Field* fieldAt(const Reading& reading, std::size_t byte, int bit) {
    for (const Field& field : reading.fields) {
        for (const BitRange& range : field.where) {
            if (range.covers(byte) && bit <= range.high && bit >= range.low) {
                return &field;
            }
        }
    }
    return nullptr;
}

} // namespace wb::fields
