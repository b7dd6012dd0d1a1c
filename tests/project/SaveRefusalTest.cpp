#include "project/Save.h"

#include "io/FailingFileOps.h"
#include "project/ProjectReader.h"
#include "ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>

// Save replaces the file a project records only when it is a project file: a project can
// record any path, someone's notes included. Save As, where the user chose the file, may
// replace whatever is there, keeping it as the newest backup.
namespace vorlane {
namespace {

using namespace testsupport;

const std::string Notes = "Buy milk\r\nCall the bank\r\n";
const std::string Refusal = "it is not a Vorlane project file, so nothing was written to it; to "
                            "replace it, choose it in Save As";

class SaveRefusal : public ::testing::Test
{
protected:
    TempFolder folder;
    std::unique_ptr<Document> doc = makeDocument();
    ScriptedUi ui;
    ProgressSink quiet;
    FailingFileOps ops;
    const std::string notes = folder.file("notes.txt");

    void SetUp() override
    {
        doc->ProjectInfo.projectName = "Downloaded";
        doc->ProjectInfo.projectFilePath = notes;
        writeBytes(notes, Notes);
    }
};

TEST_F(SaveRefusal, SaveLeavesAFileThatIsNotAProjectFileAndSaysWhy)
{
    const SaveResult result = saveProject(*doc, ui, quiet, ops);
    EXPECT_EQ(result.status, SaveResult::Status::Failed);
    EXPECT_EQ(result.reason, Refusal);
    ASSERT_EQ(ui.messages.size(), 2u); // the new-objects warning, then the refusal
    EXPECT_EQ(ui.messages[1].text, "Could not save \"" + notes + "\": " + Refusal);
    EXPECT_EQ(ui.messages[1].title, "Save Data");
    EXPECT_EQ(ui.messages[1].icon, MessageIcon::Critical);
    EXPECT_EQ(ui.messages[1].buttons, MessageButtons::OK);
    EXPECT_EQ(readBytes(notes), Notes);
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"notes.txt"});
    EXPECT_TRUE(ops.created.empty()); // not even a temporary file
}

TEST_F(SaveRefusal, ThroughALinkTheTargetIsNamed)
{
    const std::string link = folder.file("game.dvb");
    std::filesystem::create_symlink("notes.txt", link);
    doc->ProjectInfo.projectFilePath = link;
    EXPECT_EQ(saveProject(*doc, ui, quiet, ops).status, SaveResult::Status::Failed);
    ASSERT_EQ(ui.messages.size(), 2u);
    EXPECT_EQ(ui.messages[1].text,
              "Could not save \"" + link + "\": its target \"" + notes +
                  "\" is not a Vorlane project file, so nothing was written to it; to replace "
                  "it, choose it in Save As");
    EXPECT_EQ(readBytes(notes), Notes);
}

TEST_F(SaveRefusal, SaveAsReplacesTheChosenFileAndKeepsItAsTheNewestBackup)
{
    SaveOptions chosen;
    chosen.fileChosen = true;
    const SaveResult result = saveProject(*doc, ui, quiet, ops, chosen);
    ASSERT_TRUE(result.written()) << result.reason;
    EXPECT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(splitCrlf(readBytes(notes))[0], "\"Downloaded\"");
    EXPECT_EQ(readBytes(notes + ".bak1"), Notes);
    EXPECT_EQ(folder.entries(), (std::vector<std::string>{"notes.txt", "notes.txt.bak1"}));
    // Now a project file, it is saved over like any other.
    ASSERT_TRUE(saveProject(*doc, ui, quiet, ops).written());
    EXPECT_EQ(readBytes(notes + ".bak2"), Notes);
}

TEST_F(SaveRefusal, AnEmptyFileAndAProjectFileAreReplaced)
{
    writeBytes(notes, "");
    ASSERT_TRUE(saveProject(*doc, ui, quiet, ops).written());
    const std::string saved = readBytes(notes);
    EXPECT_EQ(splitCrlf(saved)[0], "\"Downloaded\"");
    doc->ProjectInfo.projectName = "Again";
    ASSERT_TRUE(saveProject(*doc, ui, quiet, ops).written());
    EXPECT_EQ(readBytes(notes + ".bak1"), saved);
}

TEST_F(SaveRefusal, NoAtTheWarningAsksNothingMore)
{
    ui.answers = {MessageAnswer::No};
    EXPECT_EQ(saveProject(*doc, ui, quiet, ops).status, SaveResult::Status::Cancelled);
    EXPECT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(readBytes(notes), Notes);
}

TEST(BeginsAsProjectFile, TakesTheNameThePathsAndTheNineCounts)
{
    const std::string head = "\"P\"\r\n\"/p/p.dvb\",\"null\"\r\n";
    const std::string counts = "1\r\n0\r\n2\r\n0\r\n0\r\n0\r\n0\r\n0\r\n3\r\n";
    EXPECT_TRUE(beginsAsProjectFile(head + counts));
    EXPECT_TRUE(beginsAsProjectFile(head + counts + "anything at all"));
    EXPECT_TRUE(beginsAsProjectFile(OldProject));
    EXPECT_TRUE(
        beginsAsProjectFile(readBytes(std::string(VORLANE_TEST_DATA) + "/project/golden.dvb")));
    // LF line ends, and the byte order mark of a UTF-8 project file.
    EXPECT_TRUE(beginsAsProjectFile("\"P\"\n\"\",\"\"\n0\n0\n0\n0\n0\n0\n0\n0\n0\n"));
    EXPECT_TRUE(beginsAsProjectFile("\xEF\xBB\xBF" + head + counts));

    EXPECT_FALSE(beginsAsProjectFile(Notes));
    EXPECT_FALSE(beginsAsProjectFile("#!/bin/sh\nrm -rf build\n"));
    EXPECT_FALSE(beginsAsProjectFile("\"P\"\r\n\"only one path\"\r\n" + counts));
    EXPECT_FALSE(beginsAsProjectFile(head + "1\r\n0\r\n2\r\n"));     // the counts stop
    EXPECT_FALSE(beginsAsProjectFile(head + "1\r\nx\r\n" + counts)); // a count that is no number
    EXPECT_FALSE(beginsAsProjectFile(head + "-1\r\n" + counts));     // nor negative
    EXPECT_FALSE(beginsAsProjectFile(head + "9999\r\n" + counts));   // nor past the table
    EXPECT_FALSE(beginsAsProjectFile(""));
}

} // namespace
} // namespace vorlane
