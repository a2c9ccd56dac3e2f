#include <gmock/gmock.h>

#include "cli/edidwb.h"
#include "platform/sysfs_folder.h"

namespace wb::test {
namespace {

using testing::HasSubstr;
using testing::Not;

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
    for (const char* status : {"disconnected", "unknown", ""}) {
        sysfs.addConnector("card0-DP-1", status, "");
        const Outcome outcome = run("read");
        EXPECT_EQ(outcome.status, 1) << status;
        EXPECT_EQ(outcome.output, "") << status;
        EXPECT_EQ(outcome.errors,
                  notLocated +
                      "edidwb: On Linux the kernel stores the EDID, and it knows of no attached "
                      "monitor below " +
                      sysfs.drm().string() +
                      ": check cable and power of the monitor, and the driver of the graphics adapter\n")
            << status;
    }
}

TEST_F(ReadTest, WithoutAnEdidOfAnyMonitorTellsWhyNoneIsTaken) {
    sysfs.addConnector("card0-DP-1", "connected", "");
    sysfs.write("card0-DP-2", "status", "connected\n");
    std::filesystem::create_directories(sysfs.drm() / "card0-DP-2" / "edid");
    sysfs.addConnector("card0-DP-3", "disconnected", "");
    const Outcome outcome = run("read --to bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors,
              notLocated +
                  "edidwb: On Linux the kernel stores the EDID when a monitor is attached: plug it out and in again, "
                  "and check cable and adapters\n"
                  "edidwb: card0-DP-1: passed over: no EDID is stored\n"
                  "edidwb: card0-DP-2: passed over: cannot be read: Operation not supported\n");
}

TEST_F(ReadTest, WhereTheListCannotBeReadTheHelpSaysSo) {
    std::filesystem::remove(sysfs.drm());
    const Outcome outcome = run("read");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, notLocated +
                                  "edidwb: On Linux the kernel stores the EDID, and where it does so cannot be read: " +
                                  sysfs.drm().string() + ": No such file or directory\n");
}

TEST_F(ReadTest, AConnectorThatIsNotThereMayBeWhereTheListCannotBeRead) {
    std::filesystem::remove(sysfs.drm());
    const Outcome outcome = run("read DP-1");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "edidwb: DP-1: no connector has this name, and no other\nedidwb: " +
                                  sysfs.drm().string() + ": No such file or directory\n");
}

TEST_F(ReadTest, ShowsControlCharactersOnATerminalAndThereOnly) {
    std::string image = sample("halvorine-hv19.bin");
    image[95] = '\x1B'; // in the name, tag FC at byte 93
    sysfs.addConnector("card0-DP-1", "connected", image);
    for (const char* const format : {"report", "dat"}) {
        const std::string command = "read --to " + std::string(format);
        EXPECT_THAT(run(command).output, HasSubstr("\x1B")) << format;
        const std::string program = EDIDWB;
        const std::string shown =
            shell("script -qec \"" + program + " " + command + " --sysfs " + sysfs.root().string() + "\" /dev/null")
                .output;
        EXPECT_THAT(shown, Not(HasSubstr("\x1B"))) << format;
        EXPECT_THAT(shown, HasSubstr("\\x1B")) << format;
    }
}

TEST_F(ReadTest, TakesTheFirstThatHasAnEdidAndTellsWhichWerePassedOver) {
    sysfs.addConnector("card0-DP-1", "connected", "");
    sysfs.addConnector("card0-DP-2", "connected", std::string(127, 'x'));
    sysfs.addConnector("card0-DP-3", "disconnected", sample("halvorine-hv19.bin"));
    sysfs.addConnector("card0-DP-4", "connected", sample("zarqo-z40.bin"));
    sysfs.addConnector("card0-DP-5", "connected", "");
    const Outcome outcome = run("read");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, shell("edidwb translate $SAMPLES/zarqo-z40.bin").output);
    const std::string second = "edidwb: card0-DP-2: passed over: the stored EDID is no image: it has 127 bytes\n";
    EXPECT_EQ(outcome.errors, "edidwb: card0-DP-1: passed over: no EDID is stored\n" + second);
    sysfs.addConnector("card0-DP-1", "disconnected", "");
    const Outcome binary = run("read --to bin");
    EXPECT_EQ(binary.output, sample("zarqo-z40.bin"));
    EXPECT_EQ(binary.errors, second);
}

TEST_F(ReadTest, TakesAnEdidThatTheRegistryCannotHandOut) {
    std::string edid = sample("zarqo-z40.bin") + std::string(896, '\0'); // 1,152 bytes
    sysfs.addConnector("card0-DP-1", "connected", edid);
    const Outcome outcome = run("read --to bin");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, edid);
    EXPECT_EQ(outcome.errors, "");
}

TEST_F(ReadTest, TakesTheConnectorThatIsNamed) {
    sysfs.addConnector("card0-DP-1", "connected", sample("halvorine-hv19.bin"));
    sysfs.addConnector("card0-HDMI-A-1", "connected", sample("zarqo-z40.bin"));
    sysfs.addConnector("card1-DP-2", "disconnected", sample("zarqo-z40.bin"));
    for (const std::string name : {"card0-HDMI-A-1", "HDMI-A-1", "hdmi-a-1", "CARD0-hdmi-a-1", "DP-2"}) {
        const Outcome outcome = run("read --to bin " + name);
        EXPECT_EQ(outcome.status, 0) << name;
        EXPECT_EQ(outcome.output, sample("zarqo-z40.bin")) << name;
        EXPECT_EQ(outcome.errors, "") << name;
    }
    EXPECT_EQ(run("read hdmi-a-1").output, shell("edidwb translate $SAMPLES/zarqo-z40.bin").output);
}

TEST_F(ReadTest, TellsWhyTheNamedConnectorGivesNothing) {
    sysfs.addConnector("card0-DP-1", "connected", "");
    sysfs.addConnector("card0-DP-2", "disconnected", "");
    sysfs.addConnector("card1-DP-1", "connected", sample("zarqo-z40.bin"));
    struct Case {
        const char* name;
        const char* message;
    };
    for (const Case& c :
         {Case{"card0-dp-1", "no EDID is stored"}, Case{"DP-2", "no monitor is attached, and no EDID is stored"},
          Case{"dp-1", "may be any of card0-DP-1, card1-DP-1"},
          Case{"HDMI-1", "no connector has this name; there are card0-DP-1, card0-DP-2, card1-DP-1"}}) {
        const Outcome outcome = run(std::string("read ") + c.name);
        EXPECT_EQ(outcome.status, 1) << c.name;
        EXPECT_EQ(outcome.output, "") << c.name;
        EXPECT_EQ(outcome.errors, std::string("edidwb: ") + c.name + ": " + c.message + '\n');
    }
}

TEST_F(ReadTest, WritesAFileForEachMonitor) {
    sysfs.addConnector("card0-DP-1", "connected", sample("zarqo-z40.bin"));
    sysfs.addConnector("card0-DP-2", "connected", "");
    sysfs.addConnector("card0-DP-3", "disconnected", sample("zarqo-z40.bin"));
    sysfs.addConnector("card1-HDMI-A-1", "connected", sample("halvorine-hv19.bin"));
    const std::string told = "edidwb: card0-DP-2: no EDID is stored\n";
    const Outcome outcome = run("read --all -o out/monitors");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, told);
    EXPECT_EQ(shell("ls -A out/monitors").output, "card0-DP-1.bin\ncard1-HDMI-A-1.bin\n");
    EXPECT_EQ(read("out/monitors/card0-DP-1.bin"), sample("zarqo-z40.bin"));
    EXPECT_EQ(read("out/monitors/card1-HDMI-A-1.bin"), sample("halvorine-hv19.bin"));

    EXPECT_EQ(run("read --all -o out --to report").status, 0);
    EXPECT_EQ(read("out/card0-DP-1.txt"), shell("edidwb translate $SAMPLES/zarqo-z40.bin").output);
    EXPECT_EQ(run("read --all -o out --to dat").status, 0);
    EXPECT_EQ(read("out/card0-DP-1.DAT"), shell("edidwb convert --to dat $SAMPLES/zarqo-z40.bin -").output);

    write("out/monitors/card0-DP-1.bin", "kept");
    const Outcome again = run("read --all -o out/monitors");
    EXPECT_EQ(again.status, 1);
    EXPECT_THAT(again.errors, HasSubstr("edidwb: card0-DP-1: out/monitors/card0-DP-1.bin: exists already"));
    EXPECT_EQ(read("out/monitors/card0-DP-1.bin"), "kept");
    EXPECT_EQ(run("read --all -f --no-sync -o out/monitors").status, 0);
    EXPECT_EQ(read("out/monitors/card0-DP-1.bin"), sample("zarqo-z40.bin"));
}

TEST_F(ReadTest, OfAllMonitorsSomeMustHaveAnEdidThatCanBeRead) {
    const Outcome none = run("read --all -o out");
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.errors, "edidwb: no monitor is attached\n");
    sysfs.addConnector("card0-DP-1", "connected", "");
    EXPECT_EQ(run("read --all -o out").status, 1);
    sysfs.addConnector("card0-DP-2", "connected", sample("zarqo-z40.bin"));
    EXPECT_EQ(run("read --all -o out").status, 0);
    sysfs.addConnector("card0-DP-3", "connected", "short");
    const Outcome some = run("read --all -f -o out");
    EXPECT_EQ(some.status, 1);
    EXPECT_THAT(some.errors, HasSubstr("edidwb: card0-DP-3: the stored EDID is no image: it has 5 bytes\n"));
    EXPECT_EQ(read("out/card0-DP-2.bin"), sample("zarqo-z40.bin"));
}

TEST_F(ReadTest, OfAllMonitorsOmissionsAreToldByName) {
    sysfs.addConnector("card0-DP-1", "connected", sample("zarqo-z40.bin") + std::string(128, '\0'));
    const Outcome outcome = run("read --all -o out --to report");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors.substr(0, 20), "edidwb: card0-DP-1: ");
    EXPECT_THAT(outcome.errors, HasSubstr("block 2"));
}

TEST_F(ReadTest, BytesAfterTheLastBlockAreToldInEveryFormat) {
    const std::string image = sample("halvorine-hv19.bin");
    sysfs.addConnector("card0-DP-1", "connected", image + std::string(72, '\0'));
    for (const char* format : {"bin", "hex", "base64", "dat", "report"}) {
        const Outcome outcome = run(std::string("read DP-1 --to ") + format);
        EXPECT_EQ(outcome.status, 0) << format;
        EXPECT_THAT(outcome.errors, HasSubstr("edidwb: 72 bytes after the last block left out\n")) << format;
    }
    EXPECT_EQ(run("read --to bin").output, image);
    EXPECT_EQ(run("read --all -o out").errors, "edidwb: card0-DP-1: 72 bytes after the last block left out\n");
    EXPECT_EQ(read("out/card0-DP-1.bin"), image);
}

TEST_F(ReadTest, AFormOfBytesHoldsAllBlocksAndTellsTheMissingOnes) {
    std::string image = sample("zarqo-z40.bin") + std::string(128, '\0');
    image[126] = 4;
    sysfs.addConnector("card0-DP-1", "connected", image + "rest");
    const Outcome outcome = run("read DP-1 --to bin");
    EXPECT_EQ(outcome.output, image);
    EXPECT_EQ(outcome.errors,
              "edidwb: 4 bytes after the last block left out\n"
              "edidwb: blocks 3 to 4 announced and missing\n");
}

TEST_F(ReadTest, ABusThatIsNotThereIsTold) {
    const Outcome outcome = run("read --i2c 1048575");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors,
              "edidwb: /dev/i2c-1048575: there is no such bus; the kernel's module i2c-dev makes them\n");
}

TEST_F(ReadTest, ItsHelpTellsStatusesAndExamples) {
    EXPECT_THAT(run("read --help").output, AllOf(HasSubstr("Exit status: 0 "), HasSubstr("\n  edidwb read --all -o ")));
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
}

} // namespace
} // namespace wb::test
