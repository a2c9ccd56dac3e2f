#include "platform/registry_path.h"

#include <algorithm>

namespace wb::platform {

std::vector<std::string_view> registryPathParts(std::string_view path) {
    std::vector<std::string_view> parts;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('\\'), path.size());
        if (end > 0) {
            parts.push_back(path.substr(0, end));
        }
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return parts;
}

} // namespace wb::platform
