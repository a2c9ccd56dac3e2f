#include "acquire/scan.h"

#include <gtest/gtest.h>

#include "acquire/monitors.h"
#include "support/program.h"

namespace wb::acquire {
namespace {

using Lines = std::vector<std::string>;

const std::string folder = " folder=\"c:/QOR/EDID/EDIDv314d\"";
const std::string rescan = "[shell] \"devcon.exe\" \"rescan\"" + folder;
const std::string box = "[box] \"These processes take several seconds.\" title=\"Scan Hardware & Read EDID\" OK -> OK";
const std::string notLocated =
    "[box] \"Unable to locate EDID Data. \\r\\n\\r\\nUsing the Control Panel, please make sure that a Monitor has been "
    "Detected by Windows 2000/XP\" OK -> OK";

TEST(Scan, RemovesWaitsRescansAsksWaitsAndReads) {
    test::Program program;
    Workbench& workbench = program.workbench;
    test::addMonitor(program.platform.registry, "AAA0001", test::block0('\x2A'));
    workbench.IDManufacturerName = "ABC";
    workbench.ProductHardwareCode = "12EF";
    workbench.EDIDModified = flagTrue;
    input::click(workbench.frmMain().Command5);
    EXPECT_EQ(program.takeLines(), (Lines{"[shell] \"devcon.exe\" \"remove monitor\\\\ABC12EF\"" + folder, "[wait] 3.0",
                                          rescan, box, "[wait] 10.0", "[box] \"Save Changes?\" YesNo -> No"}));
    EXPECT_EQ(program.cell(8), "2A");
}

TEST(Scan, WithoutAnImageRemovesAMonitorWithoutAName) {
    test::Program program;
    input::click(program.workbench.frmMain().Command5);
    EXPECT_EQ(program.takeLines(), (Lines{"[shell] \"devcon.exe\" \"remove monitor\\\\\"" + folder, "[wait] 3.0",
                                          rescan, box, "[wait] 10.0", notLocated}));
}

TEST(Scan, ANameOfOneBlankRemovesNothing) {
    test::Program program;
    program.workbench.ProductHardwareCode = " ";
    input::click(program.workbench.frmMain().Command5);
    EXPECT_EQ(program.takeLines(), (Lines{rescan, box, "[wait] 10.0", notLocated}));
}

TEST(Scan, TwoBlanksAreAName) {
    test::Program program;
    program.workbench.IDManufacturerName = " ";
    program.workbench.ProductHardwareCode = " ";
    Command5_Click(program.workbench);
    EXPECT_EQ(program.takeLines().front(), "[shell] \"devcon.exe\" \"remove monitor\\\\  \"" + folder);
}

TEST(Scan, StartsTheToolHiddenByTheVerbOpen) {
    class RecordingShell : public platform::Shell {
    public:
        bool start(const platform::ShellCommand& command) override {
            commands.push_back(command);
            return false;
        }
        std::vector<platform::ShellCommand> commands;
    };
    platform::headless::HeadlessPlatform headless;
    RecordingShell shell;
    const platform::Services& inner = headless.services();
    const platform::Services services{inner.messageBoxes, inner.dialogs,         inner.printer,    inner.settings,
                                      inner.registry,     inner.operatingSystem, inner.edidReader, shell,
                                      inner.clock,        inner.eventLoop,       inner.arranger,   ""};
    Workbench workbench(services, shell::wiring());
    Lines boxes;
    headless.onBox = [&](const std::string& text) { boxes.push_back(text.substr(0, 15)); };
    Command5_Click(workbench);
    EXPECT_EQ(boxes, (Lines{"These processes", "Unable to locat"})) << "that it cannot be started is not told";
    ASSERT_EQ(shell.commands.size(), 2U);
    for (const platform::ShellCommand& command : shell.commands) {
        EXPECT_EQ(command.verb, "open");
        EXPECT_EQ(command.program, "devcon.exe");
        EXPECT_EQ(command.folder, "c:/QOR/EDID/EDIDv314d");
        EXPECT_TRUE(command.hidden);
    }
}

struct Wait {
    const char* what;
    platform::DateTime start; ///< when the command starts; the removal takes 3 seconds from there
    double boxSeconds;        ///< how long the box stays up
    std::vector<std::string> waits;
};

void PrintTo(const Wait& wait, std::ostream* out) {
    *out << wait.what;
}

class BoxTime : public testing::TestWithParam<Wait> {};

TEST_P(BoxTime, CountsInTheTenSeconds) {
    const Wait& test = GetParam();
    test::Program program;
    program.platform.setClock(test.start);
    program.platform.onBox = [&](const std::string& text) {
        if (text == "These processes take several seconds.") {
            program.takeLines();
            program.workbench.platform.clock.wait(test.boxSeconds);
            program.takeLines();
        }
    };
    Command5_Click(program.workbench);
    Lines waits;
    for (const std::string& line : program.lines) {
        if (line.starts_with("[wait]")) {
            waits.push_back(line);
        }
    }
    EXPECT_EQ(waits, test.waits);
}

constexpr platform::DateTime noon{.year = 2001, .month = 2, .day = 3, .hour = 12};
constexpr platform::DateTime lateAt(int minute, int second) {
    return {.year = 2001, .month = 2, .day = 3, .hour = 23, .minute = minute, .second = second};
}

INSTANTIATE_TEST_SUITE_P(
    Waits, BoxTime,
    testing::Values(Wait{"at once", noon, 0, {"[wait] 10.0"}}, Wait{"some", noon, 4, {"[wait] 6.0"}},
                    Wait{"all", noon, 10, {}}, Wait{"more", noon, 11, {}},
                    // Noted at 23:59:51: the clock turns before ten seconds are over, and the wait ends at 00:00:10.
                    Wait{"midnight ahead", lateAt(59, 48), 2, {"[wait] 17.0"}},
                    // Noted at 23:59:50: the clock never shows ten seconds more.
                    Wait{"exactly midnight", lateAt(59, 47), 0, {"[wait] 20.0"}},
                    Wait{"just before", lateAt(59, 46), 0, {"[wait] 10.0"}},
                    Wait{"box over midnight", lateAt(59, 50), 11, {"[wait] 6.0"}},
                    Wait{"box to ten seconds of the new day", lateAt(59, 50), 17, {}},
                    // Ten seconds are over, but the clock says otherwise.
                    Wait{"long box over midnight", lateAt(59, 17), 45, {"[wait] 5.0"}}));

} // namespace
} // namespace wb::acquire
