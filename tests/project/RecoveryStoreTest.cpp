#include "project/RecoveryStore.h"

#include "ProjectTestSupport.h"
#include "io/FailingFileOps.h"
#include "platform/ProcessLiveness.h"
#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <optional>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utime.h>

namespace vorlane {
namespace {

using namespace testsupport;

// Sets an environment variable for one test, and puts back what was there.
class ScopedEnv
{
public:
    ScopedEnv(const char *name, const char *value)
        : m_name(name)
    {
        if (const char *old = std::getenv(name))
            m_old = old;
        if (value)
            ::setenv(name, value, 1);
        else
            ::unsetenv(name);
    }
    ~ScopedEnv()
    {
        if (m_old)
            ::setenv(m_name, m_old->c_str(), 1);
        else
            ::unsetenv(m_name);
    }

private:
    const char *m_name;
    std::optional<std::string> m_old;
};

int endedProcessId()
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    int status = 0;
    ::waitpid(child, &status, 0);
    return static_cast<int>(child);
}

void setChangedTime(const std::string &path, std::time_t when)
{
    const utimbuf times{when, when};
    ASSERT_EQ(::utime(path.c_str(), &times), 0);
}

class RecoveryStoreTest : public ::testing::Test
{
protected:
    TempFolder folder;
    const std::string recovery = folder.file("state/vorlane/recovery");
    std::unique_ptr<Document> doc = makeDocument();

    void SetUp() override
    {
        doc->ProjectInfo.projectName = "Demo";
        doc->ProjectInfo.projectFilePath = folder.file("demo.dvb");
        doc->ProjectInfo.projectOpen = -1;
        listObject(*doc, Kind::Button, 3, "btnPlay");
    }

    // A recovery file of the editor `pid`, holding `doc` with the name `name`.
    std::string leaveFile(int pid, long long startTime, const std::string &name)
    {
        auto other = std::make_unique<Document>(*doc);
        other->ProjectInfo.projectName = name;
        RecoveryStore store(recovery, pid, startTime, systemFileOps());
        EXPECT_TRUE(store.write(*other).ok);
        return store.ownPath();
    }
};

TEST(RecoveryFolder, FollowsXdgStateHome)
{
    const ScopedEnv state("XDG_STATE_HOME", "/tmp/some state/");
    EXPECT_EQ(RecoveryStore::defaultFolder(), "/tmp/some state/vorlane/recovery");
}

TEST(RecoveryFolder, IsUnderTheHomeFolderWhenXdgStateHomeIsUnsetEmptyOrRelative)
{
    const ScopedEnv home("HOME", "/home/ann");
    for (const char *value : {static_cast<const char *>(nullptr), "", "relative/state"}) {
        const ScopedEnv state("XDG_STATE_HOME", value);
        EXPECT_EQ(RecoveryStore::defaultFolder(), "/home/ann/.local/state/vorlane/recovery");
    }
}

TEST(RecoveryFileName, HoldsTheProcessIdAndStartTime)
{
    EXPECT_EQ(recoveryFileName(4242, 981234), "vorlane-4242-981234.dvb");
    EXPECT_EQ(recoveryFileName(7, -1), "vorlane-7-0.dvb");
    int pid = 0;
    long long start = 0;
    ASSERT_TRUE(parseRecoveryFileName("vorlane-4242-981234.dvb", pid, start));
    EXPECT_EQ(pid, 4242);
    EXPECT_EQ(start, 981234);
    for (const char *other : {"vorlane-4242.dvb",
                              "vorlane--1.dvb",
                              "vorlane-0-5.dvb",
                              "vorlane-12-3.dvb.bak1",
                              ".vorlane-12-3.dvb.saving-0123abcd",
                              "vorlane-1x-3.dvb",
                              "game.dvb",
                              "vorlane-99999999999-1.dvb"})
        EXPECT_FALSE(parseRecoveryFileName(other, pid, start)) << other;
}

TEST_F(RecoveryStoreTest, WritesTheDocumentAsAProjectFileInAFolderItMakes)
{
    RecoveryStore store(recovery, 4242, 981234, systemFileOps());
    EXPECT_EQ(store.ownPath(), recovery + "/vorlane-4242-981234.dvb");
    const FileWriteResult written = store.write(*doc);
    ASSERT_TRUE(written.ok) << written.reason;
    EXPECT_EQ(readBytes(store.ownPath()), projectFileBytes(*doc));
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(recovery))
        names.push_back(entry.path().filename().string());
    EXPECT_EQ(names, std::vector<std::string>{"vorlane-4242-981234.dvb"});
    // The folders made are the user's alone.
    struct stat info
    {
    };
    ASSERT_EQ(::stat(recovery.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0700u);
    // The project's own file is not touched.
    EXPECT_FALSE(std::filesystem::exists(folder.file("demo.dvb")));
}

TEST_F(RecoveryStoreTest, RecordsARelativeProjectPathAsSaveWouldTakeIt)
{
    doc->ProjectInfo.projectFilePath = "games/demo.dvb";
    doc->openedFrom = "/home/ann/work/start.dvb";
    RecoveryStore store(recovery, 4242, 1, systemFileOps());
    ASSERT_TRUE(store.write(*doc).ok);
    auto read = makeDocument();
    ASSERT_EQ(readProject(readBytes(store.ownPath()), *read).status,
              ProjectReadResult::Status::Read);
    EXPECT_EQ(read->ProjectInfo.projectFilePath, "/home/ann/work/games/demo.dvb");
    EXPECT_EQ(read->ProjectInfo.projectName, "Demo");
    ASSERT_EQ(read->list(Kind::Button).lines.size(), 1u);
    EXPECT_EQ(read->list(Kind::Button).lines[0].text, "btnPlay");
}

TEST_F(RecoveryStoreTest, NeverWritesTheProjectsOwnFile)
{
    RecoveryStore store(recovery, 4242, 5, systemFileOps());
    doc->ProjectInfo.projectFilePath = store.ownPath();
    const FileWriteResult refused = store.write(*doc);
    EXPECT_FALSE(refused.ok);
    EXPECT_EQ(refused.reason, "it is the project's own file");
    EXPECT_FALSE(std::filesystem::exists(store.ownPath()));
}

TEST_F(RecoveryStoreTest, AFailedWriteKeepsThePreviousRecoveryFile)
{
    FailingFileOps full;
    RecoveryStore store(recovery, 4242, 5, full);
    ASSERT_TRUE(store.write(*doc).ok);
    const std::string before = readBytes(store.ownPath());
    full.failWriteAt = 10;
    doc->ProjectInfo.projectName = "Changed";
    const FileWriteResult failed = store.write(*doc);
    EXPECT_FALSE(failed.ok);
    EXPECT_EQ(failed.reason, "No space left on device");
    EXPECT_EQ(readBytes(store.ownPath()), before);
}

TEST_F(RecoveryStoreTest, RemovesItsOwnFile)
{
    RecoveryStore store(recovery, 4242, 5, systemFileOps());
    ASSERT_TRUE(store.write(*doc).ok);
    store.removeOwn();
    EXPECT_FALSE(std::filesystem::exists(store.ownPath()));
    store.removeOwn(); // nothing there: nothing happens
}

TEST_F(RecoveryStoreTest, ListsOnlyTheFilesOfEditorsThatNoLongerRun)
{
    const int self = currentProcessId();
    const long long selfStart = processStartTime(self);
    const int parent = static_cast<int>(::getppid());
    const int ended = endedProcessId();
    const std::string dead = leaveFile(ended, 77, "Lost Game");
    const std::string reused = leaveFile(self, selfStart + 1, "Older Game");
    leaveFile(parent, processStartTime(parent), "Running Game");
    leaveFile(self, selfStart, "This Game");
    writeBytes(recovery + "/notes.txt", "not a recovery file");
    setChangedTime(dead, 2'000'000'000);
    setChangedTime(reused, 1'900'000'000);

    const RecoveryStore store(recovery, systemFileOps());
    const std::vector<RecoveryFile> files = store.abandoned();
    ASSERT_EQ(files.size(), 2u);
    EXPECT_EQ(files[0].path, reused); // the older change first
    EXPECT_EQ(files[0].pid, self);
    EXPECT_EQ(files[0].startTime, selfStart + 1);
    EXPECT_EQ(files[0].projectName, "Older Game");
    EXPECT_EQ(files[0].changed, 1'900'000'000);
    EXPECT_EQ(files[1].path, dead);
    EXPECT_EQ(files[1].pid, ended);
    EXPECT_EQ(files[1].startTime, 77);
    EXPECT_EQ(files[1].projectName, "Lost Game");
    EXPECT_EQ(files[1].changed, 2'000'000'000);

    EXPECT_TRUE(RecoveryStore::remove(files[1]));
    EXPECT_FALSE(std::filesystem::exists(dead));
    EXPECT_EQ(store.abandoned().size(), 1u);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(recovery),
                            std::filesystem::directory_iterator()),
              4); // the running editors' files and the other file stay
}

TEST_F(RecoveryStoreTest, NoFolderMeansNothingToRecover)
{
    const RecoveryStore store(folder.file("missing"), systemFileOps());
    EXPECT_TRUE(store.abandoned().empty());
}

TEST_F(RecoveryStoreTest, AnUnreadableFileIsStillOfferedByItsPath)
{
    const int ended = endedProcessId();
    std::filesystem::create_directories(recovery);
    const std::string path = recovery + "/" + recoveryFileName(ended, 9);
    writeBytes(path, "");
    const std::vector<RecoveryFile> files = RecoveryStore(recovery, systemFileOps()).abandoned();
    ASSERT_EQ(files.size(), 1u);
    EXPECT_EQ(files[0].projectName, "");
}

TEST(RecoveryQuestion, NamesTheProjectAndTheTimeOfItsLastChange)
{
    std::optional<ScopedEnv> zone(std::in_place, "TZ", "UTC");
    ::tzset();
    RecoveryFile file;
    file.path = "/home/ann/.local/state/vorlane/recovery/vorlane-12-34.dvb";
    file.projectName = "Demo";
    file.changed = 1'795'530'312; // 2026-11-24 14:25:12 UTC
    EXPECT_EQ(localTimeText(file.changed), "2026-11-24 14:25:12");
    const Message question = recoveryQuestion(file);
    EXPECT_EQ(question.title, "Recover Project");
    EXPECT_EQ(question.text,
              "Vorlane ended without saving the project \"Demo\". Its state at its last change, "
              "on 2026-11-24 14:25:12, was kept.\n\nOpen it? No discards the kept state.");
    EXPECT_EQ(question.icon, MessageIcon::Question);
    EXPECT_EQ(question.buttons, MessageButtons::YesNo);

    file.projectName.clear();
    EXPECT_EQ(recoveryQuestion(file).text,
              "Vorlane ended without saving the project kept in "
              "\"/home/ann/.local/state/vorlane/recovery/vorlane-12-34.dvb\". Its state at its "
              "last change, on 2026-11-24 14:25:12, was kept.\n\nOpen it? No discards the kept "
              "state.");
    zone.reset();
    ::tzset();
}

} // namespace
} // namespace vorlane
