#include <gmock/gmock.h>

#include <sstream>

#include "cli/edidwb.h"

namespace wb::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using UsageTest = Edidwb;

/// What follows a message: of a command, for those that stand before it there is none.
std::string hintOf(const std::string& command) {
    return "\nTry 'edidwb" + (command.empty() ? "" : " " + command) + " --help' for more information.\n";
}

TEST_F(UsageTest, TellsItsVersionAndHelp) {
    const Outcome version = shell("edidwb --version");
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output.substr(0, 7), "edidwb ");
}

TEST_F(UsageTest, TellsTheStatusesOfEachCommandAndTwoExamples) {
    const Outcome all = shell("edidwb --help");
    EXPECT_EQ(all.status, 0);
    EXPECT_THAT(all.output, HasSubstr("Usage: edidwb "));
    EXPECT_EQ(shell("edidwb help").output, all.output);
    // The commands are the first words of the lines below that heading, to the empty line.
    std::istringstream lines(all.output.substr(all.output.find("Subcommands:\n")));
    std::string line;
    std::getline(lines, line);
    std::size_t commands = 0;
    for (; std::getline(lines, line) && !line.empty(); ++commands) {
        const std::string name = line.substr(2, line.find(' ', 2) - 2);
        SCOPED_TRACE(name);
        const Outcome help = shell("edidwb " + name + " --help");
        EXPECT_EQ(help.status, 0);
        EXPECT_EQ(help.errors, "");
        EXPECT_THAT(help.output, HasSubstr("Usage: edidwb " + name));
        EXPECT_THAT(help.output, HasSubstr("\nExit status: 0 "));
        EXPECT_THAT(help.output, HasSubstr(", 2 "));
        std::size_t examples = 0;
        for (std::size_t place = 0; (place = help.output.find("\n  ", place)) != std::string::npos; ++place) {
            const std::string example = help.output.substr(place, help.output.find('\n', place + 1) - place);
            examples += example.find("edidwb " + name) != std::string::npos ? 1 : 0;
        }
        EXPECT_GE(examples, 2U);
        EXPECT_EQ(shell("edidwb help " + name).output, help.output);
    }
    EXPECT_GE(commands, 12U);
}

TEST_F(UsageTest, WrongUseHasStatus2) {
    for (const char* arguments : {"",
                                  "frob",
                                  "--frob",
                                  "translate",
                                  "translate --frob x",
                                  "translate --jobs -1 x",
                                  "translate --jobs two x",
                                  "translate --jobs",
                                  "translate --date 2004-02-30 x",
                                  "translate - -",
                                  "translate --strict=maybe x",
                                  "translate --strict=false x",
                                  "translate --strict= x",
                                  "translate --date '' x",
                                  "translate --date= x",
                                  "translate --output-dir '' x",
                                  "translate -o '' x",
                                  "translate --output-dir= nd x",
                                  "translate --jobs= 2 x",
                                  "convert --force=0 --to bin a b",
                                  "--version=",
                                  "read a b",
                                  "read ''",
                                  "read --all",
                                  "read -o nd",
                                  "read --all -o nd x",
                                  "read --force x",
                                  "read --i2c x",
                                  "read --i2c 1 DP-1",
                                  "read --i2c 1 --all -o nd",
                                  "read --all -o ''",
                                  "read --to",
                                  "monitors x",
                                  "monitors --frob",
                                  "check",
                                  "check - -",
                                  "check --level bad x",
                                  "check --fail-on never x",
                                  "check --format xml x",
                                  "check --quiet=no x",
                                  "inspect",
                                  "inspect - -",
                                  "inspect --format xml x",
                                  "diff a",
                                  "diff a b c",
                                  "diff --format tsv a b",
                                  "translate --format tsv x",
                                  "convert a b",
                                  "convert --to bin a",
                                  "convert --to gif a b",
                                  "convert --to bin a b c",
                                  "repair --dry-run",
                                  "repair x",
                                  "repair --in-place -o nd x",
                                  "repair --backup -o nd x",
                                  "repair --in-place -",
                                  "repair --dry-run - -",
                                  "repair -o '' x",
                                  "scrub -o nd",
                                  "scrub x",
                                  "override DP-1",
                                  "override DP-1 a b",
                                  "override --root . DP-1 x",
                                  "override --force DP-1 x",
                                  "override --name a/b DP-1 x",
                                  "override --name .b DP-1 x",
                                  "override '' x",
                                  "set --maker ABC",
                                  "set x -o nd",
                                  "set --maker ABC x",
                                  "set --maker '' x -o nd",
                                  "set --frob x -o nd",
                                  "script a b"}) {
        const Outcome outcome = shell("edidwb " + std::string(arguments));
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_EQ(outcome.output, "") << arguments;
        EXPECT_EQ(outcome.errors.substr(0, 8), "edidwb: ") << arguments;
        EXPECT_THAT(outcome.errors, HasSubstr("\nTry 'edidwb "));
        EXPECT_THAT(outcome.errors, EndsWith("--help' for more information.\n"));
    }
}

TEST_F(UsageTest, OptionsMayStandAnywhereAndEndAtTwoDashes) {
    const std::string image = sample("halvorine-hv19.bin");
    for (const char* name : {"check", "-x", "[a]", "{}", "--help", "a b"}) {
        write(name, image);
    }
    EXPECT_EQ(shell("edidwb check check").status, 0);
    EXPECT_EQ(shell("edidwb check '[a]' '{}' 'a b'").status, 0);
    EXPECT_EQ(shell("edidwb translate check --strict --jobs=2 '[a]' -j 1").status, 0);
    const Outcome dashes = shell("edidwb check -- -x --help");
    EXPECT_EQ(dashes.status, 0) << dashes.errors;
    EXPECT_EQ(dashes.output.substr(0, 3), "-x:");
    for (const char* arguments : {"check check -- -x --help", "check -- check -x", "translate check -- '{}' -x",
                                  "translate -j 2 check '[a]' -- --help", "convert --to bin check -- --",
                                  "convert --to bin --force -- -x -x", "check -- -- '[a]'", "check ++ -- ++"}) {
        write("++", image);
        const Outcome outcome = shell("edidwb " + std::string(arguments));
        EXPECT_EQ(outcome.status, 0) << arguments << '\n' << outcome.errors;
    }
    EXPECT_EQ(read("--"), image);
    EXPECT_EQ(shell("edidwb translate check -- --jobs -x").errors, "edidwb: --jobs: No such file or directory\n");
}

TEST_F(UsageTest, ValuesStayAsTyped) {
    const std::string image = sample("halvorine-hv19.bin");
    write("[a]", image);
    for (const std::string name : {"[Desk]", "{}", "Desk="}) {
        for (const std::string& option : {"--name '" + name + "'", "'--name=" + name + "'"}) {
            const Outcome outcome = shell("edidwb set --dry-run '[a]' " + option);
            EXPECT_EQ(outcome.status, 0) << outcome.errors;
            EXPECT_EQ(outcome.output, "[a]: name set to '" + name + "'\n");
        }
    }
    for (const char* option : {"-o '[d]'", "'-o[d]'", "--output-dir '[d]'", "'--output-dir=[d]'", "'-fo[d]'"}) {
        EXPECT_EQ(shell("edidwb repair " + std::string(option) + " '[a]'").status, 0) << option;
        EXPECT_EQ(shell("cmp '[a]' '[d]/[a]' && rm -r '[d]'").status, 0) << option;
    }
    EXPECT_THAT(shell("edidwb check '[a]' --output-name '[x]'").errors, HasSubstr("'[x]'"));
}

TEST_F(UsageTest, NamesWhatIsWrong) {
    struct Case {
        std::string arguments;
        std::string message;
    };
    for (const Case& c : {Case{"nosuch", "there is no command 'nosuch'"},
                          Case{"transalte", "there is no command 'transalte'; did you mean 'translate'?"},
                          Case{"insp x", "there is no command 'insp'; did you mean 'inspect'?"},
                          Case{"--no", "there is no option '--no'"}, Case{"--no check", "there is no option '--no'"},
                          Case{"--verson", "there is no option '--verson'; did you mean '--version'?"},
                          Case{"", "no command is given; 'edidwb help' lists them"}}) {
        const std::string message = "edidwb: " + c.message;
        EXPECT_EQ(shell("edidwb " + c.arguments).errors, message + hintOf("")) << c.arguments;
    }
    for (const Case& c :
         {Case{"help chek", "there is no command 'chek'; did you mean 'check'?"},
          Case{"help check read", "not expected: read"},
          Case{"script a b c", "not expected: b c"},
          Case{"read a b", "not expected: b"},
          Case{"diff a b c d", "not expected: c d"},
          Case{"check --frob", "there is no option '--frob'; did you mean '--from'?"},
          Case{"check --recusrive x", "there is no option '--recusrive'; did you mean '--recursive'?"},
          Case{"check --lvel=note x", "there is no option '--lvel'; did you mean '--level'?"},
          Case{"check -z x", "there is no option '-z'"},
          Case{"check", "FILE is required"},
          Case{"convert a b", "--to is required"},
          Case{"convert --to", "--to needs a value"},
          Case{"translate -j", "--jobs needs a value"},
          Case{"translate --strict=yes x", "--strict takes no value"},
          Case{"convert --to pdf a b", "'pdf' is no format: dat, report, bin, hex, c, base64, reg, inf, xxd"},
          Case{"diff --format tsv a b", "'tsv' is no format: text, json"},
          Case{"check --level bad x", "'bad' is no level: error, warning, note"},
          Case{"check --from 'a not in {b}' x",
               "'a not in {b}' is no form: gzip, bin, dat, base64, decimal, string, dump, hex"},
          Case{"translate --heading now x", "'now' is no value of --heading: auto, always, never"},
          Case{"translate --output-dir= nd a", "no value in '--output-dir='"},
          Case{"translate --date '' a", "--date: the value is empty"},
          Case{"read --all -o nd x", "--all and a connector exclude each other"},
          Case{"read --i2c 1 DP-1", "--i2c excludes --all and a connector"},
          Case{"read --i2c 1 --all -o nd", "--i2c excludes --all and a connector"},
          Case{"read --all", "--all and --output-dir belong together"},
          Case{"read -o nd", "--all and --output-dir belong together"},
          Case{"read --force x", "--force belongs to --all"},
          Case{"read --no-sync x", "--no-sync belongs to --all"},
          Case{"override --root . DP-1 x", "--root belongs to --install"},
          Case{"override --force DP-1 x", "--force belongs to --install"},
          Case{"repair --in-place -o nd x", "--in-place and --output-dir exclude each other"},
          Case{"repair x", "one of --output-dir, --in-place and --dry-run is required"},
          Case{"repair --backup -o nd x", "--backup belongs to --in-place"},
          Case{"repair --in-place -", "standard input cannot be changed in place"},
          Case{"set -o nd", "FILE or --new is required"},
          Case{"set -o nd x", "nothing is to be set"}}) {
        const std::string message = "edidwb: " + c.message;
        const std::string command = c.arguments.substr(0, c.arguments.find(' '));
        EXPECT_EQ(shell("edidwb " + c.arguments).errors, message + hintOf(command)) << c.arguments;
    }
}

TEST_F(UsageTest, TheHelpOfConvertTellsThatDecodingMayChangeTheImage) {
    EXPECT_THAT(shell("edidwb convert --help").output, HasSubstr("a flag of a detailed timing may differ from IN"));
}

TEST_F(UsageTest, ANameForgesNoLine) {
    EXPECT_EQ(shell("edidwb check $'a\\r\\nedidwb: b.bin'").errors,
              "edidwb: a\\x0D\\x0Aedidwb: b.bin: No such file or directory\n");
}

TEST_F(UsageTest, OutputThatCannotBeWrittenIsAnError) {
    for (const char* command :
         {"edidwb --help >/dev/full", "edidwb --version >/dev/full",
          "edidwb translate $SAMPLES/zarqo-z40.bin >/dev/full", "edidwb check $SAMPLES/zarqo-z40.bin >/dev/full",
          "edidwb convert --to bin $SAMPLES/zarqo-z40.bin - >/dev/full", "echo windows | edidwb script >/dev/full",
          "edidwb translate $SAMPLES/zarqo-z40.bin >&-",
          "edidwb diff --format json $SAMPLES/zarqo-z40.bin $SAMPLES/zarqo-z40.bin >/dev/full"}) {
        const Outcome outcome = shell(command);
        const bool compares = std::string_view(command).find("diff") != std::string_view::npos; // 1 has a meaning there
        EXPECT_EQ(outcome.status, compares ? 2 : 1) << command;
        EXPECT_EQ(outcome.errors.substr(0, 25), "edidwb: standard output: ") << command << '\n' << outcome.errors;
    }
}

/// As the system ends a program that writes into a pipe without a reader: by signal 13, which a shell tells as 141.
TEST_F(UsageTest, APipeThatNobodyReadsEndsTheProgramWithoutAWord) {
    for (const char* command :
         {"for i in {1..200}; do echo $SAMPLES/zarqo-z40.bin; done >list; (edidwb translate --jobs 3 --files-from "
          "list; "
          "echo status $? >&2) | head -c 100 >/dev/null",
          "yes windows | head -n 20000 | (edidwb script; echo status $? >&2) | head -n 1 >/dev/null"}) {
        EXPECT_EQ(shell(command).errors, "status 141\n") << command;
    }
}

} // namespace
} // namespace wb::test
