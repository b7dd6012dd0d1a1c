#include "io/CollectingSink.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace vorlane {
namespace {

TEST(CollectingSink, JoinsThePutChunksInOrder)
{
    CollectingSink sink;
    std::string expected;
    for (int i = 0; i < 5; ++i) {
        ByteBuffer chunk = sink.next(100 + static_cast<size_t>(i));
        EXPECT_TRUE(chunk.empty());
        EXPECT_GE(chunk.capacity(), 100u + static_cast<size_t>(i));
        const std::string piece(static_cast<size_t>(100 + i), static_cast<char>('a' + i));
        std::memcpy(chunk.data(), piece.data(), piece.size());
        chunk.setSize(piece.size());
        sink.put(std::move(chunk));
        expected += piece;
    }
    sink.put(ByteBuffer()); // an empty chunk adds nothing
    EXPECT_TRUE(sink.bytes() == expected);
}

} // namespace
} // namespace vorlane
