#include "script/parser.h"

#include <gtest/gtest.h>

#include "script/script_error.h"

namespace wb::script {
namespace {

std::string errorOf(std::string_view line) {
    try {
        parseLine(line);
    } catch (const ScriptError& error) {
        return error.what();
    }
    return {};
}

TEST(Parser, SkipsBlankAndCommentLines) {
    for (const char* line : {"", "   ", "\t", "# click", "  \t# \"open quote"}) {
        EXPECT_FALSE(parseLine(line)) << line;
    }
}

TEST(Parser, SeparatesArgumentsByBlanks) {
    const auto command = parseLine("  pick\tfrmCEA_EXT.TagCBox   3 ");
    ASSERT_TRUE(command);
    EXPECT_EQ(command->name, "pick");
    ASSERT_EQ(command->arguments.size(), 2U);
    EXPECT_EQ(command->arguments[0].text, "frmCEA_EXT.TagCBox");
    EXPECT_FALSE(command->arguments[0].quoted);
    EXPECT_EQ(command->arguments[1].text, "3");
}

TEST(Parser, HashInsideALineIsNoComment) {
    const auto command = parseLine("type # \"#\"");
    ASSERT_TRUE(command);
    ASSERT_EQ(command->arguments.size(), 2U);
    EXPECT_EQ(command->arguments[0].text, "#");
    EXPECT_EQ(command->arguments[1].text, "#");
}

TEST(Parser, ReadsEscapesOfQuotedArguments) {
    const auto command = parseLine(R"(call X "a b" "" "\"\\\n\r\t\x41\xfF\x00" cancel "cancel")");
    ASSERT_TRUE(command);
    const Arguments& arguments = command->arguments;
    ASSERT_EQ(arguments.size(), 6U);
    EXPECT_EQ(arguments[1].text, "a b");
    EXPECT_EQ(arguments[2].text, "");
    EXPECT_TRUE(arguments[2].quoted);
    EXPECT_EQ(arguments[3].text, std::string("\"\\\n\r\tA\xFF\0", 8));
    EXPECT_FALSE(arguments[4].quoted);
    EXPECT_TRUE(arguments[5].quoted);
}

TEST(Parser, BareBackslashesStandForThemselves) {
    EXPECT_EQ(parseLine(R"(dialog C:\new\x.DAT)")->arguments[0].text, R"(C:\new\x.DAT)");
}

TEST(Parser, PutsInOnlyTheTextsThatAreThere) {
    const Substitutions texts = {{"A", "a \"b\\n"}, {"AB", "cancel"}, {"EMPTY", ""}};
    const auto command = parseLine(R"($AB x$A.y "$A\x24A" $ABC $B "$" $ $AB "$EMPTY" $EMPTY)", texts);
    ASSERT_TRUE(command);
    EXPECT_EQ(command->name, "cancel");
    std::vector<std::string> arguments;
    for (const Argument& argument : command->arguments) {
        arguments.push_back(argument.text);
    }
    EXPECT_EQ(arguments,
              (std::vector<std::string>{"xa \"b\\n.y", "a \"b\\n$A", "$ABC", "$B", "$", "$", "cancel", "", ""}));
    EXPECT_FALSE(command->arguments[6].quoted);
    EXPECT_EQ(parseLine("type $A")->arguments[0].text, "$A");
    EXPECT_FALSE(parseLine("# $A", texts));
}

TEST(Parser, ANameGoesOnWithLettersDigitsAndUnderscores) {
    const std::string name = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";
    const Substitutions texts = {{"N", "text"}, {name, "whole"}};
    EXPECT_EQ(parseLine("type $" + name, texts)->arguments[0].text, "whole");
    for (char c = '!'; c <= '~'; ++c) {
        const bool goesOn = name.find(c) != std::string::npos;
        if (c != '"') {
            EXPECT_EQ(parseLine(std::string("type $N") + c, texts)->arguments[0].text,
                      (goesOn ? std::string("$N") : std::string("text")) + c);
        }
        EXPECT_EQ(isSubstitutionName(std::string("a") + c), goesOn) << c;
        EXPECT_EQ(isSubstitutionName(std::string(1, c)), goesOn && (c < '0' || c > '9')) << c;
    }
    EXPECT_FALSE(isSubstitutionName(""));
}

TEST(Parser, TellsWhatIsWrong) {
    struct Case {
        const char* line;
        const char* message;
    };
    for (const Case& c :
         {Case{R"(type "abc)", "a quoted argument without its closing quote"},
          Case{R"(type "abc\)", "a quoted argument without its closing quote"},
          Case{R"(type "\x4)", "a quoted argument without its closing quote"},
          Case{R"(type "\x4g")", "'\\x' needs two hexadecimal digits"}, Case{R"(type "\d")", "unknown escape '\\d'"},
          Case{R"(type "a"b)", "no blank after a quoted argument"},
          Case{R"(type a"b")", "a quote inside an argument that does not begin with one"},
          Case{R"("type" a)", "a quoted text where a command should stand"}}) {
        EXPECT_EQ(errorOf(c.line), c.message) << c.line;
    }
}

} // namespace
} // namespace wb::script
