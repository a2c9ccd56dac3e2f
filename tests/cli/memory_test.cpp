#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "cli/entry.h"
#include "cli/failing_memory.h"
#include "cli/ordered_jobs.h"
#include "cli/samples.h"
#include "support/temporary_folder.h"

/// What becomes of a batch that gets no memory at one moment or another.
namespace wb::cli {
namespace {

using test::FailingRequest;
using test::FailingSize;
using test::sample;
using test::TemporaryFolder;
using testing::EndsWith;
using testing::StartsWith;

using Arguments = std::vector<std::string>;

struct Outcome {
    int status = -1;
    std::string output;
    std::string errors;
};

/// Runs the program within this one; `memory` is given what runs, and lets it lack memory.
Outcome run(
    const Arguments& arguments,
    const std::function<void(const std::function<void()>&)>& memory = [](const auto& work) { work(); }) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Outcome outcome;
    memory([&] { outcome.status = runProgram(arguments); });
    outcome.output = testing::internal::GetCapturedStdout();
    outcome.errors = testing::internal::GetCapturedStderr();
    return outcome;
}

Arguments with(Arguments arguments, const Arguments& more) {
    arguments.insert(arguments.end(), more.begin(), more.end());
    return arguments;
}

/// A batch of three files, each of which is the one that lacks memory in its turn.
class Memory : public testing::Test {
protected:
    Memory() {
        folder_.write("a.DAT", sample("zarqo-z40.DAT"));
        folder_.write("b.bin", sample("halvorine-hv19.bin"));
        folder_.write("c.bin", sample("brindleco-b24w.bin"));
        std::filesystem::create_directory(folder_.file("out"));
    }

    /// Calls `check` with the outcome of the command after each failed request that is tried, until it needs no more
    /// of them. A request that may fail, as that of an algorithm which can do without, changes nothing.
    void afterEachFailure(const Arguments& command, const std::function<void(const Outcome& outcome)>& check) {
        constexpr std::size_t stride = 13; // one failure is much like the next
        prepare_();
        const Outcome whole = run(command);
        bool failed = true;
        for (std::size_t number = 1; failed && !HasFailure(); number += stride) {
            SCOPED_TRACE("request " + std::to_string(number));
            prepare_();
            const Outcome outcome = run(command, [&](const auto& work) {
                const FailingRequest request(number);
                work();
                failed = request.failed();
            });
            if (outcome.errors != whole.errors) {
                check(outcome);
            } else {
                EXPECT_EQ(outcome.status, whole.status);
                EXPECT_EQ(outcome.output, whole.output);
            }
        }
    }

    /// What is named as lacking memory; "edidwb" where that is the program, and nothing but once it is told.
    static std::string namedIn(const std::string& errors) {
        constexpr std::string_view message = ": not enough memory\n";
        const std::size_t place = errors.find(message);
        EXPECT_NE(place, std::string::npos) << errors;
        EXPECT_EQ(place, errors.rfind(message)) << errors;
        const std::string told = errors.substr(0, place);
        const std::size_t lineEnd = told.rfind('\n');
        const std::string line = told.substr(lineEnd == std::string::npos ? 0 : lineEnd + 1);
        return line.starts_with(speaker) ? line.substr(speaker.size()) : line;
    }

    /// The place of a name in a list; its size where it is not there.
    static std::size_t placeOf(const std::string& name, const Arguments& list) {
        return static_cast<std::size_t>(std::find(list.begin(), list.end(), name) - list.begin());
    }

    std::string written(const std::string& name) const { return TemporaryFolder::read(folder_.file("out/" + name)); }

    /// What stands in the folder "out".
    Arguments names() const {
        Arguments names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.file("out"))) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    static constexpr std::string_view speaker = "edidwb: ";

    const TemporaryFolder folder_;
    /// What goes before each run.
    std::function<void()> prepare_ = [this] {
        for (const std::string& name : names()) {
            std::filesystem::remove(folder_.file("out/" + name));
        }
    };
    const Arguments files_ = {folder_.file("a.DAT"), folder_.file("b.bin"), folder_.file("c.bin")};
};

class MemoryOfPrinting : public Memory, public testing::WithParamInterface<Arguments> {};

/// What is printed of the other files is what is printed of them alone.
TEST_P(MemoryOfPrinting, OneFileThatLacksItIsTold) {
    const Arguments& command = GetParam();
    std::array<std::string, 3> parts;
    std::transform(files_.begin(), files_.end(), parts.begin(),
                   [&](const std::string& file) { return run(with(command, {file})).output; });
    std::array<int, 4> stopped{};
    afterEachFailure(with(command, files_), [&](const Outcome& outcome) {
        EXPECT_EQ(outcome.status, somethingFailed);
        const std::string name = namedIn(outcome.errors);
        const std::size_t victim = placeOf(name, files_);
        ++stopped.at(victim);
        if (victim == files_.size()) {
            EXPECT_EQ(name, "edidwb");
            EXPECT_THAT(parts[0] + parts[1] + parts[2], StartsWith(outcome.output));
            return;
        }
        std::string before;
        for (std::size_t i = 0; i < victim; ++i) {
            before += parts.at(i);
        }
        std::string after;
        for (std::size_t i = victim + 1; i < parts.size(); ++i) {
            after += parts.at(i);
        }
        EXPECT_THAT(outcome.output, StartsWith(before));
        EXPECT_THAT(outcome.output, EndsWith(after));
        EXPECT_LE(outcome.output.size(), before.size() + parts.at(victim).size() + after.size());
    });
    EXPECT_GT(stopped[0], 0);
    EXPECT_GT(stopped[1], 0);
    EXPECT_GT(stopped[2], 0);
}

INSTANTIATE_TEST_SUITE_P(Commands, MemoryOfPrinting,
                         testing::Values(Arguments{"translate", "--heading=never", "--date=2024-05-06 07:08:09"},
                                         Arguments{"translate", "--format=json"}, Arguments{"check"},
                                         Arguments{"inspect", "--format=json"},
                                         Arguments{"set", "--dry-run", "--name=Desk"}));

class MemoryOfWriting : public Memory, public testing::WithParamInterface<Arguments> {};

/// The new files of the others are there and whole; that of the file itself is whole if it is there.
TEST_P(MemoryOfWriting, OneFileThatLacksItIsTold) {
    const Arguments command = with(with(GetParam(), {"--no-sync", "-o", folder_.file("out")}), files_);
    ASSERT_EQ(run(command).status, success);
    const Arguments all = names();
    ASSERT_EQ(all.size(), files_.size());
    std::array<std::string, 3> contents;
    std::transform(all.begin(), all.end(), contents.begin(), [&](const std::string& name) { return written(name); });
    Arguments places(all.size());
    std::transform(all.begin(), all.end(), places.begin(),
                   [&](const std::string& name) { return folder_.file("out/" + name); });
    std::array<int, 4> stopped{};
    afterEachFailure(command, [&](const Outcome& outcome) {
        EXPECT_EQ(outcome.status, somethingFailed);
        const std::string name = namedIn(outcome.errors);
        const std::size_t victim = std::min(placeOf(name, files_), placeOf(name, places));
        ++stopped.at(victim);
        const Arguments found = names();
        for (const std::string& each : found) {
            const std::size_t place = placeOf(each, all);
            ASSERT_LT(place, all.size()) << each;
            EXPECT_EQ(written(each), contents.at(place));
        }
        for (std::size_t i = 0; i < all.size() && victim < all.size(); ++i) {
            EXPECT_TRUE(i == victim || placeOf(all[i], found) < found.size()) << all[i];
        }
        EXPECT_TRUE(victim < all.size() || name == "edidwb") << name;
    });
    EXPECT_GT(stopped[0], 0);
    EXPECT_GT(stopped[1], 0);
    EXPECT_GT(stopped[2], 0);
}

INSTANTIATE_TEST_SUITE_P(Commands, MemoryOfWriting,
                         testing::Values(Arguments{"translate", "--date=2024-05-06 07:08:09"}, Arguments{"repair"},
                                         Arguments{"scrub", "--force"}));

TEST_F(Memory, AFileThatLacksItStaysAsItWas) {
    std::string broken = sample("zarqo-z40.bin");
    const std::string whole = broken;
    broken[127] = static_cast<char>(broken[127] + 1);
    const std::string kept = folder_.file("d.bin");
    prepare_ = [&] { folder_.write("d.bin", broken); };
    int named = 0;
    afterEachFailure({"repair", "--in-place", "--no-sync", kept}, [&](const Outcome& outcome) {
        EXPECT_EQ(outcome.status, somethingFailed);
        named += namedIn(outcome.errors) == kept ? 1 : 0;
        const std::string now = TemporaryFolder::read(kept);
        EXPECT_TRUE(now == broken || now == whole);
    });
    EXPECT_GT(named, 0);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.file(".")), {}), 5) << "files and a folder";
}

TEST_F(Memory, AConversionThatLacksItWritesNothingOrAll) {
    const std::string place = folder_.file("out/new.DAT");
    ASSERT_EQ(run({"convert", "--to", "dat", files_[1], place}).status, success);
    const std::string whole = written("new.DAT");
    int named = 0;
    afterEachFailure({"convert", "--to", "dat", files_[1], place}, [&](const Outcome& outcome) {
        EXPECT_EQ(outcome.status, somethingFailed);
        named += namedIn(outcome.errors) == files_[1] ? 1 : 0;
        const Arguments found = names();
        EXPECT_TRUE(found.empty() || (found == Arguments{"new.DAT"} && written("new.DAT") == whole));
    });
    EXPECT_GT(named, 0);
}

TEST_F(Memory, AComparisonThatLacksItIsNoDifference) {
    int named = 0;
    afterEachFailure({"diff", files_[0], files_[1]}, [&](const Outcome& outcome) {
        const std::string name = namedIn(outcome.errors);
        const bool ofFile = placeOf(name, files_) < 2;
        named += ofFile ? 1 : 0;
        EXPECT_EQ(outcome.status, imagesNotCompared);
        EXPECT_TRUE(ofFile || name == "edidwb") << name;
    });
    EXPECT_GT(named, 0);
}

/// A large file between small ones, on one thread and on several.
TEST_F(Memory, TheOthersAreTranslatedBesideALargeFile) {
    constexpr std::size_t tooMuch = std::size_t{1} << 21U;
    const std::string large = folder_.write("large.hex", std::string(2 * tooMuch, ' '));
    const Arguments command = {"translate", "--heading=never", "--date=2024-05-06 07:08:09"};
    const std::string others = run(with(command, files_)).output;
    for (const char* const jobs : {"1", "3"}) {
        const Outcome outcome = run(with(with(command, {"-j", jobs}), {files_[0], large, files_[1], large, files_[2]}),
                                    [](const auto& work) {
                                        const FailingSize size(tooMuch);
                                        work();
                                    });
        EXPECT_EQ(outcome.status, somethingFailed);
        EXPECT_EQ(outcome.output, others);
        EXPECT_EQ(outcome.errors,
                  "edidwb: " + large + ": not enough memory\nedidwb: " + large + ": not enough memory\n");
    }
}

/// Short lines, or many words in a line, make no list that is many times as large as the text.
TEST_F(Memory, OfATextIsAFewTimesItsLengthWhateverItsLines) {
    constexpr std::size_t length = std::size_t{1} << 20U;
    for (const std::string_view piece : {"\n", "a\n", "00 ", "00\n", "0,"}) {
        std::string text;
        text.reserve(length + piece.size());
        while (text.size() < length) {
            text += piece;
        }
        const std::string name = folder_.write("long.txt", text);
        const Outcome outcome = run({"inspect", name}, [](const auto& work) {
            const FailingSize size(3 * length);
            work();
        });
        EXPECT_EQ(outcome.status, somethingFailed);
        EXPECT_THAT(outcome.errors, StartsWith("edidwb: " + name + ": is no EDID image: ")) << piece;
    }
}

/// Where a thread cannot be begun, those that run already do the work.
TEST(MemoryOfJobs, TheWorkIsDoneByTheThreadsThatThereAre) {
    int ended = 0;
    for (std::size_t number = 1; number < 20; ++number) {
        std::size_t i = 0;
        std::size_t sum = 0;
        const FailingRequest request(number);
        try {
            OrderedJobs<std::size_t, std::size_t>::run([&] { return i < 100 ? std::optional(i++) : std::nullopt; }, 4,
                                                       [](std::size_t item) { return item; },
                                                       [&](std::size_t, std::size_t result) { sum += result; });
            EXPECT_EQ(sum, 4950U) << number;
            ++ended;
        } catch (const std::bad_alloc&) {
            EXPECT_EQ(sum, 0U) << number;
        }
    }
    EXPECT_GT(ended, 0);
}

} // namespace
} // namespace wb::cli
