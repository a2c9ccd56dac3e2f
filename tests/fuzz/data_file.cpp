#include <gtest/gtest.h>

#include <algorithm>

#include "core/base/text.h"
#include "forms/data_file_form.h"
#include "fuzz/sessions.h"
#include "fuzz/targets.h"
#include "report/show_report.h"
#include "shell/lifecycle.h"

namespace wb::fuzz {

namespace {

/// Open and the reader of the forms take the same bytes from it.
void expectAlike(Workbench& workbench, const forms::DataFileBytes& read) {
    const std::size_t count = std::min<std::size_t>(read.bytes.size(), imageSize);
    for (std::size_t i = 0; i < count; ++i) {
        ASSERT_EQ(upperCase(workbench.EDIDCells(static_cast<int>(i))),
                  ByteToHex2(static_cast<unsigned char>(read.bytes[i])))
            << i;
    }
}

} // namespace

void dataFile(std::string_view input) {
    test::Program& program = freshProgram();
    Workbench& workbench = program.workbench;
    bool opened = false;
    workbench.runAction([&] { opened = shell::openDataFile(workbench, "image.DAT", input); });
    const auto read = forms::readDataFile(input);
    if (!opened) {
        // Without a marker, or with an end within the two lines behind one.
        ASSERT_FALSE(program.boxes.empty());
        return;
    }
    ASSERT_TRUE(read.has_value());
    expectAlike(workbench, *read);
    workbench.runAction([&] { report::ShowReport(workbench, false, report::Passes::LastWhereAlike); });
}

} // namespace wb::fuzz
