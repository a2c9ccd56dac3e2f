#include <gtest/gtest.h>

#include "acquire/get_edid.h"
#include "core/base/text.h"
#include "files/data_file.h"
#include "fuzz/sessions.h"
#include "fuzz/targets.h"
#include "report/show_report.h"

namespace wb::fuzz {

namespace {

/// A decoder may clear the serration bit in the flags of a timing; it leaves all other cells as they came.
void expectSameCells(test::Program& program, std::string_view bytes) {
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        const auto byte = static_cast<unsigned char>(bytes[static_cast<std::size_t>(i)]);
        const bool isFlagCell = i >= 54 && i < 126 && (i - 54) % 18 == 17;
        if (!isFlagCell || program.cell(i) != ByteToHex2(byte & 251)) {
            ASSERT_EQ(program.cell(i), ByteToHex2(byte)) << i;
        }
    }
}

} // namespace

void rawImage(std::string_view input) {
    test::Program& program = freshProgram();
    program.workbench.runAction([&] {
        acquire::LoadStoredEdid(program.workbench, std::string(input));
        report::ShowReport(program.workbench, false, report::Passes::LastWhereAlike);
    });
    if (input.size() < 256) {
        return; // a box told of the missing bytes
    }
    expectSameCells(program, input);
    // The first dump comes back whatever the decoded text behind it holds.
    const std::string report = program.workbench.frmDocument().rtftext.text();
    ASSERT_TRUE(files::readDataFile(program.workbench, report));
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        ASSERT_EQ(program.workbench.EDIDCells(i), program.cell(i)) << i;
    }
}

} // namespace wb::fuzz
