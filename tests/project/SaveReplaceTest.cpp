#include "project/Save.h"

#include "io/FailingFileOps.h"
#include "ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <sys/stat.h>

// What Save tells the user about the file it replaces.
namespace vorlane {
namespace {

using namespace testsupport;

class SaveReplace : public ::testing::Test
{
protected:
    TempFolder folder;
    std::unique_ptr<Document> doc = makeDocument();
    ScriptedUi ui;
    ProgressSink quiet;
    FailingFileOps ops;
    const std::string path = folder.file("game.dvb");

    void SetUp() override
    {
        doc->ProjectInfo.projectName = "Game";
        doc->ProjectInfo.projectFilePath = path;
        writeBytes(path, OldProject);
    }
};

TEST_F(SaveReplace, AReadOnlyFileIsRefusedInASaveDataMessage)
{
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    const SaveResult result = saveProject(*doc, ui, quiet, ops);
    EXPECT_EQ(result.status, SaveResult::Status::Failed);
    EXPECT_EQ(result.reason, "it is read-only");
    ASSERT_EQ(ui.messages.size(), 2u);
    EXPECT_EQ(ui.messages[1].text, "Could not save \"" + path + "\": it is read-only");
    EXPECT_EQ(ui.messages[1].title, "Save Data");
    EXPECT_EQ(ui.messages[1].icon, MessageIcon::Critical);
    EXPECT_EQ(readBytes(path), OldProject);
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"game.dvb"});
}

TEST_F(SaveReplace, ANamedPipeIsRefusedByName)
{
    const std::string fifo = folder.file("pipe.dvb");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0644), 0);
    doc->ProjectInfo.projectFilePath = fifo;
    EXPECT_EQ(saveProject(*doc, ui, quiet, ops).status, SaveResult::Status::Failed);
    ASSERT_EQ(ui.messages.size(), 2u);
    EXPECT_EQ(ui.messages[1].text,
              "Could not save \"" + fifo + "\": it is a named pipe (FIFO), not a regular file");
}

TEST_F(SaveReplace, WhatCouldNotBeKeptIsToldWithoutAMessageBox)
{
    ops.ownerError = EPERM;
    ops.linkError = EPERM;
    const SaveResult result = saveProject(*doc, ui, quiet, ops);
    ASSERT_TRUE(result.written());
    EXPECT_EQ(ui.messages.size(), 1u); // the warning only
    EXPECT_EQ(result.notices,
              (std::vector<std::string>{
                  "\"" + path +
                      "\" was saved, but its owner and group could not be kept: Operation not "
                      "permitted",
                  "\"" + path +
                      "\" was saved, but no backup of its previous version could be made: "
                      "Operation not permitted"}));
}

TEST_F(SaveReplace, KeepsThreeBackupsOfTheProjectFile)
{
    for (int i = 0; i < 5; ++i) {
        doc->ProjectInfo.projectName = "Game " + std::to_string(i);
        ASSERT_TRUE(saveProject(*doc, ui, quiet, ops).written());
    }
    EXPECT_EQ(
        folder.entries(),
        (std::vector<std::string>{"game.dvb", "game.dvb.bak1", "game.dvb.bak2", "game.dvb.bak3"}));
    EXPECT_EQ(splitCrlf(readBytes(path + ".bak1"))[0], "\"Game 3\"");
    EXPECT_EQ(splitCrlf(readBytes(path + ".bak3"))[0], "\"Game 1\"");
}

TEST_F(SaveReplace, SavingThroughALinkReplacesItsTarget)
{
    const std::string link = folder.file("link.dvb");
    std::filesystem::create_symlink("game.dvb", link);
    doc->ProjectInfo.projectFilePath = link;
    ASSERT_TRUE(saveProject(*doc, ui, quiet, ops).written());
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(splitCrlf(readBytes(path))[1].rfind("\"" + link + "\"", 0), 0u);
    EXPECT_EQ(readBytes(path + ".bak1"), OldProject);
}

TEST(SaveAsName, GetsTheProjectExtensionWhenItHasNone)
{
    EXPECT_EQ(withProjectExtension("/p/noext"), "/p/noext.dvb");
    EXPECT_EQ(withProjectExtension("/p/game.dvb"), "/p/game.dvb");
    EXPECT_EQ(withProjectExtension("/p/game.txt"), "/p/game.txt");
    EXPECT_EQ(withProjectExtension("/my.folder/noext"), "/my.folder/noext.dvb");
    EXPECT_EQ(withProjectExtension("/p/.hidden"), "/p/.hidden.dvb");
    EXPECT_EQ(withProjectExtension("noext"), "noext.dvb");
}

TEST(SaveAsName, AChosenPathIsTakenAsItStands)
{
    auto doc = makeDocument();
    doc->openedFrom = "/projects/demo.dvb";
    doc->ProjectInfo.projectFilePath = "demo.dvb";
    EXPECT_EQ(projectSavePath(*doc), "/projects/demo.dvb");
    recordChosenPath(*doc, "rel/out.dvb");
    EXPECT_EQ(projectSavePath(*doc), "rel/out.dvb");
}

} // namespace
} // namespace vorlane
