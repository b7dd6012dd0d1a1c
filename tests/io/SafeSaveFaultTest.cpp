#include "project/Save.h"

#include "io/FailingFileOps.h"
#include "project/ProjectTestSupport.h"
#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// Saves that fail part-way, whatever the cause and wherever it strikes, must leave the file
// that was there before byte for byte, leave no temporary file, and say which file failed and
// why, in the operating system's words.
namespace vorlane {
namespace {

using namespace testsupport;

// The system's file calls, with the write failing with `error` once `failWriteAt` bytes of the
// file are written (a short write first when a call would cross that offset).
class WriteFault : public FailingFileOps
{
public:
    int error = EIO;

    int write(int handle, const char *data, size_t size, size_t &written) override
    {
        const int result = FailingFileOps::write(handle, data, size, written);
        return result == ENOSPC ? error : result;
    }
};

class SafeSaveFault : public ::testing::Test
{
protected:
    void SetUp() override
    {
        previous = readBytes(std::string(VORLANE_TEST_DATA) + "/project/golden.dvb");
        ASSERT_FALSE(previous.empty());
        ASSERT_EQ(readProject(previous, *doc).status, ProjectReadResult::Status::Read);
        doc->ProjectInfo.projectName = "Saved again";
        doc->ProjectInfo.projectFilePath = path;
        bytes = projectFileBytes(*doc);
        ASSERT_NE(bytes, previous);
    }

    // Saves through `ops` and checks that the save failed with `error` and changed nothing.
    void expectFailedSaveKeepsEverything(FileOps &ops, int error, bool hadFile = true)
    {
        ScriptedUi ui;
        ProgressSink quiet;
        const SaveResult result = saveProject(*doc, ui, quiet, ops);
        EXPECT_EQ(result.status, SaveResult::Status::Failed);
        EXPECT_EQ(result.reason, std::strerror(error));
        ASSERT_EQ(ui.messages.size(), 2u); // the warning, then the failure
        const Message &shown = ui.messages[1];
        EXPECT_EQ(shown.text, "Could not save \"" + path + "\": " + std::strerror(error));
        EXPECT_EQ(shown.title, "Save Data");
        EXPECT_EQ(shown.icon, MessageIcon::Critical);
        EXPECT_EQ(shown.buttons, MessageButtons::OK);
        if (hadFile) {
            EXPECT_EQ(readBytes(path), previous);
            EXPECT_EQ(folder.entries(), std::vector<std::string>{"game.dvb"});
        } else {
            EXPECT_EQ(folder.entries(), std::vector<std::string>{});
        }
    }

    TempFolder folder;
    const std::string path = folder.file("game.dvb");
    std::unique_ptr<Document> doc = makeDocument();
    std::string previous; // the project file before the save
    std::string bytes;    // what the save writes
};

TEST_F(SafeSaveFault, WriteFailingAtEveryByteKeepsThePreviousFile)
{
    writeBytes(path, previous);
    for (size_t offset = 0; offset < bytes.size(); ++offset) {
        SCOPED_TRACE("write failing at byte " + std::to_string(offset));
        WriteFault ops;
        ops.failWriteAt = static_cast<long>(offset);
        expectFailedSaveKeepsEverything(ops, EIO);
        EXPECT_EQ(ops.bytesWritten, offset); // the failure struck exactly there
        EXPECT_EQ(ops.created.size(), 1u);
        if (testing::Test::HasFailure())
            return; // one offset's report is enough
    }
    // With room for every byte the same save goes through.
    WriteFault ops;
    ops.failWriteAt = static_cast<long>(bytes.size());
    ScriptedUi ui;
    ProgressSink quiet;
    EXPECT_TRUE(saveProject(*doc, ui, quiet, ops).written());
    EXPECT_EQ(readBytes(path), bytes);
    // The previous file is now the newest backup, byte for byte.
    EXPECT_EQ(folder.entries(), (std::vector<std::string>{"game.dvb", "game.dvb.bak1"}));
    EXPECT_EQ(readBytes(path + ".bak1"), previous);
}

TEST_F(SafeSaveFault, WriteFailingAtEveryByteOfAFirstSaveLeavesNoFile)
{
    for (size_t offset = 0; offset < bytes.size(); ++offset) {
        SCOPED_TRACE("write failing at byte " + std::to_string(offset));
        WriteFault ops;
        ops.failWriteAt = static_cast<long>(offset);
        expectFailedSaveKeepsEverything(ops, EIO, false);
        if (testing::Test::HasFailure())
            return;
    }
}

TEST_F(SafeSaveFault, NoSpaceLeftOnTheDeviceKeepsThePreviousFile)
{
    writeBytes(path, previous);
    for (const size_t offset : {size_t{0}, bytes.size() / 2, bytes.size() - 1}) {
        SCOPED_TRACE("no space left at byte " + std::to_string(offset));
        WriteFault ops;
        ops.error = ENOSPC;
        ops.failWriteAt = static_cast<long>(offset);
        expectFailedSaveKeepsEverything(ops, ENOSPC);
    }
}

TEST_F(SafeSaveFault, FailingRenameKeepsThePreviousFile)
{
    writeBytes(path, previous);
    for (const int error : {EACCES, EXDEV, EIO}) {
        SCOPED_TRACE(std::strerror(error));
        FailingFileOps ops;
        ops.renameError = error;
        expectFailedSaveKeepsEverything(ops, error);
        EXPECT_EQ(ops.bytesWritten, bytes.size()); // everything was written, then dropped
    }
}

// A project of several megabytes: a save that the system takes in many writes.
class SafeSaveFaultLarge : public SafeSaveFault
{
protected:
    static constexpr size_t TwoMegabytes = size_t{2} << 20;

    void SetUp() override
    {
        SafeSaveFault::SetUp();
        listFullSprites(*doc, 120, 1000);
        bytes = projectFileBytes(*doc);
        ASSERT_GT(bytes.size(), 3 * TwoMegabytes);
    }
};

TEST_F(SafeSaveFaultLarge, WriteFailingAnywhereInALargeFileKeepsThePreviousFile)
{
    writeBytes(path, previous);
    const size_t two = TwoMegabytes;
    for (const size_t offset :
         {size_t{0}, two - 1, two, two + 1, 2 * two + 12345, 3 * two, bytes.size() - 1}) {
        SCOPED_TRACE("write failing at byte " + std::to_string(offset));
        WriteFault ops;
        ops.failWriteAt = static_cast<long>(offset);
        expectFailedSaveKeepsEverything(ops, EIO);
        EXPECT_EQ(ops.bytesWritten, offset);
    }
}

TEST_F(SafeSaveFaultLarge, ALargeSaveWritesEveryByteOfTheWriter)
{
    writeBytes(path, previous);
    FailingFileOps ops;
    ScriptedUi ui;
    ProgressSink quiet;
    EXPECT_TRUE(saveProject(*doc, ui, quiet, ops).written());
    EXPECT_EQ(readBytes(path), bytes);
    EXPECT_EQ(ops.bytesWritten, bytes.size());
    EXPECT_EQ(folder.entries(), (std::vector<std::string>{"game.dvb", "game.dvb.bak1"}));
}

// The whole of `fd`, read until its end.
std::string readPipe(int fd)
{
    std::string out;
    char buffer[4096];
    for (ssize_t n; (n = ::read(fd, buffer, sizeof buffer)) != 0;) {
        if (n < 0) {
            if (errno == EINTR)
                continue;
            break;
        }
        out.append(buffer, static_cast<size_t>(n));
    }
    return out;
}

TEST_F(SafeSaveFault, FileTooLargeForTheProcessLimitKeepsThePreviousFile)
{
    writeBytes(path, previous);
    int channel[2];
    ASSERT_EQ(::pipe(channel), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        // The child takes a file size limit below the new file's size, so the kernel stops the
        // write part-way with EFBIG (SIGXFSZ ignored); the test runner keeps its own limits.
        ::close(channel[0]);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlim_t limit = bytes.size() / 2;
        const rlimit fileSize{limit, limit};
        std::string report = "setrlimit failed";
        if (::setrlimit(RLIMIT_FSIZE, &fileSize) == 0) {
            ScriptedUi ui;
            ProgressSink quiet;
            const SaveResult result = saveProject(*doc, ui, quiet, systemFileOps());
            report = result.status == SaveResult::Status::Failed ? "failed\n" : "not failed\n";
            report += result.reason + "\n";
            report += ui.messages.size() == 2 ? ui.messages[1].text : "no failure message";
        }
        const ssize_t sent = ::write(channel[1], report.data(), report.size());
        ::_exit(sent == static_cast<ssize_t>(report.size()) ? 0 : 1);
    }
    ::close(channel[1]);
    const std::string report = readPipe(channel[0]);
    ::close(channel[0]);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);

    const std::string reason = std::strerror(EFBIG);
    EXPECT_EQ(report, "failed\n" + reason + "\nCould not save \"" + path + "\": " + reason);
    EXPECT_EQ(readBytes(path), previous);
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"game.dvb"});

    // Without the limit the same save goes through.
    ScriptedUi ui;
    ProgressSink quiet;
    EXPECT_TRUE(saveProject(*doc, ui, quiet, systemFileOps()).written());
    EXPECT_EQ(readBytes(path), bytes);
}

} // namespace
} // namespace vorlane
