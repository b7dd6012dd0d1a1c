#include "generate/GenData.h"

#include "GenerateTestSupport.h"
#include "model/Kinds.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using testing::addObject;
using testing::MemoryFiles;
using testing::RecordingProgress;
using testing::TempFolder;

const std::vector<std::string> FileNames{"app.cfg",
                                         "button.dat",
                                         "image.dat",
                                         "cursor.dat",
                                         "text.dat",
                                         "font.dat",
                                         "music.dat",
                                         "sfx.dat",
                                         "sprite.dat",
                                         "scene.dat",
                                         "log.cfg"};

class GenDataTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        doc->ProjectInfo.generatePath = "out/";
        doc->AppSettings.windowCaption = "Game";
        doc->AppSettings.windowIcon = "null";
        doc->AppSettings.logPath = "null";
    }

    // Adds an object that was never opened in its editor.
    void addNew(Kind kind, int16_t slot)
    {
        slotOf(*doc, kind, slot).isNew = -1;
        doc->list(kind).lines.push_back({"New_Object" + std::to_string(slot), slot});
    }

    std::unique_ptr<Document> doc = makeDocument();
    RecordingProgress progress;
    MemoryFiles files;
};

TEST_F(GenDataTest, WritesElevenFilesInOrderIntoTheFolder)
{
    EXPECT_FALSE(GenData(*doc, "null", progress, files).has_value());
    std::vector<std::string> expected;
    for (const auto &name : FileNames)
        expected.push_back("out/" + name);
    EXPECT_EQ(files.order, expected);
    EXPECT_EQ(files.files["out/app.cfg"],
              "null* Game* null*  0  0  0  0  0  0\r\n 0  0  0  0 null*\r\n");
    EXPECT_EQ(files.files["out/button.dat"], "0\r\n");
    EXPECT_EQ(files.files["out/scene.dat"], "0\r\n");
    EXPECT_EQ(files.files["out/log.cfg"], " 0\r\n 0\r\n");
}

TEST_F(GenDataTest, FileNameFollowsTheFolderDirectly)
{
    doc->ProjectInfo.generatePath = "C:\\game\\data\\";
    EXPECT_FALSE(GenData(*doc, "data\\", progress, files).has_value());
    EXPECT_EQ(files.order.front(), "C:\\game\\data\\app.cfg");
    EXPECT_EQ(files.files["C:\\game\\data\\app.cfg"].substr(0, 8), "data\\* G");
}

TEST_F(GenDataTest, ProgressReportsEveryStep)
{
    addObject(*doc, Kind::Cursor, doc->Cursors, 0, "curA");
    addObject(*doc, Kind::Image, doc->Images, 0, "imgA");
    addObject(*doc, Kind::Image, doc->Images, 1, "imgB");
    addNew(Kind::Image, 2);
    EXPECT_FALSE(GenData(*doc, "null", progress, files).has_value());
    EXPECT_EQ(progress.events,
              (std::vector<std::string>{"begin Generating Data...",
                                        "label Removing New Objects...",
                                        "maximum 4",
                                        "label Generating Application Data...",
                                        "value 1",
                                        "label Generating Button Data...",
                                        "label Generating Image Data...",
                                        "value 2",
                                        "value 3",
                                        "label Generating Cursor Data...",
                                        "value 4",
                                        "label Generating Text Data...",
                                        "label Generating Font Data...",
                                        "label Generating Music Data...",
                                        "label Generating SFX Data...",
                                        "label Generating Sprite Data...",
                                        "label Generating Scene Data...",
                                        "label Generating Log Data...",
                                        "value 4",
                                        "end"}));
}

TEST_F(GenDataTest, NewObjectsLeaveTheListsButKeepTheirRecords)
{
    addObject(*doc, Kind::Font, doc->Fonts, 1, "fntKept").path = "k.ttf";
    addNew(Kind::Font, 0);
    addNew(Kind::Scene, 3);
    EXPECT_FALSE(GenData(*doc, "null", progress, files).has_value());
    EXPECT_EQ(files.files["out/font.dat"], " 1\r\nfntKept k.ttf\r\n");
    EXPECT_EQ(files.files["out/scene.dat"], "0\r\n");
    ASSERT_EQ(doc->list(Kind::Font).lines.size(), 1u);
    EXPECT_EQ(doc->list(Kind::Font).lines[0].text, "fntKept");
    EXPECT_TRUE(doc->list(Kind::Scene).lines.empty());
    EXPECT_EQ(doc->Fonts[0].isNew, -1);
    EXPECT_EQ(doc->Scenes[3].isNew, -1);
}

TEST_F(GenDataTest, GeneratingTwiceWritesIdenticalFiles)
{
    addObject(*doc, Kind::Button, doc->Buttons, 0, "_spot").cursorId = "null";
    addNew(Kind::Button, 1);
    addObject(*doc, Kind::Text, doc->Texts, 4, "txt").content = "Hi there";
    EXPECT_FALSE(GenData(*doc, "data/", progress, files).has_value());
    const auto first = files.files;
    files.files.clear();
    files.order.clear();
    EXPECT_FALSE(GenData(*doc, "data/", progress, files).has_value());
    EXPECT_EQ(files.files, first);
    EXPECT_EQ(first.at("out/button.dat"), " 1\r\n_spot  0  0 null  0  0  0\r\n");
}

TEST_F(GenDataTest, FailingFileStopsGenerationThere)
{
    files.failing = "cursor.dat";
    const auto failure = GenData(*doc, "null", progress, files);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->path, "out/cursor.dat");
    EXPECT_EQ(failure->reason, "No space left on device");
    EXPECT_EQ(files.order,
              (std::vector<std::string>{"out/app.cfg", "out/button.dat", "out/image.dat"}));
    EXPECT_EQ(failure->replaced, (std::vector<std::string>{"app.cfg", "button.dat", "image.dat"}));
    EXPECT_EQ(progress.events.back(), "end");
    EXPECT_EQ(progress.events[progress.events.size() - 2], "label Generating Cursor Data...");
}

TEST_F(GenDataTest, FailingFirstFileWritesNothing)
{
    files.failing = "app.cfg";
    const auto failure = GenData(*doc, "null", progress, files);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->path, "out/app.cfg");
    EXPECT_TRUE(files.order.empty());
}

TEST_F(GenDataTest, FailingLastFileKeepsTheOthers)
{
    files.failing = "log.cfg";
    const auto failure = GenData(*doc, "null", progress, files);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->path, "out/log.cfg");
    EXPECT_EQ(files.order.size(), 10u);
}

TEST_F(GenDataTest, DiskFilesAreReplacedWhole)
{
    TempFolder folder;
    doc->ProjectInfo.generatePath = folder.withSeparator();
    testing::writeBytes(folder.path() / "font.dat", std::string(1000, 'x'));
    testing::writeBytes(folder.path() / "other.txt", "left alone");
    EXPECT_FALSE(GenData(*doc, "null", progress, diskFileOutput()).has_value());
    for (const auto &name : FileNames)
        EXPECT_TRUE(std::filesystem::exists(folder.path() / name)) << name;
    EXPECT_EQ(testing::readBytes(folder.path() / "font.dat"), "0\r\n");
    EXPECT_EQ(testing::readBytes(folder.path() / "log.cfg"), " 0\r\n 0\r\n");
    EXPECT_EQ(testing::readBytes(folder.path() / "other.txt"), "left alone");
    // No temporary files are left behind.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()),
                            std::filesystem::directory_iterator()),
              12);
}

TEST_F(GenDataTest, DiskFailureNamesTheFileAndTheReasonAndKeepsEarlierFiles)
{
    TempFolder folder;
    doc->ProjectInfo.generatePath = folder.withSeparator();
    // A folder where text.dat should go cannot be opened as a file, whoever runs the test.
    std::filesystem::create_directory(folder.path() / "text.dat");
    const auto failure = GenData(*doc, "null", progress, diskFileOutput());
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->path, folder.withSeparator() + "text.dat");
    EXPECT_EQ(failure->reason, "it is a folder, not a regular file");
    EXPECT_EQ(failure->replaced,
              (std::vector<std::string>{"app.cfg", "button.dat", "image.dat", "cursor.dat"}));
    for (const auto *name : {"app.cfg", "button.dat", "image.dat", "cursor.dat"})
        EXPECT_TRUE(std::filesystem::is_regular_file(folder.path() / name)) << name;
    for (const auto *name : {"font.dat", "music.dat", "log.cfg"})
        EXPECT_FALSE(std::filesystem::exists(folder.path() / name)) << name;
}

TEST_F(GenDataTest, MissingFolderFailsAtTheFirstFile)
{
    TempFolder folder;
    doc->ProjectInfo.generatePath = folder.withSeparator() + "missing/";
    const auto failure = GenData(*doc, "null", progress, diskFileOutput());
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->path, folder.withSeparator() + "missing/app.cfg");
    EXPECT_EQ(failure->reason, "No such file or directory");
}

TEST_F(GenDataTest, WrittenFilesMatchTheFileWriters)
{
    addObject(*doc, Kind::Music, doc->MusicTracks, 0, "mus").path = "m.ogg";
    doc->AppSettings.logTypeFilters[2] = 1;
    doc->AppSettings.logTypeFilterCount = 1;
    EXPECT_FALSE(GenData(*doc, "rel/", progress, files).has_value());
    EXPECT_EQ(files.files["out/app.cfg"],
              "rel/* Game* null*  0  0  0  0  0  0\r\n 0  0  0  0 null*\r\n");
    EXPECT_EQ(files.files["out/music.dat"], " 1\r\nmus m.ogg  0  0  0\r\n");
    EXPECT_EQ(files.files["out/log.cfg"], " 1\r\n@App Status: *\r\n 0\r\n");
}

} // namespace
} // namespace vorlane
