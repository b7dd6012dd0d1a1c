#include "io/SafeSave.h"

#include "io/FailingFileOps.h"
#include "project/ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

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

// The system's file calls, with every write taking at most `piece` bytes, as a pipe-like or
// interrupted write may.
class ShortWrites : public FailingFileOps
{
public:
    size_t piece = 7;
    int calls = 0;

    int write(int handle, const char *data, size_t size, size_t &written) override
    {
        ++calls;
        return FailingFileOps::write(handle, data, std::min(size, piece), written);
    }
};

TEST_F(SafeSave, WritesTakenInShortPiecesMakeTheWholeFile)
{
    ShortWrites shortOps;
    const FileWriteResult r = writeFileSafely(target, payload(), shortOps);
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(readBytes(target), payload());
    EXPECT_EQ(shortOps.calls, static_cast<int>((payload().size() + 6) / 7));
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"project.dvb"});
}

TEST(SafeSaveNames, FolderOfAPath)
{
    EXPECT_EQ(folderOf("/a/b/c.dvb"), "/a/b");
    EXPECT_EQ(folderOf("c.dvb"), ".");
    EXPECT_EQ(folderOf("/c.dvb"), "/");
}

} // namespace
} // namespace vorlane
