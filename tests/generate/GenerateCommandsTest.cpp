#include "generate/GenerateCommands.h"

#include "GenerateTestSupport.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using testing::addObject;
using testing::MemoryFiles;
using testing::RecordingProgress;
using testing::ScriptedUi;

const char *const Confirm =
    "Any new objects not opened in an editor window will be removed. Continue?";

class GenerateCommandsTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        auto &a = doc->AppSettings;
        a.windowCaption = "QTA Application";
        a.windowIcon = "null";
        a.logPath = "null";
        a.rootFolder = "C:\\game";
        doc->ProjectInfo.generatePath = "C:\\old\\";
        addObject(*doc, Kind::Image, doc->Images, 0, "imgKept").path = "k.png";
        doc->Images[1].isNew = -1;
        doc->list(Kind::Image).lines.push_back({"New_Object1", 1});
    }

    void expectNothingChanged()
    {
        EXPECT_TRUE(files.order.empty());
        EXPECT_TRUE(progress.events.empty());
        EXPECT_EQ(doc->ProjectInfo.generatePath, "C:\\old\\");
        ASSERT_EQ(doc->list(Kind::Image).lines.size(), 2u);
        EXPECT_EQ(doc->list(Kind::Image).lines[1].text, "New_Object1");
    }

    std::unique_ptr<Document> doc = makeDocument();
    GenerateState state;
    ScriptedUi ui;
    RecordingProgress progress;
    MemoryFiles files;
};

TEST_F(GenerateCommandsTest, ConfirmationIsAQuestionTitledWarning)
{
    ui.answers = {MessageAnswer::No};
    generateDataAs(*doc, state, ui, progress, files);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text, Confirm);
    EXPECT_EQ(ui.messages[0].title, "Warning!");
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Question);
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::YesNo);
}

TEST_F(GenerateCommandsTest, NoChangesNothingAndNewObjectsStay)
{
    ui.answers = {MessageAnswer::No};
    const auto result = generateDataAs(*doc, state, ui, progress, files);
    EXPECT_EQ(result.outcome, GenerateOutcome::Declined);
    EXPECT_TRUE(ui.dialogs.empty());
    EXPECT_FALSE(state.generateAgainAvailable);
    expectNothingChanged();
}

TEST_F(GenerateCommandsTest, NoBeforeGeneratingAgainChangesNothing)
{
    state = {true, "C:\\game\\data\\", "data\\"};
    ui.answers = {MessageAnswer::No};
    const auto result = generateDataAgain(*doc, state, ui, progress, files);
    EXPECT_EQ(result.outcome, GenerateOutcome::Declined);
    EXPECT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text, Confirm);
    expectNothingChanged();
}

TEST_F(GenerateCommandsTest, FolderDialogAsksForGameDataFiles)
{
    ui.answers = {MessageAnswer::Yes};
    generateDataAs(*doc, state, ui, progress, files);
    ASSERT_EQ(ui.dialogs.size(), 1u);
    EXPECT_EQ(ui.dialogs[0].mode, FileDialogRequest::Mode::Save);
    EXPECT_EQ(ui.dialogs[0].filterName, "Game Data Files");
    EXPECT_EQ(ui.dialogs[0].pattern, "*.dat");
    EXPECT_EQ(ui.dialogs[0].proposedName, "[no filename needed]");
}

TEST_F(GenerateCommandsTest, CancellingTheDialogGeneratesNothing)
{
    ui.answers = {MessageAnswer::Yes};
    const auto result = generateDataAs(*doc, state, ui, progress, files);
    EXPECT_EQ(result.outcome, GenerateOutcome::Cancelled);
    EXPECT_FALSE(state.generateAgainAvailable);
    EXPECT_EQ(ui.messages.size(), 1u);
    expectNothingChanged();
}

TEST_F(GenerateCommandsTest, CancellingLeavesGenerateAgainAsItWas)
{
    state = {true, "C:\\game\\levels\\", "levels\\"};
    ui.answers = {MessageAnswer::Yes};
    const auto result = generateDataAs(*doc, state, ui, progress, files);
    EXPECT_EQ(result.outcome, GenerateOutcome::Cancelled);
    EXPECT_TRUE(state.generateAgainAvailable);
    EXPECT_EQ(state.generatePath, "C:\\game\\levels\\");
    EXPECT_EQ(state.dataFolderRel, "levels\\");
    expectNothingChanged();
}

TEST_F(GenerateCommandsTest, ChosenPathGivesFolderAndRelativeFolder)
{
    ui.answers = {MessageAnswer::Yes};
    ui.choices = {"C:\\game\\data\\x.dat"};
    const auto result = generateDataAs(*doc, state, ui, progress, files);
    EXPECT_EQ(result.outcome, GenerateOutcome::Generated);
    EXPECT_EQ(result.folder, "C:\\game\\data\\");
    EXPECT_EQ(doc->ProjectInfo.generatePath, "C:\\game\\data\\");
    EXPECT_TRUE(state.generateAgainAvailable);
    EXPECT_EQ(state.generatePath, "C:\\game\\data\\");
    EXPECT_EQ(state.dataFolderRel, "data\\");
    ASSERT_EQ(files.order.size(), 11u);
    EXPECT_EQ(files.order.front(), "C:\\game\\data\\app.cfg");
    EXPECT_EQ(files.order.back(), "C:\\game\\data\\log.cfg");
    EXPECT_EQ(files.files["C:\\game\\data\\app.cfg"],
              "data\\* QTA Application* null*  0  0  0  0  0  0\r\n 0  0  0  0 null*\r\n");
    EXPECT_EQ(files.files["C:\\game\\data\\image.dat"],
              " 1\r\nimgKept k.png  0  0  0  0  0  0  0  0  0  0\r\n");
    // Only the question was shown.
    EXPECT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(doc->list(Kind::Image).lines.size(), 1u);
}

TEST_F(GenerateCommandsTest, EmptyRootFolderWritesNull)
{
    doc->AppSettings.rootFolder = "";
    ui.answers = {MessageAnswer::Yes};
    ui.choices = {"/anywhere/out/[no filename needed]"};
    const auto result = generateDataAs(*doc, state, ui, progress, files);
    EXPECT_EQ(result.outcome, GenerateOutcome::Generated);
    EXPECT_EQ(state.dataFolderRel, "null");
    EXPECT_EQ(files.files["/anywhere/out/app.cfg"].substr(0, 6), "null* ");
}

TEST_F(GenerateCommandsTest, FolderOutsideTheRootIsRefused)
{
    state = {true, "C:\\game\\levels\\", "levels\\"};
    ui.answers = {MessageAnswer::Yes};
    ui.choices = {"D:\\elsewhere\\x.dat"};
    const auto result = generateDataAs(*doc, state, ui, progress, files);
    EXPECT_EQ(result.outcome, GenerateOutcome::OutsideRoot);
    EXPECT_EQ(result.folder, "D:\\elsewhere\\");
    ASSERT_EQ(ui.messages.size(), 2u);
    EXPECT_EQ(ui.messages[1].title, "Generate Data");
    EXPECT_EQ(ui.messages[1].text,
              "The folder D:\\elsewhere\\ lies outside the application root folder C:\\game. "
              "No data was generated.");
    EXPECT_EQ(ui.messages[1].icon, MessageIcon::Exclamation);
    EXPECT_EQ(ui.messages[1].buttons, MessageButtons::OK);
    EXPECT_EQ(state.generatePath, "C:\\game\\levels\\");
    EXPECT_EQ(state.dataFolderRel, "levels\\");
    expectNothingChanged();
}

TEST_F(GenerateCommandsTest, GenerateAgainUsesTheFolderChosenLast)
{
    ui.answers = {MessageAnswer::Yes, MessageAnswer::Yes};
    ui.choices = {"C:\\game\\data\\[no filename needed]"};
    generateDataAs(*doc, state, ui, progress, files);
    const auto first = files.files;
    files.files.clear();
    files.order.clear();
    // A project opened since carries its own folder; the folder chosen last still counts.
    doc->ProjectInfo.generatePath = "C:\\from\\project\\";
    const auto result = generateDataAgain(*doc, state, ui, progress, files);
    EXPECT_EQ(result.outcome, GenerateOutcome::Generated);
    EXPECT_EQ(ui.messages.size(), 2u);
    EXPECT_EQ(ui.messages[1].text, Confirm);
    EXPECT_EQ(ui.dialogs.size(), 1u);
    EXPECT_EQ(doc->ProjectInfo.generatePath, "C:\\game\\data\\");
    EXPECT_EQ(files.files, first);
}

TEST_F(GenerateCommandsTest, GenerateAgainIsUnavailableBeforeAFolderIsChosen)
{
    const auto result = generateDataAgain(*doc, state, ui, progress, files);
    EXPECT_EQ(result.outcome, GenerateOutcome::Unavailable);
    EXPECT_TRUE(ui.messages.empty());
    expectNothingChanged();
}

TEST_F(GenerateCommandsTest, WriteFailureIsReportedWithTheFileAndReason)
{
    files.failing = "sprite.dat";
    files.failReason = "Permission denied";
    ui.answers = {MessageAnswer::Yes};
    ui.choices = {"C:\\game\\data\\x.dat"};
    const auto result = generateDataAs(*doc, state, ui, progress, files);
    EXPECT_EQ(result.outcome, GenerateOutcome::Failed);
    ASSERT_TRUE(result.failure.has_value());
    EXPECT_EQ(result.failure->path, "C:\\game\\data\\sprite.dat");
    EXPECT_EQ(result.failure->reason, "Permission denied");
    ASSERT_EQ(ui.messages.size(), 2u);
    EXPECT_EQ(ui.messages[1].title, "Generate Data");
    EXPECT_EQ(ui.messages[1].text,
              "Could not write C:\\game\\data\\sprite.dat: Permission denied. "
              "Generation stopped at this file, which was left as it was. Already replaced: "
              "app.cfg, button.dat, image.dat, cursor.dat, text.dat, font.dat, music.dat, "
              "sfx.dat.");
    EXPECT_EQ(ui.messages[1].icon, MessageIcon::Critical);
    EXPECT_EQ(ui.messages[1].buttons, MessageButtons::OK);
    EXPECT_EQ(files.order.size(), 8u);
    // The folder was chosen: generating again stays possible.
    EXPECT_TRUE(state.generateAgainAvailable);
}

TEST_F(GenerateCommandsTest, GeneratedCountsTheFilesWrittenAndNamesTheFolder)
{
    ui.answers = {MessageAnswer::Yes, MessageAnswer::Yes};
    ui.choices = {"C:\\game\\data\\x.dat"};
    const auto result = generateDataAs(*doc, state, ui, progress, files);
    ASSERT_EQ(result.outcome, GenerateOutcome::Generated);
    EXPECT_EQ(result.filesWritten, 11);
    EXPECT_EQ(generatedText(result.filesWritten, result.folder),
              "Generated 11 files into C:\\game\\data\\");
    const auto again = generateDataAgain(*doc, state, ui, progress, files);
    ASSERT_EQ(again.outcome, GenerateOutcome::Generated);
    EXPECT_EQ(again.filesWritten, 11);
    EXPECT_EQ(again.folder, "C:\\game\\data\\");
}

TEST_F(GenerateCommandsTest, GeneratedTextNamesOneFileOrMany)
{
    EXPECT_EQ(generatedText(11, "/games/quest/data/"),
              "Generated 11 files into /games/quest/data/");
    EXPECT_EQ(generatedText(1, "/games/quest/data/"), "Generated 1 file into /games/quest/data/");
}

TEST_F(GenerateCommandsTest, FailedGenerationCountsOnlyTheFilesWrittenBeforeIt)
{
    files.failing = "text.dat";
    ui.answers = {MessageAnswer::Yes};
    ui.choices = {"C:\\game\\data\\x.dat"};
    const auto result = generateDataAs(*doc, state, ui, progress, files);
    EXPECT_EQ(result.outcome, GenerateOutcome::Failed);
    // app.cfg, button.dat, image.dat, cursor.dat
    EXPECT_EQ(result.filesWritten, 4);
    EXPECT_EQ(files.order.size(), 4u);
}

} // namespace
} // namespace vorlane
