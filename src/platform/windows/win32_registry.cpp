#include "platform/windows/win32_registry.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <array>

#include "platform/registry_path.h"

namespace wb::platform::windows {

namespace {

HKEY handleOf(Registry::Key key) {
    return reinterpret_cast<HKEY>(static_cast<std::uintptr_t>(key));
}

RegistryCode codeOf(LSTATUS status) {
    return static_cast<RegistryCode>(status);
}

RegistryType typeOf(DWORD type) {
    switch (type) {
        case REG_NONE:
            return RegistryType::None;
        case REG_SZ:
            return RegistryType::Text;
        case REG_EXPAND_SZ:
            return RegistryType::ExpandableText;
        case REG_BINARY:
            return RegistryType::Binary;
        case REG_DWORD:
            return RegistryType::Number32;
        default:
            return RegistryType::Other;
    }
}

BYTE* bytesOf(std::string& text) {
    return reinterpret_cast<BYTE*>(text.data());
}

/// The system opens no path with an empty name in it.
std::string withoutEmptyNames(const std::string& path) {
    std::string result;
    for (const std::string_view part : registryPathParts(path)) {
        result += result.empty() ? "" : "\\";
        result += part;
    }
    return result;
}

LSTATUS openBelow(HKEY above, const std::string& path, Registry::Key& key) {
    HKEY handle = nullptr;
    const LSTATUS status = RegOpenKeyExA(above, withoutEmptyNames(path).c_str(), 0, KEY_READ, &handle);
    if (status == ERROR_SUCCESS) {
        key = reinterpret_cast<std::uintptr_t>(handle);
    }
    return status;
}

} // namespace

RegistryCode Win32Registry::open(const std::string& path, Key& key) {
    return codeOf(openBelow(HKEY_LOCAL_MACHINE, path, key));
}

/// Below a key that was deleted since there is nothing, as on the path to it.
RegistryCode Win32Registry::open(Key above, const std::string& path, Key& key) {
    const LSTATUS status = openBelow(handleOf(above), path, key);
    return status == ERROR_KEY_DELETED ? RegistryCode::NotFound : codeOf(status);
}

RegistryCode Win32Registry::queryInfo(Key key, int& subKeys, int& values) {
    DWORD subKeyCount = 0;
    DWORD valueCount = 0;
    const LSTATUS status = RegQueryInfoKeyA(handleOf(key), nullptr, nullptr, nullptr, &subKeyCount, nullptr, nullptr,
                                            &valueCount, nullptr, nullptr, nullptr, nullptr);
    if (status == ERROR_SUCCESS) {
        subKeys = static_cast<int>(subKeyCount);
        values = static_cast<int>(valueCount);
    }
    return codeOf(status);
}

RegistryCode Win32Registry::enumerateKey(Key key, int index, std::string& name) {
    std::array<char, registryBufferSize> buffer{};
    DWORD length = registryBufferSize;
    const LSTATUS status = RegEnumKeyExA(handleOf(key), static_cast<DWORD>(index), buffer.data(), &length, nullptr,
                                         nullptr, nullptr, nullptr);
    if (status == ERROR_SUCCESS) {
        name.assign(buffer.data(), length);
    }
    return codeOf(status);
}

RegistryCode Win32Registry::enumerateValue(Key key, int index, RegistryValue& value) {
    std::array<char, registryBufferSize> name{};
    DWORD nameLength = registryBufferSize;
    std::string data(registryBufferSize, '\0');
    DWORD dataLength = registryBufferSize;
    DWORD type = REG_NONE;
    const LSTATUS status = RegEnumValueA(handleOf(key), static_cast<DWORD>(index), name.data(), &nameLength, nullptr,
                                         &type, bytesOf(data), &dataLength);
    if (status == ERROR_SUCCESS) {
        data.resize(dataLength);
        value = {.name = std::string(name.data(), nameLength), .type = typeOf(type), .data = std::move(data)};
    }
    return codeOf(status);
}

RegistryCode Win32Registry::readValue(Key key, const std::string& name, RegistryValue& value) {
    DWORD length = 0;
    DWORD type = REG_NONE;
    LSTATUS status = RegQueryValueExA(handleOf(key), name.c_str(), nullptr, &type, nullptr, &length);
    std::string data;
    while (status == ERROR_SUCCESS || status == ERROR_MORE_DATA) {
        data.resize(length);
        status = RegQueryValueExA(handleOf(key), name.c_str(), nullptr, &type, bytesOf(data), &length);
        if (status == ERROR_SUCCESS) {
            data.resize(length);
            value = {.name = name, .type = typeOf(type), .data = std::move(data)};
            break;
        }
    }
    return codeOf(status);
}

void Win32Registry::close(Key key) {
    RegCloseKey(handleOf(key));
}

} // namespace wb::platform::windows
