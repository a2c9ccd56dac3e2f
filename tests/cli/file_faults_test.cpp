#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "cli/cli_error.h"
#include "cli/commands.h"
#include "cli/entry.h"
#include "cli/failing_calls.h"
#include "cli/kept_files.h"
#include "cli/samples.h"
#include "support/temporary_folder.h"

/// Each call that the program makes of files fails once in each way in which it may.
namespace wb::cli {
namespace {

namespace fs = std::filesystem;

using test::Fault;
using test::FileCall;
using test::runWithFault;
using test::sample;
using test::TemporaryFolder;
using test::TracedRun;
using testing::HasSubstr;
using testing::StartsWith;

/// An ordinary file, or a link.
struct File {
    std::string content; ///< of a link where it leads
    unsigned permissions = 0644;
    bool isLink = false;
};

using Files = std::map<std::string, File>; ///< by their paths in the folder

void create(const std::string& folder, const Files& files) {
    for (const auto& [name, file] : files) {
        const fs::path path = fs::path(folder) / name;
        fs::create_directories(path.parent_path());
        if (file.isLink) {
            fs::create_symlink(file.content, path);
            continue;
        }
        std::ofstream(path, std::ios::binary) << file.content;
        fs::permissions(path, static_cast<fs::perms>(file.permissions));
    }
}

Files filesIn(const std::string& folder) {
    Files files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).generic_string();
        if (entry.is_symlink()) {
            files[name] = {.content = fs::read_symlink(entry).string(), .permissions = 0, .isLink = true};
        } else if (entry.is_regular_file()) {
            files[name] = {.content = TemporaryFolder::read(entry.path().string()),
                           .permissions = static_cast<unsigned>(entry.status().permissions())};
        }
    }
    return files;
}

bool holds(const Files& files, const std::string& name, const std::string& content) {
    const auto file = files.find(name);
    return file != files.end() && file->second.content == content;
}

/// What a command left: what it told, and the files of its folder.
struct Ending {
    TracedRun run;
    Files files;

    /// Whether a message is about that file.
    bool tellsOf(const std::string& name) const {
        return run.errors.find("edidwb: " + name + ": ") != std::string::npos;
    }
};

/// A command in a folder with some files.
struct Scenario {
    const char* name;
    std::vector<std::string> command;
    Files before;
    /// What must hold besides of how it ends after a failure; `whole` is how it ends without.
    std::function<void(const Ending& ending, const Ending& whole)> check = [](const auto&...) {};
};

void PrintTo(const Scenario& scenario, std::ostream* out) {
    *out << scenario.name;
}

class FileFaults : public testing::TestWithParam<Scenario> {
protected:
    /// Runs the command in the folder as it was before.
    Ending endingFor(const Fault& fault) {
        for (const fs::directory_entry& entry : fs::directory_iterator(folder_.file(""))) {
            fs::remove_all(entry);
        }
        create(folder_.file(""), GetParam().before);
        Ending ending;
        ending.run = runWithFault(
            [&] { return chdir(folder_.file("").c_str()) == 0 ? runProgram(GetParam().command) : EXIT_FAILURE; },
            fault);
        ending.files = filesIn(folder_.file(""));
        return ending;
    }

    const TemporaryFolder folder_;
};

/// Every file is the old one or the new one, wholly, and more readers than the new one has none of them.
void expectOldOrNew(const Files& files, const Files& before, const Files& whole, const FileCall& call) {
    for (const auto& [name, file] : files) {
        const bool mayStay = std::string_view(call.name) == "unlink" && name.find(".edidwb-") != std::string::npos;
        EXPECT_TRUE(holds(before, name, file.content) || holds(whole, name, file.content) || mayStay) << name;
        const auto asNew = whole.find(name);
        EXPECT_EQ(asNew == whole.end() ? 0U : file.permissions & ~asNew->second.permissions, 0U) << name;
    }
    for (const auto& [name, file] : before) {
        EXPECT_EQ(files.count(name), 1U) << name;
    }
}

void expectWhole(const Ending& ending, const Ending& whole) {
    EXPECT_EQ(ending.run.errors, "");
    EXPECT_EQ(ending.run.output, whole.run.output);
    for (const auto& [name, file] : whole.files) {
        EXPECT_TRUE(holds(ending.files, name, file.content)) << name;
    }
}

/// Each message names what it is about; what told the kind of a file need not be what told the reason.
void expectToBeTold(const Ending& ending, const Ending& whole, const FileCall& call, int error) {
    EXPECT_EQ(ending.run.status, somethingFailed);
    EXPECT_NE(ending.run.errors, "");
    const bool looksUp = std::string_view(call.name).find("stat") != std::string_view::npos;
    if (error != test::halfWritten && !looksUp) {
        EXPECT_THAT(ending.run.errors, HasSubstr(std::string(": ") + std::strerror(error) + '\n'));
    }
    std::istringstream lines(ending.run.errors);
    for (std::string line; std::getline(lines, line);) {
        const bool named = std::any_of(whole.files.begin(), whole.files.end(), [&](const auto& file) {
            const std::string folder = fs::path(file.first).parent_path().string();
            return line.starts_with("edidwb: " + file.first + ": ") ||
                   (!folder.empty() && line.starts_with("edidwb: " + folder + ": "));
        });
        EXPECT_TRUE(named || line.starts_with("edidwb: standard output: ")) << line;
    }
}

TEST_P(FileFaults, LeaveEachFileOldOrNewAndAreTold) {
    const Ending whole = endingFor({});
    if (!whole.run.traced) {
        GTEST_SKIP() << "no call can be made to fail here";
    }
    ASSERT_EQ(whole.run.status, success) << whole.run.errors;
    for (std::size_t number = 1; number <= whole.run.calls.size() && !HasFailure(); ++number) {
        const FileCall& call = *whole.run.calls[number - 1];
        for (const int error : call.errors) {
            SCOPED_TRACE("call " + std::to_string(number) + ", " + call.name + ": " + std::strerror(error));
            const Ending ending = endingFor({.number = number, .error = error});
            ASSERT_GE(ending.run.calls.size(), number);
            expectOldOrNew(ending.files, GetParam().before, whole.files, call);
            if (ending.run.status == success) {
                expectWhole(ending, whole);
                const bool matters = std::string_view(call.name) == "fsync" && !ending.run.ofFolder;
                EXPECT_TRUE(!matters || error == EINVAL) << "the file may not be on the disk";
            } else {
                expectToBeTold(ending, whole, call, error);
            }
            GetParam().check(ending, whole);
        }
    }
}

std::string withWrongSum() {
    std::string bytes = sample("zarqo-z40.bin");
    bytes[127] = static_cast<char>(bytes[127] + 1);
    return bytes;
}

const File zarqo = {.content = sample("zarqo-z40.bin")};
const File halvorine = {.content = sample("halvorine-hv19.bin")};

const std::vector<Scenario> scenarios = {
    {"NewFile", {"convert", "--to", "dat", "a.bin", "a.DAT"}, {{"a.bin", zarqo}}},
    {"ReplacedFile",
     {"convert", "--force", "--to", "dat", "a.bin", "a.DAT"},
     {{"a.bin", zarqo}, {"a.DAT", {.content = "old", .permissions = 0600}}}},
    {"FileBehindALink",
     {"convert", "--force", "--to", "bin", "a.bin", "link"},
     {{"a.bin", zarqo}, {"deep/old", {.content = "old"}}, {"link", {.content = "deep/old", .isLink = true}}}},
    {"FileInPlace",
     {"repair", "--in-place", "--backup", "a.bin"},
     {{"a.bin", {.content = withWrongSum(), .permissions = 0640}}},
     [](const Ending& ending, const Ending&) {
         EXPECT_TRUE(holds(ending.files, "a.bin", withWrongSum()) || holds(ending.files, "a.bin.bak", withWrongSum()))
             << "the backup goes first";
     }},
    {"Reports",
     {"translate", "-r", "-o", "out", "in", "--date", "2024-05-06 07:08:09"},
     {{"in/a.bin", zarqo}, {"in/deep/b.bin", halvorine}},
     [](const Ending& ending, const Ending& whole) {
         const bool first = ending.tellsOf("in/a.bin") || ending.tellsOf("out/a.txt");
         const bool second = ending.tellsOf("in/deep/b.bin") || ending.tellsOf("out/b.txt");
         EXPECT_TRUE(!first || holds(ending.files, "out/b.txt", whole.files.at("out/b.txt").content));
         EXPECT_TRUE(!second || holds(ending.files, "out/a.txt", whole.files.at("out/a.txt").content));
     }},
    {"PrintedReports",
     {"translate", "--date", "2024-05-06 07:08:09", "a.bin", "b.bin"},
     {{"a.bin", zarqo}, {"b.bin", halvorine}},
     [](const Ending& ending, const Ending& whole) {
         const std::size_t second = whole.run.output.find("==> b.bin <==\n");
         const std::string& output = ending.run.output;
         EXPECT_TRUE(!ending.tellsOf("a.bin") || output == whole.run.output.substr(second));
         EXPECT_TRUE(!ending.tellsOf("b.bin") || output == whole.run.output.substr(0, second - 1));
     }},
    {"ListOfNames",
     {"check", "--files-from", "list"},
     {{"list", {.content = "a.bin\n"}}, {"a.bin", zarqo}},
     [](const Ending& ending, const Ending& whole) { EXPECT_THAT(whole.run.output, StartsWith(ending.run.output)); }},
};

INSTANTIATE_TEST_SUITE_P(Commands, FileFaults, testing::ValuesIn(scenarios),
                         [](const auto& scenario) { return std::string(scenario.param.name); });

/// How often a command makes calls of these names, in a folder with these files.
std::size_t callsOf(const std::vector<std::string>& names, const std::vector<std::string>& command,
                    const Files& files) {
    const TemporaryFolder folder;
    create(folder.file(""), files);
    const TracedRun run =
        runWithFault([&] { return chdir(folder.file("").c_str()) == 0 ? runProgram(command) : EXIT_FAILURE; }, {});
    EXPECT_EQ(run.status, run.traced ? success : -1) << run.errors;
    return static_cast<std::size_t>(std::count_if(run.calls.begin(), run.calls.end(), [&](const FileCall* call) {
        return std::find(names.begin(), names.end(), call->name) != names.end();
    }));
}

/// How often it waits for the disk.
std::size_t waitsOf(const std::vector<std::string>& command, const Files& files) {
    return callsOf({"fsync"}, command, files);
}

/// How often it looks files up while it changes so many of a folder.
std::size_t lookUpsForChangesOf(int count) {
    Files files;
    for (int i = 0; i < count; ++i) {
        files["in/" + std::to_string(100 + i)] = {.content = sample("zarqo-z40.bin")};
    }
    return callsOf({"stat", "lstat", "newfstatat", "statx", "readlink"}, {"repair", "-r", "in", "-o", "out"}, files);
}

TEST(FileCalls, WaitForTheDiskUnlessThatIsDeclined) {
    if (!runWithFault([] { return 0; }, {}).traced) {
        GTEST_SKIP() << "no call can be watched here";
    }
    const Files files = {{"a.bin", {.content = withWrongSum()}},
                         {"class/drm/card0-DP-1/status", {.content = "connected\n"}},
                         {"class/drm/card0-DP-1/edid", zarqo}};
    for (std::vector<std::string> command : {std::vector<std::string>{"translate", "-o", "out", "a.bin"},
                                             {"read", "--all", "-o", "out", "--sysfs", "."},
                                             {"repair", "--in-place", "a.bin"}}) {
        SCOPED_TRACE(command.front());
        EXPECT_EQ(waitsOf(command, files), 2U) << "once for the file, once for its folder";
        command.emplace_back("--no-sync");
        EXPECT_EQ(waitsOf(command, files), 0U);
    }
}

TEST(FileCalls, LookUpEachFileOfABatchAsOftenHoweverManyThereAre) {
    if (!runWithFault([] { return 0; }, {}).traced) {
        GTEST_SKIP() << "no call can be watched here";
    }
    const std::size_t few = lookUpsForChangesOf(5);
    const std::size_t more = lookUpsForChangesOf(10);
    EXPECT_GT(more, few);
    EXPECT_EQ(lookUpsForChangesOf(15) - more, more - few);
}

/// Keeps names in a file and reads them back: 0 where they are what they were, 1 after a CliError, which it prints.
int keepNames() {
    try {
        KeptFiles kept(0);
        const std::vector<std::string> names = {"a", std::string(10000, 'b'), "c"};
        for (const std::string& name : names) {
            kept.add({.name = name, .below = name});
        }
        std::vector<std::string> found;
        while (const auto file = kept.next()) {
            found.push_back(file->name);
        }
        return found == names ? 0 : 2;
    } catch (const CliError& error) {
        std::fputs(error.what(), stderr);
        return 1;
    }
}

TEST(FileFaultsOfNames, AreToldAndLeaveNothing) {
    const TemporaryFolder folder;
    const auto work = [&] {
        setenv("TMPDIR", folder.file("").c_str(), 1);
        return keepNames();
    };
    const TracedRun whole = runWithFault(work, {});
    if (!whole.traced) {
        GTEST_SKIP() << "no call can be made to fail here";
    }
    ASSERT_EQ(whole.status, 0) << whole.errors;
    int failed = 0;
    for (std::size_t number = 1; number <= whole.calls.size(); ++number) {
        const FileCall& call = *whole.calls[number - 1];
        for (const int error : call.errors) {
            SCOPED_TRACE("call " + std::to_string(number) + ", " + call.name + ": " + std::strerror(error));
            const TracedRun run = runWithFault(work, {.number = number, .error = error});
            ASSERT_LT(run.status, 2) << "no name is lost in silence";
            EXPECT_EQ(run.status == 0, run.errors.empty());
            EXPECT_THAT(run.errors, HasSubstr(run.status == 0 ? "" : std::strerror(error)));
            failed += run.status;
            const std::string_view name = call.name;
            EXPECT_TRUE(fs::is_empty(folder.file("")) || name == "unlink" || name == "rmdir");
            for (const fs::directory_entry& entry : fs::directory_iterator(folder.file(""))) {
                fs::remove_all(entry);
            }
        }
    }
    EXPECT_GT(failed, 0);
}

} // namespace
} // namespace wb::cli
