#include "project/MissingFiles.h"

#include "project/CheckSummary.h"
#include "cli/Cli.h"
#include "cli/Unattended.h"
#include "io/SystemFileOps.h"
#include "model/Kinds.h"
#include "project/ProjectTestSupport.h"
#include "project/Save.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace vorlane {
namespace {

using testsupport::listObject;
using testsupport::TempFolder;
using testsupport::writeBytes;
using Lines = std::vector<std::string>;

const std::string Png = std::string("\x89PNG\r\n\x1a\n", 8) + "rest";

// A project in a temporary folder whose image, font, music and sound paths lie in "art/",
// relative to the project file; every file exists and is what it should be.
class MissingFiles : public ::testing::Test
{
protected:
    void SetUp() override
    {
        std::filesystem::create_directories(folder.file("art"));
        d.ProjectInfo.projectName = "Game";
        d.ProjectInfo.projectFilePath = folder.file("game.dvb");
        d.AppSettings.windowIcon = "art/game.ico";
        d.AppSettings.splashImagePath = "art/splash.bmp";
        d.AppSettings.splashEnabled = 1;
        d.AppSettings.logPath = "null";
        listObject(d, Kind::Image, 0, "imgHero");
        d.Images[0].path = "art\\hero.png";
        listObject(d, Kind::Font, 0, "fntMain");
        d.Fonts[0].path = "art/main.ttf";
        listObject(d, Kind::Music, 0, "musTheme");
        d.MusicTracks[0].path = "art/theme.ogg";
        listObject(d, Kind::SFX, 0, "sfxClick");
        d.SoundEffects[0].path = "art/click.wav";
        writeBytes(folder.file("art/game.ico"), std::string("\0\0\1\0", 4));
        writeBytes(folder.file("art/splash.bmp"), "BM....");
        writeBytes(folder.file("art/hero.png"), Png);
        writeBytes(folder.file("art/main.ttf"), "font");
        writeBytes(folder.file("art/theme.ogg"), "OggS");
        writeBytes(folder.file("art/click.wav"), "RIFF");
    }

    Lines warnings()
    {
        Lines lines;
        for (const ProjectProblem &p : missingFileWarnings(d, "game.dvb")) {
            EXPECT_TRUE(p.warning);
            EXPECT_FALSE(p.breaksProjectFile);
            lines.push_back(p.line);
        }
        return lines;
    }

    std::string art(const std::string &name) const { return folder.file("art/" + name); }

    TempFolder folder;
    std::unique_ptr<Document> doc = makeDocument();
    Document &d = *doc;
};

TEST_F(MissingFiles, NothingWhenEveryFileIsThere)
{
    EXPECT_EQ(warnings(), Lines{});
}

TEST_F(MissingFiles, EachMissingFileIsAWarningInFileOrder)
{
    for (const char *name :
         {"game.ico", "splash.bmp", "hero.png", "main.ttf", "theme.ogg", "click.wav"})
        std::filesystem::remove(art(name));
    EXPECT_EQ(warnings(),
              (Lines{"game.dvb: application: windowIcon \"art/game.ico\": file \"" +
                         art("game.ico") + "\" does not exist",
                     "game.dvb: application: splashImagePath \"art/splash.bmp\": file \"" +
                         art("splash.bmp") + "\" does not exist",
                     "game.dvb: image \"imgHero\": path \"art\\hero.png\": file \"" +
                         art("hero.png") + "\" does not exist",
                     "game.dvb: font \"fntMain\": path \"art/main.ttf\": file \"" +
                         art("main.ttf") + "\" does not exist",
                     "game.dvb: music track \"musTheme\": path \"art/theme.ogg\": file \"" +
                         art("theme.ogg") + "\" does not exist",
                     "game.dvb: sound effect \"sfxClick\": path \"art/click.wav\": file \"" +
                         art("click.wav") + "\" does not exist"}));
    const auto problems = missingFileWarnings(d, "game.dvb");
    EXPECT_EQ(problems[0].object, std::nullopt);
    EXPECT_EQ(problems[2].object, (ObjectRef{Kind::Image, 0}));
    EXPECT_EQ(problems[5].object, (ObjectRef{Kind::SFX, 0}));
}

TEST_F(MissingFiles, ImageThatIsNoPictureIsAWarning)
{
    writeBytes(art("hero.png"), "not a picture");
    writeBytes(art("splash.bmp"), "");
    EXPECT_EQ(
        warnings(),
        (Lines{"game.dvb: application: splashImagePath \"art/splash.bmp\": file \"" +
                   art("splash.bmp") +
                   "\" is not a picture Vorlane can read (PNG, BMP, JPEG, GIF, PBM, PGM, "
                   "PPM)",
               "game.dvb: image \"imgHero\": path \"art\\hero.png\": file \"" + art("hero.png") +
                   "\" is not a picture Vorlane can read (PNG, BMP, JPEG, GIF, PBM, PGM, "
                   "PPM)"}));
}

TEST_F(MissingFiles, PictureSignatures)
{
    const auto signature = [&](const std::string &bytes) {
        writeBytes(art("x"), bytes);
        return fileSignature(art("x"));
    };
    EXPECT_EQ(signature(Png), FileSignature::Picture);
    EXPECT_EQ(signature("BM\x36\x04"), FileSignature::Picture);
    EXPECT_EQ(signature("\xff\xd8\xff\xe0"), FileSignature::Picture);
    EXPECT_EQ(signature("GIF89a.."), FileSignature::Picture);
    EXPECT_EQ(signature("GIF87a.."), FileSignature::Picture);
    EXPECT_EQ(signature("P6\n4 4\n255\n"), FileSignature::Picture);
    EXPECT_EQ(signature("P1 2 2"), FileSignature::Picture);
    EXPECT_EQ(signature("\x89PNG"), FileSignature::Other);
    EXPECT_EQ(signature("P7 x"), FileSignature::Other);
    EXPECT_EQ(signature("RIFF"), FileSignature::Other);
    EXPECT_EQ(fileSignature(art("none")), FileSignature::Missing);
    // A folder is no file.
    EXPECT_EQ(fileSignature(folder.file("art")), FileSignature::Missing);
}

TEST_F(MissingFiles, NullPathsAndASplashThatIsOffAreNotLookedFor)
{
    d.AppSettings.windowIcon = "null";
    d.AppSettings.splashEnabled = 0;
    d.AppSettings.splashImagePath = "art/gone.bmp";
    d.Fonts[0].path = "null";
    EXPECT_EQ(warnings(), Lines{});
}

TEST_F(MissingFiles, RootFolderDecidesWhereRelativePathsLie)
{
    std::filesystem::create_directories(folder.file("build"));
    d.AppSettings.rootFolder = folder.file("build");
    const Lines lines = warnings();
    ASSERT_EQ(lines.size(), 6u);
    EXPECT_EQ(lines[2],
              "game.dvb: image \"imgHero\": path \"art\\hero.png\": file \"" +
                  folder.file("build/art/hero.png") + "\" does not exist");
}

TEST_F(MissingFiles, NewObjectsAreLeftOut)
{
    std::filesystem::remove(art("hero.png"));
    d.Images[0].isNew = -1;
    EXPECT_EQ(warnings(), Lines{});
}

TEST_F(MissingFiles, FullCheckPutsWarningsAfterTheProblems)
{
    std::filesystem::remove(art("theme.ogg"));
    d.Texts[0].fontId = "fntGone";
    listObject(d, Kind::Text, 0, "txtTitle");
    d.Texts[0].selectionImageId = "null";
    const auto all = fullProjectCheck(d, "game.dvb");
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(all[0].line, "game.dvb: text \"txtTitle\": fontId \"fntGone\" names no font");
    EXPECT_FALSE(all[0].warning);
    EXPECT_EQ(all[0].object, (ObjectRef{Kind::Text, 0}));
    EXPECT_TRUE(all[1].warning);
    EXPECT_EQ(all[1].object, (ObjectRef{Kind::Music, 0}));
}

TEST(CheckSummary, CountsProblemsAndWarnings)
{
    const ProjectProblem problem{"p", false, std::nullopt, false};
    const ProjectProblem warning{"w", false, std::nullopt, true};
    EXPECT_EQ(checkSummary({}), "No problems");
    EXPECT_EQ(checkSummary({problem}), "1 problem");
    EXPECT_EQ(checkSummary({problem, problem, problem}), "3 problems");
    EXPECT_EQ(checkSummary({warning}), "1 warning");
    EXPECT_EQ(checkSummary({warning, warning}), "2 warnings");
    EXPECT_EQ(checkSummary({problem, problem, warning}), "2 problems and 1 warning");
    EXPECT_EQ(checkSummary({problem, warning, warning}), "1 problem and 2 warnings");
}

struct CliRun
{
    int code;
    std::string out;
    std::string err;
};

CliRun run(std::vector<std::string> args)
{
    std::ostringstream out, err;
    const int code = runCli(args, out, err);
    return {code, out.str(), err.str()};
}

TEST_F(MissingFiles, CheckPrintsWarningsAndExitsZeroUnlessStrict)
{
    Unattended ui;
    ProgressSink quiet;
    ASSERT_TRUE(saveProject(d, ui, quiet, systemFileOps()).written());
    const std::string path = folder.file("game.dvb");

    CliRun r = run({"check", path});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out, "");
    r = run({"check", path, "--strict"});
    EXPECT_EQ(r.code, 0);

    std::filesystem::remove(art("main.ttf"));
    const std::string warning = "warning: " + path +
                                ": font \"fntMain\": path \"art/main.ttf\": " + "file \"" +
                                art("main.ttf") + "\" does not exist\n";
    r = run({"check", path});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out, warning);
    EXPECT_EQ(r.err, "");
    r = run({"check", path, "--strict"});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.out, warning);
    EXPECT_EQ(run({"check", "--strict", path}).code, 2);
    EXPECT_EQ(run({"check", path, "--strict", "x"}).code, 2);
}

} // namespace
} // namespace vorlane
