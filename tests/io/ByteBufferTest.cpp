#include "io/ByteBuffer.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace vorlane {
namespace {

TEST(ByteBuffer, StartsEmptyAndHoldsWhatItIsGiven)
{
    ByteBuffer empty;
    EXPECT_TRUE(empty.empty());
    EXPECT_EQ(empty.size(), 0u);
    EXPECT_EQ(empty.view(), "");

    const ByteBuffer bytes(std::string_view("a\0b\r\n", 5));
    EXPECT_EQ(bytes.size(), 5u);
    EXPECT_EQ(bytes.str(), std::string("a\0b\r\n", 5));
    EXPECT_TRUE(bytes == std::string_view("a\0b\r\n", 5));
    EXPECT_FALSE(bytes == "a");
}

TEST(ByteBuffer, ReserveKeepsTheBytesUpToTheSize)
{
    ByteBuffer buffer(std::string_view("kept"));
    buffer.reserve(3u << 20);
    EXPECT_GE(buffer.capacity(), 3u << 20);
    EXPECT_EQ(buffer.view(), "kept");
    std::memset(buffer.data() + 4, 'z', buffer.capacity() - 4);
    buffer.setSize(buffer.capacity());
    EXPECT_EQ(buffer.view().substr(0, 6), "keptzz");
    EXPECT_EQ(buffer.view().back(), 'z');

    const std::size_t capacity = buffer.capacity();
    buffer.reserve(10); // never shrinks
    EXPECT_EQ(buffer.capacity(), capacity);
    buffer.clear();
    EXPECT_TRUE(buffer.empty());
    EXPECT_EQ(buffer.capacity(), capacity);
}

TEST(ByteBuffer, AppendGrowsAndKeepsEverything)
{
    ByteBuffer buffer;
    std::string expected;
    for (int i = 0; i < 4000; ++i) {
        const std::string piece =
            std::to_string(i) + std::string(static_cast<size_t>(i % 700), 'x');
        buffer.append(piece);
        expected += piece;
    }
    buffer.append("");
    EXPECT_GT(expected.size(), 1u << 20);
    EXPECT_EQ(buffer.size(), expected.size());
    EXPECT_TRUE(buffer == expected);
}

TEST(ByteBuffer, MovingHandsTheBytesOver)
{
    ByteBuffer first(std::string_view("moved"));
    ByteBuffer second(std::move(first));
    EXPECT_EQ(second.view(), "moved");
    EXPECT_EQ(first.capacity(), 0u); // NOLINT: a moved-from buffer is empty
    EXPECT_TRUE(first.empty());

    ByteBuffer third(std::string_view("replaced"));
    third = std::move(second);
    EXPECT_EQ(third.view(), "moved");
    EXPECT_TRUE(second.empty());
}

} // namespace
} // namespace vorlane
