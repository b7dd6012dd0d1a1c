#include "platform/ProcessLiveness.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace vorlane {
namespace {

// A process id that was just used and is free again: a child that has ended and been reaped.
int endedProcessId()
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    int status = 0;
    ::waitpid(child, &status, 0);
    return static_cast<int>(child);
}

TEST(ProcessLiveness, TheRunningProcessRuns)
{
    const int self = currentProcessId();
    EXPECT_EQ(self, static_cast<int>(::getpid()));
    const long long started = processStartTime(self);
    EXPECT_GT(started, 0);
    EXPECT_TRUE(processRunning(self, started));
    EXPECT_TRUE(processRunning(self, -1));
}

TEST(ProcessLiveness, AnEndedProcessRunsNoMore)
{
    const int ended = endedProcessId();
    EXPECT_EQ(processStartTime(ended), -1);
    EXPECT_FALSE(processRunning(ended, -1));
    EXPECT_FALSE(processRunning(ended, 12345));
    EXPECT_FALSE(processRunning(0, -1));
    EXPECT_FALSE(processRunning(-5, -1));
}

// A process id taken over by a process that started at another time is not the process that
// was recorded.
TEST(ProcessLiveness, AReusedIdIsAnotherProcess)
{
    const int self = currentProcessId();
    const long long started = processStartTime(self);
    EXPECT_FALSE(processRunning(self, started + 1));
    EXPECT_FALSE(processRunning(self, 0));
}

TEST(ProcessLiveness, AProcessThatEndedButIsNotReapedRunsNoMore)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    // Until the parent reaps it, the child stays as a zombie under its id.
    for (int i = 0; i < 200; ++i) {
        if (!processRunning(static_cast<int>(child), -1))
            break;
        ::usleep(10'000);
    }
    EXPECT_FALSE(processRunning(static_cast<int>(child), -1));
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
}

} // namespace
} // namespace vorlane
