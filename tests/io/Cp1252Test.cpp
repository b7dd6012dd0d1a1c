#include "io/Cp1252.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(Cp1252, EveryByteRoundTripsThroughUtf8)
{
    std::string all;
    for (int b = 0; b < 256; ++b)
        all.push_back(static_cast<char>(b));
    EXPECT_EQ(toCp1252(toUtf8(all)), all);
}

TEST(Cp1252, TellsWhichCharactersItHolds)
{
    EXPECT_TRUE(cp1252Holds(U'a'));
    EXPECT_TRUE(cp1252Holds(U'?'));
    EXPECT_TRUE(cp1252Holds(0x20AC)); // euro sign, byte 0x80
    EXPECT_TRUE(cp1252Holds(0xE9));
    EXPECT_TRUE(cp1252Holds(0x81)); // an unassigned byte stands for itself
    EXPECT_FALSE(cp1252Holds(0x4E2D));
    EXPECT_FALSE(cp1252Holds(0x0100));
    EXPECT_FALSE(cp1252Holds(0x1F600));
}

TEST(Cp1252, ConvertsTheSpecialRange)
{
    EXPECT_EQ(toUtf8("\x80"), "\xE2\x82\xAC"); // euro sign
    EXPECT_EQ(toUtf8("\xE9"), "\xC3\xA9");     // e acute
    EXPECT_EQ(toCp1252("\xE2\x80\x9C"), "\x93");
}

TEST(Cp1252, UnrepresentableCharactersBecomeQuestionMarks)
{
    EXPECT_EQ(toCp1252("a\xE4\xB8\xAD"
                       "b"),
              "a?b");                             // a CJK character
    EXPECT_EQ(toCp1252("\xF0\x9F\x98\x80"), "?"); // an emoji
    EXPECT_EQ(toCp1252("x\xC3"), "x?");           // truncated sequence
    EXPECT_EQ(toCp1252("\xFF"
                       "z"),
              "?z"); // not UTF-8 at all
}

} // namespace
} // namespace vorlane
