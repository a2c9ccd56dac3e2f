#include "cli/monitor_list.h"

#include <gtest/gtest.h>

#include "cli/samples.h"

namespace wb::cli {
namespace {

using test::sample;

Monitor monitorWith(const std::string& edid) {
    return {.name = "card0-DP-1", .source = "there", .edid = edid};
}

Monitor failing(std::errc reason) {
    return {.name = "card0-DP-1", .source = "there", .error = std::make_error_code(reason)};
}

TEST(MonitorList, TellsNoneFromNotPermittedFromUnreadable) {
    EXPECT_EQ(monitorLine(monitorWith(""), false), "card0-DP-1: there, no EDID");
    EXPECT_EQ(monitorLine(failing(std::errc::permission_denied), false), "card0-DP-1: there, not permitted");
    EXPECT_EQ(monitorLine(failing(std::errc::operation_not_permitted), false), "card0-DP-1: there, not permitted");
    EXPECT_EQ(monitorLine(failing(std::errc::io_error), false),
              "card0-DP-1: there, cannot be read: Input/output error");
    const auto state = [](const Monitor& monitor) {
        const std::string json = monitorJson(monitor, false);
        const std::size_t begin = json.find("\"state\":\"") + 9;
        return json.substr(begin, json.find('"', begin) - begin);
    };
    EXPECT_EQ(state(monitorWith("")), "none");
    EXPECT_EQ(state(monitorWith("x")), "stored");
    EXPECT_EQ(state(failing(std::errc::permission_denied)), "not permitted");
    EXPECT_EQ(state(failing(std::errc::io_error)), "unreadable");
}

TEST(MonitorList, TellsMakerModelAndPreferredMode) {
    EXPECT_EQ(edidWords(sample("zarqo-z40.bin")), "ZRQ ZARQO Z40, 1920x1080 at 60 Hz");
    EXPECT_EQ(edidWords(sample("halvorine-hv19.bin")), "HLV HV19 Trinity, 1280x1024 at 85.02 Hz")
        << "157.5 MHz / (1728 x 1072)";
    EXPECT_EQ(edidWords(""), "");
    EXPECT_EQ(edidWords(sample("zarqo-z40.bin").substr(0, 127)), "less than a block");
    EXPECT_EQ(edidWords(std::string(128, 'x')), "without the header of an EDID");
}

TEST(MonitorList, AModelWithoutANameIsItsProductCode) {
    std::string edid = sample("halvorine-hv19.bin");
    edid[0x5D] = '\x10'; // the tag of the third descriptor: no name
    EXPECT_EQ(edidWords(edid), "HLV product 18753, 1280x1024 at 85.02 Hz");
}

TEST(MonitorList, TellsInterlacedModes) {
    std::string edid = sample("halvorine-hv19.bin");
    edid[0x36 + 17] = static_cast<char>(0x9E); // the flags of the first timing, interlaced
    EXPECT_EQ(edidWords(edid), "HLV HV19 Trinity, 1280x2048 interlaced at 84.98 Hz")
        << "twice the lines and one: 157.5 MHz / (1728 x 2145 / 2) fields a second";
}

TEST(MonitorList, MarksTheOneThatReadTakes) {
    std::vector<Monitor> monitors = {monitorWith(""), failing(std::errc::permission_denied),
                                     monitorWith(std::string(127, 'x')), monitorWith(sample("zarqo-z40.bin")),
                                     monitorWith(sample("halvorine-hv19.bin"))};
    EXPECT_EQ(takenByRead(monitors), &monitors[3]);
    monitors[3].isVirtual = true;
    EXPECT_EQ(takenByRead(monitors), &monitors[4]);
    monitors.resize(3);
    EXPECT_EQ(takenByRead(monitors), nullptr);
    EXPECT_EQ(monitorLine(monitorWith(std::string(128, 'x')), true),
              "card0-DP-1: there, 128 bytes, without the header of an EDID, taken by read");
}

TEST(MonitorList, JsonTellsAnEventWhereThereIsOne) {
    EXPECT_EQ(monitorJson(monitorWith(""), false, "connected").substr(0, 36),
              R"({"schema":1,"event":"connected","con)");
    EXPECT_EQ(monitorJson(monitorWith(""), false).substr(0, 26), R"({"schema":1,"connector":"c)");
}

} // namespace
} // namespace wb::cli
