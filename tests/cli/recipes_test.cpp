// docs/recipes.md shows what comes out of its commands; here they are run.

#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>
#include <vector>

#include "cli/edidwb.h"
#include "platform/sysfs_folder.h"

namespace wb::test {
namespace {

struct Step {
    std::string command;
    std::vector<std::string> output;
};

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// The commands of all console blocks of a document.
std::vector<Step> stepsOf(const std::string& document) {
    std::vector<Step> steps;
    bool inBlock = false;
    for (const std::string& line : linesOf(document)) {
        if (line.starts_with("```")) {
            inBlock = line == "```console";
        } else if (inBlock && line.starts_with("$ ")) {
            steps.push_back({line.substr(2), {}});
        } else if (inBlock) {
            steps.at(steps.size() - 1).output.push_back(line);
        }
    }
    return steps;
}

/// Whether a line is what the document shows, which may leave its end out.
bool showsLine(const std::string& shown, const std::string& line) {
    return shown.ends_with("...") ? line.starts_with(shown.substr(0, shown.size() - 3)) : line == shown;
}

/// Whether lines are what the document shows, where a line of three points stands for any lines.
bool shows(const std::vector<std::string>& shown, const std::vector<std::string>& lines, std::size_t i = 0,
           std::size_t k = 0) {
    if (i == shown.size()) {
        return k == lines.size();
    }
    if (shown[i] == "...") {
        return shows(shown, lines, i + 1, k) || (k < lines.size() && shows(shown, lines, i, k + 1));
    }
    return k < lines.size() && showsLine(shown[i], lines[k]) && shows(shown, lines, i + 1, k + 1);
}

class RecipesTest : public Edidwb {
protected:
    /// The folder of images that the document speaks of, and a system with a monitor.
    std::string preparation() const {
        return "mkdir images\ncp $SAMPLES/*.bin images\n"
               "printf '\\xB4' | dd of=images/halvorine-hv19.bin bs=1 seek=127 conv=notrunc status=none\n"
               "edidwb() { case $1 in monitors|read|override) '" EDIDWB "' \"$@\" --sysfs '" +
               sysfs_.root().string() + "';; *) '" EDIDWB "' \"$@\";; esac; }\n";
    }

    SysfsFolder sysfs_;
};

/// In one session, in which each command sees the files and the status that those before it left.
TEST_F(RecipesTest, GiveWhatTheirDocumentShows) {
    sysfs_.addConnector("card0-HDMI-A-1", "connected", sample("zarqo-z40.bin"));
    const std::vector<Step> steps = stepsOf(TemporaryFolder::read(WORKBENCH_SOURCE_DIR "/docs/recipes.md"));
    ASSERT_GE(steps.size(), 12U);
    const std::string mark = "-- end of a command --";
    std::string script = preparation() + "exec 2>&1\n";
    for (const Step& step : steps) {
        script.append(step.command).append("\nstatus=$?; echo '").append(mark).append("'; (exit $status)\n");
    }
    const std::vector<std::string> lines = linesOf(shell(script).output);
    auto line = lines.begin();
    for (const Step& step : steps) {
        const auto end = std::find(line, lines.end(), mark);
        ASSERT_NE(end, lines.end()) << step.command;
        const std::vector<std::string> output(line, end);
        EXPECT_TRUE(shows(step.output, output)) << step.command << "\ngives\n"
                                                << testing::PrintToString(output) << "\nand the document shows\n"
                                                << testing::PrintToString(step.output);
        line = end + 1;
    }
}

} // namespace
} // namespace wb::test
