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

TEST(Cp1252, TellsWhetherATextFits)
{
    EXPECT_TRUE(fitsCp1252(""));
    EXPECT_TRUE(fitsCp1252("plain"));
    EXPECT_TRUE(fitsCp1252("Café € \xC2\x81")); // U+0081 stands for the byte 0x81
    EXPECT_TRUE(fitsCp1252("x\xFF"));           // malformed: "?" either way
    EXPECT_FALSE(fitsCp1252("Проект"));
    EXPECT_FALSE(fitsCp1252("日本"));
    EXPECT_FALSE(fitsCp1252("a\xF0\x9F\x98\x80"));
}

TEST(Cp1252, ListsEachCharacterItCannotHoldOnceInOrder)
{
    EXPECT_EQ(charactersOutsideCp1252("ПрП р é😀П"), (std::vector<std::string>{"П", "р", "😀"}));
    EXPECT_TRUE(charactersOutsideCp1252("Café\xFF").empty());
}

TEST(Cp1252, CleanUtf8KeepsCharactersAndMarksMalformedBytes)
{
    std::string out;
    appendCleanUtf8(out, "Ж日😀");
    EXPECT_EQ(out, "Ж日😀");
    out.clear();
    appendCleanUtf8(out, "a\xFF\xD0z\xC0\xAF\xED\xA0\x80");
    EXPECT_EQ(out, "a??z?????"); // stray, truncated, overlong, surrogate
}

} // namespace
} // namespace vorlane
