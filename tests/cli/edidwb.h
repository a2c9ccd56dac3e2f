#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <string>

#include "cli/samples.h"
#include "support/temporary_folder.h"

namespace wb::test {

/// What a run of the program left.
struct Outcome {
    int status = -1;
    std::string output;
    std::string errors;
};

/// Runs the program as a user at a shell does, in a folder of its own.
class Edidwb : public testing::Test {
protected:
    /// A shell command, in which "edidwb" is the program and $SAMPLES the folder of the samples.
    Outcome shell(const std::string& command) const {
        const std::string script = "edidwb() { '" EDIDWB "' \"$@\"; }\nSAMPLES='" WORKBENCH_SOURCE_DIR
                                   "/samples'\ncd '" +
                                   folder_.file(".") + "'\n" + command + '\n';
        const TemporaryFolder streams;
        const std::string path = streams.write("command", script);
        const std::string line =
            "bash '" + path + "' >'" + streams.file("out") + "' 2>'" + streams.file("err") + "' </dev/null";
        const int status = std::system(line.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, TemporaryFolder::read(streams.file("out")),
                TemporaryFolder::read(streams.file("err"))};
    }

    std::string write(const std::string& name, std::string_view content) const { return folder_.write(name, content); }
    std::string read(const std::string& name) const { return TemporaryFolder::read(folder_.file(name)); }
    bool exists(const std::string& name) const { return std::filesystem::exists(folder_.file(name)); }

private:
    TemporaryFolder folder_;
};

} // namespace wb::test
