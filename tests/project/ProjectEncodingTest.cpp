#include "ProjectTestSupport.h"
#include "project/Open.h"
#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"
#include "project/Save.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>

namespace vorlane {
namespace {

using namespace testsupport;

const std::string Bom = "\xEF\xBB\xBF";
// Cyrillic, Japanese and an emoji: none of them has a Windows-1252 byte.
const std::string Foreign = "-Проект日本語😀";

std::string bytesOf(const Document &doc)
{
    const std::string buffer = projectFileBytes(doc);
    return std::string(buffer.data(), buffer.size());
}

// Every text field of `bytes` (a text between double quotes) with `suffix` appended.
std::string withSuffixInEveryText(const std::string &bytes, const std::string &suffix)
{
    return std::regex_replace(bytes, std::regex("\"([^\"\r\n]*)\""), "\"$1" + suffix + "\"");
}

std::unique_ptr<Document> readOrFail(const std::string &bytes)
{
    auto doc = makeDocument();
    const ProjectReadResult result = readProject(bytes, *doc);
    EXPECT_EQ(result.status, ProjectReadResult::Status::Read) << result.line << result.message;
    return doc;
}

TEST(ProjectEncoding, AProjectThatFitsWindows1252IsWrittenInIt)
{
    auto doc = makeDocument();
    doc->ProjectInfo.projectName = "Café";
    doc->AppSettings.windowCaption = "€ 5";
    EXPECT_FALSE(projectNeedsUtf8(*doc));
    const std::string bytes = bytesOf(*doc);
    EXPECT_EQ(bytes.substr(0, 8), "\"Caf\xE9\"\r\n");
    EXPECT_NE(bytes.find("\"\x80 5\""), std::string::npos);
}

TEST(ProjectEncoding, OneForeignCharacterMakesTheWholeFileUtf8WithAByteOrderMark)
{
    auto plain = makeDocument();
    plain->ProjectInfo.projectName = "Project";
    plain->AppSettings.windowCaption = "Café";
    auto foreign = makeDocument();
    foreign->ProjectInfo.projectName = "Проект";
    foreign->AppSettings.windowCaption = "Café";
    EXPECT_TRUE(projectNeedsUtf8(*foreign));

    std::string expected = bytesOf(*plain);
    expected.replace(expected.find("\"Project\""), 9, "\"Проект\"");
    expected.replace(expected.find("\"Caf\xE9\""), 6, "\"Café\"");
    EXPECT_EQ(bytesOf(*foreign), Bom + expected);
}

TEST(ProjectEncoding, TheByteOrderMarkDecidesOnlyTheTextsNotTheLines)
{
    // The same file with and without UTF-8 reads the same wherever it holds ASCII only.
    const std::string plain = crlf(smallProjectLines());
    auto fromPlain = readOrFail(plain);
    auto fromMarked = readOrFail(Bom + plain);
    EXPECT_TRUE(*fromPlain == *fromMarked);
    EXPECT_EQ(bytesOf(*fromMarked), bytesOf(*fromPlain));
    EXPECT_EQ(bytesOf(*fromMarked).substr(0, 9), "\"Small\"\r\n");
}

TEST(ProjectEncoding, EveryKindOfTextReadsBackWithEveryCharacter)
{
    // The small project touches every line the reader knows; its hot spot's cursor comes back
    // "null" whatever it was, so it is written so here.
    std::string base = crlf(smallProjectLines());
    base.replace(base.find("\"_hot\",-1,-2,\"cur\""), 18, "\"_hot\",-1,-2,\"null\"");
    std::string marked = withSuffixInEveryText(base, Foreign);
    const std::string hotCursor = "\"null" + Foreign + "\",7";
    marked.replace(marked.find(hotCursor), hotCursor.size(), "\"null\",7");
    marked = Bom + marked;

    auto doc = readOrFail(marked);
    EXPECT_EQ(doc->ProjectInfo.projectName, "Small" + Foreign);
    EXPECT_EQ(doc->ProjectInfo.projectFilePath, "/p/small.dvb" + Foreign);
    EXPECT_EQ(doc->ProjectInfo.generatePath, "/p/out" + Foreign);
    EXPECT_EQ(doc->AppSettings.rootFolder, "root" + Foreign);
    EXPECT_EQ(doc->AppSettings.windowCaption, "caption" + Foreign);
    EXPECT_EQ(doc->AppSettings.splashImagePath, "splash.bmp" + Foreign);
    EXPECT_EQ(doc->AppSettings.logPath, "log.txt" + Foreign);
    EXPECT_EQ(doc->Buttons[0].id, "btn" + Foreign);
    EXPECT_EQ(doc->Buttons[0].soundDisabled, "sx" + Foreign);
    EXPECT_EQ(doc->Images[0].path, "a.bmp" + Foreign);
    EXPECT_EQ(doc->Cursors[0].imageId, "img" + Foreign);
    EXPECT_EQ(doc->Texts[0].content, "Hi, there" + Foreign);
    EXPECT_EQ(doc->Texts[0].selectionImageId, "sel" + Foreign);
    EXPECT_EQ(doc->Fonts[0].path, "f.ttf" + Foreign);
    EXPECT_EQ(doc->MusicTracks[0].id, "mus" + Foreign);
    EXPECT_EQ(doc->SoundEffects[0].path, "s.wav" + Foreign);
    EXPECT_EQ(doc->Sprites[0].currentAnimId, "walk" + Foreign);
    EXPECT_EQ(doc->Sprites[0].anims[0].id, "walk" + Foreign);
    EXPECT_EQ(doc->Scenes[0].layers[0].objectId, "img" + Foreign);
    EXPECT_EQ(doc->list(Kind::Text).lines[0].text, "txt" + Foreign);

    // Written again, every byte is as it was read.
    EXPECT_EQ(bytesOf(*doc), marked);
}

TEST(ProjectEncoding, CustomFiltersKeepTheirCharacters)
{
    std::string base = crlf(smallProjectLines());
    const std::vector<std::string> lines = splitCrlf(base);
    // The last two lines are the custom filters' texts.
    const std::string first = lines[lines.size() - 2];
    const std::string second = lines.back();
    auto doc = readOrFail(Bom + withSuffixInEveryText(base, Foreign));
    EXPECT_EQ(doc->AppSettings.CustomFilters[1].text, first.substr(1, first.size() - 2) + Foreign);
    EXPECT_EQ(doc->AppSettings.CustomFilters[2].text,
              second.substr(1, second.size() - 2) + Foreign);
}

TEST(ProjectEncoding, AFileWithoutTheMarkIsWindows1252)
{
    std::string bytes = crlf(smallProjectLines());
    bytes.replace(0, 7, "\"\xC3\xA9\"");
    auto doc = readOrFail(bytes);
    EXPECT_EQ(doc->ProjectInfo.projectName, "Ã©");
}

TEST(ProjectEncoding, MalformedUtf8ReadsAndWritesAsQuestionMarks)
{
    std::string bytes = crlf(smallProjectLines());
    bytes.replace(0, 7, "\"a\xFF\xD0\"");
    auto doc = readOrFail(Bom + bytes);
    EXPECT_EQ(doc->ProjectInfo.projectName, "a??");

    auto written = makeDocument();
    written->ProjectInfo.projectName = "Ж\xFF";
    EXPECT_EQ(bytesOf(*written).substr(0, 10), Bom + "\"Ж?\"\r\n");
}

class ProjectEncodingFiles : public ::testing::Test
{
protected:
    TempFolder folder;
    ScriptedUi ui;
    RecordingProgress progress;

    std::unique_ptr<Document> projectAt(const std::string &path, const std::string &name)
    {
        auto doc = makeDocument();
        doc->ProjectInfo.projectName = name;
        doc->ProjectInfo.projectFilePath = path;
        listObject(*doc, Kind::Text, 0, "txtStart");
        doc->Texts[0].content = "Начать игру";
        return doc;
    }

    std::unique_ptr<Document> reopen(const std::string &path)
    {
        auto doc = makeDocument();
        EXPECT_TRUE(Open(*doc, path, ui, progress).opened());
        return doc;
    }
};

TEST_F(ProjectEncodingFiles, AProjectInAFolderNamedInCyrillicSavesAgainAfterReopening)
{
    const std::filesystem::path projectFolder = std::filesystem::path(folder.path()) / "Проект";
    std::filesystem::create_directory(projectFolder);
    const std::string path = (projectFolder / "game.dvb").string();

    auto doc = projectAt(path, "Game");
    ASSERT_TRUE(Save(*doc, ui, progress));
    const std::string first = readBytes(path);
    EXPECT_EQ(first.substr(0, 3), Bom);

    auto reopened = reopen(path);
    EXPECT_EQ(reopened->ProjectInfo.projectFilePath, path);
    EXPECT_EQ(reopened->Texts[0].content, "Начать игру");
    reopened->Texts[0].content = "Выход";
    ASSERT_TRUE(Save(*reopened, ui, progress));
    EXPECT_TRUE(ui.messages.size() == 2u); // the two new-object warnings, no failure
    const std::string second = readBytes(path);
    EXPECT_NE(second.find("\"Выход\""), std::string::npos);
    // Nothing went to a folder named by question marks.
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::path(folder.path()) / "??????"));
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"Проект"});
}

TEST_F(ProjectEncodingFiles, TwoProjectsNamedInDifferentScriptsKeepTheirOwnPaths)
{
    const std::string japan = folder.file("日本.dvb");
    const std::string china = folder.file("中国.dvb");
    auto first = projectAt(japan, "Japan");
    auto second = projectAt(china, "China");
    ASSERT_TRUE(Save(*first, ui, progress));
    ASSERT_TRUE(Save(*second, ui, progress));

    auto japanAgain = reopen(japan);
    auto chinaAgain = reopen(china);
    EXPECT_EQ(japanAgain->ProjectInfo.projectFilePath, japan);
    EXPECT_EQ(chinaAgain->ProjectInfo.projectFilePath, china);

    // Each saves to its own file again.
    ASSERT_TRUE(Save(*japanAgain, ui, progress));
    ASSERT_TRUE(Save(*chinaAgain, ui, progress));
    EXPECT_EQ(reopen(japan)->ProjectInfo.projectName, "Japan");
    EXPECT_EQ(reopen(china)->ProjectInfo.projectName, "China");
}

} // namespace
} // namespace vorlane
