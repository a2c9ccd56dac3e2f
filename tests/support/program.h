#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/input.h"
#include "core/workbench.h"
#include "platform/headless/headless_platform.h"
#include "shell/startup.h"
#include "shell/wiring.h"

namespace wb::test {

/// A wired and started program on the headless platform, and what it showed.
struct Program {
    explicit Program(bool start = true) : workbench(platform.services(), shell::wiring()) {
        platform.onLine = [this](const std::string& line) { lines.push_back(line); };
        platform.onBox = [this](const std::string& text) { boxes.push_back(text); };
        if (start) {
            shell::Main(workbench);
        }
    }

    /// Sets cells of a block screen from `first` on.
    static void setCells(BlockScreen& screen, int first, std::initializer_list<std::string_view> texts) {
        for (const std::string_view text : texts) {
            screen.txtEdit(first++).setText(std::string(text));
        }
    }
    void setCells(int first, std::initializer_list<std::string_view> texts) {
        setCells(workbench.frmEDID(), first, texts);
    }
    std::string cell(int index) { return workbench.frmEDID().txtEdit(index).text(); }

    /// Keys typed into the control that has the focus.
    void type(std::string_view text) {
        for (const char c : text) {
            input::typeCharacter(workbench, c);
        }
    }
    /// The boxes shown since the last call.
    std::vector<std::string> takeBoxes() { return std::exchange(boxes, {}); }
    std::vector<std::string> takeLines() { return std::exchange(lines, {}); }

    platform::headless::HeadlessPlatform platform;
    std::vector<std::string> lines; ///< as a script would print them
    std::vector<std::string> boxes; ///< texts of the message boxes
    Workbench workbench;
};

} // namespace wb::test
