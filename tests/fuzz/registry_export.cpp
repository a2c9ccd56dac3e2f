#include "platform/headless/registry_export.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "fuzz/targets.h"

namespace wb::fuzz {

namespace {

using platform::headless::parseRegistryExport;
using platform::headless::RegistryExportError;

void expectErrorInsideIfAny(std::string_view input) {
    try {
        parseRegistryExport(input);
    } catch (const RegistryExportError& error) {
        ASSERT_GE(error.line(), 1);
        // UTF-16 has a line end in two bytes, one of which may be that of another character; it adds none.
        ASSERT_LE(error.line(), 1 + std::count(input.begin(), input.end(), '\n'));
        ASSERT_STRNE(error.what(), "");
    }
}

/// An export with those bytes as the value of a key, in lines as the system's own editor writes them.
std::string exported(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_LOCAL_MACHINE\\A]\r\n\"B\"=hex:";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i > 0) {
            text += i % 25 == 0 ? ",\\\r\n  " : ",";
        }
        const auto byte = static_cast<unsigned char>(bytes[i]);
        text += digits[byte / 16U];
        text += digits[byte % 16U];
    }
    return text + "\r\n";
}

} // namespace

void registryExport(std::string_view input) {
    expectErrorInsideIfAny(input);
    const auto keys = parseRegistryExport(exported(input));
    ASSERT_EQ(keys.size(), 1U);
    ASSERT_EQ(keys[0].path, "A");
    ASSERT_EQ(keys[0].values.size(), 1U);
    ASSERT_EQ(keys[0].values[0].data, input);
}

} // namespace wb::fuzz
