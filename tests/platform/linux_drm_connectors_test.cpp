#include "platform/linux/drm_connectors.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/linux/device_tool.h"
#include "platform/sysfs_folder.h"

namespace wb::platform::linux_system {
namespace {

using Names = std::vector<std::string>;

class Connectors : public testing::Test {
protected:
    test::SysfsFolder sysfs;
    DrmConnectors connectors{sysfs.root()};
};

TEST_F(Connectors, AreSortedAndNothingElse) {
    sysfs.addConnector("card1-DP-2", "connected", "x");
    sysfs.addConnector("card0-HDMI-A-1", "disconnected", "");
    sysfs.write("card0-VGA-1", "status", "unknown\n");
    sysfs.write("card0-eDP-1", "edid", "x");
    sysfs.write("card0", "uevent", "MAJOR=226\n");
    std::ofstream(sysfs.drm() / "version") << "drm 1.1.0\n";
    EXPECT_EQ(connectors.names(), (Names{"card0-HDMI-A-1", "card0-VGA-1", "card0-eDP-1", "card1-DP-2"}));
}

TEST_F(Connectors, ThereAreNoneWithoutTheirFolder) {
    EXPECT_TRUE(connectors.names().empty());
    EXPECT_TRUE(DrmConnectors(sysfs.root() / "missing").names().empty());
    std::ofstream(sysfs.root() / "file") << "";
    EXPECT_TRUE(DrmConnectors(sysfs.root() / "file").names().empty());
}

TEST_F(Connectors, AreFoundInAnyLetterCaseTheExactOneFirst) {
    sysfs.addConnector("card0-DP-1", "connected", "");
    sysfs.addConnector("CARD0-dp-1", "connected", "");
    EXPECT_EQ(connectors.find("card0-DP-1"), "card0-DP-1");
    EXPECT_EQ(connectors.find("CARD0-dp-1"), "CARD0-dp-1");
    EXPECT_EQ(connectors.find("Card0-Dp-1"), "CARD0-dp-1") << "the first by name";
    EXPECT_EQ(connectors.find("card0-DP-2"), std::nullopt);
    EXPECT_EQ(connectors.find(""), std::nullopt);
}

TEST_F(Connectors, AreNotFoundOutsideTheirFolder) {
    sysfs.write("card0-DP-1", "status", "connected\n");
    std::filesystem::create_directories(sysfs.drm() / "card0-DP-1" / "below");
    std::ofstream(sysfs.drm() / "card0-DP-1" / "below" / "status") << "connected";
    std::ofstream(sysfs.root() / "class" / "status") << "connected";
    for (const char* name : {"..", ".", "card0-DP-1/below", "../drm/card0-DP-1"}) {
        EXPECT_EQ(connectors.find(name), std::nullopt) << name;
    }
}

TEST_F(Connectors, TellTheirStatus) {
    sysfs.addConnector("a", "connected", "");
    sysfs.addConnector("b", "disconnected", "");
    sysfs.write("c", "status", "connected");
    sysfs.write("d", "edid", "");
    std::filesystem::create_directories(sysfs.drm() / "e" / "status");
    EXPECT_TRUE(connectors.connected("a"));
    EXPECT_EQ(connectors.status("b"), "disconnected");
    EXPECT_FALSE(connectors.connected("b"));
    EXPECT_TRUE(connectors.connected("c")) << "without a line end";
    EXPECT_EQ(connectors.status("d"), "");
    EXPECT_EQ(connectors.status("e"), "") << "cannot be read";
    EXPECT_EQ(connectors.status("missing"), "");
}

TEST_F(Connectors, GiveTheirEdidUpToALimit) {
    sysfs.addConnector("a", "connected", "12345");
    sysfs.addConnector("b", "connected", "");
    sysfs.write("c", "status", "connected\n");
    std::filesystem::create_directories(sysfs.drm() / "d" / "edid");
    EXPECT_EQ(connectors.edid("a", 100), "12345");
    EXPECT_EQ(connectors.edid("a", 3), "123");
    EXPECT_EQ(connectors.edid("b", 100), "");
    EXPECT_EQ(connectors.edid("c", 100), std::nullopt);
    EXPECT_EQ(connectors.edid("d", 100), std::nullopt) << "cannot be read";
    EXPECT_TRUE(connectors.hasEdid("a") && connectors.hasEdid("b"));
    EXPECT_FALSE(connectors.hasEdid("c") || connectors.hasEdid("d"));
}

/// Takes from the process what root may, while it lives.
class AsAnyone {
public:
    AsAnyone() : before_(geteuid()) { taken_ = before_ != 0 || seteuid(nobody) == 0; }
    AsAnyone(const AsAnyone&) = delete;
    AsAnyone& operator=(const AsAnyone&) = delete;
    ~AsAnyone() { [[maybe_unused]] const int back = seteuid(before_); }

    bool taken() const { return taken_; }

private:
    static constexpr uid_t nobody = 65534;
    uid_t before_;
    bool taken_ = false;
};

TEST_F(Connectors, TellWhyAnEdidCannotBeRead) {
    sysfs.addConnector("a", "connected", "12345");
    sysfs.write("b", "status", "connected\n");
    std::filesystem::create_directories(sysfs.drm() / "c" / "edid");
    std::filesystem::permissions(sysfs.drm() / "a" / "edid", std::filesystem::perms::none);
    const AsAnyone anyone;
    ASSERT_TRUE(anyone.taken());
    std::error_code error;
    EXPECT_EQ(connectors.edid("a", 100, error), std::nullopt);
    EXPECT_EQ(error, std::errc::permission_denied);
    EXPECT_EQ(connectors.edid("b", 100, error), std::nullopt);
    EXPECT_FALSE(error) << "there is none";
    EXPECT_EQ(connectors.edid("c", 100, error), std::nullopt);
    EXPECT_EQ(error, std::errc::not_supported) << "a folder";
}

TEST_F(Connectors, TellWhatKeepsThemFromBeingKnown) {
    sysfs.addConnector("b", "connected", "");
    sysfs.write("c", "edid", "");
    sysfs.write("card0", "uevent", "MAJOR=226\n");
    std::ofstream(sysfs.drm() / "version") << "drm 1.1.0\n";
    EXPECT_TRUE(connectors.obstacles().empty());
    std::filesystem::permissions(sysfs.drm() / "b" / "status", std::filesystem::perms::none);
    sysfs.addConnector("a", "connected", "");
    std::filesystem::permissions(sysfs.drm() / "a", std::filesystem::perms::none);
    {
        const AsAnyone anyone;
        ASSERT_TRUE(anyone.taken());
        const auto found = connectors.obstacles();
        ASSERT_EQ(found.size(), 2U);
        EXPECT_EQ(found[0].path, sysfs.drm() / "a" / "status");
        EXPECT_EQ(found[0].error, std::errc::permission_denied);
        EXPECT_EQ(found[1].path, sysfs.drm() / "b" / "status");
        EXPECT_EQ(found[1].error, std::errc::permission_denied);
    }
    std::filesystem::permissions(sysfs.drm() / "a", std::filesystem::perms::owner_all);
}

TEST_F(Connectors, TellThatTheirFolderCannotBeRead) {
    const auto missing = DrmConnectors(sysfs.root() / "missing").obstacles();
    ASSERT_EQ(missing.size(), 1U);
    EXPECT_EQ(missing[0].path, sysfs.root() / "missing" / "class" / "drm");
    EXPECT_EQ(missing[0].error, std::errc::no_such_file_or_directory);
    std::filesystem::permissions(sysfs.drm(), std::filesystem::perms::none);
    {
        const AsAnyone anyone;
        ASSERT_TRUE(anyone.taken());
        const auto closed = connectors.obstacles();
        ASSERT_EQ(closed.size(), 1U);
        EXPECT_EQ(closed[0].error, std::errc::permission_denied);
    }
    std::filesystem::permissions(sysfs.drm(), std::filesystem::perms::owner_all);
}

TEST_F(Connectors, EndlessFilesAreNotRead) {
    std::filesystem::create_directories(sysfs.drm() / "a");
    std::filesystem::create_symlink("/dev/zero", sysfs.drm() / "a" / "edid");
    std::filesystem::create_symlink("/dev/zero", sysfs.drm() / "a" / "status");
    EXPECT_EQ(connectors.edid("a", 100), std::nullopt);
    EXPECT_EQ(connectors.status("a"), "");
}

class Tool : public Connectors {
protected:
    bool start(const std::string& program, const std::string& arguments) {
        DeviceTool tool(sysfs.root());
        return static_cast<Shell&>(tool).start(
            {.verb = "open", .program = program, .arguments = arguments, .folder = "", .hidden = true});
    }
};

TEST_F(Tool, HasEachConnectorDetected) {
    for (const char* arguments : {"remove monitor\\ABC1234", "remove monitor\\", "rescan"}) {
        sysfs.addConnector("a", "connected", "old");
        sysfs.addConnector("b", "disconnected", "");
        EXPECT_TRUE(start("devcon.exe", arguments));
        EXPECT_EQ(sysfs.read("a", "status"), "detect") << arguments;
        EXPECT_EQ(sysfs.read("b", "status"), "detect") << arguments;
        EXPECT_EQ(sysfs.read("a", "edid"), "old");
    }
}

TEST_F(Tool, DoesNothingElse) {
    sysfs.addConnector("a", "connected", "");
    EXPECT_FALSE(start("devcon.exe", "status *"));
    EXPECT_FALSE(start("devcon.exe", ""));
    EXPECT_FALSE(start("other.exe", "rescan"));
    EXPECT_EQ(sysfs.read("a", "status"), "connected\n");
}

TEST_F(Tool, PassesOverWhatCannotBeWritten) {
    sysfs.write("a", "edid", "");
    std::filesystem::create_directories(sysfs.drm() / "b" / "status");
    sysfs.addConnector("c", "connected", "");
    EXPECT_TRUE(start("devcon.exe", "rescan"));
    EXPECT_FALSE(std::filesystem::exists(sysfs.drm() / "a" / "status")) << "nothing is created";
    EXPECT_EQ(sysfs.read("c", "status"), "detect");
}

} // namespace
} // namespace wb::platform::linux_system
