#pragma once

#include <string>

#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/cells.h"
#include "report/report_lines.h"

namespace wb::report {

/// The 18 cells of frmEDID that a run of the descriptor decoder works on, and the report text it builds. Base and
/// number of the block are those at the time of creation.
struct DescriptorBlock {
    explicit DescriptorBlock(Workbench& program)
        : workbench(program),
          screen(program.frmEDID()),
          base(screen.CurrentBlockBase),
          number(screen.CurrentBlockNumber) {}

    /// The cell at `offset` from the first of the block, 0 to 17, and its value. A cell outside the grid is a
    /// ControlElementMissing failure.
    Control& cell(int offset) const { return screen.txtEdit(base + offset); }
    int cellValue(int offset) const { return byteAt(screen, base + offset); }

    /// The report text of the block.
    std::string& text() const { return workbench.DetailedBlockText(number); }
    /// Adds a line to it, `indent` blanks before the words, which are one behind the other.
    void report(Texts words, int indent = reportIndent) const {
        text() += blanks(indent);
        addLine(text(), words);
    }
    /// The same words as a caption and as a line.
    void showAndReport(Control& control, Texts words, int indent = reportIndent) const {
        control.setCaption(words);
        report(words, indent);
    }

    Workbench& workbench;
    FrmEdid& screen;
    const int base;
    const int number;
};

} // namespace wb::report
