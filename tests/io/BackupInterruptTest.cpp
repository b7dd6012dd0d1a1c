#include "io/SafeSave.h"

#include "io/FailingFileOps.h"
#include "project/ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <csignal>
#include <optional>
#include <thread>
#include <string>
#include <vector>

#include <pthread.h>
#include <sys/wait.h>
#include <unistd.h>

// A save ended by a signal at any step, however far its backups had moved: every version the
// file and its backups held before exists after it, under its name or one place on, and no
// hidden file stays behind.
namespace vorlane {
namespace {

using namespace testsupport;

// The system's file calls, counted; the call numbered `signalAt` (from 1) first sends SIGTERM
// to this process, so that the signal strikes exactly before that step.
class SignalAtCall : public FailingFileOps
{
public:
    int signalAt = -1;
    int calls = 0;
    // When set, the signal goes to this thread instead: its handler then runs beside the save.
    std::optional<pthread_t> receiver;

    int createNew(const std::string &path, const std::string &modelPath, int &handle) override
    {
        step();
        return FailingFileOps::createNew(path, modelPath, handle);
    }
    int inspect(const std::string &path, PathInfo &info) override
    {
        step();
        return FailingFileOps::inspect(path, info);
    }
    int write(int handle, const char *data, size_t size, size_t &written) override
    {
        step();
        return FailingFileOps::write(handle, data, size, written);
    }
    int sync(int handle) override
    {
        step();
        return FailingFileOps::sync(handle);
    }
    int close(int handle) override
    {
        step();
        return FailingFileOps::close(handle);
    }
    int link(const std::string &from, const std::string &to) override
    {
        step();
        return FailingFileOps::link(from, to);
    }
    int rename(const std::string &from, const std::string &to) override
    {
        step();
        return FailingFileOps::rename(from, to);
    }
    int remove(const std::string &path) override
    {
        step();
        return FailingFileOps::remove(path);
    }
    void syncFolder(const std::string &folder) override
    {
        step();
        FailingFileOps::syncFolder(folder);
    }

private:
    void step()
    {
        if (++calls != signalAt)
            return;
        if (receiver)
            ::pthread_kill(*receiver, SIGTERM);
        else
            ::kill(::getpid(), SIGTERM);
    }
};

const std::vector<std::string> Before{"current\r\n", "b1\r\n", "b2\r\n", "b3\r\n"};
const std::string New = "new\r\n";

// The file and its three backups as they stand: missing ones as "(missing)".
std::vector<std::string> versions(const std::string &path)
{
    std::vector<std::string> found;
    for (int number = 0; number <= 3; ++number) {
        const std::string name = number == 0 ? path : backupName(path, number);
        found.push_back(std::filesystem::exists(name) ? readBytes(name) : "(missing)");
    }
    return found;
}

void prepare(const std::string &path)
{
    writeBytes(path, Before[0]);
    for (int number = 1; number <= 3; ++number)
        writeBytes(backupName(path, number), Before[static_cast<size_t>(number)]);
}

// Saves with a SIGTERM before each file call in turn, each in a child process, and checks
// what is left; `otherThread` has the signal handled in a second thread, as in the editor,
// whose windowing system runs threads of its own.
void expectNoVersionLostAtAnyStep(bool otherThread)
{
    // How many file calls a save with three backups makes.
    int steps = 0;
    {
        TempFolder folder;
        const std::string path = folder.file("game.dvb");
        prepare(path);
        SignalAtCall counting;
        ASSERT_TRUE(writeFileSafely(path, New, counting, SafeWriteOptions{3}).ok);
        steps = counting.calls;
        ASSERT_EQ(versions(path), (std::vector<std::string>{New, Before[0], Before[1], Before[2]}));
    }
    ASSERT_GT(steps, 8);

    const std::vector<std::string> completed{New, Before[0], Before[1], Before[2]};
    for (int at = 1; at <= steps; ++at) {
        SCOPED_TRACE("SIGTERM before file call " + std::to_string(at) + " of " +
                     std::to_string(steps));
        TempFolder folder;
        const std::string path = folder.file("game.dvb");
        prepare(path);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            SignalAtCall ops;
            ops.signalAt = at;
            if (otherThread) {
                std::thread receiver([] {
                    for (;;)
                        ::pause();
                });
                ops.receiver = receiver.native_handle();
                receiver.detach();
                writeFileSafely(path, New, ops, SafeWriteOptions{3});
                for (;;)
                    ::pause(); // the handler in the other thread ends the process
            }
            writeFileSafely(path, New, ops, SafeWriteOptions{3});
            ::_exit(0); // reached only when the signal did not end the process
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "exit status " << WEXITSTATUS(status);
        EXPECT_EQ(WTERMSIG(status), SIGTERM);

        // Either the save did not happen, or it happened whole: the file is the new version
        // and the three backups the three versions before it.
        const std::vector<std::string> found = versions(path);
        if (found[0] == New)
            EXPECT_EQ(found, completed);
        else
            EXPECT_EQ(found, Before);
        EXPECT_EQ(folder.entries(),
                  (std::vector<std::string>{
                      "game.dvb", "game.dvb.bak1", "game.dvb.bak2", "game.dvb.bak3"}));
        if (testing::Test::HasFailure())
            return; // one step's report is enough
    }
}

TEST(BackupInterrupted, ASigtermAtAnyStepOfASaveLosesNoVersion)
{
    expectNoVersionLostAtAnyStep(false);
}

TEST(BackupInterrupted, ASigtermHandledInAnotherThreadAtAnyStepLosesNoVersion)
{
    expectNoVersionLostAtAnyStep(true);
}

} // namespace
} // namespace vorlane
