#include "desktop/base/changed_bytes.h"

#include <gtest/gtest.h>

#include <random>

#include "desktop/base/byte_words.h"
#include "support/temporary_folder.h"

namespace wb::test {
namespace {

std::string sample(const char* name) {
    return TemporaryFolder::read(std::string(WORKBENCH_SOURCE_DIR "/samples/") + name);
}

fields::Reading readingOf(const std::string& bytes) {
    return fields::read(*Image::fromBytes(bytes));
}

std::vector<std::size_t> numbersOf(const std::vector<bool>& changed) {
    std::vector<std::size_t> numbers;
    for (std::size_t i = 0; i < changed.size(); ++i) {
        if (changed[i]) {
            numbers.push_back(i);
        }
    }
    return numbers;
}

std::string wordsOf(const fields::Reading& reading, std::size_t byte) {
    const desktop::ByteWords words = desktop::byteWords(reading, byte, "00");
    return (words.line() + '|' + words.labels + '|' + words.description()).toStdString();
}

/// Whatever words differ, the byte counts as changed.
void expectChangesFound(const std::string& before, const std::string& now, const std::string& what) {
    const fields::Reading old = readingOf(before);
    const fields::Reading fresh = readingOf(now);
    const std::vector<bool> changed = desktop::changedBytes(old, fresh);
    ASSERT_EQ(changed.size(), now.size()) << what;
    for (std::size_t byte = 0; byte < std::min(before.size(), now.size()); ++byte) {
        if (!changed[byte]) {
            EXPECT_EQ(wordsOf(old, byte), wordsOf(fresh, byte)) << what << ", byte " << byte;
        }
    }
}

TEST(ChangedBytes, AreNoneOfTheSameImage) {
    const fields::Reading reading = readingOf(sample("zarqo-z40.bin"));
    EXPECT_EQ(numbersOf(desktop::changedBytes(reading, readingOf(sample("zarqo-z40.bin")))),
              std::vector<std::size_t>());
}

TEST(ChangedBytes, AreThoseOfTheFieldsThatSayOtherThings) {
    const std::string before = sample("zarqo-z40.bin");
    std::string now = before;
    now[54] = 0; // the lower byte of the clock
    EXPECT_EQ(numbersOf(desktop::changedBytes(readingOf(before), readingOf(now))), (std::vector<std::size_t>{54, 55}))
        << "both bytes of the clock; the check sum is the number that it was";
}

TEST(ChangedBytes, HoldAllWhoseWordsDiffer) {
    constexpr const char* names[] = {"zarqo-z40.bin", "norvixan-nx3d.bin", "halvorine-hv19.bin",
                                     "ortheline-studio.bin"};
    std::mt19937 random(1);
    for (const char* name : names) {
        const std::string before = sample(name);
        expectChangesFound(sample(names[0]), before, name);
        expectChangesFound(before, sample(names[0]), name);
        for (int i = 0; i < 200; ++i) {
            std::string now = before;
            const std::size_t byte = random() % now.size();
            now[byte] = static_cast<char>(random());
            expectChangesFound(before, now, name + (" with another byte " + std::to_string(byte)));
        }
    }
}

} // namespace
} // namespace wb::test
