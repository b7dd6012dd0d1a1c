#include "io/ChunkWriter.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace vorlane {
namespace {

// Fills a chunk from the writer with `piece` and puts it.
void putPiece(ChunkWriter &writer, const std::string &piece)
{
    ByteBuffer chunk = writer.next(piece.size());
    EXPECT_TRUE(chunk.empty());
    EXPECT_GE(chunk.capacity(), piece.size());
    if (!piece.empty())
        std::memcpy(chunk.data(), piece.data(), piece.size());
    chunk.setSize(piece.size());
    writer.put(std::move(chunk));
}

// Writes into `file`.
ChunkWriter::WriteAll appendingTo(std::string &file)
{
    return [&file](const char *data, std::size_t size) {
        file.append(data, size);
        return 0;
    };
}

TEST(ChunkWriter, WritesEveryChunkInTheOrderItWasPut)
{
    std::string file;
    int written = 0;
    std::string expected;
    {
        ChunkWriter writer(appendingTo(file), [&] { ++written; });
        for (int i = 0; i < 20; ++i) {
            const std::string piece = "chunk " + std::to_string(i) + "\r\n";
            putPiece(writer, piece);
            expected += piece;
        }
        EXPECT_EQ(writer.finish(), 0);
    }
    EXPECT_EQ(file, expected);
    EXPECT_EQ(written, 20);
}

TEST(ChunkWriter, HandsOutTheSameFewChunksAgain)
{
    std::set<const char *> seen;
    ChunkWriter writer([](const char *, std::size_t) { return 0; });
    for (int i = 0; i < 30; ++i) {
        ByteBuffer chunk = writer.next(10);
        EXPECT_GE(chunk.capacity(), i == 0 ? ChunkWriter::FirstChunkSize : ChunkWriter::ChunkSize);
        if (i > 0) // the small first chunk grows to a full one when it comes back
            seen.insert(chunk.data());
        chunk.setSize(1);
        writer.put(std::move(chunk));
    }
    EXPECT_EQ(writer.finish(), 0);
    EXPECT_LE(seen.size(), 3u);
}

TEST(ChunkWriter, AFileOfOneChunkIsWrittenWithoutAThreadALargerOneOnItsOwn)
{
    std::vector<std::thread::id> writers;
    const auto record = [&](const char *, std::size_t) {
        writers.push_back(std::this_thread::get_id());
        return 0;
    };
    {
        ChunkWriter writer(record);
        putPiece(writer, "small");
        EXPECT_EQ(writer.finish(), 0);
    }
    ASSERT_EQ(writers.size(), 1u);
    EXPECT_EQ(writers[0], std::this_thread::get_id());

    writers.clear();
    {
        ChunkWriter writer(record);
        putPiece(writer, "first");
        putPiece(writer, "second");
        EXPECT_EQ(writer.finish(), 0);
    }
    ASSERT_EQ(writers.size(), 2u);
    EXPECT_NE(writers[0], std::this_thread::get_id());
    EXPECT_EQ(writers[1], writers[0]);
}

TEST(ChunkWriter, KeepsNoMoreChunksThanItWasGiven)
{
    std::set<const char *> seen;
    ChunkWriter writer([](const char *, std::size_t) { return 0; }, {}, 5);
    for (int i = 0; i < 40; ++i) {
        ByteBuffer chunk = writer.next(10);
        if (i > 0)
            seen.insert(chunk.data());
        chunk.setSize(1);
        writer.put(std::move(chunk));
    }
    EXPECT_EQ(writer.finish(), 0);
    EXPECT_LE(seen.size(), 5u);
    EXPECT_GE(seen.size(), 1u);
}

TEST(ChunkWriter, AChunkLargerThanUsualHasRoomForWhatWasAskedFor)
{
    std::size_t total = 0;
    ChunkWriter writer([&](const char *, std::size_t size) {
        total += size;
        return 0;
    });
    const std::string large(3 * ChunkWriter::ChunkSize + 5, 'L');
    putPiece(writer, "small");
    putPiece(writer, large);
    putPiece(writer, "small again");
    EXPECT_EQ(writer.finish(), 0);
    EXPECT_EQ(total, 5 + large.size() + 11);
}

TEST(ChunkWriter, AfterTheFirstFailureNothingMoreIsWrittenAndTheFailureIsReported)
{
    int calls = 0;
    int written = 0;
    std::string file;
    ChunkWriter writer(
        [&](const char *data, std::size_t size) {
            if (++calls == 2)
                return ENOSPC;
            file.append(data, size);
            return 0;
        },
        [&] { ++written; });
    for (int i = 0; i < 6; ++i)
        putPiece(writer, "piece " + std::to_string(i) + ";");
    EXPECT_EQ(writer.finish(), ENOSPC);
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(written, 1);
    EXPECT_EQ(file, "piece 0;");
}

TEST(ChunkWriter, EmptyChunksAreNotWritten)
{
    int calls = 0;
    ChunkWriter writer([&](const char *, std::size_t) {
        ++calls;
        return 0;
    });
    putPiece(writer, "");
    writer.put(ByteBuffer());
    putPiece(writer, "x");
    EXPECT_EQ(writer.finish(), 0);
    EXPECT_EQ(calls, 1);
}

TEST(ChunkWriter, FinishingTwiceAndDestroyingAfterwardsIsHarmless)
{
    std::string file;
    {
        ChunkWriter writer(appendingTo(file));
        putPiece(writer, "once");
        EXPECT_EQ(writer.finish(), 0);
        EXPECT_EQ(writer.finish(), 0);
    }
    EXPECT_EQ(file, "once");
}

TEST(ChunkWriter, DestroyingWithoutFinishingDropsWhatIsNotWrittenYet)
{
    std::string file;
    {
        ChunkWriter writer(appendingTo(file));
        putPiece(writer, "never written");
    }
    EXPECT_EQ(file, "");

    {
        ChunkWriter writer(appendingTo(file));
        for (int i = 0; i < 10; ++i)
            putPiece(writer, std::to_string(i));
        writer.abandon();
        // What the thread wrote before stays, in order; nothing after it.
        EXPECT_EQ(std::string("0123456789").substr(0, file.size()), file);
        EXPECT_EQ(writer.finish(), 0);
    }
    EXPECT_LE(file.size(), 10u);
}

} // namespace
} // namespace vorlane
