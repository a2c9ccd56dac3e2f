#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/base/image.h"

namespace wb::forms {

/// The bytes of one image as a reader of a form found them: at least a block.
struct Found {
    std::string bytes;
    std::size_t place = 0; ///< where in the text it begins
};

/// Whether the image has all the blocks that its byte 126 announces.
bool isComplete(std::string_view image);

/// Bytes that stand together in a text: those of an image, or of several one behind the other.
struct FoundRun {
    /// Where whole blocks end and a line or a literal begins.
    struct Edge {
        std::size_t offset = 0; ///< in the bytes
        std::size_t place = 0;  ///< in the text
    };

    std::string bytes;
    std::size_t place = 0; ///< where in the text they begin
    std::vector<Edge> edges{};

    /// A line or a literal begins at that place of the text. Whether an edge is there.
    bool noteEdge(std::size_t placeInText);

    /// Appends the images, if the bytes begin with the header of one. Behind a complete image, a header at an edge
    /// begins another; elsewhere blocks may begin with the same bytes.
    void moveImagesTo(std::vector<Found>& found);
};

/// The readers of forms. Each gives every image in the text that begins with the header, in order.
std::vector<Found> readBase64(std::string_view text);
std::vector<Found> readDecimalLists(std::string_view text);
std::vector<Found> readStringLiterals(std::string_view text);
std::vector<Found> readDumps(std::string_view text);
std::vector<Found> readHexLines(std::string_view text);

/// All digits of a text that holds nothing but hexadecimal digits and what stands between them (blanks, line ends,
/// commas, "0x"), as bytes, whatever they are. Nothing where it holds anything else or less than a block.
std::vector<Found> readBareHex(std::string_view text);

} // namespace wb::forms
