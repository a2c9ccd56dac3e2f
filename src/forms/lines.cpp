#include "forms/lines.h"

#include <algorithm>

namespace wb::forms {

std::vector<Line> linesOf(std::string_view text) {
    std::vector<Line> lines;
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t end = std::min(text.find('\n', place), text.size());
        std::string_view line = text.substr(place, end - place);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.push_back({line, place});
        place = end + 1;
    }
    return lines;
}

} // namespace wb::forms
