#include "core/base/file_names.h"

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#endif

namespace wb {

#ifdef _WIN32

std::filesystem::path pathOf(std::string_view name) {
    const int size = static_cast<int>(name.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, name.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, name.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string nameOf(const std::filesystem::path& path) {
    const std::wstring& wide = path.native();
    const int size = static_cast<int>(wide.size());
    const int length = WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string name(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, name.data(), length, nullptr, nullptr);
    return name;
}

std::FILE* openStream(const std::filesystem::path& path, const char* mode) {
    return _wfopen(path.c_str(), pathOf(mode).c_str());
}

bool namesDevice(const std::filesystem::path& path) {
    std::wstring full(MAX_PATH, L'\0');
    const DWORD length = GetFullPathNameW(path.c_str(), MAX_PATH, full.data(), nullptr);
    if (length >= MAX_PATH) { // no device has so long a name
        return false;
    }
    full.resize(length);
    return full.starts_with(L"\\\\.\\");
}

#else

std::filesystem::path pathOf(std::string_view name) {
    return name;
}

std::string nameOf(const std::filesystem::path& path) {
    return path.string();
}

std::FILE* openStream(const std::filesystem::path& path, const char* mode) {
    return std::fopen(path.c_str(), mode);
}

bool namesDevice(const std::filesystem::path&) {
    return false;
}

#endif

std::string reasonOf(const std::error_code& error) {
    return error.default_error_condition().message();
}

} // namespace wb
