#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "support/program.h"

namespace wb::report {

using Lines = std::vector<std::string>;

/// A program with a block of 128 cells "00" that is loaded and not shown.
class Block0 : public testing::Test {
protected:
    void set(int first, std::initializer_list<std::string_view> texts) { program.setCells(first, texts); }
    std::string cell(int index) { return program.cell(index); }
    Lines boxes() { return program.takeBoxes(); }
    /// What a cell that cannot be read shows: the helper's box and the decoder's.
    static Lines unreadable() { return {"Invalid procedure call or argument", "Invalid procedure call or argument"}; }
    static std::string blanks(std::size_t count) { return std::string(count, ' '); }
    /// Lines joined, each with its line end.
    static std::string text(std::initializer_list<std::string_view> lines) {
        std::string result;
        for (const std::string_view line : lines) {
            result += line;
            result += "\r\n";
        }
        return result;
    }

    test::Program program;
    Workbench& workbench = program.workbench;
    FrmEdid& screen = workbench.frmEDID();
};

} // namespace wb::report
