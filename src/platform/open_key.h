#pragma once

#include <string>

#include "platform/services.h"

namespace wb::platform {

/// A key of the registry, closed when it goes out of scope.
class OpenKey {
public:
    OpenKey(Registry& registry, const std::string& path);
    /// The path begins at an open key.
    OpenKey(Registry& registry, Registry::Key above, const std::string& path);
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    OpenKey(OpenKey&& other) noexcept;
    OpenKey& operator=(OpenKey&&) = delete;
    ~OpenKey();

    /// What opening it gave; the key is of use only after Ok.
    RegistryCode code() const { return code_; }
    bool isOpen() const { return code_ == RegistryCode::Ok; }
    Registry::Key key() const { return key_; }

private:
    Registry* registry_;
    Registry::Key key_ = 0;
    RegistryCode code_;
};

} // namespace wb::platform
