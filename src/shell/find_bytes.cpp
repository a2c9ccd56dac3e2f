#include "shell/find_bytes.h"

#include <string>

#include "core/base/digits.h"
#include "core/base/text.h"
#include "shell/go_to_byte.h"
#include "shell/image_state.h"

namespace wb::shell {

namespace {

/// The bytes that pairs of digits stand for; empty where the text is anything else.
std::string bytesIn(std::string_view text) {
    std::string digits(text);
    std::erase(digits, ' ');
    std::string bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        const int byte = hexPair(std::string_view(digits).substr(i, 2));
        if (byte < 0) {
            return {};
        }
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

/// The bytes of an image, and what is looked for in them.
class Search {
public:
    Search(const Image& image, std::string_view text)
        : image_(image.content()), capitals_(upperCase(image_)), text_(upperCase(text)), bytes_(bytesIn(text)) {}

    std::size_t size() const { return image_.size(); }
    bool isPlace(std::size_t place) const { return stands(capitals_, place, text_) || stands(image_, place, bytes_); }

private:
    static bool stands(const std::string& image, std::size_t place, const std::string& what) {
        return !what.empty() && image.compare(place, what.size(), what) == 0;
    }

    std::string image_;
    std::string capitals_;
    std::string text_;
    std::string bytes_;
};

} // namespace

bool findBytes(Workbench& workbench, std::string_view text, Direction direction) {
    const ImageState state = ImageState::of(workbench);
    if (!state.hasBlock(0)) {
        return false;
    }
    const Search search(state.bytes(), text);
    const std::size_t size = search.size();
    const auto from = static_cast<std::size_t>(
        focusedByte(workbench).value_or(direction == Direction::Forward ? static_cast<int>(size) - 1 : 0));
    for (std::size_t step = 1; step <= size; ++step) {
        const std::size_t place = (direction == Direction::Forward ? from + step : from + size - step) % size;
        if (search.isPlace(place)) {
            return goToByte(workbench, static_cast<int>(place));
        }
    }
    return false;
}

} // namespace wb::shell
