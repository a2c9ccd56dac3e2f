#pragma once

#include <cstdint>
#include <string_view>

namespace wb::cli {

/// What stands for a name where the names of a whole batch would be too many to keep: 64 bits that two names share by
/// chance only (FNV-1a).
using NameKey = std::uint64_t;

constexpr NameKey nameKey(std::string_view name) {
    NameKey key = 0xCBF29CE484222325U;
    for (const char c : name) {
        key = (key ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    }
    return key;
}

} // namespace wb::cli
