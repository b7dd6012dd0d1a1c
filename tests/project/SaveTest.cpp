#include "project/Save.h"

#include "io/FailingFileOps.h"
#include "ProjectTestSupport.h"
#include "project/Open.h"
#include "project/ProjectWriter.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace vorlane {
namespace {

using namespace testsupport;

const Message Warning{"Any new objects not opened in an editor window will be removed. Continue?",
                      "Warning!",
                      MessageIcon::Question,
                      MessageButtons::YesNo};

bool operator==(const Message &a, const Message &b)
{
    return a.text == b.text && a.title == b.title && a.icon == b.icon && a.buttons == b.buttons;
}

class SaveTest : public ::testing::Test
{
protected:
    TempFolder folder;
    std::unique_ptr<Document> doc = makeDocument();
    ScriptedUi ui;
    RecordingProgress progress;

    void SetUp() override
    {
        doc->ProjectInfo.projectName = "Saved";
        doc->ProjectInfo.projectFilePath = folder.file("saved.dvb");
        listObject(*doc, Kind::Image, 2, "img");
        listObject(*doc, Kind::Image, 0, "New_Object1");
        doc->Images[0].inUse = 0;
        doc->Images[0].isNew = -1;
        listObject(*doc, Kind::Scene, 4, "scn");
    }
};

TEST_F(SaveTest, AnsweringNoTouchesNothing)
{
    writeBytes(folder.file("saved.dvb"), "old");
    ui.answers = {MessageAnswer::No};
    EXPECT_FALSE(Save(*doc, ui, progress));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_TRUE(ui.messages[0] == Warning);
    EXPECT_TRUE(progress.events.empty());
    EXPECT_EQ(doc->list(Kind::Image).lines.size(), 2u);
    EXPECT_EQ(readBytes(folder.file("saved.dvb")), "old");
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"saved.dvb"});
}

TEST_F(SaveTest, AnsweringYesRemovesNewObjectsAndWritesTheFile)
{
    EXPECT_TRUE(Save(*doc, ui, progress));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_TRUE(ui.messages[0] == Warning);
    ASSERT_EQ(doc->list(Kind::Image).lines.size(), 1u);
    EXPECT_EQ(doc->list(Kind::Image).lines[0].text, "img");
    EXPECT_EQ(doc->Images[0].isNew, -1); // only the list line goes
    EXPECT_EQ(readBytes(folder.file("saved.dvb")), projectFileBytes(*doc));
    EXPECT_EQ(splitCrlf(readBytes(folder.file("saved.dvb")))[4], "1"); // one image
    EXPECT_EQ(progress.events,
              (std::vector<std::string>{"begin Saving Data...",
                                        "label Removing New Objects...",
                                        "label Saving Application Data...",
                                        "label Saving Button Data...",
                                        "label Saving Image Data...",
                                        "label Saving Cursor Data...",
                                        "label Saving Text Data...",
                                        "label Saving Font Data...",
                                        "label Saving Music Data...",
                                        "label Saving SFX Data...",
                                        "label Saving Sprite Data...",
                                        "label Saving Scene Data...",
                                        "label Saving Log Data...",
                                        "end"}));
    EXPECT_EQ(progress.maximum, 2);
}

TEST_F(SaveTest, SavingTwiceAsksTwiceAndTheSecondTimeRemovesNothing)
{
    ASSERT_TRUE(Save(*doc, ui, progress));
    const std::string first = readBytes(folder.file("saved.dvb"));
    const auto linesAfterFirst = doc->list(Kind::Image).lines.size();
    ASSERT_TRUE(Save(*doc, ui, progress));
    EXPECT_EQ(ui.messages.size(), 2u);
    EXPECT_TRUE(ui.messages[1] == Warning);
    EXPECT_EQ(doc->list(Kind::Image).lines.size(), linesAfterFirst);
    EXPECT_EQ(readBytes(folder.file("saved.dvb")), first);
}

TEST_F(SaveTest, FailedWriteIsShownWithTheFileAndTheReason)
{
    const std::string path = folder.file("missing/saved.dvb");
    doc->ProjectInfo.projectFilePath = path;
    EXPECT_FALSE(Save(*doc, ui, progress));
    ASSERT_EQ(ui.messages.size(), 2u);
    EXPECT_TRUE(ui.messages[1] ==
                (Message{"Could not save \"" + path + "\": No such file or directory",
                         "Save Data",
                         MessageIcon::Critical,
                         MessageButtons::OK}));
    EXPECT_EQ(progress.events.back(), "end");
    EXPECT_TRUE(folder.entries().empty());
}

TEST_F(SaveTest, FailedWriteKeepsThePreviousFile)
{
    writeBytes(folder.file("saved.dvb"), "old");
    FailingFileOps ops;
    ops.failWriteAt = 10;
    const SaveResult r = saveProject(*doc, ui, progress, ops);
    EXPECT_EQ(r.status, SaveResult::Status::Failed);
    EXPECT_EQ(r.reason, "No space left on device");
    EXPECT_EQ(ui.messages.back().text,
              "Could not save \"" + folder.file("saved.dvb") + "\": No space left on device");
    EXPECT_EQ(readBytes(folder.file("saved.dvb")), "old");
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"saved.dvb"});
}

TEST_F(SaveTest, CancelledAndWrittenOutcomes)
{
    FailingFileOps ops;
    ui.answers = {MessageAnswer::No};
    EXPECT_EQ(saveProject(*doc, ui, progress, ops).status, SaveResult::Status::Cancelled);
    EXPECT_TRUE(ops.created.empty());
    EXPECT_TRUE(saveProject(*doc, ui, progress, ops).written());
}

// A list line whose slot lies outside its table stops the writer before any file is made.
TEST_F(SaveTest, AWriterThatFailsLeavesTheOldFileAndMakesNoFile)
{
    writeBytes(folder.file("saved.dvb"), "old");
    doc->list(Kind::Scene).lines.push_back({"scnLost", 5000});
    FailingFileOps ops;
    EXPECT_THROW(saveProject(*doc, ui, progress, ops), std::out_of_range);
    EXPECT_TRUE(ops.created.empty());
    EXPECT_EQ(readBytes(folder.file("saved.dvb")), "old");
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"saved.dvb"});
}

TEST_F(SaveTest, SaveOpenSaveThroughFilesIsByteIdentical)
{
    ASSERT_TRUE(Save(*doc, ui, progress));
    const std::string first = readBytes(folder.file("saved.dvb"));
    auto reopened = makeDocument();
    ASSERT_TRUE(Open(*reopened, folder.file("saved.dvb"), ui, progress).opened());
    ASSERT_TRUE(Save(*reopened, ui, progress));
    EXPECT_EQ(readBytes(folder.file("saved.dvb")), first);
}

} // namespace
} // namespace vorlane
