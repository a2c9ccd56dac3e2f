#include "forms/lines.h"

#include <algorithm>

namespace wb::forms {

Line lineAt(std::string_view text, std::size_t place) {
    const std::size_t end = std::min(text.find('\n', place), text.size());
    std::string_view line = text.substr(place, end - place);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return {line, std::min(end + 1, text.size())};
}

} // namespace wb::forms
