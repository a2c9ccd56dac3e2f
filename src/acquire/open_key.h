#pragma once

#include <string>

#include "platform/services.h"

namespace wb::acquire {

/// A key of the registry, closed when it goes out of scope.
class OpenKey {
public:
    OpenKey(platform::Registry& registry, const std::string& path);
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    OpenKey(OpenKey&& other) noexcept;
    OpenKey& operator=(OpenKey&&) = delete;
    ~OpenKey();

    /// What opening it gave; the key is of use only after Ok.
    platform::RegistryCode code() const { return code_; }
    bool isOpen() const { return code_ == platform::RegistryCode::Ok; }
    platform::Registry::Key key() const { return key_; }

private:
    platform::Registry* registry_;
    platform::Registry::Key key_ = 0;
    platform::RegistryCode code_;
};

} // namespace wb::acquire
