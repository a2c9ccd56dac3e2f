#include "files/text_file.h"

#include <gtest/gtest.h>

#include <optional>

#include "core/base/failure.h"
#include "support/temporary_folder.h"

namespace wb::files {
namespace {

using Lines = std::vector<std::string>;

template <class Body>
std::optional<FailureKind> failureOf(Body&& body) {
    try {
        body();
    } catch (const Failure& failure) {
        return failure.kind();
    }
    return std::nullopt;
}

class TextFile : public testing::Test {
protected:
    static Lines linesOf(LineReader reader) {
        Lines lines;
        while (!reader.atEnd()) {
            lines.push_back(reader.readLine());
        }
        return lines;
    }
    /// The lines of a file of that content, which are those of the content itself.
    Lines linesOf(std::string_view content) {
        Lines lines = linesOf(LineReader(folder.write("lines.txt", content)));
        EXPECT_EQ(linesOf(LineReader::ofText(content)), lines);
        return lines;
    }

    test::TemporaryFolder folder;
};

TEST_F(TextFile, LinesEndWithALineFeedThatMayHaveACarriageReturnBeforeIt) {
    EXPECT_EQ(linesOf("one\ntwo\r\n\r\n\nlast\n"), (Lines{"one", "two", "", "", "last"}));
    EXPECT_EQ(linesOf("one\nno end"), (Lines{"one", "no end"}));
    EXPECT_EQ(linesOf(""), Lines{});
    EXPECT_EQ(linesOf("\n"), Lines{""});
}

TEST_F(TextFile, OtherCharactersBelongToTheLine) {
    EXPECT_EQ(linesOf("a\rb\r\r\nc\r"), (Lines{"a\rb\r", "c\r"}));
    EXPECT_EQ(linesOf(std::string_view("\0\x1A\xFF\n", 4)), Lines{std::string("\0\x1A\xFF", 3)});
}

TEST_F(TextFile, LinesMayBeOfAnyLength) {
    // Line ends at and around the places where a piece of the file ends, as far as that is of a power of two.
    for (const std::size_t length : {65534U, 65535U, 65536U, 200000U}) {
        const std::string text(length, 'x');
        EXPECT_EQ(linesOf(text + "\r\nrest"), (Lines{text, "rest"})) << length;
        EXPECT_EQ(linesOf(text + "\nrest"), (Lines{text, "rest"})) << length;
    }
}

TEST_F(TextFile, ThereIsNoLinePastTheEnd) {
    LineReader reader(folder.write("lines.txt", "one"));
    reader.readLine();
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(failureOf([&] { reader.readLine(); }), FailureKind::InputPastEnd);
    EXPECT_EQ(failureOf([] { LineReader::ofText("").readLine(); }), FailureKind::InputPastEnd);
}

TEST_F(TextFile, WhatCannotBeOpenedIsAFailure) {
    const auto reading = [](const std::string& name) { return failureOf([&] { const LineReader reader(name); }); };
    const auto writing = [](const std::string& name) { return failureOf([&] { const Writer writer(name); }); };
    const std::string file = folder.write("file", "");
    EXPECT_EQ(reading(folder.file("missing")), FailureKind::FileNotFound);
    EXPECT_EQ(reading(folder.file("missing/file")), FailureKind::PathFileAccess);
    EXPECT_EQ(writing(folder.file("missing/file")), FailureKind::PathFileAccess);
    for (const std::string& name : {std::string(), folder.file(""), file + "/file"}) {
        EXPECT_EQ(reading(name), FailureKind::PathFileAccess) << name;
        EXPECT_EQ(writing(name), FailureKind::PathFileAccess) << name;
    }
}

TEST_F(TextFile, AReadErrorIsAFailure) {
    const std::string unreadable = "/proc/self/mem"; // can be opened, but has nothing at its start
    if (!fileExists(unreadable)) {
        GTEST_SKIP() << "no " << unreadable;
    }
    LineReader reader(unreadable);
    EXPECT_EQ(failureOf([&] { reader.atEnd(); }), FailureKind::PathFileAccess);
}

TEST_F(TextFile, WhatTheSystemRefusesIsDenied) {
    const std::string fixed = "/sys/kernel/uevent_seqnum"; // no user may write to it
    if (!fileExists(fixed)) {
        GTEST_SKIP() << "no " << fixed;
    }
    EXPECT_EQ(failureOf([&] { const Writer writer(fixed); }), FailureKind::PermissionDenied);
    EXPECT_EQ(failureOf([&] { deleteFile(fixed); }), FailureKind::PermissionDenied);
}

TEST_F(TextFile, AWriterReplacesWhatWasThere) {
    const std::string name = folder.write("out.txt", "a longer text than the new one");
    Writer writer(name);
    writer.write("one\r\n");
    writer.write(std::string_view("\0two", 4));
    writer.close();
    EXPECT_EQ(test::TemporaryFolder::read(name), std::string("one\r\n\0two", 9));
}

TEST_F(TextFile, AWriterThatGoesClosesItsFile) {
    const std::string name = folder.file("out.txt");
    { Writer(name).write("text"); }
    EXPECT_EQ(test::TemporaryFolder::read(name), "text");
}

TEST_F(TextFile, AClosedWriterTakesNoMore) {
    Writer writer(folder.file("out.txt"));
    writer.close();
    EXPECT_EQ(failureOf([&] { writer.write("text"); }), FailureKind::PathFileAccess);
    EXPECT_EQ(failureOf([&] { writer.close(); }), std::nullopt);
}

TEST_F(TextFile, AFullDeviceIsToldAtTheLatestByTheClose) {
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "no device that is always full";
    }
    Writer whole("/dev/full");
    EXPECT_EQ(failureOf([&] { whole.write("text"); }), std::nullopt);
    EXPECT_EQ(failureOf([&] { whole.close(); }), FailureKind::DiskFull);
    EXPECT_EQ(failureOf([&] { whole.close(); }), std::nullopt) << "the file is closed all the same";
    Writer each("/dev/full", Writer::Buffering::EachWrite);
    EXPECT_EQ(failureOf([&] { each.write("text"); }), FailureKind::DiskFull);
    EXPECT_EQ(failureOf([&] { each.write("text"); }), FailureKind::DiskFull);
}

TEST_F(TextFile, OnlyOrdinaryFilesExistAsFiles) {
    EXPECT_TRUE(fileExists(folder.write("file", "")));
    EXPECT_FALSE(fileExists(folder.file("")));
    EXPECT_FALSE(fileExists(folder.file("missing")));
    EXPECT_FALSE(fileExists(""));
}

TEST_F(TextFile, DeletesFiles) {
    const std::string name = folder.write("file", "text");
    deleteFile(name);
    EXPECT_FALSE(fileExists(name));
    EXPECT_EQ(failureOf([&] { deleteFile(name); }), FailureKind::FileNotFound);
    folder.write("other", "");
    EXPECT_EQ(failureOf([&] { deleteFile(folder.file(".")); }), FailureKind::PathFileAccess);
}

} // namespace
} // namespace wb::files
