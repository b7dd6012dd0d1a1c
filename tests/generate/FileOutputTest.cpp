#include "generate/FileOutput.h"

#include "GenerateTestSupport.h"
#include "generate/GenData.h"
#include "io/FailingFileOps.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace vorlane {
namespace {

// `pieces` runs of `size` bytes each, the n-th of the letter 'a' + n.
std::string letters(int pieces, std::size_t size)
{
    std::string bytes;
    for (int i = 0; i < pieces; ++i)
        bytes.append(size, static_cast<char>('a' + i));
    return bytes;
}

std::size_t entriesOf(const std::filesystem::path &folder)
{
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder),
                                                  std::filesystem::directory_iterator()));
}

TEST(DiskFileOutput, ALargeFileReplacesWhatWasThereWhole)
{
    testing::TempFolder folder;
    const std::string path = (folder.path() / "sprite.dat").string();
    testing::writeBytes(path, std::string(10u << 20, 'z'));
    const std::size_t size = 700'000;
    EXPECT_FALSE(diskFileOutput().writeFile(path, letters(5, size)).has_value());
    EXPECT_EQ(testing::readBytes(path), letters(5, size));
    EXPECT_EQ(entriesOf(folder.path()), 1u);
}

TEST(DiskFileOutput, AFullDeviceIsReportedAndLeavesThePreviousFileWhole)
{
    testing::TempFolder folder;
    const std::string path = (folder.path() / "sprite.dat").string();
    testing::writeBytes(path, "the previous sprite.dat");
    testsupport::FailingFileOps full;
    full.failWriteAt = 1'500'000; // the device fills up part-way
    SafeFileOutput output(full);
    const auto partWay = output.writeFile(path, letters(3, 1u << 20));
    ASSERT_TRUE(partWay.has_value());
    EXPECT_EQ(*partWay, "No space left on device");
    EXPECT_EQ(full.bytesWritten, 1'500'000u);
    EXPECT_EQ(testing::readBytes(path), "the previous sprite.dat");
    testsupport::FailingFileOps fullAtOnce;
    fullAtOnce.failWriteAt = 0;
    const auto whole = SafeFileOutput(fullAtOnce).writeFile(path, std::string(100, 'x'));
    ASSERT_TRUE(whole.has_value());
    EXPECT_EQ(*whole, "No space left on device");
    EXPECT_EQ(testing::readBytes(path), "the previous sprite.dat");
    EXPECT_EQ(entriesOf(folder.path()), 1u);
}

TEST(DiskFileOutput, ADeviceIsNeverWrittenAsAnEngineFile)
{
    const auto failure = diskFileOutput().writeFile("/dev/null", "x");
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(*failure, "it is a device, not a regular file");
}

TEST(DiskFileOutput, AFileThatCannotBeOpenedIsReportedInTheSystemsWords)
{
    testing::TempFolder folder;
    const auto failure = diskFileOutput().writeFile(folder.path().string(), letters(20, 1u << 20));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(*failure, "it is a folder, not a regular file");
    const auto missing =
        diskFileOutput().writeFile((folder.path() / "missing" / "text.dat").string(), "0\r\n");
    ASSERT_TRUE(missing.has_value());
    EXPECT_EQ(*missing, "No such file or directory");
}

TEST(DiskFileOutput, NoBytesMakeAnEmptyFile)
{
    testing::TempFolder folder;
    const std::string path = (folder.path() / "font.dat").string();
    testing::writeBytes(path, "old");
    EXPECT_FALSE(diskFileOutput().writeFile(path, "").has_value());
    EXPECT_EQ(testing::readBytes(path), "");
    EXPECT_TRUE(std::filesystem::exists(path));
}

// A document that cannot be written (a list line whose slot lies outside its table) stops
// generation before a file is touched, and no temporary file is left.
TEST(DiskFileOutput, AGenerationThatFailsLeavesTheFilesAsTheyWere)
{
    testing::TempFolder folder;
    const std::string out = folder.path().string() + "/";
    testing::writeBytes(out + "scene.dat", "the previous scene.dat");
    testing::writeBytes(out + "sprite.dat", "the previous sprite.dat");
    auto doc = makeDocument();
    doc->ProjectInfo.generatePath = out;
    doc->AppSettings.windowIcon = doc->AppSettings.logPath = "null";
    doc->list(Kind::Sprite).lines.push_back({"sprLost", 5000});
    testing::RecordingProgress progress;
    EXPECT_THROW(GenData(*doc, "null", progress, diskFileOutput()), std::out_of_range);
    EXPECT_EQ(testing::readBytes(out + "sprite.dat"), "the previous sprite.dat");
    EXPECT_EQ(testing::readBytes(out + "scene.dat"), "the previous scene.dat");
    EXPECT_EQ(entriesOf(folder.path()), 2u);
}

} // namespace
} // namespace vorlane
