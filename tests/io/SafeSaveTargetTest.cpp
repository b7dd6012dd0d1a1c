#include "io/SafeSave.h"

#include "io/FailingFileOps.h"
#include "project/ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

// What a save replaces: the final target of a symbolic link, never a pipe, device, socket or
// folder, never a read-only file; the new file keeps the previous one's mode, owner and group,
// the previous version is kept as a backup, and a save ended by a signal leaves nothing behind.
namespace vorlane {
namespace {

using namespace testsupport;
namespace fs = std::filesystem;

const std::string Old = "the previous project\r\n";
const std::string New = "the new project\r\n";

struct stat statOf(const std::string &path)
{
    struct stat info
    {
    };
    EXPECT_EQ(::lstat(path.c_str(), &info), 0) << path;
    return info;
}

std::string linkText(const std::string &path)
{
    return fs::read_symlink(path).string();
}

class SaveTarget : public ::testing::Test
{
protected:
    TempFolder folder;
    FailingFileOps ops;
    const std::string real = folder.file("real.dvb");

    void SetUp() override { writeBytes(real, Old); }
};

TEST_F(SaveTarget, ARelativeLinkIsFollowedAndStaysALink)
{
    const std::string link = folder.file("link.dvb");
    fs::create_symlink("real.dvb", link);
    const FileWriteResult r = writeFileSafely(link, New, ops);
    ASSERT_TRUE(r.ok) << r.reason;
    EXPECT_EQ(r.target, real);
    EXPECT_EQ(readBytes(real), New);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(linkText(link), "real.dvb");
    EXPECT_EQ(folder.entries(), (std::vector<std::string>{"link.dvb", "real.dvb"}));
    ASSERT_EQ(ops.created.size(), 1u);
    EXPECT_EQ(ops.created[0].rfind(folder.file(".real.dvb.saving-"), 0), 0u);
}

TEST_F(SaveTarget, ARelativeLinkIntoAnotherFolderWritesBesideItsTarget)
{
    fs::create_directory(folder.file("work"));
    fs::create_directory(folder.file("shared"));
    const std::string target = folder.file("shared/game.dvb");
    writeBytes(target, Old);
    const std::string link = folder.file("work/game.dvb");
    fs::create_symlink("../shared/game.dvb", link);
    const FileWriteResult r = writeFileSafely(link, New, ops);
    ASSERT_TRUE(r.ok) << r.reason;
    EXPECT_EQ(r.target, folder.file("work/../shared/game.dvb"));
    EXPECT_EQ(readBytes(target), New);
    EXPECT_EQ(linkText(link), "../shared/game.dvb");
    // The temporary file lies in the target's folder, so the rename stays on its file system.
    ASSERT_EQ(ops.created.size(), 1u);
    EXPECT_EQ(ops.created[0].rfind(folder.file("work/../shared/.game.dvb.saving-"), 0), 0u);
    EXPECT_EQ(fs::directory_iterator(folder.file("shared"))->path().filename(), "game.dvb");
}

TEST_F(SaveTarget, AnAbsoluteLinkIsFollowed)
{
    const std::string link = folder.file("absolute.dvb");
    fs::create_symlink(real, link);
    ASSERT_TRUE(writeFileSafely(link, New, ops).ok);
    EXPECT_EQ(readBytes(real), New);
    EXPECT_EQ(linkText(link), real);
}

TEST_F(SaveTarget, AChainOfLinksIsFollowedToItsEnd)
{
    fs::create_symlink("real.dvb", folder.file("second.dvb"));
    fs::create_symlink(folder.file("second.dvb"), folder.file("first.dvb"));
    const FileWriteResult r = writeFileSafely(folder.file("first.dvb"), New, ops);
    ASSERT_TRUE(r.ok) << r.reason;
    EXPECT_EQ(r.target, real);
    EXPECT_EQ(readBytes(real), New);
    EXPECT_TRUE(fs::is_symlink(folder.file("first.dvb")));
    EXPECT_TRUE(fs::is_symlink(folder.file("second.dvb")));
}

TEST_F(SaveTarget, ADanglingLinkGetsItsTargetCreated)
{
    const std::string link = folder.file("dangling.dvb");
    fs::create_symlink("later.dvb", link);
    const FileWriteResult r = writeFileSafely(link, New, ops);
    ASSERT_TRUE(r.ok) << r.reason;
    EXPECT_EQ(readBytes(folder.file("later.dvb")), New);
    EXPECT_EQ(linkText(link), "later.dvb");
    EXPECT_EQ(folder.entries(),
              (std::vector<std::string>{"dangling.dvb", "later.dvb", "real.dvb"}));
}

TEST_F(SaveTarget, ALoopOfLinksIsRefused)
{
    fs::create_symlink("b.dvb", folder.file("a.dvb"));
    fs::create_symlink("a.dvb", folder.file("b.dvb"));
    const FileWriteResult r = writeFileSafely(folder.file("a.dvb"), New, ops);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.reason, std::strerror(ELOOP));
    EXPECT_TRUE(ops.created.empty());
}

TEST_F(SaveTarget, ANamedPipeIsRefusedAndLeftAlone)
{
    const std::string fifo = folder.file("pipe.dvb");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0644), 0);
    const FileWriteResult r = writeFileSafely(fifo, New, ops);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.reason, "it is a named pipe (FIFO), not a regular file");
    EXPECT_TRUE(S_ISFIFO(statOf(fifo).st_mode));
    EXPECT_TRUE(ops.created.empty());
}

TEST_F(SaveTarget, ASocketIsRefused)
{
    // A short folder name: socket paths are limited to some 100 bytes.
    const std::string path = folder.file("s.dvb");
    const int handle = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_GE(handle, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(path.size(), sizeof address.sun_path);
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    ASSERT_EQ(::bind(handle, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    const FileWriteResult r = writeFileSafely(path, New, ops);
    ::close(handle);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.reason, "it is a socket, not a regular file");
    EXPECT_TRUE(S_ISSOCK(statOf(path).st_mode));
}

TEST_F(SaveTarget, ALinkToADeviceIsRefusedNamingTheDevice)
{
    const std::string link = folder.file("null.dvb");
    fs::create_symlink("/dev/null", link);
    const FileWriteResult r = writeFileSafely(link, New, ops);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.reason, "its target \"/dev/null\" is a device, not a regular file");
    EXPECT_TRUE(ops.created.empty());
}

TEST_F(SaveTarget, AFolderIsRefused)
{
    const std::string path = folder.file("taken.dvb");
    fs::create_directory(path);
    const FileWriteResult r = writeFileSafely(path, New, ops);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.reason, "it is a folder, not a regular file");
}

TEST_F(SaveTarget, AReadOnlyFileIsRefusedEvenForTheAdministrator)
{
    ASSERT_EQ(::chmod(real.c_str(), 0444), 0);
    const FileWriteResult r = writeFileSafely(real, New, ops);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.reason, "it is read-only");
    EXPECT_EQ(readBytes(real), Old);
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"real.dvb"});
    EXPECT_TRUE(ops.created.empty());
}

TEST_F(SaveTarget, AReadOnlyTargetOfALinkIsNamed)
{
    ASSERT_EQ(::chmod(real.c_str(), 0444), 0);
    fs::create_symlink("real.dvb", folder.file("link.dvb"));
    const FileWriteResult r = writeFileSafely(folder.file("link.dvb"), New, ops);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.reason, "its target \"" + real + "\" is read-only");
}

TEST_F(SaveTarget, ModeOwnerAndGroupAreKept)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "giving a file to another user needs the administrator";
    // nobody and nogroup: another user and group than the one saving.
    ASSERT_EQ(::chown(real.c_str(), 65534, 65534), 0);
    ASSERT_EQ(::chmod(real.c_str(), 0660), 0);
    const FileWriteResult r = writeFileSafely(real, New, ops);
    ASSERT_TRUE(r.ok) << r.reason;
    EXPECT_EQ(r.notKept, std::vector<std::string>{});
    const struct stat info = statOf(real);
    EXPECT_EQ(info.st_uid, 65534u);
    EXPECT_EQ(info.st_gid, 65534u);
    EXPECT_EQ(info.st_mode & 07777, 0660u);
    EXPECT_EQ(readBytes(real), New);
}

TEST_F(SaveTarget, AnOwnerThatCannotBeKeptIsReported)
{
    ASSERT_EQ(::chmod(real.c_str(), 0640), 0);
    ops.ownerError = EPERM;
    const FileWriteResult r = writeFileSafely(real, New, ops);
    ASSERT_TRUE(r.ok);
    EXPECT_EQ(
        r.notKept,
        std::vector<std::string>{"its owner and group could not be kept: Operation not permitted"});
    EXPECT_EQ(statOf(real).st_mode & 07777, 0640u);
    EXPECT_EQ(readBytes(real), New);
}

TEST_F(SaveTarget, PermissionsThatCannotBeKeptAreReportedAndNeverWidened)
{
    ASSERT_EQ(::chmod(real.c_str(), 0644), 0);
    ops.modeError = EPERM;
    const FileWriteResult r = writeFileSafely(real, New, ops);
    ASSERT_TRUE(r.ok);
    EXPECT_EQ(
        r.notKept,
        std::vector<std::string>{"its permissions could not be kept: Operation not permitted"});
    // The new file stays readable by its owner only, never more open than the old one.
    EXPECT_EQ(statOf(real).st_mode & 07777, 0600u);
}

TEST_F(SaveTarget, AHardLinkedFileIsSplitAndTheOtherNameKeepsThePreviousVersion)
{
    const std::string other = folder.file("other.dvb");
    ASSERT_EQ(::link(real.c_str(), other.c_str()), 0);
    ASSERT_TRUE(writeFileSafely(real, New, ops).ok);
    EXPECT_EQ(readBytes(real), New);
    EXPECT_EQ(readBytes(other), Old);
    EXPECT_EQ(statOf(other).st_nlink, 1u);
}

// Names up to the 255 bytes a folder takes, with temporary names and backups cut to fit.
TEST_F(SaveTarget, NamesUpToTheFolderLimitCanBeSaved)
{
    for (const size_t length : {size_t{200}, size_t{238}, size_t{239}, size_t{250}, size_t{255}}) {
        SCOPED_TRACE(length);
        const std::string name = std::string(length - 4, 'n') + ".dvb";
        const std::string path = folder.file(name);
        writeBytes(path, Old);
        FailingFileOps longOps;
        const FileWriteResult r = writeFileSafely(path, New, longOps, SafeWriteOptions{2});
        ASSERT_TRUE(r.ok) << r.reason;
        EXPECT_EQ(readBytes(path), New);
        EXPECT_EQ(readBytes(backupName(path, 1)), Old);
        ASSERT_EQ(longOps.created.size(), 1u);
        EXPECT_LE(fs::path(longOps.created[0]).filename().string().size(), NameLimit);
        EXPECT_LE(fs::path(backupName(path, 1)).filename().string().size(), NameLimit);
        fs::remove(path);
        fs::remove(backupName(path, 1));
    }
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"real.dvb"});
}

TEST(BackupNames, AreFixedAndStayWithinTheNameLimit)
{
    EXPECT_EQ(backupName("/p/game.dvb", 1), "/p/game.dvb.bak1");
    EXPECT_EQ(backupName("game.dvb", 3), "game.dvb.bak3");
    const std::string longName(255, 'x');
    EXPECT_EQ(backupName("/p/" + longName, 2), "/p/" + std::string(250, 'x') + ".bak2");
}

class Backups : public SaveTarget
{
protected:
    FileWriteResult save(const std::string &bytes, FileOps &with)
    {
        return writeFileSafely(real, bytes, with, SafeWriteOptions{3});
    }
};

TEST_F(Backups, EachSaveKeepsTheExactPreviousBytesAndAtMostThreeVersions)
{
    const std::vector<std::string> versions{"v1\r\n", "v2\r\n", "v3\r\n", "v4\r\n", "v5\r\n"};
    std::vector<std::string> previous{Old};
    for (const std::string &version : versions) {
        ASSERT_TRUE(save(version, ops).ok);
        EXPECT_EQ(readBytes(real), version);
        previous.insert(previous.begin(), version);
        // previous[1] is the version just replaced, previous[2] the one before, ...
        for (int number = 1; number <= 3 && number < static_cast<int>(previous.size()); ++number)
            EXPECT_EQ(readBytes(backupName(real, number)), previous[static_cast<size_t>(number)]);
    }
    EXPECT_EQ(
        folder.entries(),
        (std::vector<std::string>{"real.dvb", "real.dvb.bak1", "real.dvb.bak2", "real.dvb.bak3"}));
    EXPECT_EQ(readBytes(folder.file("real.dvb.bak3")), "v2\r\n");
}

TEST_F(Backups, AFirstSaveMakesNoBackup)
{
    const std::string fresh = folder.file("fresh.dvb");
    ASSERT_TRUE(writeFileSafely(fresh, New, ops, SafeWriteOptions{3}).ok);
    EXPECT_EQ(folder.entries(), (std::vector<std::string>{"fresh.dvb", "real.dvb"}));
}

TEST_F(Backups, AFailedSaveTouchesNeitherTheFileNorItsBackups)
{
    ASSERT_TRUE(save("v1\r\n", ops).ok);
    ASSERT_TRUE(save("v2\r\n", ops).ok);
    const std::vector<std::string> entries = folder.entries();
    for (const int step : {0, 1, 2}) {
        SCOPED_TRACE(step);
        FailingFileOps failing;
        if (step == 0)
            failing.failWriteAt = 1;
        else if (step == 1)
            failing.syncError = EIO;
        else
            failing.renameError = EIO;
        EXPECT_FALSE(save("v3\r\n", failing).ok);
        EXPECT_EQ(readBytes(real), "v2\r\n");
        EXPECT_EQ(readBytes(folder.file("real.dvb.bak1")), "v1\r\n");
        EXPECT_EQ(readBytes(folder.file("real.dvb.bak2")), Old);
        EXPECT_EQ(folder.entries(), entries);
    }
}

TEST_F(Backups, ABackupThatCannotBeMadeIsReportedAndTheSaveGoesThrough)
{
    ops.linkError = EPERM;
    const FileWriteResult r = save(New, ops);
    ASSERT_TRUE(r.ok);
    EXPECT_EQ(r.notKept,
              std::vector<std::string>{
                  "no backup of its previous version could be made: Operation not permitted"});
    EXPECT_EQ(readBytes(real), New);
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"real.dvb"});
}

TEST_F(Backups, AreMadeBesideTheTargetOfALink)
{
    fs::create_symlink("real.dvb", folder.file("link.dvb"));
    ASSERT_TRUE(writeFileSafely(folder.file("link.dvb"), New, ops, SafeWriteOptions{3}).ok);
    EXPECT_EQ(readBytes(folder.file("real.dvb.bak1")), Old);
    EXPECT_EQ(folder.entries(),
              (std::vector<std::string>{"link.dvb", "real.dvb", "real.dvb.bak1"}));
}

constexpr size_t Half = size_t{1} << 20;

// A save in a child process that is sent `signal` from outside while the temporary file is
// half written: the child ends by the signal, the temporary file is gone, the old file stays.
void expectSignalRemovesTheTemporaryFile(int signal)
{
    TempFolder folder;
    const std::string path = folder.file("game.dvb");
    writeBytes(path, Old);
    int channel[2];
    ASSERT_EQ(::pipe(channel), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        ::close(channel[0]);
        // The first megabyte is written, then the save stands still until the signal comes.
        class StopsHalfWay : public SystemFileOps
        {
        public:
            explicit StopsHalfWay(int channel)
                : m_channel(channel)
            {}
            int write(int handle, const char *data, size_t size, size_t &written) override
            {
                const int error = SystemFileOps::write(handle, data, std::min(size, Half), written);
                const char started = 's';
                if (::write(m_channel, &started, 1) != 1)
                    ::_exit(3);
                for (;;)
                    ::pause(); // until the signal ends the process
                return error;
            }

        private:
            int m_channel;
        };
        StopsHalfWay ops(channel[1]);
        writeFileSafely(path, std::string(2 * Half, 'x'), ops);
        ::_exit(2);
    }
    ::close(channel[1]);
    char started = 0;
    ASSERT_EQ(::read(channel[0], &started, 1), 1);
    ::close(channel[0]);
    // The temporary file is there while the save runs.
    EXPECT_EQ(folder.entries().size(), 2u);
    ASSERT_EQ(::kill(child, signal), 0);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "exit status " << WEXITSTATUS(status);
    EXPECT_EQ(WTERMSIG(status), signal);
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"game.dvb"});
    EXPECT_EQ(readBytes(path), Old);
}

TEST(SaveInterrupted, BySigtermRemovesTheTemporaryFile)
{
    expectSignalRemovesTheTemporaryFile(SIGTERM);
}

TEST(SaveInterrupted, BySighupRemovesTheTemporaryFile)
{
    expectSignalRemovesTheTemporaryFile(SIGHUP);
}

TEST(SaveInterrupted, BySigintRemovesTheTemporaryFile)
{
    expectSignalRemovesTheTemporaryFile(SIGINT);
}

// Without ignoring SIGXFSZ itself, a process that meets its file-size limit gets a failed save
// it can report, not an end.
TEST(SaveInterrupted, AFileSizeLimitFailsTheSaveInsteadOfEndingTheProgram)
{
    TempFolder folder;
    const std::string path = folder.file("game.dvb");
    writeBytes(path, Old);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_DFL);
        const rlimit limit{4096, 4096};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0)
            ::_exit(3);
        const FileWriteResult r = writeFileSafely(path, std::string(100000, 'x'), systemFileOps());
        ::_exit(!r.ok && r.reason == std::strerror(EFBIG) ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"game.dvb"});
    EXPECT_EQ(readBytes(path), Old);
    // The program's own handling is back once the save is over.
    struct sigaction current
    {
    };
    ::sigaction(SIGXFSZ, nullptr, &current);
    EXPECT_EQ(current.sa_handler, SIG_DFL);
}

TEST(LargeInput, AFileFarLargerThanAnyProjectIsRefusedWithoutReadingIt)
{
    TempFolder folder;
    const std::string path = folder.file("huge.dvb");
    writeBytes(path, "");
    // Two gigabytes of holes: nothing is stored, but the size is what it says.
    fs::resize_file(path, std::uintmax_t{2} << 30);
    std::string bytes;
    EXPECT_EQ(systemFileOps().readAll(path, bytes), FileTooLarge);
    EXPECT_LE(bytes.capacity(), std::string().capacity()); // no memory was taken for it
    EXPECT_EQ(errorText(FileTooLarge),
              "the file is larger than 256 MiB, far more than any project holds");
}

TEST(LargeInput, AFileJustAtTheLimitIsRead)
{
    TempFolder folder;
    const std::string path = folder.file("big.dvb");
    writeBytes(path, "");
    fs::resize_file(path, static_cast<std::uintmax_t>(MaxProjectFileSize));
    std::string bytes;
    EXPECT_EQ(systemFileOps().readAll(path, bytes), 0);
    EXPECT_EQ(bytes.size(), static_cast<size_t>(MaxProjectFileSize));
}

} // namespace
} // namespace vorlane
