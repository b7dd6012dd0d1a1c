#include "rules/ObjectFilePath.h"

#include <gtest/gtest.h>

#include <memory>

namespace vorlane {
namespace {

TEST(ObjectFilePath, AbsolutePathIsTakenAsItIs)
{
    EXPECT_EQ(resolveObjectPath("/games/art/hero.png", "/other", "/projects/demo.dvb"),
              "/games/art/hero.png");
}

TEST(ObjectFilePath, DrivePathIsAbsoluteWithItsSeparatorsTurned)
{
    EXPECT_EQ(resolveObjectPath("C:\\game\\art\\hero.png", "/root", "/projects/demo.dvb"),
              "C:/game/art/hero.png");
    EXPECT_TRUE(isAbsolutePath("d:/x.png"));
    EXPECT_TRUE(isAbsolutePath("\\x.png"));
    EXPECT_FALSE(isAbsolutePath("art/x.png"));
    EXPECT_FALSE(isAbsolutePath(""));
}

TEST(ObjectFilePath, RelativePathLiesUnderTheRootFolderWhenItIsSet)
{
    EXPECT_EQ(resolveObjectPath("art/hero.png", "/games/quest", "/projects/demo.dvb"),
              "/games/quest/art/hero.png");
    EXPECT_EQ(resolveObjectPath("art/hero.png", "/games/quest/", "/projects/demo.dvb"),
              "/games/quest/art/hero.png");
}

TEST(ObjectFilePath, RelativePathLiesBesideTheProjectFileWithoutRootFolder)
{
    EXPECT_EQ(resolveObjectPath("art/hero.png", "", "/projects/demo.dvb"),
              "/projects/art/hero.png");
    EXPECT_EQ(resolveObjectPath("art/hero.png", "null", "/projects/demo.dvb"),
              "/projects/art/hero.png");
}

TEST(ObjectFilePath, BackslashAndSlashBothSeparate)
{
    EXPECT_EQ(resolveObjectPath("art\\menu/buttons.png", "\\games\\quest", "/p/demo.dvb"),
              "/games/quest/art/menu/buttons.png");
    EXPECT_EQ(resolveObjectPath("art\\hero.png", "", "C:\\projects\\demo.dvb"),
              "C:/projects/art/hero.png");
}

TEST(ObjectFilePath, NullOrEmptyNamesNoFile)
{
    EXPECT_EQ(resolveObjectPath("null", "/games", "/p/demo.dvb"), std::nullopt);
    EXPECT_EQ(resolveObjectPath("", "/games", "/p/demo.dvb"), std::nullopt);
    // Only the exact text: "Null" is a file name like any other.
    EXPECT_EQ(resolveObjectPath("Null", "/games", "/p/demo.dvb"), "/games/Null");
}

TEST(ObjectFilePath, RelativeRootFolderLiesBesideTheProjectFile)
{
    EXPECT_EQ(resolveObjectPath("../../art/hero.png", "build/demo", "/work/examples/demo.dvb"),
              "/work/examples/art/hero.png");
}

TEST(ObjectFilePath, ProjectFileWithoutFolderCountsFromTheWorkingFolder)
{
    // A project file named without a folder lies in the working folder.
    EXPECT_EQ(resolveObjectPath("../../examples/art/hero-walk.png", "build/demo", "demo.dvb"),
              "examples/art/hero-walk.png");
}

TEST(ObjectFilePath, DotsAreTakenOut)
{
    EXPECT_EQ(resolveObjectPath("./art/../img/hero.png", "/games/quest", "/p/demo.dvb"),
              "/games/quest/img/hero.png");
}

TEST(ObjectFilePath, UnsavedProjectWithoutRootKeepsThePathAsItIs)
{
    EXPECT_EQ(resolveObjectPath("art\\hero.png", "", ""), "art/hero.png");
}

TEST(ObjectFilePath, DocumentGivesRootAndProjectFile)
{
    std::unique_ptr<Document> doc = makeDocument();
    doc->ProjectInfo.projectFilePath = "/projects/demo.dvb";
    EXPECT_EQ(resolveObjectPath(*doc, "hero.png"), "/projects/hero.png");
    doc->AppSettings.rootFolder = "/games/quest";
    EXPECT_EQ(resolveObjectPath(*doc, "hero.png"), "/games/quest/hero.png");
}

TEST(ObjectFilePath, RelativePathsCountFromTheFileThatWasOpened)
{
    // The file records its own path without a folder; it was opened from /work/examples.
    std::unique_ptr<Document> doc = makeDocument();
    doc->ProjectInfo.projectFilePath = "demo.dvb";
    doc->openedFrom = "/work/examples/demo.dvb";
    EXPECT_EQ(resolveObjectPath(*doc, "art/hero.png"), "/work/examples/art/hero.png");
    doc->AppSettings.rootFolder = "demo";
    EXPECT_EQ(resolveObjectPath(*doc, "art/hero.png"), "/work/examples/demo/art/hero.png");
    EXPECT_EQ(pathsProjectFile(*doc), "/work/examples/demo.dvb");
}

TEST(ObjectFilePath, PathRecordedOnAnotherMachineDoesNotMoveTheFolder)
{
    std::unique_ptr<Document> doc = makeDocument();
    doc->ProjectInfo.projectFilePath = "C:\\games\\quest\\quest.dvb";
    doc->openedFrom = "/home/ann/quest/quest.dvb";
    doc->AppSettings.rootFolder = "game";
    EXPECT_EQ(resolveObjectPath(*doc, "art\\hero.png"), "/home/ann/quest/game/art/hero.png");
}

TEST(ObjectFilePath, ProjectOpenedByARelativePathCountsFromItsFolder)
{
    std::unique_ptr<Document> doc = makeDocument();
    doc->ProjectInfo.projectFilePath = "demo.dvb";
    doc->openedFrom = "../examples/demo.dvb";
    doc->AppSettings.rootFolder = "demo";
    EXPECT_EQ(resolveObjectPath(*doc, "art/hero.png"), "../examples/demo/art/hero.png");
}

TEST(ObjectFilePath, SavedNewProjectCountsFromTheFileSavedTo)
{
    // Save As forgets the file opened before and records the chosen one.
    std::unique_ptr<Document> doc = makeDocument();
    doc->ProjectInfo.projectFilePath = "/games/quest/quest.dvb";
    EXPECT_EQ(pathsProjectFile(*doc), "/games/quest/quest.dvb");
    EXPECT_EQ(resolveObjectPath(*doc, "art/hero.png"), "/games/quest/art/hero.png");
}

} // namespace
} // namespace vorlane
