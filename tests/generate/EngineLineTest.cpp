#include "generate/EngineLine.h"
#include "generate/EngineLineSize.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace vorlane {
namespace {

// Writes with `write` into a buffer of exactly the measured size, as the file writers do; the
// address sanitizer catches any byte stored past it.
template<class Write>
std::string lines(const Write &write)
{
    EngineLineSize size;
    write(size);
    const auto buffer = std::make_unique_for_overwrite<char[]>(size.size());
    EngineLine line(buffer.get());
    write(line);
    const auto length = static_cast<std::size_t>(line.position() - buffer.get());
    EXPECT_LE(length, size.size());
    return std::string(buffer.get(), length);
}

TEST(EngineLine, PositiveAndZeroNumbersCarryALeadingBlank)
{
    EXPECT_EQ(lines([](auto &l) { l.number(640).end(); }), " 640\r\n");
    EXPECT_EQ(lines([](auto &l) { l.number(0).end(); }), " 0\r\n");
}

TEST(EngineLine, NumbersAreJoinedByOneFurtherBlank)
{
    EXPECT_EQ(lines([](auto &l) { l.number(640).number(480).end(); }), " 640  480\r\n");
}

TEST(EngineLine, NegativeNumberStandsDirectlyAfterTheSeparator)
{
    EXPECT_EQ(lines([](auto &l) { l.number(5).number(-1).end(); }), " 5 -1\r\n");
    EXPECT_EQ(lines([](auto &l) { l.number(-32768).end(); }), "-32768\r\n");
    EXPECT_EQ(lines([](auto &l) { l.number(-2147483647 - 1).number(2147483647).end(); }),
              "-2147483648  2147483647\r\n");
}

TEST(EngineLine, EveryDigitCount)
{
    EXPECT_EQ(lines([](auto &l) { l.number(9).number(10).number(99).number(100).end(); }),
              " 9  10  99  100\r\n");
    EXPECT_EQ(lines([](auto &l) { l.number(999).number(1000).number(9999).number(10000).end(); }),
              " 999  1000  9999  10000\r\n");
    EXPECT_EQ(lines([](auto &l) { l.number(32767).number(-9999).number(-10000).end(); }),
              " 32767 -9999 -10000\r\n");
    EXPECT_EQ(lines([](auto &l) { l.number(44100).number(1234567).number(-7).end(); }),
              " 44100  1234567 -7\r\n");
}

TEST(EngineLine, ShortNumbersAtTheEndOfTheBuffer)
{
    // Each is the last item measured, so the buffer ends right after its room.
    EXPECT_EQ(lines([](auto &l) { l.number(1); }), " 1");
    EXPECT_EQ(lines([](auto &l) { l.number(-5); }), "-5");
    EXPECT_EQ(lines([](auto &l) { l.text("a").number(7); }), "a  7");
}

TEST(EngineLine, NumberLineIsANumberAloneOnItsLine)
{
    for (const int32_t value :
         {0, 7, 42, 9999, 10000, 32767, -1, -9999, -10000, -32768, 2147483647, -2147483647 - 1}) {
        SCOPED_TRACE(value);
        const std::string alone = lines([&](auto &l) { l.numberLine(value); });
        EXPECT_EQ(alone, lines([&](auto &l) { l.number(value).end(); }));
        EXPECT_EQ(alone,
                  (value < 0 ? "-" : " ") + std::to_string(value < 0 ? -int64_t{value} : value) +
                      "\r\n");
    }
    EXPECT_EQ(lines([](auto &l) {
                  l.numberLine(3);
                  l.numberLine(-4);
                  l.number(5).number(6).end();
              }),
              " 3\r\n-4\r\n 5  6\r\n");
}

TEST(EngineLine, TextsStandAsTheyAreJoinedByOneBlank)
{
    EXPECT_EQ(lines([](auto &l) { l.text("id").text("a path").number(3).end(); }),
              "id a path  3\r\n");
}

TEST(EngineLine, StarredTextIsFollowedDirectlyByTheNextItem)
{
    EXPECT_EQ(lines([](auto &l) { l.starred("data\\").starred("Cap").number(1).end(); }),
              "data\\* Cap*  1\r\n");
    EXPECT_EQ(lines([](auto &l) { l.starred("").text("x").end(); }), "* x\r\n");
}

TEST(EngineLine, EndStarredClosesTheLineWithAnAsterisk)
{
    EXPECT_EQ(lines([](auto &l) { l.endStarred("Application: "); }), "Application: *\r\n");
    EXPECT_EQ(lines([](auto &l) { l.number(1).endStarred("null"); }), " 1 null*\r\n");
}

TEST(EngineLine, JointDropsTheSeparatorBeforeTheNextNumber)
{
    EXPECT_EQ(lines([](auto &l) { l.number(1).joint().number(2).joint().number(-3).end(); }),
              " 1 2-3\r\n");
}

TEST(EngineLine, CountLineIsABareZeroWhenEmpty)
{
    EXPECT_EQ(lines([](auto &l) { l.countLine(0); }), "0\r\n");
    EXPECT_EQ(lines([](auto &l) { l.countLine(3); }), " 3\r\n");
}

TEST(EngineLine, TextsAreWrittenInWindows1252)
{
    // "é" and the en dash take one byte each in Windows-1252; "€" is 0x80; "あ" becomes "?".
    EXPECT_EQ(
        lines([](auto &l) { l.text("Caf\xC3\xA9 \xE2\x80\x93 \xE2\x82\xAC\xE3\x81\x82").end(); }),
        "Caf\xE9 \x96 \x80?\r\n");
}

TEST(EngineLine, EachLineStartsWithoutASeparator)
{
    EXPECT_EQ(lines([](auto &l) {
                  l.text("a").end();
                  l.text("b").end();
                  l.number(1).end();
              }),
              "a\r\nb\r\n 1\r\n");
}

} // namespace
} // namespace vorlane
