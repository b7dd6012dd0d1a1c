#include "project/ProjectReader.h"

#include "ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <random>

namespace vorlane {
namespace {

using namespace testsupport;

// The small project with line `line` (1-based) replaced by `text`.
std::string withLine(int line, const std::string &text)
{
    std::vector<std::string> lines = smallProjectLines();
    lines.at(static_cast<size_t>(line - 1)) = text;
    return crlf(lines);
}

// The small project's first `lines` lines.
std::string firstLines(int lines)
{
    const auto &all = smallProjectLines();
    return crlf(std::vector<std::string>(all.begin(), all.begin() + lines));
}

// How reading `bytes` into a fresh document ends, as the user is told.
std::string outcomeOf(const std::string &bytes)
{
    auto doc = makeDocument();
    const ProjectReadResult r = readProject(bytes, *doc);
    switch (r.status) {
    case ProjectReadResult::Status::Read:
        return "read";
    case ProjectReadResult::Status::Empty:
        return "empty";
    case ProjectReadResult::Status::Damaged:
        break;
    }
    return damageText("project.dvb", r.line, r.message);
}

TEST(DamagedProject, TheIntactSmallProjectReads)
{
    EXPECT_EQ(outcomeOf(crlf(smallProjectLines())), "read");
}

TEST(DamagedProject, TruncatedFileNamesTheLineAndTheMissingField)
{
    EXPECT_EQ(outcomeOf(firstLines(16)),
              "project.dvb:17: the file ends where text in double quotes was expected for id");
    EXPECT_EQ(outcomeOf(firstLines(26)),
              "project.dvb:27: the file ends where a number was expected for frameDelay");
    EXPECT_EQ(outcomeOf(firstLines(50)),
              "project.dvb:51: the file ends where text in double quotes was expected for text");
    EXPECT_EQ(outcomeOf(firstLines(14) + "\"btn\",10,20"),
              "project.dvb:15: the file ends where text in double quotes was expected for "
              "cursorId");
    EXPECT_EQ(outcomeOf(firstLines(29) + "2,"),
              "project.dvb:30: the file ends where a number was expected for logTypeFilterCount");
    EXPECT_EQ(outcomeOf(firstLines(31)),
              "project.dvb:32: the file ends where a number was expected for logTypeFilters[1]");
}

TEST(DamagedProject, TextWhereANumberBelongs)
{
    EXPECT_EQ(
        outcomeOf(withLine(15,
                           "\"btn\",\"10\",20,\"cur\",1,4,1,3,2,\"tpl\",5,6,\"icon\",\"cap\",1,"
                           "0,1,\"su\",\"sd\",\"so\",\"sx\"")),
        "project.dvb:15: a number was expected for x");
    EXPECT_EQ(outcomeOf(withLine(7, "one")), "project.dvb:7: a number was expected for font count");
    EXPECT_EQ(outcomeOf(withLine(40, "\"0\"")),
              "project.dvb:40: a number was expected for logFileFilters[2]");
}

TEST(DamagedProject, NumberWhereATextBelongs)
{
    EXPECT_EQ(outcomeOf(withLine(17, "\"img\",5,1,2,3,4,5,6,7,8,9,10")),
              "project.dvb:17: text in double quotes was expected for path");
    EXPECT_EQ(outcomeOf(withLine(1, "Small")),
              "project.dvb:1: text in double quotes was expected for projectName");
    EXPECT_EQ(outcomeOf(withLine(29, "img,3")),
              "project.dvb:29: text in double quotes was expected for objectId");
}

TEST(DamagedProject, UnterminatedText)
{
    EXPECT_EQ(outcomeOf(withLine(18, "\"cur\",\"img,3")),
              "project.dvb:18: the text for imageId has no closing double quote");
    std::string cut = crlf(smallProjectLines());
    cut.resize(cut.size() - 3); // `"second` without its closing quote and line end
    EXPECT_EQ(outcomeOf(cut), "project.dvb:51: the text for text has no closing double quote");
}

TEST(DamagedProject, NumbersOutsideTheirFieldsRange)
{
    EXPECT_EQ(outcomeOf(withLine(12, "\"root\",\"caption\",\"icon\",32768,600,32,2,60,1")),
              "project.dvb:12: screenWidth must lie between -32768 and 32767");
    EXPECT_EQ(outcomeOf(withLine(17, "\"img\",\"a.bmp\",-32769,2,3,4,5,6,7,8,9,10")),
              "project.dvb:17: red must lie between -32768 and 32767");
    EXPECT_EQ(outcomeOf(withLine(14, "2147483648,8,1,-1,\"log.txt\"")),
              "project.dvb:14: soundMix must lie between -2147483648 and 2147483647");
    EXPECT_EQ(outcomeOf(withLine(14, "-2147483649,8,1,-1,\"log.txt\"")),
              "project.dvb:14: soundMix must lie between -2147483648 and 2147483647");
    EXPECT_EQ(outcomeOf(withLine(25, "99999999999999999999999999")),
              "project.dvb:25: cell must lie between -32768 and 32767");
    // The limits themselves are numbers of their fields.
    EXPECT_EQ(outcomeOf(withLine(14, "2147483647,-32768,32767,-1,\"log.txt\"")), "read");
    EXPECT_EQ(outcomeOf(withLine(14, "-2147483648,8,1,-1,\"log.txt\"")), "read");
}

TEST(DamagedProject, TrailingCharactersAfterAField)
{
    EXPECT_EQ(outcomeOf(withLine(25, "3x")), "project.dvb:25: unexpected characters after cell");
    EXPECT_EQ(outcomeOf(withLine(17, "\"img\",\"a.bmp\",1,2,3,4,5,6,7,8,9,10 ")),
              "project.dvb:17: unexpected characters after alpha");
    EXPECT_EQ(outcomeOf(withLine(12, "\"root\",\"caption\",\"icon\",800,600,32,2,60,1.5")),
              "project.dvb:12: unexpected characters after splashEnabled");
    // After a text, a double quote that no comma or line end follows belongs to the text;
    // one that the line end cuts off leaves the text open.
    EXPECT_EQ(outcomeOf(withLine(19, "\"Hi, there\"!")),
              "project.dvb:19: the text for content has no closing double quote");
    EXPECT_EQ(outcomeOf(withLine(20, "\"fnt\",\"f.ttf\"\r")),
              "project.dvb:20: unexpected characters after path");
    EXPECT_EQ(outcomeOf(withLine(22, "\"sfx\",\"s.wav\",0x10,5,6")),
              "project.dvb:22: unexpected characters after defaultVolume");
    EXPECT_EQ(outcomeOf(withLine(18, "\"cur\",\"img\" ,3")),
              "project.dvb:18: the text for imageId has no closing double quote");
}

TEST(DamagedProject, ADoubleQuoteInsideATextBelongsToIt)
{
    auto doc = makeDocument();
    const ProjectReadResult r = readProject(withLine(18, "\"cur\",\"say \"hi\" now\"\",3"), *doc);
    ASSERT_EQ(r.status, ProjectReadResult::Status::Read) << r.line << ": " << r.message;
    EXPECT_EQ(doc->Cursors[0].imageId, "say \"hi\" now\"");
    EXPECT_EQ(doc->Cursors[0].orientation, 3);
    // A quote that a comma follows still ends the text: such a text does not read back.
    EXPECT_EQ(outcomeOf(withLine(18, "\"cur\",\"a\",b\",3")),
              "project.dvb:18: a number was expected for orientation");
}

TEST(DamagedProject, ANumberIsAnOptionalMinusAndDigitsOnly)
{
    for (const char *notANumber : {"+4", "-", "--4", " 4", "", "\"4\"", "four"})
        EXPECT_EQ(outcomeOf(withLine(22, std::string("\"sfx\",\"s.wav\",") + notANumber + ",5,6")),
                  "project.dvb:22: a number was expected for defaultVolume")
            << "\"" << notANumber << "\"";
    for (const char *number : {"4", "-4", "007", "-0", "0"})
        EXPECT_EQ(outcomeOf(withLine(22, std::string("\"sfx\",\"s.wav\",") + number + ",5,6")),
                  "read")
            << number;
}

TEST(DamagedProject, CountsLargerThanTheirTablesOrNegative)
{
    EXPECT_EQ(outcomeOf(withLine(3, "102")),
              "project.dvb:3: button count must lie between 0 and 101");
    EXPECT_EQ(outcomeOf(withLine(4, "27")),
              "project.dvb:4: cursor count must lie between 0 and 26");
    EXPECT_EQ(outcomeOf(withLine(5, "202")),
              "project.dvb:5: image count must lie between 0 and 201");
    EXPECT_EQ(outcomeOf(withLine(8, "102")),
              "project.dvb:8: music count must lie between 0 and 101");
    EXPECT_EQ(outcomeOf(withLine(9, "202")), "project.dvb:9: sfx count must lie between 0 and 201");
    EXPECT_EQ(outcomeOf(withLine(10, "-1")),
              "project.dvb:10: sprite count must lie between 0 and 201");
    EXPECT_EQ(outcomeOf(withLine(23, "\"spr\",\"img\",\"walk\",7,8,1,102")),
              "project.dvb:23: animCount must lie between 0 and 101");
    EXPECT_EQ(outcomeOf(withLine(24, "\"walk\",-1")),
              "project.dvb:24: frameCount must lie between 0 and 101");
    EXPECT_EQ(outcomeOf(withLine(28, "\"scn\",1,0,102")),
              "project.dvb:28: layerCount must lie between 0 and 101");
    EXPECT_EQ(outcomeOf(withLine(49, "51")),
              "project.dvb:49: customFilterCount must lie between 0 and 50");
    EXPECT_EQ(outcomeOf(withLine(49, "-1")),
              "project.dvb:49: customFilterCount must lie between 0 and 50");
    // A full table is allowed; here the text line is then taken for the second cursor.
    EXPECT_EQ(outcomeOf(withLine(4, "26")),
              "project.dvb:19: a number was expected for orientation");
}

TEST(DamagedProject, WhatWasReadBeforeTheDamageStays)
{
    auto doc = makeDocument();
    const ProjectReadResult r =
        readProject(withLine(17, "\"img\",\"a.bmp\",1,2,3,4,5,6,7,8,9,x"), *doc);
    ASSERT_EQ(r.status, ProjectReadResult::Status::Damaged);
    EXPECT_EQ(r.line, 17);
    EXPECT_EQ(r.message, "a number was expected for alpha");

    EXPECT_EQ(doc->ProjectInfo.projectName, "Small");
    EXPECT_EQ(doc->ObjectCounts, (std::array<int16_t, 9>{2, 1, 1, 1, 1, 1, 1, 1, 1}));
    EXPECT_EQ(doc->AppSettings.soundMix, 44100);
    ASSERT_EQ(doc->list(Kind::Button).lines.size(), 2u);
    EXPECT_EQ(doc->Buttons[1].id, "_hot");
    EXPECT_EQ(doc->Buttons[1].inUse, -1);
    // The damaged record keeps the fields read so far but is neither listed nor in use.
    EXPECT_EQ(doc->Images[0].id, "img");
    EXPECT_EQ(doc->Images[0].bound, 9);
    EXPECT_EQ(doc->Images[0].inUse, 0);
    EXPECT_TRUE(doc->list(Kind::Image).lines.empty());
    EXPECT_TRUE(doc->Cursors[0].id.empty());
    EXPECT_TRUE(doc->list(Kind::Cursor).lines.empty());
}

TEST(DamagedProject, CountsAreCheckedBeforeAnythingIsReadIntoATable)
{
    auto doc = makeDocument();
    EXPECT_EQ(readProject(withLine(5, "202"), *doc).line, 5);
    EXPECT_EQ(doc->ObjectCounts, (std::array<int16_t, 9>{2, 1, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_TRUE(doc->Buttons[0].id.empty());

    auto sprites = makeDocument();
    EXPECT_EQ(readProject(withLine(23, "\"spr\",\"img\",\"walk\",7,8,1,200"), *sprites).line, 23);
    EXPECT_EQ(sprites->Sprites[0].id, "spr");
    EXPECT_EQ(sprites->Sprites[0].animCount, 0);
    EXPECT_EQ(sprites->Sprites[0].anims[0].inUse, 0);
    EXPECT_TRUE(sprites->Sprites[0].anims[0].id.empty());
}

TEST(DamagedProject, AnyPrefixOfTheFileIsReadSafely)
{
    const std::string file = crlf(smallProjectLines());
    for (size_t length = 1; length < file.size(); ++length) {
        const std::string outcome = outcomeOf(file.substr(0, length));
        // Only the file without its last line end, or part of it, is complete.
        if (length >= file.size() - 2)
            EXPECT_EQ(outcome, "read") << length;
        else
            EXPECT_EQ(outcome.rfind("project.dvb:", 0), 0u) << length << ": " << outcome;
    }
}

TEST(DamagedProject, RandomDamageNeverEscapesTheFile)
{
    const std::string file = crlf(smallProjectLines());
    std::mt19937 random(20240611);
    const std::string alphabet = "\",\r\n-0123456789x \xFF";
    auto doc = makeDocument();
    for (int round = 0; round < 3000; ++round) {
        std::string damaged = file;
        const int edits = 1 + static_cast<int>(random() % 4);
        for (int e = 0; e < edits && !damaged.empty(); ++e) {
            const size_t at = random() % damaged.size();
            const char c = alphabet[random() % alphabet.size()];
            switch (random() % 4) {
            case 0:
                damaged[at] = c;
                break;
            case 1:
                damaged.insert(at, 1, c);
                break;
            case 2:
                damaged.erase(at, 1);
                break;
            default:
                damaged.resize(at);
                break;
            }
        }
        const ProjectReadResult r = readProject(damaged, *doc);
        if (r.status == ProjectReadResult::Status::Damaged) {
            EXPECT_GE(r.line, 1);
            EXPECT_LE(r.line, 60);
            EXPECT_FALSE(r.message.empty());
        }
    }
}

} // namespace
} // namespace vorlane
