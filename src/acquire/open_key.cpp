#include "acquire/open_key.h"

#include <utility>

namespace wb::acquire {

OpenKey::OpenKey(platform::Registry& registry, const std::string& path)
    : registry_(&registry), code_(registry.open(path, key_)) {}

OpenKey::OpenKey(OpenKey&& other) noexcept
    : registry_(other.registry_),
      key_(other.key_),
      code_(std::exchange(other.code_, platform::RegistryCode::NotFound)) {}

OpenKey::~OpenKey() {
    if (isOpen()) {
        registry_->close(key_);
    }
}

} // namespace wb::acquire
