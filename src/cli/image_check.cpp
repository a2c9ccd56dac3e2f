#include "cli/image_check.h"

#include <algorithm>

#include "core/base/image_layout.h"
#include "core/base/text.h"
#include "core/edid_image.h"

namespace wb::cli {

namespace {

CheckResult checkLength(std::string_view image, std::size_t mostBlocks) {
    std::string text = "length " + std::to_string(image.size());
    if (image.size() <= extensionCountCell) {
        return {false, text + " is short of one block"};
    }
    const std::size_t blocks = 1U + static_cast<unsigned char>(image[extensionCountCell]);
    const std::size_t expected = std::min(blocks, mostBlocks) * blockSize;
    if (image.size() != expected) {
        return {false, text + " should be " + std::to_string(expected)};
    }
    return {true, text + " ok"};
}

CheckResult checkSum(std::string_view image, std::size_t block) {
    const std::string_view bytes = image.substr(block * blockSize, blockSize);
    unsigned sum = 0;
    for (const char byte : bytes.substr(0, blockSize - 1)) {
        sum += static_cast<unsigned char>(byte);
    }
    const unsigned expected = (256U - sum % 256U) % 256U;
    const unsigned found = static_cast<unsigned char>(bytes.back());
    const std::string text = "check sum of block " + std::to_string(block);
    if (found != expected) {
        return {false, text + ' ' + ByteToHex2(found) + " should be " + ByteToHex2(expected)};
    }
    return {true, text + " ok"};
}

/// Adds the sums of all blocks: of the two that the program edits one by one, of the others in runs while they are
/// right.
void addSums(std::string_view image, std::vector<CheckResult>& results) {
    constexpr std::size_t toldAlone = 2;
    const std::size_t blocks = image.size() / blockSize;
    for (std::size_t block = 0; block < blocks;) {
        results.push_back(checkSum(image, block));
        const std::size_t first = block++;
        while (first >= toldAlone && results.back().good && block < blocks && checkSum(image, block).good) {
            results.back().text =
                "check sums of blocks " + std::to_string(first) + " to " + std::to_string(block) + " ok";
            ++block;
        }
    }
}

} // namespace

std::vector<CheckResult> checkImage(std::string_view image, std::size_t mostBlocks) {
    const bool headed = IsEDIDHeaderValid(image);
    std::vector<CheckResult> results = {{headed, headed ? "header ok" : "header wrong"},
                                        checkLength(image, mostBlocks)};
    addSums(image, results);
    return results;
}

} // namespace wb::cli
