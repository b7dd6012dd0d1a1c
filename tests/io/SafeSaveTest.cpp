#include "io/SafeSave.h"

#include "io/FailingFileOps.h"
#include "project/ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>

#include <sys/stat.h>

namespace vorlane {
namespace {

using namespace testsupport;

std::string payload()
{
    std::string bytes;
    for (int i = 0; i < 5000; ++i)
        bytes += static_cast<char>('a' + i % 26);
    return bytes;
}

class SafeSave : public ::testing::Test
{
protected:
    TempFolder folder;
    FailingFileOps ops;
    const std::string target = folder.file("project.dvb");
    const std::string old = "the previous project\r\n";

    void SetUp() override { writeBytes(target, old); }

    // The old file is as it was and nothing else is left in the folder.
    void expectUntouched()
    {
        EXPECT_EQ(readBytes(target), old);
        EXPECT_EQ(folder.entries(), std::vector<std::string>{"project.dvb"});
    }
};

TEST_F(SafeSave, ReplacesTheFileAndLeavesNoTemporaryFile)
{
    const FileWriteResult r = writeFileSafely(target, payload(), ops);
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(r.reason, "");
    EXPECT_EQ(readBytes(target), payload());
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"project.dvb"});
    // The bytes went through a temporary file next to the target.
    ASSERT_EQ(ops.created.size(), 1u);
    EXPECT_EQ(ops.created[0].rfind(folder.file(".project.dvb.saving-"), 0), 0u);
}

TEST_F(SafeSave, CreatesAFileThatDidNotExist)
{
    const std::string fresh = folder.file("new.dvb");
    EXPECT_TRUE(writeFileSafely(fresh, "abc", ops).ok);
    EXPECT_EQ(readBytes(fresh), "abc");
    EXPECT_EQ(folder.entries(), (std::vector<std::string>{"new.dvb", "project.dvb"}));
}

TEST_F(SafeSave, KeepsThePermissionsOfTheFileItReplaces)
{
    ASSERT_EQ(chmod(target.c_str(), 0640), 0);
    ASSERT_TRUE(writeFileSafely(target, "abc", ops).ok);
    struct stat info
    {
    };
    ASSERT_EQ(stat(target.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0640u);
}

TEST_F(SafeSave, WriteFailingPartWayLeavesTheOldFile)
{
    ops.failWriteAt = 1000;
    const FileWriteResult r = writeFileSafely(target, payload(), ops);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.reason, "No space left on device");
    EXPECT_EQ(ops.bytesWritten, 1000u);
    ASSERT_EQ(ops.created.size(), 1u);
    expectUntouched();
}

TEST_F(SafeSave, WriteFailingAtTheFirstByteLeavesTheOldFile)
{
    ops.failWriteAt = 0;
    EXPECT_EQ(writeFileSafely(target, payload(), ops).reason, "No space left on device");
    expectUntouched();
}

TEST_F(SafeSave, SyncFailureLeavesTheOldFile)
{
    ops.syncError = EIO;
    const FileWriteResult r = writeFileSafely(target, payload(), ops);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.reason, "Input/output error");
    expectUntouched();
}

TEST_F(SafeSave, CloseFailureLeavesTheOldFile)
{
    ops.closeError = EDQUOT;
    EXPECT_EQ(writeFileSafely(target, payload(), ops).reason, "Disk quota exceeded");
    expectUntouched();
}

TEST_F(SafeSave, RenameFailureLeavesTheOldFile)
{
    ops.renameError = EACCES;
    const FileWriteResult r = writeFileSafely(target, payload(), ops);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.reason, "Permission denied");
    expectUntouched();
}

TEST_F(SafeSave, MissingFolderIsReportedAndNothingIsCreated)
{
    const std::string path = folder.file("no such folder/project.dvb");
    const FileWriteResult r = writeFileSafely(path, payload(), ops);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.reason, "No such file or directory");
    EXPECT_TRUE(ops.created.empty());
    expectUntouched();
}

TEST_F(SafeSave, AFolderInTheWayIsReportedAndLeftAlone)
{
    const std::string path = folder.file("taken.dvb");
    ASSERT_EQ(mkdir(path.c_str(), 0755), 0);
    const FileWriteResult r = writeFileSafely(path, payload(), ops);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.reason, "it is a folder, not a regular file");
    EXPECT_EQ(folder.entries(), (std::vector<std::string>{"project.dvb", "taken.dvb"}));
}

TEST_F(SafeSave, ChunksAreWrittenAsTheyComeAndTheDeviceStartsOnEach)
{
    std::string expected;
    const auto result = writeFileSafely(
        target,
        [&](ChunkSink &sink) {
            for (int i = 0; i < 4; ++i) {
                ByteBuffer chunk = sink.next(0);
                const std::string piece = "piece " + std::to_string(i) + "\r\n";
                std::memcpy(chunk.data(), piece.data(), piece.size());
                chunk.setSize(piece.size());
                sink.put(std::move(chunk));
                expected += piece;
            }
        },
        ops);
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(readBytes(target), expected);
    EXPECT_EQ(ops.writebacksStarted, 4);
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"project.dvb"});
}

TEST_F(SafeSave, AProducerThatThrowsLeavesTheOldFileAndNoTemporaryFile)
{
    // After one chunk (written when the producer would finish) and after several (written on
    // the writer's thread while it goes on).
    for (const int chunks : {1, 4}) {
        SCOPED_TRACE(chunks);
        FailingFileOps failing;
        const auto save = [&] {
            writeFileSafely(
                target,
                [&](ChunkSink &sink) {
                    for (int i = 0; i < chunks; ++i) {
                        ByteBuffer chunk = sink.next(1u << 20);
                        std::memset(chunk.data(), 'h', 1u << 20);
                        chunk.setSize(1u << 20);
                        sink.put(std::move(chunk));
                    }
                    throw std::out_of_range("no such slot");
                },
                failing);
        };
        EXPECT_THROW(save(), std::out_of_range);
        EXPECT_EQ(failing.created.size(), 1u);
        expectUntouched();
    }
}

TEST(SafeSaveNames, FolderOfAPath)
{
    EXPECT_EQ(folderOf("/a/b/c.dvb"), "/a/b");
    EXPECT_EQ(folderOf("c.dvb"), ".");
    EXPECT_EQ(folderOf("/c.dvb"), "/");
}

} // namespace
} // namespace vorlane
