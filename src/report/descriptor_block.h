#pragma once

#include <string>

#include "core/cells.h"
#include "core/numbers.h"
#include "core/text.h"
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

    Control& cell(int offset) const { return screen.txtEdit(base + offset); }
    int cellValue(int offset) const { return byteAt(screen, base + offset); }

    std::string& text() const { return workbench.DetailedBlockText(number); }
    void report(std::string_view words, int indent = reportIndent) const { text() += line(IndentText(words, indent)); }
    void showAndReport(Control& control, const std::string& words, int indent = reportIndent) const {
        control.setCaption(words);
        report(words, indent);
    }

    Workbench& workbench;
    FrmEdid& screen;
    const int base;
    const int number;
};

/// The payload of a range limits descriptor: DTAFrame(0), and of its secondary timing formula frmS_GTF(0).
void convertRangeLimits(const DescriptorBlock& block);

/// The payload of a colour point descriptor: DTAFrame(1). Gives the focus to DTaInput, which is a failure while its
/// panel is hidden.
void convertColorPoint(const DescriptorBlock& block);

} // namespace wb::report
