#include "platform/open_key.h"

#include <utility>

namespace wb::platform {

OpenKey::OpenKey(Registry& registry, const std::string& path)
    : registry_(&registry), code_(registry.open(path, key_)) {}

OpenKey::OpenKey(Registry& registry, Registry::Key above, const std::string& path)
    : registry_(&registry), code_(registry.open(above, path, key_)) {}

OpenKey::OpenKey(OpenKey&& other) noexcept
    : registry_(other.registry_), key_(other.key_), code_(std::exchange(other.code_, RegistryCode::NotFound)) {}

OpenKey::~OpenKey() {
    if (isOpen()) {
        registry_->close(key_);
    }
}

} // namespace wb::platform
