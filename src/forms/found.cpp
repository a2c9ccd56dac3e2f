#include "forms/found.h"

#include <utility>

namespace wb::forms {

bool isComplete(std::string_view image) {
    if (image.size() < Image::blockSize) {
        return false;
    }
    const std::size_t announced = 1U + static_cast<unsigned char>(image[extensionCountCell]);
    return image.size() >= announced * Image::blockSize;
}

bool FoundRun::noteEdge(std::size_t placeInText) {
    const bool isEdge = !bytes.empty() && bytes.size() % Image::blockSize == 0;
    if (isEdge && !edges.empty() && edges.back().offset == bytes.size()) {
        edges.back().place = placeInText; // an empty line more
    } else if (isEdge) {
        edges.push_back({bytes.size(), placeInText});
    }
    return isEdge;
}

void FoundRun::moveImagesTo(std::vector<Found>& found) {
    if (bytes.size() < Image::blockSize || !bytes.starts_with(imageHeader)) {
        return;
    }
    const std::string_view all = bytes;
    std::size_t begin = 0;
    for (const Edge& edge : edges) {
        const std::string_view front = all.substr(begin, edge.offset - begin);
        const std::string_view rest = all.substr(edge.offset);
        // Less than a block is no image: it is told as what is left over of the one in front.
        if (rest.size() >= Image::blockSize && rest.starts_with(imageHeader) && isComplete(front)) {
            found.push_back({std::string(front), place});
            begin = edge.offset;
            place = edge.place;
        }
    }
    bytes.erase(0, begin);
    found.push_back({std::move(bytes), place});
}

} // namespace wb::forms
