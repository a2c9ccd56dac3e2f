#include <gmock/gmock.h>

#include "adapters/hotplug.h"
#include "cli/edidwb.h"
#include "platform/sysfs_folder.h"

namespace wb::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class MonitorsTest : public Edidwb {
protected:
    Outcome run(const std::string& arguments) const {
        return shell("edidwb " + arguments + " --sysfs '" + sysfs.root().string() + "'");
    }
    std::string place(const std::string& connector) const { return (sysfs.drm() / connector / "edid").string(); }

    SysfsFolder sysfs;
};

TEST_F(MonitorsTest, TellsWhatIsStoredOfEachConnectedMonitor) {
    sysfs.addConnector("card1-DP-1", "connected", std::string(384, 'x'));
    sysfs.addConnector("card0-VGA-1", "connected", "");
    sysfs.addConnector("card0-DP-1", "disconnected", "left over");
    sysfs.addConnector("card0-DP-2", "connected", sample("zarqo-z40.bin"));
    sysfs.write("card0-eDP-1", "edid", "x");
    const Outcome outcome = run("monitors");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output,
              "card0-DP-2: " + place("card0-DP-2") + ", 256 bytes, ZRQ ZARQO Z40, 1920x1080 at 60 Hz, taken by read\n" +
                  "card0-VGA-1: " + place("card0-VGA-1") + ", no EDID\n" + "card1-DP-1: " + place("card1-DP-1") +
                  ", 384 bytes, without the header of an EDID\n");
}

TEST_F(MonitorsTest, ListsNothingWhereNothingIsAttached) {
    const Outcome outcome = run("monitors");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output + outcome.errors, "");
}

TEST_F(MonitorsTest, TellsAnEdidThatCannotBeReadFromNone) {
    sysfs.write("card0-DP-1", "status", "connected\n");
    std::filesystem::create_directories(sysfs.drm() / "card0-DP-1" / "edid");
    const Outcome outcome = run("monitors");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "card0-DP-1: " + place("card0-DP-1") + ", cannot be read: Operation not supported\n");
}

TEST_F(MonitorsTest, TellsThatTheLibraryForWatchingCannotBeHad) {
    write("libudev.so.1", "no library");
    const Outcome outcome = shell("LD_LIBRARY_PATH=. edidwb monitors --watch");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors,
                StartsWith(adapters::canWatchMonitors() ? "edidwb: cannot watch for changes: ./libudev.so.1: "
                                                        : "edidwb: this edidwb was built without libudev, which"));
}

TEST_F(MonitorsTest, FailsWhereTheListCannotBeRead) {
    std::filesystem::remove(sysfs.drm());
    const Outcome missing = run("monitors");
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.output, "");
    EXPECT_EQ(missing.errors, "edidwb: " + sysfs.drm().string() + ": No such file or directory\n");
    std::filesystem::create_symlink("drm", sysfs.drm());
    const Outcome circle = run("monitors");
    EXPECT_EQ(circle.status, 1);
    EXPECT_EQ(circle.errors, "edidwb: " + sysfs.drm().string() + ": Too many levels of symbolic links\n");
}

TEST_F(MonitorsTest, AConnectorWhoseStatusCannotBeReadIsTold) {
    sysfs.addConnector("card0-DP-1", "connected", sample("zarqo-z40.bin"));
    std::filesystem::create_directories(sysfs.drm() / "card0-DP-2");
    const std::filesystem::path status = sysfs.drm() / "card0-DP-2" / "status";
    std::filesystem::create_symlink("status", status);
    const Outcome outcome = run("monitors");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output.substr(0, 11), "card0-DP-1:");
    EXPECT_EQ(outcome.errors, "edidwb: " + status.string() + ": Too many levels of symbolic links\n");
}

TEST_F(MonitorsTest, NamesReachNoTerminalRaw) {
    sysfs.addConnector("card0-\x1B[2J", "connected", "");
    EXPECT_EQ(run("monitors").output.substr(0, 15), "card0-\\x1B[2J: ");
}

TEST_F(MonitorsTest, TellsOneJsonObjectAMonitor) {
    sysfs.addConnector("card0-DP-1", "connected", "");
    sysfs.addConnector("card0-DP-2", "connected", sample("halvorine-hv19.bin"));
    const Outcome outcome = run("monitors --format json");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output,
              R"({"schema":1,"connector":"card0-DP-1","source":")" + place("card0-DP-1") +
                  R"(","state":"none","bytes":0,"maker":null,"product_code":null,"name":null,"preferred_mode":null,)"
                  R"("taken_by_read":false})"
                  "\n" +
                  R"({"schema":1,"connector":"card0-DP-2","source":")" + place("card0-DP-2") +
                  R"(","state":"stored","bytes":128,"maker":"HLV","product_code":18753,"name":"HV19 Trinity",)"
                  R"("preferred_mode":{"source":"detailed","width_px":1280,"height_px":1024,"interlaced":false,)"
                  R"("refresh_mhz":85024,"pixel_clock_khz":157500,"h_total":1728,"v_total":1072,"native":false},)"
                  R"("taken_by_read":true})"
                  "\n");
    const Outcome valid = shell("edidwb monitors --format json --sysfs '" + sysfs.root().string() +
                                "' | " WORKBENCH_SOURCE_DIR "/scripts/validate-json " WORKBENCH_SOURCE_DIR
                                "/docs/edidwb.schema.json monitor");
    EXPECT_EQ(valid.status, 0) << valid.output << valid.errors;
}

TEST_F(MonitorsTest, ItsHelpTellsStatusesAndExamples) {
    EXPECT_THAT(shell("edidwb monitors --help").output,
                AllOf(HasSubstr("Exit status: 0 "), HasSubstr("\n  edidwb monitors --format json | ")));
}

} // namespace
} // namespace wb::test
