#include "cli/cleanup.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <thread>

#include "cli/temporary.h"
#include "support/temporary_folder.h"

namespace wb::cli {
namespace {

/// How a child ended that has a temporary file in `folder` and a temporary folder with a file, and gets the signal.
int statusAfter(int signal, const std::string& folder) {
    const pid_t child = fork();
    if (child == 0) {
        setenv("TMPDIR", folder.c_str(), 1);
        removeTemporariesOnSignals();
        TemporaryFile file(folder);
        const TemporaryFolder other("image");
        TemporaryFile(folder).moveTo(other.file());
        kill(getpid(), signal);
        std::this_thread::sleep_for(std::chrono::milliseconds(200)); // sanitizers hand on signals at a blocking call
        _exit(0);
    }
    int status = -1;
    waitpid(child, &status, 0);
    return status;
}

TEST(Cleanup, SignalsRemoveTemporaryFilesAndEndTheProgram) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const test::TemporaryFolder folder;
        const int status = statusAfter(signal, folder.file("."));
        EXPECT_TRUE(WIFSIGNALED(status)) << signal;
        EXPECT_EQ(WTERMSIG(status), signal);
        EXPECT_TRUE(std::filesystem::is_empty(folder.file("."))) << signal;
    }
}

bool takesSignals() {
    sigset_t blocked{};
    pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
    return sigismember(&blocked, SIGINT) == 0 && sigismember(&blocked, SIGTERM) == 0 &&
           sigismember(&blocked, SIGHUP) == 0;
}

TEST(Cleanup, ThreadsBesideLeaveSignalsToTheOneThatCreatesFiles) {
    bool beside = true;
    {
        const SignalsStayHere signals;
        std::thread([&] { beside = takesSignals(); }).join();
    }
    EXPECT_FALSE(beside);
    EXPECT_TRUE(takesSignals());
    std::thread([&] { beside = takesSignals(); }).join();
    EXPECT_TRUE(beside);
}

TEST(Cleanup, ASignalThatWasIgnoredStaysIgnored) {
    const test::TemporaryFolder folder;
    std::signal(SIGHUP, SIG_IGN);
    const int status = statusAfter(SIGHUP, folder.file("."));
    std::signal(SIGHUP, SIG_DFL);
    EXPECT_TRUE(WIFEXITED(status));
}

} // namespace
} // namespace wb::cli
