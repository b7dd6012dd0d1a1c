#include "generate/GenData.h"
#include "generate/GenerateCommands.h"

#include "GenerateTestSupport.h"
#include "SampleProject.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using namespace vorlane::testing;

const std::filesystem::path Golden =
    std::filesystem::path(VORLANE_TEST_DATA) / "generate" / "sample";

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

TEST(GoldenFiles, SampleProjectOnDisk)
{
    auto doc = makeDocument();
    buildSampleProject(*doc);
    TempFolder folder;
    doc->ProjectInfo.generatePath = folder.withSeparator();
    RecordingProgress progress;
    ASSERT_FALSE(GenData(*doc, "data\\", progress).has_value());
    for (const auto &name : FileNames) {
        const std::string expected = readBytes(Golden / name);
        ASSERT_FALSE(expected.empty()) << name;
        EXPECT_EQ(readBytes(folder.path() / name), expected) << name;
    }
    // One step for app.cfg and one per object left after dropping the new ones.
    EXPECT_EQ(progress.maximum, 1 + 2 + 2 + 2 + 2 + 1 + 1 + 2 + 2 + 2);
}

TEST(GoldenFiles, SampleProjectThroughGenerateDataAs)
{
    auto doc = makeDocument();
    buildSampleProject(*doc);
    GenerateState state;
    ScriptedUi ui;
    ui.answers = {MessageAnswer::Yes};
    ui.choices = {"C:\\Games\\Quest\\data\\[no filename needed]"};
    RecordingProgress progress;
    MemoryFiles files;
    const auto result = generateDataAs(*doc, state, ui, progress, files);
    ASSERT_EQ(result.outcome, GenerateOutcome::Generated);
    ASSERT_EQ(files.order.size(), FileNames.size());
    for (std::size_t i = 0; i < FileNames.size(); ++i) {
        EXPECT_EQ(files.order[i], "C:\\Games\\Quest\\data\\" + FileNames[i]);
        EXPECT_EQ(files.files[files.order[i]], readBytes(Golden / FileNames[i])) << FileNames[i];
    }
}

} // namespace
} // namespace vorlane
