#include "platform/ManualPlaces.h"

#include "project/ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace vorlane {
namespace {

namespace fs = std::filesystem;

// A machine with an install prefix, a source tree and a build folder, all in a fresh folder.
class ManualPlacesTest : public ::testing::Test
{
protected:
    testsupport::TempFolder folder;
    fs::path root = folder.path();
    fs::path prefix = root / "usr";
    fs::path source = root / "src" / "vorlane";
    fs::path build = source / "build" / "release";
    ManualPlaces places{"../share/doc/vorlane/manual", source / "docs" / "manual", build};

    static void makePage(const fs::path &path)
    {
        fs::create_directories(path.parent_path());
        std::ofstream(path) << "<html></html>\n";
    }
    void SetUp() override
    {
        makePage(source / "docs" / "manual" / "index.html");
        fs::create_directories(build / "tests");
        fs::create_directories(prefix / "bin");
    }
};

TEST_F(ManualPlacesTest, InstalledProgramOpensTheInstalledManual)
{
    makePage(prefix / "share" / "doc" / "vorlane" / "manual" / "index.html");
    EXPECT_EQ(findManualPage(prefix / "bin", places),
              prefix / "share" / "doc" / "vorlane" / "manual" / "index.html");
}

TEST_F(ManualPlacesTest, ProgramInItsBuildFolderOpensTheSourceTreesManual)
{
    EXPECT_EQ(findManualPage(build, places), source / "docs" / "manual" / "index.html");
    // The tests run from a folder below the build folder.
    EXPECT_EQ(findManualPage(build / "tests", places), source / "docs" / "manual" / "index.html");
}

TEST_F(ManualPlacesTest, InstalledManualWinsEvenInsideTheBuildFolder)
{
    // A staging install (DESTDIR) below the build folder holds its own manual.
    const fs::path staging = build / "staging" / "usr";
    makePage(staging / "share" / "doc" / "vorlane" / "manual" / "index.html");
    fs::create_directories(staging / "bin");
    EXPECT_EQ(findManualPage(staging / "bin", places),
              staging / "share" / "doc" / "vorlane" / "manual" / "index.html");
}

TEST_F(ManualPlacesTest, InstalledProgramWithoutItsManualNamesTheInstalledPlace)
{
    // Never the source tree of the machine that built the package: it is not on this one.
    EXPECT_EQ(findManualPage(prefix / "bin", places),
              prefix / "share" / "doc" / "vorlane" / "manual" / "index.html");
}

TEST_F(ManualPlacesTest, FolderBesideTheBuildFolderIsNotInIt)
{
    // "release-old" starts with the build folder's name but lies beside it.
    const fs::path beside = source / "build" / "release-old";
    fs::create_directories(beside);
    EXPECT_EQ(findManualPage(beside, places),
              source / "build" / "share" / "doc" / "vorlane" / "manual" / "index.html");
}

} // namespace
} // namespace vorlane
