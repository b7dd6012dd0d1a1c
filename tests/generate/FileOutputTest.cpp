#include "generate/FileOutput.h"

#include "GenerateTestSupport.h"
#include "io/FailingFileOps.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace vorlane {
namespace {

// Puts `pieces` chunks of `size` bytes each, the n-th filled with the letter 'a' + n.
ChunkProducer letters(int pieces, std::size_t size)
{
    return [pieces, size](ChunkSink &sink) {
        for (int i = 0; i < pieces; ++i) {
            ByteBuffer chunk = sink.next(size);
            std::memset(chunk.data(), 'a' + i, size);
            chunk.setSize(size);
            sink.put(std::move(chunk));
        }
    };
}

std::string expectedLetters(int pieces, std::size_t size)
{
    std::string bytes;
    for (int i = 0; i < pieces; ++i)
        bytes.append(size, static_cast<char>('a' + i));
    return bytes;
}

TEST(DiskFileOutput, ChunksLandInTheFileInOrderReplacingWhatWasThere)
{
    testing::TempFolder folder;
    const std::string path = (folder.path() / "sprite.dat").string();
    testing::writeBytes(path, std::string(10u << 20, 'z'));
    const std::size_t size = 700'000;
    EXPECT_FALSE(diskFileOutput().writeChunked(path, letters(5, size)).has_value());
    EXPECT_EQ(testing::readBytes(path), expectedLetters(5, size));
}

TEST(DiskFileOutput, AFullDeviceIsReportedAndLeavesThePreviousFileWhole)
{
    testing::TempFolder folder;
    const std::string path = (folder.path() / "sprite.dat").string();
    testing::writeBytes(path, "the previous sprite.dat");
    testsupport::FailingFileOps full;
    full.failWriteAt = 1'500'000; // the device fills up in the second chunk
    SafeFileOutput output(full);
    const auto chunked = output.writeChunked(path, letters(3, 1u << 20));
    ASSERT_TRUE(chunked.has_value());
    EXPECT_EQ(*chunked, "No space left on device");
    EXPECT_EQ(testing::readBytes(path), "the previous sprite.dat");
    testsupport::FailingFileOps fullAtOnce;
    fullAtOnce.failWriteAt = 0;
    const auto whole = SafeFileOutput(fullAtOnce).writeFile(path, std::string(100, 'x'));
    ASSERT_TRUE(whole.has_value());
    EXPECT_EQ(*whole, "No space left on device");
    EXPECT_EQ(testing::readBytes(path), "the previous sprite.dat");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()),
                            std::filesystem::directory_iterator()),
              1);
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
    const auto failure =
        diskFileOutput().writeChunked(folder.path().string(), letters(20, 1u << 20));
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(*failure, "it is a folder, not a regular file");
    const auto missing = diskFileOutput().writeChunked(
        (folder.path() / "missing" / "text.dat").string(), letters(1, 10));
    ASSERT_TRUE(missing.has_value());
    EXPECT_EQ(*missing, "No such file or directory");
}

TEST(DiskFileOutput, NothingProducedMakesAnEmptyFile)
{
    testing::TempFolder folder;
    const std::string path = (folder.path() / "font.dat").string();
    testing::writeBytes(path, "old");
    EXPECT_FALSE(diskFileOutput().writeChunked(path, [](ChunkSink &) {}).has_value());
    EXPECT_EQ(testing::readBytes(path), "");
    EXPECT_FALSE(diskFileOutput().writeChunked(path, letters(0, 1)).has_value());
    EXPECT_TRUE(std::filesystem::exists(path));
}

TEST(DiskFileOutput, AProducerThatThrowsPassesTheExceptionOnAndWritesNothingMore)
{
    testing::TempFolder folder;
    const std::string path = (folder.path() / "scene.dat").string();
    testing::writeBytes(path, "the previous scene.dat");
    // Failing before any chunk is put leaves the file as it was.
    EXPECT_THROW(diskFileOutput().writeChunked(
                     path, [](ChunkSink &) { throw std::out_of_range("no such slot"); }),
                 std::out_of_range);
    EXPECT_EQ(testing::readBytes(path), "the previous scene.dat");

    // Failing later leaves the file as it was too: the chunks went to a temporary file.
    const std::size_t size = 3u << 20;
    EXPECT_THROW(diskFileOutput().writeChunked(path,
                                               [&](ChunkSink &sink) {
                                                   letters(3, size)(sink);
                                                   throw std::out_of_range("no such slot");
                                               }),
                 std::out_of_range);
    EXPECT_EQ(testing::readBytes(path), "the previous scene.dat");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()),
                            std::filesystem::directory_iterator()),
              1);
}

// An output that only knows whole files gets the chunks joined.
TEST(FileOutput, ChunksAreJoinedForAnOutputOfWholeFiles)
{
    testing::MemoryFiles files;
    EXPECT_FALSE(files.writeChunked("out/text.dat", letters(4, 3000)).has_value());
    EXPECT_EQ(files.files["out/text.dat"], expectedLetters(4, 3000));
}

} // namespace
} // namespace vorlane
