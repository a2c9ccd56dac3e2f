#pragma once

#include "platform/services.h"

namespace wb::platform::windows {

/// The registry of the system below HKEY_LOCAL_MACHINE. Names and texts are in the system's 8-bit code page; codes that
/// have no name here are those of the system.
class Win32Registry : public Registry {
public:
    RegistryCode open(const std::string& path, Key& key) override;
    RegistryCode open(Key above, const std::string& path, Key& key) override;
    RegistryCode queryInfo(Key key, int& subKeys, int& values) override;
    RegistryCode enumerateKey(Key key, int index, std::string& name) override;
    RegistryCode enumerateValue(Key key, int index, RegistryValue& value) override;
    RegistryCode readValue(Key key, const std::string& name, RegistryValue& value) override;
    void close(Key key) override;
};

} // namespace wb::platform::windows
