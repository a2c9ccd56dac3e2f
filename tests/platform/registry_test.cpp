#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "platform/headless/registry_tree.h"
#include "platform/linux/sysfs_registry.h"
#include "platform/sysfs_folder.h"

/// What holds for every implementation of the registry tree.
namespace wb::platform {
namespace {

const std::string display = "SYSTEM\\CurrentControlSet\\Enum\\Display";

/// A registry, and a way to put monitors into it.
class World {
public:
    virtual ~World() = default;
    virtual Registry& registry() = 0;
    virtual void addMonitor(const std::string& name, bool inUse, const std::string& edid) = 0;
};

class HeadlessWorld : public World {
public:
    Registry& registry() override { return tree_; }
    void addMonitor(const std::string& name, bool inUse, const std::string& edid) override {
        const std::string instance = display + "\\" + name + "\\0";
        if (inUse) {
            tree_.addKey(instance + "\\Control");
        }
        tree_.setValue(instance + "\\Device Parameters", {.name = "EDID", .type = RegistryType::Binary, .data = edid});
    }

private:
    headless::RegistryTree tree_;
};

class SysfsWorld : public World {
public:
    Registry& registry() override { return registry_; }
    void addMonitor(const std::string& name, bool inUse, const std::string& edid) override {
        folder_.addConnector(name, inUse ? "connected" : "disconnected", edid);
    }

private:
    test::SysfsFolder folder_;
    linux_system::SysfsRegistry registry_{folder_.root()};
};

struct Implementation {
    const char* name;
    std::function<std::unique_ptr<World>()> make;
};

void PrintTo(const Implementation& implementation, std::ostream* out) {
    *out << implementation.name;
}

class EveryRegistry : public testing::TestWithParam<Implementation> {
protected:
    EveryRegistry() {
        world->addMonitor("AAA0001", true, "one");
        world->addMonitor("BBB0002", false, "two");
    }

    Registry::Key openKey(const std::string& path) {
        Registry::Key key = 0;
        EXPECT_EQ(registry.open(path, key), RegistryCode::Ok) << path;
        return key;
    }
    RegistryCode open(const std::string& path) {
        Registry::Key key = 0;
        return registry.open(path, key);
    }
    std::vector<std::string> subKeys(const std::string& path) {
        const Registry::Key key = openKey(path);
        int count = 0;
        int values = 0;
        EXPECT_EQ(registry.queryInfo(key, count, values), RegistryCode::Ok);
        std::vector<std::string> names(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(registry.enumerateKey(key, i, names[static_cast<std::size_t>(i)]), RegistryCode::Ok);
        }
        std::string name = "untouched";
        EXPECT_EQ(registry.enumerateKey(key, count, name), RegistryCode::NoMoreItems);
        EXPECT_EQ(name, "untouched");
        registry.close(key);
        return names;
    }
    int valueCount(const std::string& path) {
        int keys = 0;
        int values = -1;
        registry.queryInfo(openKey(path), keys, values);
        return values;
    }

    std::unique_ptr<World> world = GetParam().make();
    Registry& registry = world->registry();
    const std::string parameters = display + "\\AAA0001\\0\\Device Parameters";
};

TEST_P(EveryRegistry, HoldsMonitorsInstancesAndTheirParameters) {
    using Names = std::vector<std::string>;
    EXPECT_EQ(subKeys(""), Names{"SYSTEM"});
    EXPECT_EQ(subKeys("SYSTEM"), Names{"CurrentControlSet"});
    EXPECT_EQ(subKeys("SYSTEM\\CurrentControlSet\\Enum"), Names{"Display"});
    EXPECT_EQ(subKeys(display), (Names{"AAA0001", "BBB0002"}));
    EXPECT_EQ(subKeys(display + "\\AAA0001"), Names{"0"});
    EXPECT_EQ(subKeys(display + "\\AAA0001\\0"), (Names{"Control", "Device Parameters"}));
    EXPECT_EQ(subKeys(display + "\\BBB0002\\0"), Names{"Device Parameters"});
    EXPECT_EQ(subKeys(display + "\\AAA0001\\0\\Control"), Names{});
    EXPECT_EQ(subKeys(parameters), Names{});
}

TEST_P(EveryRegistry, OpensInAnyLetterCase) {
    EXPECT_EQ(open("system\\CURRENTCONTROLSET\\enum\\dISPLAY\\aaa0001\\0\\DEVICE parameters"), RegistryCode::Ok);
    EXPECT_EQ(open(display + "\\AAA0001\\0\\CONTROL"), RegistryCode::Ok);
}

TEST_P(EveryRegistry, EmptyNamesInAPathDoNotCount) {
    EXPECT_EQ(open("\\" + display), RegistryCode::Ok);
    EXPECT_EQ(open(display + "\\"), RegistryCode::Ok);
    EXPECT_EQ(open("SYSTEM\\\\CurrentControlSet"), RegistryCode::Ok);
    EXPECT_EQ(open("\\"), RegistryCode::Ok);
}

TEST_P(EveryRegistry, OpensBelowAnOpenKeyAsAlongThePath) {
    struct Case {
        std::string above;
        std::string below;
    };
    for (const Case& test : {Case{"", "system"}, Case{display, "AAA0001\\0"}, Case{display, "\\AAA0001\\"},
                             Case{display, ""}, Case{display, "CCC0003"}, Case{display, display},
                             Case{display + "\\BBB0002\\0", "Control"}, Case{display + "\\AAA0001", "0\\control"}}) {
        const Registry::Key above = openKey(test.above);
        Registry::Key key = above;
        EXPECT_EQ(registry.open(above, test.below, key), open(test.above + "\\" + test.below)) << test.below;
    }
    RegistryValue value;
    Registry::Key key = 0;
    ASSERT_EQ(registry.open(openKey(display + "\\AAA0001"), "0\\Device Parameters", key), RegistryCode::Ok);
    EXPECT_EQ(registry.readValue(key, "EDID", value), RegistryCode::Ok);
    EXPECT_EQ(value.data, "one");
}

TEST_P(EveryRegistry, HasNoOtherKeys) {
    for (const std::string& path :
         {std::string("SOFTWARE"), std::string("SYSTEM\\Enum"), std::string("SYSTEM\\CurrentControlSet\\Enum\\Displa"),
          display + "\\CCC0003", display + "\\AAA000", display + "\\AAA0001\\1", display + "\\AAA0001\\0\\Other",
          display + "\\BBB0002\\0\\Control", parameters + "\\EDID", display + "\\AAA0001\\0\\Control\\x",
          display + "\\.", display + "\\..", display + "\\AAA0001/0", std::string("SYSTEM/CurrentControlSet")}) {
        EXPECT_EQ(open(path), RegistryCode::NotFound) << path;
    }
}

TEST_P(EveryRegistry, GivesTheStoredEdid) {
    const Registry::Key key = openKey(parameters);
    EXPECT_EQ(valueCount(parameters), 1);
    RegistryValue value;
    EXPECT_EQ(registry.enumerateValue(key, 0, value), RegistryCode::Ok);
    EXPECT_EQ(value.name, "EDID");
    EXPECT_EQ(value.type, RegistryType::Binary);
    EXPECT_EQ(value.data, "one");
    EXPECT_EQ(registry.enumerateValue(key, 1, value), RegistryCode::NoMoreItems);
    RegistryValue read;
    EXPECT_EQ(registry.readValue(key, "edid", read), RegistryCode::Ok);
    EXPECT_EQ(read.name, "EDID");
    EXPECT_EQ(read.data, "one");
    EXPECT_EQ(registry.readValue(key, "EDI", read), RegistryCode::NotFound);
    EXPECT_EQ(registry.readValue(key, "", read), RegistryCode::NotFound);
}

TEST_P(EveryRegistry, OtherKeysHaveNoValues) {
    for (const std::string& path :
         {std::string(), display, display + "\\AAA0001", display + "\\AAA0001\\0", display + "\\AAA0001\\0\\Control"}) {
        EXPECT_EQ(valueCount(path), 0) << path;
        RegistryValue value;
        EXPECT_EQ(registry.enumerateValue(openKey(path), 0, value), RegistryCode::NoMoreItems) << path;
        EXPECT_EQ(registry.readValue(openKey(path), "EDID", value), RegistryCode::NotFound) << path;
    }
}

TEST_P(EveryRegistry, EnumeratesUpTo1024Bytes) {
    world->addMonitor("CCC0003", true, std::string(1024, '\xFF'));
    world->addMonitor("DDD0004", true, std::string(1025, '\xFF'));
    RegistryValue value;
    EXPECT_EQ(registry.enumerateValue(openKey(display + "\\CCC0003\\0\\Device Parameters"), 0, value),
              RegistryCode::Ok);
    EXPECT_EQ(value.data, std::string(1024, '\xFF'));
    const Registry::Key large = openKey(display + "\\DDD0004\\0\\Device Parameters");
    EXPECT_EQ(registry.enumerateValue(large, 0, value), RegistryCode::MoreData);
    EXPECT_EQ(registry.readValue(large, "EDID", value), RegistryCode::Ok);
    EXPECT_EQ(value.data.size(), 1025U);
}

TEST_P(EveryRegistry, HasEdidsOfNoBytesAndOfAnyBytes) {
    world->addMonitor("CCC0003", true, "");
    world->addMonitor("DDD0004", true, std::string("\0\xFF\r\n\x1A\0", 6));
    RegistryValue value{.name = "old", .data = "old"};
    EXPECT_EQ(registry.enumerateValue(openKey(display + "\\CCC0003\\0\\Device Parameters"), 0, value),
              RegistryCode::Ok);
    EXPECT_EQ(value.data, "");
    EXPECT_EQ(registry.enumerateValue(openKey(display + "\\DDD0004\\0\\Device Parameters"), 0, value),
              RegistryCode::Ok);
    EXPECT_EQ(value.data, std::string("\0\xFF\r\n\x1A\0", 6));
}

TEST_P(EveryRegistry, RefusesKeysThatAreNotOpen) {
    const Registry::Key key = openKey(parameters);
    registry.close(key);
    for (const Registry::Key closed : {key, Registry::Key{0}, key + 1000}) {
        int keys = 0;
        int values = 0;
        std::string name;
        RegistryValue value;
        Registry::Key below = 0;
        EXPECT_EQ(registry.open(closed, "", below), RegistryCode::Refused);
        EXPECT_EQ(registry.queryInfo(closed, keys, values), RegistryCode::Refused);
        EXPECT_EQ(registry.enumerateKey(closed, 0, name), RegistryCode::Refused);
        EXPECT_EQ(registry.enumerateValue(closed, 0, value), RegistryCode::Refused);
        EXPECT_EQ(registry.readValue(closed, "EDID", value), RegistryCode::Refused);
        registry.close(closed);
    }
}

TEST_P(EveryRegistry, KeepsKeysApart) {
    const Registry::Key one = openKey(display);
    const Registry::Key other = openKey(display);
    EXPECT_NE(one, other);
    registry.close(one);
    std::string name;
    EXPECT_EQ(registry.enumerateKey(other, 0, name), RegistryCode::Ok);
    EXPECT_EQ(name, "AAA0001");
    EXPECT_EQ(registry.enumerateKey(other, -1, name), RegistryCode::NoMoreItems);
}

INSTANTIATE_TEST_SUITE_P(Implementations, EveryRegistry,
                         testing::Values(Implementation{"headless", [] { return std::make_unique<HeadlessWorld>(); }},
                                         Implementation{"sysfs", [] { return std::make_unique<SysfsWorld>(); }}),
                         [](const auto& implementation) { return implementation.param.name; });

} // namespace
} // namespace wb::platform
