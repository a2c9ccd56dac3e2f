#include "cli/image_check.h"

#include <numeric>

#include "core/base/text.h"

namespace wb::cli {

namespace {

/// Fewer bytes lack a block, which is an error of the plain reading; more are but a warning there.
fields::Finding tooLong(std::size_t length, std::size_t expected) {
    return {.severity = fields::Severity::Error,
            .code = "check.length",
            .block = 0,
            .byte = extensionCountCell,
            .text = "The image has " + std::to_string(length) + " bytes, and the blocks that it announces have " +
                    std::to_string(expected) +
                    ", so that careful readers refuse it; correct the count or cut the image.",
            .clause = "E-EDID 1.4, 3.11"};
}

CheckResult checkLength(const Image& image, std::size_t blocks) {
    const std::size_t length = image.bytes().size() + image.leftOver();
    const std::size_t expected = blocks * Image::blockSize;
    const std::string text = "length " + std::to_string(length);
    if (length == expected) {
        return {true, text + " ok"};
    }
    CheckResult result{false, text + " should be " + std::to_string(expected)};
    if (length > expected) {
        result.finding = tooLong(length, expected);
    }
    return result;
}

CheckResult checkSum(const Image& image, std::size_t block) {
    const std::span<const std::uint8_t> bytes = image.block(block);
    const unsigned sum = std::accumulate(bytes.begin(), bytes.end() - 1, 0U);
    const unsigned expected = (256U - sum % 256U) % 256U;
    const unsigned found = bytes.back();
    const std::string text = "check sum of block " + std::to_string(block);
    if (found != expected) {
        return {false, text + ' ' + ByteToHex2(found) + " should be " + ByteToHex2(expected)};
    }
    return {true, text + " ok"};
}

/// Adds the sums of all blocks: of the two that the program edits one by one, of the others in runs while they are
/// right.
void addSums(const Image& image, std::vector<CheckResult>& results) {
    constexpr std::size_t toldAlone = 2;
    const std::size_t blocks = image.blockCount();
    for (std::size_t block = 0; block < blocks;) {
        results.push_back(checkSum(image, block));
        const std::size_t first = block++;
        while (first >= toldAlone && results.back().good && block < blocks && sumsToZero(image.block(block))) {
            ++block;
        }
        if (block > first + 1) {
            results.back().text =
                "check sums of blocks " + std::to_string(first) + " to " + std::to_string(block - 1) + " ok";
        }
    }
}

} // namespace

std::vector<CheckResult> checkImage(const Image& image, std::size_t blocks) {
    const bool headed = image.hasHeader();
    std::vector<CheckResult> results = {{headed, headed ? "header ok" : "header wrong"}, checkLength(image, blocks)};
    addSums(image, results);
    return results;
}

} // namespace wb::cli
