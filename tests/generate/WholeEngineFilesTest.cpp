#include "generate/GenData.h"
#include "generate/GenerateCommands.h"

#include "GenerateTestSupport.h"
#include "io/FailingFileOps.h"
#include "io/FolderLock.h"
#include "model/Kinds.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include <sys/mount.h>

// Engine files are each the new file, whole, or the previous one, whole, whatever fails; two
// generations never write into one folder at once; generation never writes over its project.
namespace vorlane {
namespace {

using testing::addObject;
using testing::RecordingProgress;
using testing::TempFolder;
namespace fs = std::filesystem;

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

std::map<std::string, std::string> filesIn(const fs::path &folder)
{
    std::map<std::string, std::string> files;
    for (const auto &entry : fs::directory_iterator(folder))
        files[entry.path().filename().string()] = testing::readBytes(entry.path());
    return files;
}

class WholeEngineFiles : public ::testing::Test
{
protected:
    void SetUp() override
    {
        doc->AppSettings.windowCaption = "Game";
        doc->AppSettings.windowIcon = "null";
        doc->AppSettings.logPath = "null";
        addObject(*doc, Kind::Font, doc->Fonts, 0, "fntMain").path = "main.ttf";
        addObject(*doc, Kind::Text, doc->Texts, 0, "txtIntro").content = "Welcome";
        doc->Texts[0].fontId = "fntMain";
        doc->Texts[0].selectionImageId = "null";
    }

    // Generates into `folder` once, and returns what it wrote.
    std::map<std::string, std::string> generateOnce(const fs::path &folder)
    {
        doc->ProjectInfo.generatePath = folder.string() + "/";
        EXPECT_FALSE(GenData(*doc, "null", progress, diskFileOutput()).has_value());
        return filesIn(folder);
    }

    std::unique_ptr<Document> doc = makeDocument();
    RecordingProgress progress;
};

// The failure strikes text.dat, the fifth file: the four before it are new, text.dat and the
// six after it are the previous ones, each whole, and nothing else is in the folder.
void expectStoppedAtTextDat(const std::optional<GenerateFailure> &failure,
                            const fs::path &folder,
                            const std::map<std::string, std::string> &before)
{
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->path, folder.string() + "/text.dat");
    EXPECT_EQ(failure->reason, "No space left on device");
    EXPECT_EQ(failure->replaced,
              (std::vector<std::string>{"app.cfg", "button.dat", "image.dat", "cursor.dat"}));
    EXPECT_EQ(writeFailureText(*failure),
              "Could not write " + folder.string() +
                  "/text.dat: No space left on device. Generation stopped at this file, which "
                  "was left as it was. Already replaced: app.cfg, button.dat, image.dat, "
                  "cursor.dat.");
    const auto after = filesIn(folder);
    ASSERT_EQ(after.size(), FileNames.size());
    for (const char *name : {"text.dat", "font.dat", "sprite.dat", "log.cfg"})
        EXPECT_EQ(after.at(name), before.at(name)) << name;
}

TEST_F(WholeEngineFiles, AFullDiskLeavesEveryFileWhole)
{
    TempFolder outer;
    const fs::path folder = outer.path() / "disk";
    fs::create_directory(folder);
    // A small disk of our own when the system lets us mount one.
    const bool mounted = ::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=256k,mode=0755") == 0;
    if (!mounted)
        GTEST_SKIP() << "no tmpfs can be mounted here: the injected full disk below covers it";
    struct Unmount
    {
        const fs::path &path;
        ~Unmount() { ::umount(path.c_str()); }
    } unmount{folder};
    const auto before = generateOnce(folder);
    // A text far larger than the room left.
    doc->Texts[0].content = std::string(400'000, 'w');
    const auto failure = GenData(*doc, "null", progress, diskFileOutput());
    expectStoppedAtTextDat(failure, folder, before);
}

TEST_F(WholeEngineFiles, AnInjectedFullDiskLeavesEveryFileWhole)
{
    TempFolder folder;
    const auto before = generateOnce(folder.path());
    doc->Texts[0].content = std::string(400'000, 'w');
    // Room for the four small files before text.dat, not for text.dat.
    std::size_t smallFiles = 0;
    for (const char *name : {"app.cfg", "button.dat", "image.dat", "cursor.dat"})
        smallFiles += before.at(name).size();
    testsupport::FailingFileOps full;
    full.failWriteAt = static_cast<long>(smallFiles + 1000);
    SafeFileOutput output(full);
    const auto failure = GenData(*doc, "null", progress, output);
    expectStoppedAtTextDat(failure, folder.path(), before);
}

TEST_F(WholeEngineFiles, ASecondGenerationIntoTheSameFolderIsRefusedUntouched)
{
    TempFolder folder;
    const auto before = generateOnce(folder.path());
    doc->Texts[0].content = "Changed";
    std::optional<GenerateFailure> failure;
    {
        const FolderLock first(folder.path().string()); // a generation under way
        ASSERT_FALSE(first.busy());
        failure = GenData(*doc, "null", progress, diskFileOutput());
    }
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->kind, GenerateFailure::Kind::Busy);
    EXPECT_EQ(writeFailureText(*failure),
              "Another generation is writing into " + folder.withSeparator() +
                  ". No data was generated; try again when it has finished.");
    EXPECT_EQ(filesIn(folder.path()), before);
    // Once the first is done, the same generation goes through.
    EXPECT_FALSE(GenData(*doc, "null", progress, diskFileOutput()).has_value());
    EXPECT_NE(filesIn(folder.path()).at("text.dat"), before.at("text.dat"));
}

TEST_F(WholeEngineFiles, GenerationRefusesToWriteOverItsProjectFile)
{
    TempFolder folder;
    const fs::path project = folder.path() / "scene.dat";
    testing::writeBytes(project, "the project file");
    for (const bool opened : {true, false}) {
        SCOPED_TRACE(opened ? "the file opened" : "the file Save writes");
        doc->openedFrom = opened ? project.string() : "";
        doc->ProjectInfo.projectFilePath = opened ? "" : project.string();
        doc->ProjectInfo.generatePath = folder.withSeparator();
        const auto failure = GenData(*doc, "null", progress, diskFileOutput());
        ASSERT_TRUE(failure.has_value());
        EXPECT_EQ(failure->kind, GenerateFailure::Kind::OwnInput);
        EXPECT_EQ(writeFailureText(*failure),
                  "Generating would write " + folder.withSeparator() +
                      "scene.dat over the project file " + project.string() +
                      ". No data was generated.");
        EXPECT_EQ(filesIn(folder.path()),
                  (std::map<std::string, std::string>{{"scene.dat", "the project file"}}));
    }
}

TEST_F(WholeEngineFiles, AnEngineFileLinkedToTheProjectIsRefusedToo)
{
    TempFolder folder;
    const fs::path project = folder.path() / "game.dvb";
    testing::writeBytes(project, "the project file");
    fs::create_directory(folder.path() / "out");
    fs::create_symlink("../game.dvb", folder.path() / "out" / "log.cfg");
    doc->openedFrom = project.string();
    doc->ProjectInfo.generatePath = folder.withSeparator() + "out/";
    const auto failure = GenData(*doc, "null", progress, diskFileOutput());
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->kind, GenerateFailure::Kind::OwnInput);
    EXPECT_EQ(failure->path, folder.withSeparator() + "out/log.cfg");
    EXPECT_EQ(testing::readBytes(project), "the project file");
    EXPECT_FALSE(fs::exists(folder.path() / "out" / "app.cfg"));
}

} // namespace
} // namespace vorlane
