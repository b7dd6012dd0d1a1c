#include "json/JsonText.h"
#include "json/ProjectJson.h"

#include "../project/ProjectTestSupport.h"
#include "../project/RandomProject.h"
#include "io/Cp1252.h"
#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"
#include "rules/NewObjects.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using namespace testsupport;

// The JSON text of the project file `bytes`, which must read.
std::string exportText(const std::string &bytes)
{
    auto doc = makeDocument();
    const ProjectReadResult read = readProjectForJson(bytes, *doc);
    EXPECT_EQ(read.status, ProjectReadResult::Status::Read) << read.line << ": " << read.message;
    return jsonText(projectToJson(*doc));
}

// The project file the JSON text `text` makes, which must import.
std::string importBytes(const std::string &text)
{
    auto doc = makeDocument();
    const auto problem = projectFromJsonText(text, *doc);
    EXPECT_FALSE(problem) << (problem ? problemText("in.json", *problem) : "");
    return projectFileBytes(*doc);
}

// Why importing `text` fails, as the command line shows it.
std::string importProblem(const std::string &text)
{
    auto doc = makeDocument();
    const auto problem = projectFromJsonText(text, *doc);
    return problem ? problemText("game.json", *problem) : "imported";
}

std::string replaced(std::string text, const std::string &from, const std::string &to)
{
    const size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    if (at != std::string::npos)
        text.replace(at, from.size(), to);
    return text;
}

// "LINE:COLUMN" of the first `needle` in `text`, counted here: lines from 1, columns in
// characters from 1.
std::string placeOf(const std::string &text, const std::string &needle)
{
    const size_t at = text.find(needle);
    EXPECT_NE(at, std::string::npos) << needle;
    int line = 1;
    size_t lineStart = 0;
    for (size_t i = 0; i < at; ++i)
        if (text[i] == '\n') {
            ++line;
            lineStart = i + 1;
        }
    const std::string before = text.substr(lineStart, at - lineStart);
    int column = 1;
    for (unsigned char c : before)
        column += (c & 0xC0) != 0x80;
    return std::to_string(line) + ":" + std::to_string(column);
}

const std::string Small = crlf(smallProjectLines());

TEST(ProjectJson, ExportThenImportGivesBackEveryRandomProjectFileByteForByte)
{
    // Unsettled projects too: hot spots with a cursor, splashEnabled other than 0 and 1,
    // counts of 0 with used slots, texts of every Windows-1252 character but the quote.
    int hotSpotCursors = 0;
    for (unsigned seed = 1; seed <= 120; ++seed) {
        auto doc = RandomProject(seed, seed % 2 == 0).make();
        removeNewObjects(*doc);
        const std::string file = projectFileBytes(*doc);
        const std::string text = exportText(file);
        ASSERT_EQ(importBytes(text), file) << "seed " << seed;
        hotSpotCursors += text.find("\"id\": \"_") != std::string::npos &&
                          text.find("\"cursorId\": \"null\"") == std::string::npos;
    }
    EXPECT_GT(hotSpotCursors, 0);
}

TEST(ProjectJson, ImportFillsTheDocumentAsTheReaderFillsItFromTheFile)
{
    for (unsigned seed = 301; seed <= 320; ++seed) {
        auto doc = RandomProject(seed, false).make();
        removeNewObjects(*doc);
        const std::string file = projectFileBytes(*doc);
        auto read = makeDocument();
        ASSERT_EQ(readProjectForJson(file, *read).status, ProjectReadResult::Status::Read);
        auto imported = makeDocument();
        ASSERT_FALSE(projectFromJsonText(exportText(file), *imported));
        ASSERT_TRUE(*imported == *read) << "seed " << seed;
    }
}

TEST(ProjectJson, SmallAndGoldenProjectsComeBackByteForByte)
{
    EXPECT_EQ(importBytes(exportText(Small)), Small);
    const std::string golden = readBytes(std::string(VORLANE_TEST_DATA) + "/project/golden.dvb");
    EXPECT_EQ(importBytes(exportText(golden)), golden);
}

TEST(ProjectJson, AHotSpotCarriesTheSevenFieldsOfItsLineWithItsCursor)
{
    const std::string text = exportText(Small);
    const std::string hotSpot = R"({
      "id": "_hot",
      "x": -1,
      "y": -2,
      "cursorId": "cur",
      "currentFrame": 7,
      "hotSpotWidth": 30,
      "hotSpotHeight": 40
    })";
    EXPECT_NE(text.find(hotSpot), std::string::npos) << text;
    // The reader itself drops the cursor, as Open does.
    auto doc = makeDocument();
    ASSERT_EQ(readProject(Small, *doc).status, ProjectReadResult::Status::Read);
    EXPECT_EQ(doc->Buttons[1].cursorId, "null");
}

TEST(ProjectJson, TheSmallProjectExportsAsThisText)
{
    const std::string text = exportText(Small);
    const std::vector<std::string> pieces{
        "{\n  \"format\": \"vorlane-project-1\",\n  \"project\": {\n    \"projectName\": "
        "\"Small\",\n    \"projectFilePath\": \"/p/small.dvb\",\n    \"generatePath\": "
        "\"/p/out\"\n  },\n",
        "    \"fps\": 60,\n    \"splashEnabled\": 1,\n    \"splashWidth\": 640,\n",
        "      \"content\": \"Hi, there\",\n      \"id\": \"txt\",\n",
        "      \"animations\": [\n        {\n          \"id\": \"walk\",\n          \"frames\": "
        "[\n            3,\n            4\n          ],\n          \"frameDelay\": 100,\n",
        "      \"layers\": [\n        {\n          \"objectId\": \"img\",\n          "
        "\"objectKind\": 3\n        }\n      ]\n",
        "  \"log\": {\n    \"logFileFilterCount\": 2,\n    \"logTypeFilterCount\": 3,\n    "
        "\"logTypeFilters\": [\n      1,\n",
        "    \"customFilters\": [\n      \"first\",\n      \"second\"\n    ]\n  }\n}\n"};
    for (const std::string &piece : pieces)
        EXPECT_NE(text.find(piece), std::string::npos) << piece << "\nin\n" << text;
    // Counts the arrays carry are not repeated.
    for (const char *count : {"animCount", "frameCount", "layerCount", "customFilterCount"})
        EXPECT_EQ(text.find(count), std::string::npos) << count;
}

TEST(ProjectJson, SplashValuesAppearOnlyWhenTheFileHoldsThem)
{
    std::vector<std::string> lines = smallProjectLines();
    lines[11] = "\"root\",\"caption\",\"icon\",800,600,32,2,60,0";
    lines.erase(lines.begin() + 12);
    const std::string file = crlf(lines);
    const std::string text = exportText(file);
    EXPECT_EQ(text.find("splashWidth"), std::string::npos);
    EXPECT_NE(text.find("\"splashEnabled\": 0,\n    \"soundMix\": 44100,"), std::string::npos);
    EXPECT_EQ(importBytes(text), file);

    // Open reads a flag other than 1 as 0; the JSON form keeps it as the file holds it.
    lines[11] = "\"root\",\"caption\",\"icon\",800,600,32,2,60,2";
    const std::string two = crlf(lines);
    EXPECT_NE(exportText(two).find("\"splashEnabled\": 2,\n    \"soundMix\""), std::string::npos);
    EXPECT_EQ(importBytes(exportText(two)), two);
}

TEST(ProjectJson, WindowsCharactersAreUtf8InTheJsonAndWindows1252InTheFile)
{
    std::vector<std::string> lines = smallProjectLines();
    lines[18] =
        "\"Caf\xE9 \x80 5 \"quoted\" \t\",\"txt\",\"fnt\",1,2,3,4,5,6,7,8,9,\"sel\",10,11,12,"
        "13,14,15,16,17,18,19,20";
    const std::string file = crlf(lines);
    const std::string text = exportText(file);
    EXPECT_NE(text.find("\"content\": \"Caf\xC3\xA9 \xE2\x82\xAC 5 \\\"quoted\\\" \\t\","),
              std::string::npos)
        << text;
    EXPECT_EQ(importBytes(text), file);
}

TEST(ProjectJson, EveryByteATextCanHoldComesBack)
{
    std::string every;
    for (int byte = 1; byte < 256; ++byte)
        if (byte != '"' && byte != '\r' && byte != '\n')
            every.push_back(static_cast<char>(byte));
    std::vector<std::string> lines = smallProjectLines();
    lines[0] = "\"" + every + "\"";
    const std::string file = crlf(lines);
    EXPECT_EQ(importBytes(exportText(file)), file);
}

TEST(ProjectJson, AValueOutOfRangeIsRefusedWithItsPlaceAndPointer)
{
    const std::string text = exportText(Small);
    const std::string bad = replaced(text, "\"x\": 10,", "\"x\": 40000,");
    EXPECT_EQ(importProblem(bad),
              "game.json:" + placeOf(bad, "40000") +
                  ": /buttons/0/x: a whole number from -32768 to 32767 was expected");
}

TEST(ProjectJson, ValuesThatMakeNoProjectFileAreRefusedWithTheirPlace)
{
    const std::string text = exportText(Small);
    struct Case
    {
        std::string from, to, at, message;
    };
    const std::vector<Case> cases{
        {"\"y\": 20,",
         "\"y\": \"20\",",
         "\"20\"",
         "/buttons/0/y: a whole number from -32768 to 32767 was expected"},
        {"\"y\": 20,",
         "\"y\": 2.5,",
         "2.5",
         "/buttons/0/y: a whole number from -32768 to 32767 was expected"},
        {"\"soundMix\": 44100,",
         "\"soundMix\": 2147483648,",
         "2147483648",
         "/settings/soundMix: a whole number from -2147483648 to 2147483647 was expected"},
        {"\"id\": \"img\",",
         "\"id\": 777,",
         "777",
         "/images/0/id: a text in double quotes was expected"},
        {"\"path\": \"f.ttf\"",
         "\"path\": \"f.ttf\", \"size\": 333",
         "333",
         "/fonts/0/size: a font has no field \"size\""},
        {"\"cursorId\": \"cur\",\n      \"currentFrame\": 7,",
         "\"cursorId\": \"cur\",\n      \"currentFrame\": 7,\n      \"templateId\": \"tpl2\",",
         "\"tpl2\"",
         "/buttons/1/templateId: a hot spot (a button whose id begins with \"_\") has no field "
         "\"templateId\""},
        {"\"id\": \"fnt\",\n      \"path\": \"f.ttf\"",
         "\"id\": \"fnt\"",
         "{\n      \"id\": \"fnt\"\n",
         "/fonts/0: the field \"path\" is missing"},
        {"\"content\": \"Hi, there\"",
         "\"content\": \"Hi\\r\\nthere\"",
         "\"Hi\\r",
         "/texts/0/content: a project file cannot carry a text that holds a line break or a "
         "double quote followed by a comma"},
        {"\"content\": \"Hi, there\"",
         "\"content\": \"say \\\"hi\\\", then\"",
         "\"say",
         "/texts/0/content: a project file cannot carry a text that holds a line break or a "
         "double quote followed by a comma"},
        {"\"splashEnabled\": 1,",
         "\"splashEnabled\": 0,",
         "640",
         "/settings/splashWidth: the splash values are written only when splashEnabled is 1"},
        {"\"format\": \"vorlane-project-1\"",
         "\"format\": \"other\"",
         "\"other\"",
         "/format: \"vorlane-project-1\" was expected"},
        {"\"logTypeFilters\": [\n      1,\n",
         "\"logTypeFilters\": [\n",
         "[\n      0",
         "/log/logTypeFilters: an array of 7 whole numbers was expected"},
        {"\"customFilters\": [\n      \"first\",\n      \"second\"\n    ]",
         "\"customFilters\": {\"first\": 1}",
         "{\"first\"",
         "/log/customFilters: an array was expected (customFilters)"},
    };
    for (const Case &c : cases) {
        const std::string bad = replaced(text, c.from, c.to);
        EXPECT_EQ(importProblem(bad), "game.json:" + placeOf(bad, c.at) + ": " + c.message) << c.to;
    }
}

TEST(ProjectJson, MoreObjectsThanATableHoldsAreRefused)
{
    Json json = Json::parse(exportText(Small));
    Json &fonts = json["fonts"];
    while (fonts.size() < 27)
        fonts.push_back(fonts[0]);
    const std::string text = jsonText(json);
    EXPECT_EQ(importProblem(text),
              "game.json:" + placeOf(text, "[\n    {\n      \"id\": \"fnt\"") +
                  ": /fonts: a project holds at most 26 fonts");
    json = Json::parse(exportText(Small));
    Json &filters = json["log"]["customFilters"];
    while (filters.size() < 51)
        filters.push_back("f");
    EXPECT_EQ(importProblem(jsonText(json)).substr(0, 9), "game.json");
    EXPECT_NE(importProblem(jsonText(json))
                  .find(": /log/customFilters: the log holds at most 50 custom filters"),
              std::string::npos);
}

TEST(ProjectJson, ASyntaxErrorIsRefusedWithItsPlaceAndThePointerAroundIt)
{
    const std::string text = exportText(Small);
    const std::string bad = replaced(text, "\"x\": 10,", "\"x\": 10");
    EXPECT_EQ(importProblem(bad),
              "game.json:" + placeOf(bad, "\": 20") +
                  ": /buttons/0/x: syntax error while parsing object - unexpected string literal; "
                  "expected '}'");
    EXPECT_EQ(importProblem("{\"format\": tru}"),
              "game.json:1:15: /format: syntax error while parsing value - invalid literal; "
              "last read: '\"format\": tru}'");
    EXPECT_EQ(importProblem(""),
              "game.json:1:1: syntax error while parsing value - unexpected end of input; "
              "expected '[', '{', or a literal");
    EXPECT_EQ(importProblem("[]"), "game.json:1:1: an object was expected (a project)");
}

TEST(JsonText, LocatesValuesByPointer)
{
    const std::string text = "{\n  \"a\": [1, \"x\\\"y\", {\"b/c\": true}],\n  \"é\": -2.5e3\n}";
    EXPECT_EQ(locateJsonValue(text, ""), (TextPosition{1, 1}));
    EXPECT_EQ(locateJsonValue(text, "/a"), (TextPosition{2, 8}));
    EXPECT_EQ(locateJsonValue(text, "/a/0"), (TextPosition{2, 9}));
    EXPECT_EQ(locateJsonValue(text, "/a/1"), (TextPosition{2, 12}));
    EXPECT_EQ(locateJsonValue(text, "/a/2/b~1c"), (TextPosition{2, 28}));
    EXPECT_EQ(locateJsonValue(text, "/é"), (TextPosition{3, 8}));
    EXPECT_FALSE(locateJsonValue(text, "/a/3"));
}

} // namespace
} // namespace vorlane
