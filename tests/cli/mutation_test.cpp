#include "support/mutation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/cli_error.h"
#include "cli/program.h"
#include "cli/samples.h"
#include "core/base/code_page.h"
#include "core/base/digits.h"
#include "core/base/text.h"
#include "files/data_file.h"
#include "forms/recogniser.h"
#include "platform/headless/registry_export.h"
#include "script/parser.h"
#include "script/script_error.h"
#include "support/program.h"
#include "support/temporary_folder.h"

/// Readers of foreign bytes meet inputs that nobody thought of. What they give is checked against what must hold for
/// any input; run with the sanitizers, this finds more.
namespace wb::test {
namespace {

constexpr int rounds = 3000;

std::string scenarioFile(const std::string& name) {
    return TemporaryFolder::read(WORKBENCH_SOURCE_DIR "/tests/scenarios/" + name);
}

TEST(Mutations, ScriptLinesParseOrAreTold) {
    Mutator mutator(1, {"\"", "\\", "\\x", "#", " ", "\t", "(", ")", "."});
    int good = 0;
    for (int i = 0; i < rounds; ++i) {
        const std::string line = mutator.mutate(R"(poke frmEDID.txtEdit(8) "a\"b\\ \x4C\n")");
        try {
            const auto command = script::parseLine(line);
            if (!command) {
                continue;
            }
            ++good;
            // What is printed quoted is read back as it was.
            std::string again = command->name;
            for (const script::Argument& argument : command->arguments) {
                again += ' ' + wb::quoted(argument.text);
            }
            const auto readBack = script::parseLine(again);
            ASSERT_TRUE(readBack) << again;
            ASSERT_EQ(readBack->arguments.size(), command->arguments.size()) << again;
            for (std::size_t n = 0; n < command->arguments.size(); ++n) {
                EXPECT_EQ(readBack->arguments[n].text, command->arguments[n].text) << again;
            }
        } catch (const script::ScriptError& error) {
            EXPECT_STRNE(error.what(), "");
        }
    }
    EXPECT_GT(good, rounds / 10) << "too few inputs get through for the test to say much";
}

TEST(Mutations, RegistryExportsParseOrAreToldByLine) {
    const std::string seed = scenarioFile("files/monitors.reg");
    ASSERT_FALSE(seed.empty());
    Mutator mutator(2, {"[", "]", "\"", "\\", "=", "hex:", "hex(7):", "dword:", ",", "\r\n", "\n", ";",
                        "@=", "\xFF\xFE", "\xEF\xBB\xBF", "[HKEY_LOCAL_MACHINE\\"});
    int good = 0;
    for (int i = 0; i < rounds; ++i) {
        const std::string content = mutator.mutate(seed);
        EXPECT_LE(decodeTextFile(content).size(), content.size());
        try {
            for (const platform::headless::RegistryKey& key : platform::headless::parseRegistryExport(content)) {
                EXPECT_FALSE(upperCase(key.path).starts_with("HKEY_LOCAL_MACHINE"));
            }
            ++good;
        } catch (const platform::headless::RegistryExportError& error) {
            const auto lines = 1 + std::count(content.begin(), content.end(), '\n');
            EXPECT_GE(error.line(), 1);
            EXPECT_LE(error.line(), lines);
        }
    }
    EXPECT_GT(good, rounds / 100);
}

/// The digits of a hexadecimal text, without what may stand between them.
std::string digitsOf(const std::string& text) {
    std::string digits;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i + 1 < text.size() && text[i] == '0' && upperCase(text[i + 1]) == 'X') {
            ++i;
        } else if (hexDigit(text[i]) >= 0) {
            digits += upperCase(text[i]);
        }
    }
    return digits;
}

TEST(Mutations, HexadecimalTextsGiveTheirDigitsOrNothing) {
    std::string seed;
    for (const char byte : sample("zarqo-z40.bin")) {
        seed += ByteToHex2(static_cast<unsigned char>(byte)) + (seed.size() % 48 == 45 ? "\r\n" : " ");
    }
    Mutator mutator(3, {"0x", "0X", ",", " ", "\t", "\r\n", "00", "F"});
    int good = 0;
    for (int i = 0; i < rounds; ++i) {
        const std::string text = mutator.mutate(seed);
        const forms::Recognition result = forms::recognise(text);
        EXPECT_NE(result.images.empty(), result.refusal.empty());
        for (const Image& image : result.images) {
            ++good;
            EXPECT_TRUE(image.hasHeader());
            std::string digits;
            for (const std::uint8_t byte : image.bytes()) {
                digits += ByteToHex2(byte);
            }
            if (image.origin().form == "hex") {
                EXPECT_THAT(digitsOf(text), testing::HasSubstr(digits)) << text;
            }
        }
    }
    EXPECT_GT(good, rounds / 10);
}

TEST(Mutations, DataFilesGivePairsOfVisibleCharacters) {
    const std::string seed = TemporaryFolder::read(WORKBENCH_SOURCE_DIR "/samples/zarqo-z40.DAT");
    ASSERT_FALSE(seed.empty());
    const TemporaryFolder folder;
    Program program;
    Mutator mutator(4, {"|", "\r", "\n", "\x1A", "128 BYTES OF EDID CODE:", std::string(1, '\0'), " ", "00  "});
    int good = 0;
    for (int i = 0; i < rounds / 3; ++i) {
        const std::string content = mutator.mutate(seed);
        program.workbench.CurrentFileName = folder.write(std::to_string(i) + ".DAT", content);
        const bool found = files::ReadEDIDDataFile(program.workbench);
        const bool marked = upperCase(content).find(files::dataFileMarker) != std::string::npos;
        good += found ? 1 : 0;
        EXPECT_LE(found, marked) << "a file without the marker is none";
        const TextArray& cells = program.workbench.EDIDCells;
        ASSERT_EQ(cells.size(), 256);
        bool ended = false;
        for (int cell = 0; cell < cells.size(); ++cell) {
            ended = ended || cells(cell).empty();
            ASSERT_EQ(cells(cell).size(), ended ? 0U : 2U) << "pairs stand one after the other";
            for (const char c : cells(cell)) {
                EXPECT_GT(static_cast<unsigned char>(c), static_cast<unsigned char>(' '));
            }
        }
    }
    EXPECT_GT(good, rounds / 30);
}

/// The report of a file, or what was told of it.
std::string outcomeOf(const std::string& content) {
    cli::Program program;
    try {
        program.load(cli::contentsOf({"-", content}, {}));
        return program.report();
    } catch (const cli::CliError& error) {
        return error.what();
    }
}

TEST(Mutations, ImagesGiveTheSameReportEachTime) {
    for (const char* name : {"zarqo-z40.bin", "norvixan-nx3d.bin", "zarqo-z40.DAT"}) {
        Mutator mutator(5);
        for (int i = 0; i < rounds / 60; ++i) {
            const std::string content = mutator.mutate(sample(name));
            const std::string outcome = outcomeOf(content);
            EXPECT_FALSE(outcome.empty());
            EXPECT_EQ(outcomeOf(content), outcome);
        }
    }
}

} // namespace
} // namespace wb::test
