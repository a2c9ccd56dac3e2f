#include "acquire/registry_search.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "acquire/monitors.h"
#include "core/base/text.h"
#include "support/program.h"

namespace wb::acquire {
namespace {

using platform::RegistryCode;
using platform::RegistryType;
using Lines = std::vector<std::string>;

const std::string unreadable = "Unable to read Registry";

class Search : public testing::Test {
protected:
    std::string find(const std::string& path) { return SearchRegistryForEDID(program.workbench, path, true); }
    std::string value(const std::string& path) { return SearchRegistryForEDID(program.workbench, path, false); }
    void setValue(const std::string& key, const std::string& name, const std::string& data) {
        registry.setValue(key, {.name = name, .type = RegistryType::Binary, .data = data});
    }

    test::Program program;
    platform::headless::RegistryTree& registry = program.platform.registry;
};

TEST_F(Search, GivesTheParametersOfTheFirstInstanceInUse) {
    test::addMonitor(registry, "AAA0001", "one", false);
    test::addMonitor(registry, "BBB0002", "two");
    test::addMonitor(registry, "CCC0003", "three");
    EXPECT_EQ(find(test::displayKey), test::displayKey + "\\BBB0002\\4&1\\Device Parameters");
    EXPECT_TRUE(program.boxes.empty());
}

TEST_F(Search, FollowsTheOrderOfTheRegistryNotOfTheNames) {
    test::addMonitor(registry, "ZZZ0001", "one");
    test::addMonitor(registry, "AAA0002", "two");
    EXPECT_EQ(find(test::displayKey), test::displayKey + "\\ZZZ0001\\4&1\\Device Parameters");
}

TEST_F(Search, NeedsNoDeviceParametersToBeThere) {
    registry.addKey("ROOT\\Control");
    EXPECT_EQ(find("ROOT"), "ROOT\\Device Parameters");
}

TEST_F(Search, FindsNothingWithoutAControlKey) {
    test::addMonitor(registry, "AAA0001", "one", false);
    EXPECT_EQ(find(test::displayKey), "");
    EXPECT_TRUE(program.boxes.empty());
}

TEST_F(Search, FindsNothingInSilenceBelowAMissingKey) {
    EXPECT_EQ(find("NO\\SUCH\\KEY"), "");
    EXPECT_EQ(value("NO\\SUCH\\KEY"), "");
    EXPECT_TRUE(program.boxes.empty());
}

TEST_F(Search, TellsAKeyThatCannotBeOpened) {
    registry.refuse("ROOT");
    EXPECT_EQ(find("ROOT"), "");
    EXPECT_EQ(program.takeBoxes(), Lines{unreadable});
    EXPECT_EQ(value("ROOT"), "");
    EXPECT_EQ(program.takeBoxes(), Lines{unreadable});
}

TEST_F(Search, GoesOnBehindASubKeyThatCannotBeOpened) {
    registry.refuse("ROOT\\first");
    registry.addKey("ROOT\\second\\Control");
    EXPECT_EQ(find("ROOT"), "ROOT\\second\\Device Parameters");
    EXPECT_EQ(program.takeBoxes(), Lines{unreadable});
}

TEST_F(Search, PassesOverSubKeysThatCannotBeEnumerated) {
    registry.addKey("ROOT\\" + std::string(1025, 'x') + "\\Control");
    registry.addKey("ROOT\\" + std::string(1024, 'y') + "\\Control");
    EXPECT_EQ(find("ROOT"), "ROOT\\" + std::string(1024, 'y') + "\\Device Parameters");
}

TEST_F(Search, TakesAControlKeyInOtherSpellingForTheInstanceItself) {
    for (const char* spelling : {"CONTROL", "control", "cONTROL"}) {
        const std::string instance = std::string("ROOT\\") + spelling + "\\instance";
        registry.addKey(instance + "\\" + spelling);
        EXPECT_EQ(find("ROOT\\" + std::string(spelling)), instance);
    }
}

TEST_F(Search, TheControlOfAModelItselfCountsToo) {
    registry.addKey("ROOT\\model\\Control\\deeper");
    EXPECT_EQ(find("ROOT"), "ROOT\\model\\Device Parameters");
    EXPECT_EQ(find("ROOT\\model"), "ROOT\\model\\Device Parameters");
}

class Skipped : public Search, public testing::WithParamInterface<const char*> {};

TEST_P(Skipped, IsNeverVisited) {
    const std::string name = GetParam();
    registry.addKey("ROOT\\" + name + "\\1\\Control");
    registry.refuse("ROOT\\" + name);
    EXPECT_EQ(find("ROOT"), "");
    EXPECT_TRUE(program.takeBoxes().empty()) << "it was opened";
}

TEST_P(Skipped, IsVisitedInAnotherSpelling) {
    std::string name = GetParam();
    // Each name has a letter; the case of the first one is changed.
    char& letter = name[name.find_first_not_of("0123456789-")];
    letter = static_cast<char>(letter ^ 0x20);
    registry.addKey("ROOT\\" + name + "\\1\\Control");
    EXPECT_EQ(find("ROOT"), "ROOT\\" + name + "\\1\\Device Parameters");
}

INSTANTIATE_TEST_SUITE_P(Names, Skipped,
                         testing::Values("CH-7009-A", "CH-7009-B", "Default_Monitor", "IN-807", "IN-KCH-8XX-CHIPSETS",
                                         "IN-SB-8XX-PLATFORMS", "NVWIN2KDUALVIEW", "SI-164", "NTativmd34", "NTativrv34",
                                         "NTativmd40", "NTativrv40", "MTX0000"));

TEST_F(Search, ASkippedNameIsSkippedAtAnyDepth) {
    registry.addKey("ROOT\\model\\MTX0000\\Control");
    EXPECT_EQ(find("ROOT"), "");
}

TEST_F(Search, AnEmptyPathSearchesTheRoot) {
    registry.addKey("SYSTEM\\Control");
    EXPECT_EQ(find(""), "\\SYSTEM\\Device Parameters");
}

/// The instance itself is the root then, whose path is empty: what comes behind it is not looked at.
TEST_F(Search, AControlKeyOfTheRootInOtherSpellingEndsTheSearchThere) {
    for (const char* spelling : {"CONTROL", "control", "cONTROL"}) {
        registry.clear();
        registry.addKey(spelling);
        test::addMonitor(registry, "AAA0001", "one");
        EXPECT_EQ(find(""), "") << spelling;
    }
    EXPECT_TRUE(program.boxes.empty());
}

TEST_F(Search, AControlKeyOfTheRootInTheExactSpellingLeadsToItsParameters) {
    registry.addKey("Control");
    test::addMonitor(registry, "AAA0001", "one");
    EXPECT_EQ(find(""), "\\Device Parameters");
}

/// An empty key holds nothing, and is no reason to end the search.
TEST_F(Search, AnEmptyModelDoesNotEndTheSearchOfTheRoot) {
    registry.addKey("empty");
    registry.addKey("SYSTEM\\Control");
    EXPECT_EQ(find(""), "\\SYSTEM\\Device Parameters");
}

TEST_F(Search, GivesTheRawValue) {
    const std::string data("\x00\xFF\x0A|", 4);
    setValue("ROOT", "EDID", data);
    EXPECT_EQ(value("ROOT"), data);
    EXPECT_EQ(find("ROOT"), "") << "values do not count for the walk";
}

TEST_F(Search, LooksForValuesInTheKeyItselfOnly) {
    setValue("ROOT\\below", "EDID", "data");
    EXPECT_EQ(value("ROOT"), "");
}

TEST_F(Search, TakesTheFirstValueThatSortsNotAboveEdid) {
    struct Case {
        const char* name;
        bool taken;
    };
    for (const Case& test :
         {Case{"EDID", true}, Case{"edid", true}, Case{"eDiD", true}, Case{"EDIC", true}, Case{"BAD_EDID", true},
          Case{"0", true}, Case{"A", true}, Case{"EDI", true}, Case{"EDID_OVERRIDE", false}, Case{"EDIE", false},
          Case{"F", false}, Case{"_", false}, Case{"\xC4", false}, Case{"|", false}, Case{"DRIVER|\xE9", true}}) {
        const std::string key = std::string("ROOT\\") + (test.taken ? "taken " : "left ") + test.name;
        setValue(key, test.name, "this");
        setValue(key, "EDID", test.taken ? "not this" : "that");
        if (upperCase(test.name) != "EDID") {
            EXPECT_EQ(value(key), test.taken ? "this" : "that") << test.name;
        }
    }
    setValue("ANY", "edid", "data");
    EXPECT_EQ(value("ANY"), "data");
}

TEST_F(Search, PassesOverAValueWithoutAName) {
    setValue("ROOT", "", "default");
    setValue("ROOT", "EDID", "data");
    EXPECT_EQ(value("ROOT"), "data");
}

TEST_F(Search, StopsAtAnEmptyValue) {
    setValue("ROOT", "AAA", "");
    setValue("ROOT", "EDID", "data");
    EXPECT_EQ(value("ROOT"), "");
}

TEST_F(Search, PassesOverAValueAboveTheBuffer) {
    setValue("ROOT", "AAA", std::string(1025, 'x'));
    setValue("ROOT", "EDID", std::string(1024, 'y'));
    EXPECT_EQ(value("ROOT"), std::string(1024, 'y'));
}

TEST_F(Search, ReadsNoValuesOnAWalk) {
    setValue("ROOT", "EDID", "data");
    platform::Registry::Key key = 0;
    platform::Registry& tree = registry;
    ASSERT_EQ(tree.open("ROOT", key), RegistryCode::Ok);
    EXPECT_EQ(ReadEDIDValueFromKey(tree, key, 1, true), "");
    EXPECT_EQ(ReadEDIDValueFromKey(tree, key, 0, false), "");
    EXPECT_EQ(ReadEDIDValueFromKey(tree, key, 1, false), "data");
}

TEST_F(Search, WalksATreeOfThousandsOfLevels) {
    constexpr int levels = 5000;
    std::string path = "ROOT";
    for (int level = 0; level < levels; ++level) {
        path += "\\k";
    }
    registry.addKey(path + "\\Control");
    EXPECT_EQ(find("ROOT"), path + "\\Device Parameters");
}

TEST_F(Search, TakesNamesWithBarsAndLettersBeyondAscii) {
    registry.addKey("ROOT\\M|NI\xD6R\\\xE9|\\Control");
    EXPECT_EQ(find("ROOT"), "ROOT\\M|NI\xD6R\\\xE9|\\Device Parameters");
}

/// Counts what the search asks of the registry, and can refuse the second opening of a key.
class CountingRegistry : public platform::Registry {
public:
    explicit CountingRegistry(Registry& inner) : inner_(inner) {}

    RegistryCode open(const std::string& path, Key& key) override {
        return counted(path, path, key, [&] { return inner_.open(path, key); });
    }
    RegistryCode open(Key above, const std::string& path, Key& key) override {
        return counted(path, paths_.at(above) + '\\' + path, key, [&] { return inner_.open(above, path, key); });
    }
    RegistryCode queryInfo(Key key, int& subKeys, int& values) override {
        ++calls;
        return queryCode == RegistryCode::Ok ? inner_.queryInfo(key, subKeys, values) : queryCode;
    }
    RegistryCode enumerateKey(Key key, int index, std::string& name) override {
        ++calls;
        return inner_.enumerateKey(key, index, name);
    }
    RegistryCode enumerateValue(Key key, int index, platform::RegistryValue& value) override {
        ++calls;
        return inner_.enumerateValue(key, index, value);
    }
    RegistryCode readValue(Key key, const std::string& name, platform::RegistryValue& value) override {
        return inner_.readValue(key, name, value);
    }
    void close(Key key) override {
        EXPECT_EQ(paths_.erase(key), 1U);
        inner_.close(key);
    }

    std::size_t stillOpen() const { return paths_.size(); }

    int calls = 0;
    std::size_t lettersNamed = 0; ///< of all paths that were asked for
    std::map<std::string, int> openings;
    std::map<std::pair<std::string, int>, RegistryCode> refusals; ///< by path and how often it was opened, from 1
    RegistryCode queryCode = RegistryCode::Ok;

private:
    RegistryCode counted(const std::string& asked, const std::string& path, Key& key,
                         const std::function<RegistryCode()>& open) {
        ++calls;
        lettersNamed += asked.size();
        const int opened = ++openings[path];
        const auto refused = refusals.find({path, opened});
        if (refused != refusals.end()) {
            return refused->second;
        }
        const RegistryCode code = open();
        if (code == RegistryCode::Ok) {
            paths_[key] = path;
        }
        return code;
    }

    Registry& inner_;
    std::map<Key, std::string> paths_; ///< of the open keys, from the root
};

class CountedSearch : public testing::Test {
protected:
    std::string find(const std::string& path) { return SearchRegistryForEDID(workbench, path, true); }

    platform::headless::HeadlessPlatform headless;
    platform::headless::RegistryTree& tree = headless.registry;
    CountingRegistry registry{tree};
    const platform::Services& inner = headless.services();
    platform::Services services{inner.messageBoxes, inner.dialogs,         inner.printer,    inner.settings,
                                registry,           inner.operatingSystem, inner.edidReader, inner.shell,
                                inner.clock,        inner.eventLoop,       inner.arranger,   ""};
    Workbench workbench{services, shell::wiring()};
};

TEST_F(CountedSearch, ClosesWhatItOpens) {
    test::addMonitor(tree, "AAA0001", "one", false);
    test::addMonitor(tree, "BBB0002", "two");
    EXPECT_NE(find(test::displayKey), "");
    EXPECT_EQ(registry.stillOpen(), 0);
    EXPECT_EQ(find("SYSTEM"), test::displayKey + "\\BBB0002\\4&1\\Device Parameters");
    EXPECT_EQ(SearchRegistryForEDID(workbench, test::displayKey, false), "");
    EXPECT_EQ(registry.stillOpen(), 0);
}

TEST_F(CountedSearch, EndsALevelWhoseKeyCannotBeOpenedAgain) {
    tree.addKey("ROOT\\first\\a");
    tree.addKey("ROOT\\first\\Control");
    tree.addKey("ROOT\\second\\Control");
    std::vector<std::string> boxes;
    headless.onBox = [&](const std::string& text) { boxes.push_back(text); };

    // Gone for good: nothing is told, and the walk goes on one level up.
    registry.refusals = {{{"ROOT\\first", 2}, RegistryCode::NotFound}, {{"ROOT\\first", 3}, RegistryCode::NotFound}};
    EXPECT_EQ(find("ROOT"), "ROOT\\second\\Device Parameters");
    EXPECT_TRUE(boxes.empty());

    registry.openings.clear();
    registry.refusals = {{{"ROOT\\first", 2}, RegistryCode::NotFound}, {{"ROOT\\first", 3}, RegistryCode::Refused}};
    EXPECT_EQ(find("ROOT"), "ROOT\\second\\Device Parameters");
    EXPECT_EQ(std::exchange(boxes, {}), Lines{unreadable});

    // Even a second try that succeeds gives a code other than that of a missing key.
    registry.openings.clear();
    registry.refusals = {{{"ROOT\\first", 2}, RegistryCode::Refused}};
    EXPECT_EQ(find("ROOT"), "ROOT\\second\\Device Parameters");
    EXPECT_EQ(std::exchange(boxes, {}), Lines{unreadable});
    EXPECT_EQ(registry.stillOpen(), 0);
}

TEST_F(CountedSearch, FindsNothingWhereAKeyTellsNothingOfItself) {
    tree.addKey("ROOT\\Control");
    registry.queryCode = RegistryCode::Refused;
    EXPECT_EQ(find("ROOT"), "");
    EXPECT_EQ(registry.stillOpen(), 0);
}

TEST_F(CountedSearch, AsksNoMoreThanTheTreeIsLarge) {
    constexpr int keys = 100000;
    for (int i = 0; i < keys; ++i) {
        tree.addKey("ROOT\\model" + std::to_string(i % 100) + "\\" + std::to_string(i));
    }
    EXPECT_EQ(find("ROOT"), "");
    // A key is opened twice, queried once, enumerated once, and its end is met twice (last index, one past it).
    EXPECT_LE(registry.calls, 5 * (keys + 101));
}

/// Else a deep tree would cost the square of its depth.
TEST_F(CountedSearch, NamesAKeyFromTheOneAboveIt) {
    std::string path = "ROOT";
    for (int level = 0; level < 300; ++level) {
        path += "\\name";
    }
    tree.addKey(path);
    EXPECT_EQ(find("ROOT"), "");
    EXPECT_EQ(registry.openings[path], 1);
    EXPECT_EQ(registry.openings["ROOT\\name"], 2) << "once more before the walk goes deeper";
    // Each of the 301 keys, all of four letters, is opened twice, but the last one, below which there is nothing.
    EXPECT_EQ(registry.lettersNamed, 601U * 4);
}

} // namespace
} // namespace wb::acquire
