#include "cli/Cli.h"

#include "CheckWarnings.h"
#include "generate/GenerateTestSupport.h"
#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"

#include <gtest/gtest.h>

#include <sstream>

namespace vorlane {
namespace {

using testing::readBytes;
using testing::TempFolder;
using testing::writeBytes;

namespace fs = std::filesystem;

const fs::path Data = fs::path(VORLANE_TEST_DATA) / "generate";
const std::string Project = (Data / "quest.dvb").string();

// The sample project names a few images it does not hold: generate warns about them first.
std::string questWarnings()
{
    return testsupport::checkAsWarnings(Project, Project);
}

struct Run
{
    int code;
    std::string out;
    std::string err;
};

Run generate(std::vector<std::string> args)
{
    args.insert(args.begin(), "generate");
    std::ostringstream out, err;
    const int code = runCli(args, out, err);
    return {code, out.str(), err.str()};
}

// The files that do not depend on the folder and survive a save and reload unchanged.
const std::vector<std::string> SameAsSample{"image.dat",
                                            "cursor.dat",
                                            "text.dat",
                                            "font.dat",
                                            "music.dat",
                                            "sfx.dat",
                                            "sprite.dat",
                                            "scene.dat",
                                            "log.cfg"};

TEST(GenerateCli, WritesTheEngineFilesWithOnlyTheWarningsOfCheck)
{
    TempFolder tmp;
    const fs::path outDir = tmp.path() / "quest" / "data";
    const auto r = generate({Project, outDir.string(), "--root", (tmp.path() / "quest").string()});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(r.err, questWarnings());
    EXPECT_EQ(questWarnings(),
              "vorlane-cli: warning: " + Project +
                  ": cursor \"curHand\": imageId \"imgCursors\" names no image\n"
                  "vorlane-cli: warning: " +
                  Project +
                  ": cursor \"curArrow\": imageId \"imgCursors\" names no image\n"
                  "vorlane-cli: warning: " +
                  Project +
                  ": text \"txtScore\": selectionImageId \"imgSelect\" names no image\n"
                  "vorlane-cli: warning: " +
                  Project +
                  ": sprite \"sprHero\": imageId \"imgHero\" names no image\n"
                  "vorlane-cli: warning: " +
                  Project + ": sprite \"sprCoin\": imageId \"imgCoin\" names no image\n");
    EXPECT_EQ(readBytes(outDir / "app.cfg"),
              "data/* Korrin Quest* gfx\\icon.ico*  800  600  32  1  60  1\r\n"
              " 320  240  16 gfx\\splash.bmp  3  255  0  255\r\n"
              " 22050  8  1  1 logs\\game.log*\r\n");
    // A hot spot's cursor is not kept in the project file: it reads back as "null".
    EXPECT_EQ(readBytes(outDir / "button.dat"),
              " 2\r\n"
              "cmdStart  100  200 curHand  1  4  1  3  2 imgButtons  2  2 null txtStart  1  0  1"
              " sfxClick sfxClick null null\r\n"
              "_exitZone -5  10 null  1  64  32\r\n");
    for (const auto &name : SameAsSample)
        EXPECT_EQ(readBytes(outDir / name), readBytes(Data / "sample" / name)) << name;
}

TEST(GenerateCli, OutDirWithItsOwnSeparatorGivesTheSameFiles)
{
    TempFolder tmp;
    const std::string outDir = tmp.withSeparator() + "out/";
    const auto r = generate({"--root", tmp.path().string(), Project, outDir});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(readBytes(outDir + "app.cfg").substr(0, 20), "out/* Korrin Quest* ");
    EXPECT_FALSE(fs::exists(outDir + "[no filename needed]"));
}

TEST(GenerateCli, EmptyRootWritesNull)
{
    TempFolder tmp;
    const auto r = generate({Project, tmp.path().string(), "--root", ""});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(readBytes(tmp.path() / "app.cfg").substr(0, 20), "null* Korrin Quest* ");
}

TEST(GenerateCli, FolderOutsideTheProjectRootIsRefused)
{
    TempFolder tmp;
    const fs::path outDir = tmp.path() / "data";
    const auto r = generate({Project, outDir.string()});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err,
              questWarnings() + "vorlane-cli: " + outDir.string() +
                  "/: the folder lies outside the application root folder C:\\Games\\Quest; "
                  "nothing was generated\n");
    EXPECT_FALSE(fs::exists(outDir));
}

TEST(GenerateCli, VerbosePrintsTheProgressOnStandardError)
{
    TempFolder tmp;
    const auto r = generate({"--verbose", Project, tmp.path().string(), "--root", ""});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out, "");
    const std::string generating = "Generating Data...\n"
                                   "Removing New Objects...\n"
                                   "Generating Application Data...\n"
                                   "Generating Button Data...\n"
                                   "Generating Image Data...\n"
                                   "Generating Cursor Data...\n"
                                   "Generating Text Data...\n"
                                   "Generating Font Data...\n"
                                   "Generating Music Data...\n"
                                   "Generating SFX Data...\n"
                                   "Generating Sprite Data...\n"
                                   "Generating Scene Data...\n"
                                   "Generating Log Data...\n";
    ASSERT_GE(r.err.size(), generating.size());
    EXPECT_EQ(r.err.substr(r.err.size() - generating.size()), generating);
    EXPECT_NE(r.err.find("Loading Button Data...\n"), std::string::npos);
}

TEST(GenerateCli, DamagedProjectNamesTheLineAndGeneratesNothing)
{
    TempFolder tmp;
    std::string bytes = readBytes(Project);
    // The fifth line is the count of images, after the counts of buttons and cursors.
    std::size_t fifth = 0;
    for (int line = 1; line < 5; ++line)
        fifth = bytes.find("\r\n", fifth) + 2;
    ASSERT_EQ(bytes.substr(fifth, 3), "2\r\n");
    bytes.replace(fifth, 1, "x");
    const fs::path damaged = tmp.path() / "damaged.dvb";
    writeBytes(damaged, bytes);
    const fs::path outDir = tmp.path() / "out";
    const auto r = generate({damaged.string(), outDir.string(), "--root", ""});
    EXPECT_EQ(r.code, 1);
    const std::string prefix = "vorlane-cli: " + damaged.string() + ":5: ";
    EXPECT_EQ(r.err.substr(0, prefix.size()), prefix) << r.err;
    EXPECT_NE(r.err.find("a number was expected"), std::string::npos) << r.err;
    EXPECT_EQ(r.err.back(), '\n');
    EXPECT_FALSE(fs::exists(outDir));
}

TEST(GenerateCli, MissingProjectIsAFailure)
{
    TempFolder tmp;
    const fs::path missing = tmp.path() / "missing.dvb";
    const auto r = generate({missing.string(), tmp.path().string()});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, "vorlane-cli: " + missing.string() + ": No such file or directory\n");
    EXPECT_FALSE(fs::exists(tmp.path() / "app.cfg"));
}

TEST(GenerateCli, FileThatCannotBeWrittenStopsThereAndKeepsTheOthers)
{
    TempFolder tmp;
    fs::create_directory(tmp.path() / "sprite.dat");
    const auto r = generate({Project, tmp.path().string(), "--root", ""});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err,
              questWarnings() + "vorlane-cli: " + tmp.withSeparator() +
                  "sprite.dat: it is a folder, not a regular file; this file was left as it was; "
                  "already replaced: app.cfg button.dat image.dat cursor.dat text.dat font.dat "
                  "music.dat sfx.dat\n");
    EXPECT_EQ(readBytes(tmp.path() / "sfx.dat"), readBytes(Data / "sample" / "sfx.dat"));
    EXPECT_FALSE(fs::exists(tmp.path() / "scene.dat"));
    EXPECT_FALSE(fs::exists(tmp.path() / "log.cfg"));
}

TEST(GenerateCli, OutDirThatCannotBeCreatedIsAFailure)
{
    TempFolder tmp;
    writeBytes(tmp.path() / "plain", "a file");
    const std::string outDir = (tmp.path() / "plain" / "data").string();
    const auto r = generate({Project, outDir, "--root", ""});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, questWarnings() + "vorlane-cli: " + outDir + ": Not a directory\n");
}

TEST(GenerateCli, UsageErrors)
{
    const std::string usage =
        "; usage: vorlane-cli generate PROJECT.dvb OUTDIR [--root FOLDER] [--verbose]\n";
    auto r = generate({});
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.err, "vorlane-cli: generate: PROJECT.dvb and OUTDIR are needed" + usage);
    EXPECT_EQ(generate({Project}).code, 2);
    r = generate({Project, "a", "b"});
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.err, "vorlane-cli: generate: too many arguments" + usage);
    r = generate({Project, "out", "--root"});
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.err, "vorlane-cli: generate: --root needs a FOLDER" + usage);
    r = generate({Project, "out", "--quiet"});
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.err, "vorlane-cli: generate: unknown option \"--quiet\"" + usage);
    r = generate({Project, ""});
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.err, "vorlane-cli: generate: OUTDIR is empty" + usage);
}

TEST(GenerateCli, HelpDescribesTheCommand)
{
    std::ostringstream out, err;
    EXPECT_EQ(runCli({"--help"}, out, err), 0);
    EXPECT_NE(out.str().find("  generate PROJECT.dvb OUTDIR [--root FOLDER] [--verbose]\n"),
              std::string::npos);
}

TEST(GenerateCli, BinaryGeneratesAndExitsZero)
{
    TempFolder tmp;
    const std::string command = std::string(VORLANE_CLI_PATH) + " generate '" + Project + "' '" +
                                (tmp.path() / "new").string() + "' --root '' 2>&1";
    FILE *pipe = popen(command.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    std::string output;
    char buffer[256] = {};
    for (size_t n; (n = fread(buffer, 1, sizeof buffer, pipe)) > 0;)
        output.append(buffer, n);
    EXPECT_EQ(pclose(pipe), 0);
    EXPECT_EQ(output, questWarnings());
    EXPECT_EQ(readBytes(tmp.path() / "new" / "log.cfg"), readBytes(Data / "sample" / "log.cfg"));
}

TEST(GenerateCli, BinaryReportsUsageWithExitTwo)
{
    const std::string command = std::string(VORLANE_CLI_PATH) + " generate 2>/dev/null";
    FILE *pipe = popen(command.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    const int status = pclose(pipe);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 2);
}

const std::vector<std::string> EngineFiles{"app.cfg",
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

TEST(GenerateCli, OutDirEndingInABackslashIsAFolderWrittenInside)
{
    TempFolder tmp;
    const std::string outDir = tmp.withSeparator() + "out\\";
    const auto r = generate({Project, outDir, "--root", tmp.path().string()});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.err,
              questWarnings() + "vorlane-cli: warning: OUTDIR \"" + outDir +
                  "\" ends in \"\\\", which is part of the folder's name on this system; the "
                  "files are written inside that folder\n");
    for (const auto &name : EngineFiles)
        EXPECT_TRUE(fs::is_regular_file(fs::path(outDir) / name)) << name;
    // Nothing beside it.
    std::vector<std::string> entries;
    for (const auto &entry : fs::directory_iterator(tmp.path()))
        entries.push_back(entry.path().filename().string());
    EXPECT_EQ(entries, std::vector<std::string>{"out\\"});
    EXPECT_EQ(readBytes(fs::path(outDir) / "app.cfg").substr(0, 21), "out\\/* Korrin Quest* ");
}

TEST(GenerateCli, RootWithATrailingSeparatorLosesItAndIsWarnedOf)
{
    TempFolder tmp;
    const std::string root = tmp.withSeparator() + "mygame/";
    const std::string outDir = tmp.withSeparator() + "mygame/data";
    const auto r = generate({Project, outDir, "--root", root});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.err,
              questWarnings() + "vorlane-cli: warning: --root \"" + root +
                  "\" ends in a separator; the application root folder is \"" +
                  tmp.withSeparator() + "mygame\"\n");
    EXPECT_EQ(readBytes(fs::path(outDir) / "app.cfg").substr(0, 21), "data/* Korrin Quest* ");
}

TEST(GenerateCli, RootWithATrailingBackslashLosesItToo)
{
    TempFolder tmp;
    const std::string root = tmp.withSeparator() + "mygame\\";
    const std::string outDir = tmp.withSeparator() + "mygame/data";
    const auto r = generate({Project, outDir, "--root", root});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.err,
              questWarnings() + "vorlane-cli: warning: --root \"" + root +
                  "\" ends in a separator; the application root folder is \"" +
                  tmp.withSeparator() + "mygame\"\n");
    EXPECT_EQ(readBytes(fs::path(outDir) / "app.cfg").substr(0, 21), "data/* Korrin Quest* ");
}

TEST(GenerateCli, SiblingOfTheRootWhoseNameBeginsWithItIsWarnedOf)
{
    TempFolder tmp;
    const std::string root = tmp.withSeparator() + "games/quest";
    const std::string outDir = tmp.withSeparator() + "games/quest2";
    const auto r = generate({Project, outDir, "--root", root});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.err,
              questWarnings() + "vorlane-cli: warning: " + outDir +
                  "/: the folder is not inside the application root folder " + root +
                  ", though its path begins with the root's text; app.cfg names the data folder "
                  "\"/\"\n");
    EXPECT_EQ(readBytes(fs::path(outDir) / "app.cfg").substr(0, 17), "/* Korrin Quest* ");
}

TEST(GenerateCli, FolderInsideTheRootGivesNoWarningOfItsOwn)
{
    TempFolder tmp;
    const std::string root = tmp.withSeparator() + "games/quest";
    const std::string outDir = tmp.withSeparator() + "games/quest/quest2";
    const auto r = generate({Project, outDir, "--root", root});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.err, questWarnings());
    EXPECT_EQ(readBytes(fs::path(outDir) / "app.cfg").substr(0, 23), "quest2/* Korrin Quest* ");
}

TEST(GenerateCli, ACharacterTheEngineCannotReadIsWarnedOfAndWrittenAsAQuestionMark)
{
    TempFolder tmp;
    auto doc = makeDocument();
    const std::string quest = readBytes(Project);
    ASSERT_EQ(readProject(quest, *doc).status, ProjectReadResult::Status::Read);
    doc->AppSettings.windowCaption = "Korrin Квест";
    const fs::path project = tmp.path() / "квест.dvb";
    writeBytes(project, projectFileBytes(*doc));
    ASSERT_EQ(readBytes(project).substr(0, 3), "\xEF\xBB\xBF");

    const fs::path outDir = tmp.path() / "quest" / "data";
    const auto r =
        generate({project.string(), outDir.string(), "--root", (tmp.path() / "quest").string()});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_NE(r.err.find("vorlane-cli: warning: " + project.string() +
                         ": application: windowCaption has characters the engine cannot read: "
                         "К, в, е, с, т\n"),
              std::string::npos)
        << r.err;
    EXPECT_EQ(readBytes(outDir / "app.cfg").substr(0, 22), "data/* Korrin ?????* g");
}

} // namespace
} // namespace vorlane
