#include "cli/syntax.h"

#include <gtest/gtest.h>

#include "cli/cli_error.h"

namespace wb::cli {
namespace {

std::vector<std::string> colours() {
    return {"red", "green"};
}

std::string helpOfDepth() {
    return "How deep, " + std::to_string(3) + " at most";
}

/// A command with an option of each kind.
struct Command {
    Command() {
        syntax.operand("FILE", "What is painted", &file).require();
        syntax.operand("LAYER", "What is put on it", &layers);
        syntax.flag("-f,--force", "Paint over it", force);
        syntax.flag("-0,--null", "End with NUL", null);
        syntax.flag("--no-frame", "Leave out the frame", frame).sets(false);
        syntax.option("-d,--depth", "N", &helpOfDepth, &depth);
        syntax.option("--colour", "FORM", "", &colour).oneOf(&colours);
        syntax.option("--hue", "HUE", "Of the frame", &hue).oneOf(&colours);
        syntax.option("--name-of-the-painter", "NAME", "Who paints", &painter).refuseEmpty();
        syntax.option("--mark", "TEXT", "Several are taken", &marks);
        syntax.footer("That is all.");
    }

    /// What is wrong with the arguments; empty where nothing is.
    std::string errorOf(const std::vector<std::string>& arguments) {
        try {
            syntax.read(arguments);
            return {};
        } catch (const UsageError& error) {
            return error.what();
        }
    }

    Syntax syntax{"paint", "Paints a file."};
    std::string file;
    std::vector<std::string> layers;
    bool force = false;
    bool null = false;
    bool frame = true;
    std::string depth = "1";
    std::string colour = "red";
    std::string hue;
    std::optional<std::string> painter;
    std::vector<std::string> marks;
};

using Texts = std::vector<std::string>;

TEST(Syntax, LeavesWhatIsNotGiven) {
    Command command;
    EXPECT_EQ(std::nullopt, command.syntax.read({"wall"}));
    EXPECT_EQ(command.file, "wall");
    EXPECT_EQ(command.layers, Texts{});
    EXPECT_FALSE(command.force);
    EXPECT_TRUE(command.frame);
    EXPECT_EQ(command.depth, "1");
    EXPECT_EQ(command.painter, std::nullopt);
}

TEST(Syntax, TakesValuesFromTheSameArgumentOrTheNext) {
    for (const Texts& arguments : {Texts{"wall", "--depth", "22"}, Texts{"--depth=22", "wall"},
                                   Texts{"-d", "22", "wall"}, Texts{"-d22", "wall"}, Texts{"-fd22", "wall"}}) {
        Command command;
        EXPECT_EQ(std::nullopt, command.syntax.read(arguments));
        EXPECT_EQ(command.depth, "22");
        EXPECT_EQ(command.file, "wall");
    }
    Command command;
    EXPECT_EQ(std::nullopt, command.syntax.read({"wall", "--depth", "--force", "--mark=a=b"}));
    EXPECT_EQ(command.depth, "--force") << "the next argument, whatever it is";
    EXPECT_EQ(command.marks, Texts{"a=b"});
}

TEST(Syntax, TakesWhatLooksLikeAListAsItIs) {
    for (const std::string text : {"[a]", "[a,b]", "[]", "{}", "{a}", "a]", "a=", "="}) {
        for (const Texts& arguments :
             {Texts{text, "--depth", text, "--mark", text, "--mark=" + text, text, "x", text},
              Texts{"-d", text, "--mark=" + text, text, "--mark", text, text, "x", text},
              Texts{"-d" + text, text, text, "--mark", text, "--mark", text, "--", "x", text},
              Texts{"-fd" + text, "--mark", text, "--mark", text, "--", text, text, "x", text},
              Texts{"--mark", text, text, text, "-fd", text, "--mark=" + text, "x", "--", text},
              Texts{"--depth=" + text, "--mark", text, "--mark", text, text, text, "x", text}}) {
            Command command;
            EXPECT_EQ(command.errorOf(arguments), "") << text;
            EXPECT_EQ(command.depth, text);
            EXPECT_EQ(command.marks, (Texts{text, text}));
            EXPECT_EQ(command.file, text);
            EXPECT_EQ(command.layers, (Texts{text, "x", text}));
        }
    }
}

TEST(Syntax, AValueThatWasBegunMustBeThere) {
    EXPECT_EQ(Command().errorOf({"--depth=", "wall"}), "no value in '--depth='");
    EXPECT_EQ(Command().errorOf({"wall", "--name-of-the-painter="}), "no value in '--name-of-the-painter='");
    EXPECT_EQ(Command().errorOf({"wall", "--colour="}), "no value in '--colour='");
    EXPECT_EQ(Command().errorOf({"wall", "--force="}), "--force takes no value");
    Command command;
    EXPECT_EQ(command.errorOf({"--depth", "--mark=", "--", "--depth="}), "");
    EXPECT_EQ(command.depth, "--mark=");
    EXPECT_EQ(command.file, "--depth=");
}

TEST(Syntax, TakesTheLastValueOrAllOfThem) {
    Command command;
    EXPECT_EQ(std::nullopt,
              command.syntax.read({"wall", "--depth=1", "--mark", "a", "--depth=2", "--mark", "b", "l1", "l2"}));
    EXPECT_EQ(command.depth, "2");
    EXPECT_EQ(command.marks, (Texts{"a", "b"}));
    EXPECT_EQ(command.layers, (Texts{"l1", "l2"}));
}

TEST(Syntax, SetsFlagsAloneAndInAHeap) {
    Command command;
    EXPECT_EQ(std::nullopt, command.syntax.read({"-0f", "--no-frame=true", "wall"}));
    EXPECT_TRUE(command.force);
    EXPECT_TRUE(command.null);
    EXPECT_FALSE(command.frame);
}

TEST(Syntax, TakesForOperandsWhatIsNoOption) {
    Command command;
    EXPECT_EQ(std::nullopt, command.syntax.read({"-", "-5", "---", "-f7", "--", "--force", "--"}));
    EXPECT_EQ(command.file, "-");
    EXPECT_EQ(command.layers, (Texts{"-5", "---", "-7", "--force", "--"}));
    EXPECT_TRUE(command.force);
}

TEST(Syntax, AsksForTheHelpBeforeItMissesAnything) {
    EXPECT_EQ(Command().syntax.read({"-h"}), Command().syntax.read({"a", "--frob", "--help"}));
    EXPECT_EQ(Command().errorOf({"--colour=blue", "--help"}), "'blue' is no form: red, green");
}

TEST(Syntax, TellsWhatIsWrong) {
    EXPECT_EQ(Command().errorOf({}), "FILE is required");
    EXPECT_EQ(Command().errorOf({"wall", "--depth"}), "--depth needs a value");
    EXPECT_EQ(Command().errorOf({"wall", "-d"}), "--depth needs a value");
    EXPECT_EQ(Command().errorOf({"wall", "--force=no"}), "--force takes no value");
    EXPECT_EQ(Command().errorOf({"wall", "--colour", "blue"}), "'blue' is no form: red, green");
    EXPECT_EQ(Command().errorOf({"wall", "--hue", "blue", "--hue", "red"}), "'blue' is no value of --hue: red, green");
    EXPECT_EQ(Command().errorOf({"wall", "--name-of-the-painter", ""}), "--name-of-the-painter: the value is empty");
    EXPECT_EQ(Command().errorOf({"wall", "--dept=1"}), "there is no option '--dept'; did you mean '--depth'?");
    EXPECT_EQ(Command().errorOf({"wall", "-fx"}), "there is no option '-x'");
    EXPECT_EQ(Command().errorOf({"wall", "-f]"}), "there is no option '-]'");
    EXPECT_EQ(Command().errorOf({"wall", "--dept="}), "there is no option '--dept'; did you mean '--depth'?");
    EXPECT_EQ(Command().errorOf({"wall", "--hue", "[blue]"}), "'[blue]' is no value of --hue: red, green");
    EXPECT_EQ(Command().errorOf({"wall", "--nul", "--colour=blue"}),
              "there is no option '--nul'; did you mean '--null'?")
        << "what was met first";
}

TEST(Syntax, TellsAllArgumentsThatNobodyTakes) {
    bool loud = false;
    Syntax syntax("ring", "Rings.");
    syntax.flag("--loud", "So that all hear it", loud);
    try {
        syntax.read({"a", "[b]", "{}", "--loud"});
        FAIL();
    } catch (const UsageError& error) {
        EXPECT_STREQ(error.what(), "not expected: a [b] {}");
    }
}

TEST(Syntax, TellsAllOfItInTheHelp) {
    EXPECT_EQ(Command().syntax.read({"--help"}),
              "Paints a file.\n"
              "Usage: paint [OPTIONS] FILE [LAYER...]\n"
              "\n"
              "Positionals:\n"
              "  FILE REQUIRED               What is painted\n"
              "  LAYER ...                   What is put on it\n"
              "\n"
              "Options:\n"
              "  -h,--help                   Print this help message and exit\n"
              "  -f,--force                  Paint over it\n"
              "  -0,--null                   End with NUL\n"
              "  --no-frame                  Leave out the frame\n"
              "  -d,--depth N                How deep, 3 at most\n"
              "  --colour FORM:{red,green}   red (the default), green\n"
              "  --hue HUE:{red,green}       Of the frame\n"
              "  --name-of-the-painter NAME  Who paints\n"
              "  --mark TEXT ...             Several are taken\n"
              "\n"
              "That is all.\n");
}

TEST(Syntax, OfAProgramTellsItsCommandsAndItsVersion) {
    Syntax syntax("ring", "Rings.");
    syntax.version("ring 7");
    syntax.subcommand("softly", "So that nobody hears it");
    syntax.footer("That is all.");
    EXPECT_EQ(syntax.read({"--version"}), "ring 7\n");
    EXPECT_EQ(syntax.read({"--help"}),
              "Rings.\n"
              "Usage: ring [OPTIONS] SUBCOMMAND\n"
              "\n"
              "Options:\n"
              "  -h,--help                   Print this help message and exit\n"
              "  --version                   Display program version information and exit\n"
              "\n"
              "Subcommands:\n"
              "  softly                      So that nobody hears it\n"
              "\n"
              "That is all.\n");
}

} // namespace
} // namespace wb::cli
