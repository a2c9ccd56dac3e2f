#include "platform/linux/sysfs_registry.h"

#include <gtest/gtest.h>

#include "acquire/get_edid.h"
#include "acquire/monitors.h"
#include "acquire/registry_search.h"
#include "platform/stored_edid_system.h"
#include "platform/sysfs_folder.h"
#include "support/program.h"

namespace wb::platform::linux_system {
namespace {

using Lines = std::vector<std::string>;

/// A program whose registry is that of a made-up Linux system.
class LinuxProgram : public testing::Test {
protected:
    LinuxProgram() {
        headless.onBox = [this](const std::string& text) { boxes.push_back(text); };
        shell::Main(workbench);
    }

    std::string find() { return acquire::SearchRegistryForEDID(workbench, test::displayKey, true); }
    std::string cell(int index) { return workbench.frmEDID().txtEdit(index).text(); }
    bool nothingLocated() {
        acquire::GetEDIDData(workbench);
        const Lines shown = std::exchange(boxes, {});
        return shown.size() == 1 && shown.front().starts_with("Unable to locate EDID Data.");
    }

    test::SysfsFolder sysfs;
    SysfsRegistry registry{sysfs.root()};
    StoredEdidSystem system;
    NoDirectReader reader;
    headless::HeadlessPlatform headless;
    Lines boxes;
    const Services& inner = headless.services();
    Services services{inner.messageBoxes, inner.dialogs, inner.printer,   inner.settings, registry, system, reader,
                      inner.shell,        inner.clock,   inner.eventLoop, inner.arranger, ""};
    Workbench workbench{services, shell::wiring()};
};

TEST_F(LinuxProgram, ReadsTheFirstConnectedMonitor) {
    sysfs.addConnector("card0-DP-1", "disconnected", "");
    sysfs.addConnector("card0-DP-2", "connected", test::block0('\x22'));
    sysfs.addConnector("card0-HDMI-A-1", "connected", test::block0('\x33'));
    EXPECT_EQ(find(), test::displayKey + "\\card0-DP-2\\0\\Device Parameters");
    acquire::GetEDIDData(workbench);
    EXPECT_EQ(cell(8), "22");
    EXPECT_TRUE(boxes.empty());
}

TEST_F(LinuxProgram, ADisconnectedConnectorKeepsNoMonitor) {
    sysfs.addConnector("card0-DP-1", "disconnected", test::block0());
    sysfs.addConnector("card0-VGA-1", "unknown", test::block0());
    EXPECT_EQ(find(), "");
    EXPECT_TRUE(nothingLocated());
}

TEST_F(LinuxProgram, AnUnreadableStatusCountsAsNotConnected) {
    sysfs.write("card0-DP-1", "edid", test::block0('\x11'));
    std::filesystem::create_directories(sysfs.drm() / "card0-DP-2" / "status");
    sysfs.addConnector("card0-DP-3", "connected", test::block0('\x33'));
    acquire::GetEDIDData(workbench);
    EXPECT_EQ(cell(8), "33");
}

TEST_F(LinuxProgram, AConnectedMonitorWithoutAnEdidEndsTheSearch) {
    sysfs.addConnector("card0-DP-1", "connected", "");
    sysfs.addConnector("card0-DP-2", "connected", test::block0());
    EXPECT_TRUE(nothingLocated());
}

TEST_F(LinuxProgram, AnUnreadableEdidIsNone) {
    sysfs.write("card0-DP-1", "status", "connected\n");
    std::filesystem::create_directories(sysfs.drm() / "card0-DP-1" / "edid");
    EXPECT_TRUE(nothingLocated());
}

TEST_F(LinuxProgram, TheFirst256BytesOfALongEdidAreRead) {
    const std::string edid = test::block0('\x22', '\x07') + std::string(896, '\x02');
    sysfs.addConnector("card0-DP-1", "connected", edid);
    acquire::GetEDIDData(workbench);
    EXPECT_EQ(cell(8), "22");
    EXPECT_EQ(workbench.frmCEA_EXT().txtEdit(127).text(), "02");
}

TEST_F(LinuxProgram, AnEdidAbove1024BytesIsNotRead) {
    sysfs.addConnector("card0-DP-1", "connected", test::block0() + std::string(897, '\x02'));
    EXPECT_TRUE(nothingLocated());
}

TEST_F(LinuxProgram, WithoutSysfsThereIsNoMonitor) {
    std::filesystem::remove_all(sysfs.root());
    EXPECT_EQ(find(), "");
    EXPECT_TRUE(nothingLocated());
}

TEST_F(LinuxProgram, AMonitorThatComesIsSeen) {
    sysfs.addConnector("card0-DP-1", "disconnected", "");
    EXPECT_TRUE(nothingLocated());
    sysfs.addConnector("card0-DP-1", "connected", test::block0('\x44'));
    acquire::GetEDIDData(workbench);
    EXPECT_EQ(cell(8), "44");
}

TEST_F(LinuxProgram, NamesMayHaveBarsAndLettersBeyondAscii) {
    sysfs.addConnector("card0-\xC3\x9C|1", "connected", test::block0('\x55'));
    EXPECT_EQ(find(), test::displayKey + "\\card0-\xC3\x9C|1\\0\\Device Parameters");
    acquire::GetEDIDData(workbench);
    EXPECT_EQ(cell(8), "55");
}

TEST_F(LinuxProgram, ASearchFromTheRootFindsItToo) {
    sysfs.addConnector("card0-DP-1", "connected", test::block0());
    workbench.RegBaseLocation = "SYSTEM";
    EXPECT_EQ(acquire::SearchRegistryForEDID(workbench, "SYSTEM", true),
              test::displayKey + "\\card0-DP-1\\0\\Device Parameters");
}

} // namespace
} // namespace wb::platform::linux_system
