#include <gmock/gmock.h>

#include "cli/changed_image.h"
#include "cli/edidwb.h"
#include "platform/sysfs_folder.h"

namespace wb::test {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class OverrideTest : public Edidwb {
protected:
    OverrideTest() { sysfs.addConnector("card1-HDMI-A-1", "connected", ""); }

    Outcome run(const std::string& arguments) const {
        return shell("edidwb override --sysfs '" + sysfs.root().string() + "' " + arguments);
    }

    SysfsFolder sysfs;
};

TEST_F(OverrideTest, TellsEachStepAndWritesNothing) {
    write("monitor.bin", sample("zarqo-z40.bin"));
    const Outcome outcome = run("hdmi-a-1 monitor.bin");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_THAT(outcome.output,
                StartsWith("For HDMI-A-1 the kernel takes monitor.bin (256 bytes, ZRQ ZARQO Z40, 1920x1080 at 60 Hz) "
                           "after these steps, done as root:\n\n1. Put the image "));
    for (const char* line :
         {"     install -D -m 644 monitor.bin /lib/firmware/edid/HDMI-A-1.bin\n",
          "     cat /lib/firmware/edid/HDMI-A-1.bin >/sys/kernel/debug/dri/1/HDMI-A-1/edid_override\n",
          "     echo detect >/sys/class/drm/card1-HDMI-A-1/status\n",
          "     printf reset >/sys/kernel/debug/dri/1/HDMI-A-1/edid_override\n",
          "     cp /lib/firmware/edid/HDMI-A-1.bin \"$DESTDIR/lib/firmware/edid/\"\n", "     update-initramfs -u\n",
          "     install_items+=\" /lib/firmware/edid/HDMI-A-1.bin \"\n", "     dracut --force\n",
          "     FILES=(/usr/lib/firmware/edid/HDMI-A-1.bin)\n", "     mkinitcpio -P\n",
          "     drm.edid_firmware=HDMI-A-1:edid/HDMI-A-1.bin\n", "     update-grub ",
          "     grub2-mkconfig -o /boot/grub2/grub.cfg ",
          "     edidwb read --to bin HDMI-A-1 | cmp - /lib/firmware/edid/HDMI-A-1.bin\n", "\n5. "}) {
        EXPECT_THAT(outcome.output, HasSubstr(line));
    }
    EXPECT_THAT(outcome.output, Not(HasSubstr("@")));
    EXPECT_THAT(outcome.output, Not(HasSubstr("N is the number of the graphics adapter")));
    EXPECT_EQ(shell("ls -A").output, "monitor.bin\n");
}

TEST_F(OverrideTest, AnImageInAnotherFormIsConverted) {
    EXPECT_THAT(run("HDMI-A-1 $SAMPLES/zarqo-z40.DAT --name desk").output,
                HasSubstr("     mkdir -p /lib/firmware/edid\n"
                          "     edidwb convert --to bin " WORKBENCH_SOURCE_DIR
                          "/samples/zarqo-z40.DAT /lib/firmware/edid/desk.bin\n"));
    EXPECT_THAT(run("HDMI-A-1 - <$SAMPLES/zarqo-z40.bin").output,
                HasSubstr("     edidwb convert --to bin - /lib/firmware/edid/HDMI-A-1.bin\n"));
}

TEST_F(OverrideTest, NamesStandInCommandsAsOneWord) {
    write("my monitor's.bin", sample("zarqo-z40.bin"));
    write("-x", sample("zarqo-z40.bin"));
    EXPECT_THAT(run("HDMI-A-1 \"my monitor's.bin\"").output,
                HasSubstr("     install -D -m 644 'my monitor'\\''s.bin' /lib/firmware/edid/"));
    EXPECT_THAT(run("HDMI-A-1 -- -x").output, HasSubstr("     install -D -m 644 ./-x /lib/firmware/edid/"));
}

TEST_F(OverrideTest, AConnectorOfAnotherSystemIsTakenAsItStands) {
    const Outcome outcome = run("DP-1 $SAMPLES/zarqo-z40.bin");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "edidwb: DP-1: this system has no such connector; the name is taken as it stands\n");
    EXPECT_THAT(outcome.output, HasSubstr(" >/sys/kernel/debug/dri/N/DP-1/edid_override\n"));
    EXPECT_THAT(outcome.output, HasSubstr("   N is the number of the graphics adapter"));
    EXPECT_THAT(run("card2-DP-1 $SAMPLES/zarqo-z40.bin").output, HasSubstr("/dri/2/DP-1/edid_override\n"));
    for (const std::string name : {"DP-1;reboot", "DP", "1", "DP 1"}) {
        const Outcome refused = run('\'' + name + "' $SAMPLES/zarqo-z40.bin");
        EXPECT_EQ(refused.status, 1) << name;
        EXPECT_EQ(refused.output, "") << name;
        EXPECT_EQ(refused.errors, "edidwb: " + name + ": is no name of a connector of Linux, such as HDMI-A-1\n")
            << name;
    }
}

TEST_F(OverrideTest, AnImageWithErrorsIsRefused) {
    std::string edid = sample("zarqo-z40.bin");
    write("short", edid.substr(0, 128));
    write("long", edid + "x");
    edid[8] = static_cast<char>(edid[8] ^ 1);
    write("sum", edid);
    write("none", "no image");
    struct Case {
        const char* file;
        const char* message;
    };
    for (const Case& c : {Case{"short", "length 128 should be 256"}, Case{"long", "length 257 should be 256"},
                          Case{"sum", "check sum of block 0 "}, Case{"none", "is no EDID image"}}) {
        const Outcome outcome = run(std::string("--install --root . HDMI-A-1 ") + c.file);
        EXPECT_EQ(outcome.status, 1) << c.file;
        EXPECT_EQ(outcome.output, "") << c.file;
        EXPECT_THAT(outcome.errors, HasSubstr(std::string("edidwb: ") + c.file + ": " + c.message));
        EXPECT_FALSE(exists("lib")) << c.file;
    }
}

TEST_F(OverrideTest, TheNumberOfBlocksIsThatOfByte126OrOfTheOverride) {
    for (const std::size_t blocks : {2, 3, 4}) {
        write("monitor.bin", imageWithOverride(blocks, 3));
        const Outcome outcome = run("HDMI-A-1 monitor.bin");
        EXPECT_EQ(outcome.status, blocks == 3 ? 1 : 0) << blocks << outcome.errors;
    }
}

TEST_F(OverrideTest, TheStepsOfAnImageWithoutTheBlocksOfItsOverrideWriteItAsItIs) {
    const std::string image = imageWithOverride(2, 3);
    write("monitor.bin", image);
    shell("od -An -v -tx1 monitor.bin >monitor.hex");
    EXPECT_THAT(run("--name desk HDMI-A-1 monitor.hex").output,
                HasSubstr("\n     edidwb override --install --name desk.bin HDMI-A-1 monitor.hex\n"));
    shell("edidwb override --install --name desk.bin HDMI-A-1 monitor.hex --root .");
    EXPECT_EQ(read("lib/firmware/edid/desk.bin"), image);
    write("whole.bin", imageWithOverride(4, 3));
    shell("od -An -v -tx1 whole.bin >whole.hex");
    EXPECT_THAT(run("HDMI-A-1 whole.hex").output, HasSubstr("\n     edidwb convert --to bin whole.hex /lib/"));
}

TEST_F(OverrideTest, InstallsTheFirmwareFileAndNothingElse) {
    shell("mkdir root");
    const Outcome outcome = run("--install --root root HDMI-A-1 $SAMPLES/zarqo-z40.DAT");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_THAT(outcome.output, StartsWith("Written: root/lib/firmware/edid/HDMI-A-1.bin, 256 bytes\nFor HDMI-A-1 "));
    EXPECT_THAT(outcome.output, HasSubstr("\n1. Try it without a reboot."));
    EXPECT_THAT(outcome.output, Not(HasSubstr("Put the image where")));
    EXPECT_EQ(shell("find root -type f").output, "root/lib/firmware/edid/HDMI-A-1.bin\n");
    EXPECT_EQ(read("root/lib/firmware/edid/HDMI-A-1.bin"),
              shell("edidwb convert --to bin $SAMPLES/zarqo-z40.DAT -").output);
}

TEST_F(OverrideTest, ReplacesAFileOnlyWhereAsked) {
    shell("mkdir -p lib/firmware/edid; echo old >lib/firmware/edid/desk.bin");
    const Outcome outcome = run("--install --root . --name desk HDMI-A-1 $SAMPLES/zarqo-z40.bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "edidwb: ./lib/firmware/edid/desk.bin: exists already (--force replaces it)\n");
    EXPECT_EQ(read("lib/firmware/edid/desk.bin"), "old\n");
    EXPECT_EQ(run("--install -f --root . --name desk.bin HDMI-A-1 $SAMPLES/zarqo-z40.bin").status, 0);
    EXPECT_EQ(read("lib/firmware/edid/desk.bin"), sample("zarqo-z40.bin"));
}

TEST_F(OverrideTest, StaysBelowItsRoot) {
    shell("mkdir -p root/usr/lib outside; ln -s usr/lib root/lib");
    EXPECT_EQ(run("--install --root root HDMI-A-1 $SAMPLES/zarqo-z40.bin").status, 0) << "a link inside";
    EXPECT_TRUE(exists("root/usr/lib/firmware/edid/HDMI-A-1.bin"));
    shell("rm root/lib; ln -s \"$PWD/outside\" root/lib");
    const Outcome outcome = run("--install --root root HDMI-A-1 $SAMPLES/zarqo-z40.bin");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "edidwb: root/lib/firmware/edid/HDMI-A-1.bin: a link leads out of root\n");
    EXPECT_EQ(shell("ls -A outside").output, "");
    EXPECT_EQ(run("--install --root missing HDMI-A-1 $SAMPLES/zarqo-z40.bin").errors,
              "edidwb: missing: no such directory\n");
}

TEST_F(OverrideTest, ItsHelpTellsStatusesAndExamples) {
    EXPECT_THAT(run("--help").output,
                AllOf(HasSubstr("Exit status: 0 "), HasSubstr("\n  edidwb override HDMI-A-1 monitor.bin\n")));
}

} // namespace
} // namespace wb::test
