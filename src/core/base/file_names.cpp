#include "core/base/file_names.h"

#include <algorithm>

namespace wb {

#ifdef _WIN32

std::filesystem::path pathOf(std::string_view name) {
    try {
        return std::u8string(name.begin(), name.end());
    } catch (const std::filesystem::filesystem_error&) {
        std::wstring wide(name.begin(), name.end());
        std::replace_if(
            wide.begin(), wide.end(), [](wchar_t c) { return c > 0x7F; }, L'\xFFFD');
        return wide;
    }
}

std::string nameOf(const std::filesystem::path& path) {
    // Halves of surrogate pairs that stand alone have no UTF-8.
    try {
        const std::u8string name = path.u8string();
        return {name.begin(), name.end()};
    } catch (const std::filesystem::filesystem_error&) {
        std::wstring wide = path.native();
        std::replace_if(
            wide.begin(), wide.end(), [](wchar_t c) { return c >= 0xD800 && c <= 0xDFFF; }, L'\xFFFD');
        const std::u8string name = std::filesystem::path(wide).u8string();
        return {name.begin(), name.end()};
    }
}

std::FILE* openStream(const std::filesystem::path& path, const char* mode) {
    return _wfopen(path.c_str(), pathOf(mode).c_str());
}

bool namesDevice(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::absolute(path, ignored).native().starts_with(L"\\\\.\\");
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
