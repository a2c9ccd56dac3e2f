#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "core/screen.h"

/// Controls of a screen as it comes into being.
namespace wb {

using Captions = std::vector<std::string>;

/// A control, or neighbours of an array, with their captions.
struct ScreenRow {
    const char* name;
    int first; ///< Control::noIndex: no array
    Captions captions;
    const char* container; ///< "Hints(1)"; empty: the screen itself
};

inline std::ostream& operator<<(std::ostream& out, const ScreenRow& row) {
    return out << row.name;
}

/// The name of a control without that of its screen; empty where there is no control.
inline std::string shortName(const Control* control) {
    const std::string name = control == nullptr ? "." : control->fullName();
    return name.substr(name.find('.') + 1);
}

inline void expectRow(Screen& screen, const ScreenRow& row) {
    int index = row.first;
    for (const std::string& caption : row.captions) {
        const Control* const control = screen.find(row.name, index);
        ASSERT_NE(control, nullptr) << row << ' ' << index;
        EXPECT_EQ(control->caption(), caption) << row << ' ' << index;
        EXPECT_EQ(shortName(control->container()), row.container) << row << ' ' << index;
        ++index;
    }
}

} // namespace wb
