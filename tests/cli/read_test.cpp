#include <gmock/gmock.h>

#include "cli/edidwb.h"
#include "platform/sysfs_folder.h"

namespace wb::test {
namespace {

using testing::HasSubstr;

class ReadTest : public Edidwb {
protected:
    Outcome run(const std::string& arguments) const {
        return shell("edidwb " + arguments + " --sysfs '" + sysfs.root().string() + "'");
    }

    SysfsFolder sysfs;
    const std::string notLocated =
        "edidwb: Unable to locate EDID Data. Using the Control Panel, please make sure that a Monitor has been "
        "Detected by Windows 2000/XP\n";
};

TEST_F(ReadTest, PrintsTheReportOfTheFirstConnectedMonitor) {
    sysfs.addConnector("card0-DP-1", "disconnected", "");
    sysfs.addConnector("card0-DP-2", "connected", sample("zarqo-z40.bin"));
    sysfs.addConnector("card0-HDMI-A-1", "connected", sample("halvorine-hv19.bin"));
    const Outcome outcome = run("read");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output, shell("edidwb translate $SAMPLES/zarqo-z40.bin").output);
    EXPECT_EQ(run("read --to report").output, outcome.output);
}

TEST_F(ReadTest, WritesEveryFormat) {
    sysfs.addConnector("card0-DP-1", "connected", sample("zarqo-z40.bin"));
    for (const std::string format : {"dat", "hex", "bin", "report"}) {
        const Outcome outcome = run("read --to=" + format);
        EXPECT_EQ(outcome.status, 0) << format;
        EXPECT_EQ(outcome.output, shell("edidwb convert --to " + format + " $SAMPLES/zarqo-z40.bin -").output)
            << format;
        EXPECT_FALSE(outcome.output.empty()) << format;
    }
    EXPECT_EQ(run("read --to bin").output, sample("zarqo-z40.bin"));
}

TEST_F(ReadTest, WithoutAMonitorFails) {
    for (const char* status : {"disconnected", "unknown", "", "connected"}) {
        sysfs.addConnector("card0-DP-1", status, "");
        const Outcome outcome = run("read");
        EXPECT_EQ(outcome.status, 1) << status;
        EXPECT_EQ(outcome.output, "") << status;
        EXPECT_EQ(outcome.errors, notLocated) << status;
    }
}

TEST_F(ReadTest, AValueOfLessThanABlockIsNoImage) {
    sysfs.addConnector("card0-DP-1", "connected", sample("zarqo-z40.bin").substr(0, 127));
    const Outcome outcome = run("read --to bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "edidwb: the stored EDID is no image: it has 127 bytes\n");
}

TEST_F(ReadTest, ABoxChangesNoExitStatus) {
    sysfs.addConnector("card0-DP-1", "connected", sample("zarqo-z40.bin").substr(0, 128));
    const Outcome outcome = run("read");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors.substr(0, outcome.errors.find('\n')),
              "edidwb: Invalid procedure call or argument (loading the image)")
        << "the extension block is missing";
    EXPECT_THAT(outcome.output, HasSubstr("128 BYTES OF EDID CODE:"));
}

TEST_F(ReadTest, RefusesWhatIsNoFolder) {
    for (const std::string command : {"read", "monitors"}) {
        const Outcome outcome = shell("edidwb " + command + " --sysfs no/such/folder");
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(outcome.errors, "edidwb: no/such/folder: no such directory\n");
    }
}

TEST_F(ReadTest, RefusesAnUnknownFormat) {
    EXPECT_EQ(run("read --to png").status, 2);
    EXPECT_EQ(run("read file").status, 2);
}

} // namespace
} // namespace wb::test
