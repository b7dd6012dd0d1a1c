#include "cli/Cli.h"

#include "project/ProjectTestSupport.h"
#include "project/ProjectWriter.h"
#include "rules/LogFilterRules.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <sys/wait.h>

namespace vorlane {
namespace {

using testsupport::crlf;
using testsupport::TempFolder;
using testsupport::writeBytes;

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

// A project with one button on one image; `templateId` and `caption` vary per test. The image's
// file is "root/gfx/b.bmp" beside the project file `projectPath`.
std::string project(const std::string &templateId,
                    const std::string &caption,
                    const std::string &projectPath = "/p/game.dvb")
{
    std::vector<std::string> lines{"\"Game\"",
                                   "\"" + projectPath + "\",\"/p/out/\"",
                                   "1",
                                   "0",
                                   "1",
                                   "0",
                                   "0",
                                   "0",
                                   "0",
                                   "0",
                                   "0",
                                   "\"root\",\"" + caption + "\",\"null\",640,480,16,2,60,0",
                                   "44100,8,0,0,\"null\"",
                                   "\"cmdStart\",1,2,\"null\",1,0,1,0,0,\"" + templateId +
                                       "\",0,0,\"null\",\"null\",1,1,1,\"null\",\"null\","
                                       "\"null\",\"null\"",
                                   "\"imgButtons\",\"gfx\\b.bmp\",0,0,0,0,0,0,0,1,0,255",
                                   "0,0"};
    lines.insert(lines.end(), 7 + 11 + 1, "0");
    return crlf(lines);
}

// Writes the picture the project of project() shows, beside `path`.
void writeButtonPicture(const TempFolder &folder)
{
    std::filesystem::create_directories(folder.file("root/gfx"));
    writeBytes(folder.file("root/gfx/b.bmp"), "BM");
}

TEST(CheckCli, ConsistentProjectExitsZeroAndPrintsNothing)
{
    TempFolder folder;
    const std::string path = folder.file("game.dvb");
    writeBytes(path, project("imgButtons", "Korrin Quest", path));
    writeButtonPicture(folder);
    const CliRun r = run({"check", path});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(r.err, "");
}

TEST(CheckCli, PrintsEachProblemOnALineAndExitsOne)
{
    TempFolder folder;
    const std::string path = folder.file("game.dvb");
    writeBytes(path, project("imgGone", "Quest*", path));
    writeButtonPicture(folder);
    const CliRun r = run({"check", path});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.out,
              path +
                  ": application: windowCaption holds \"*\", which the engine reads as the end "
                  "of the text\n" +
                  path + ": button \"cmdStart\": templateId \"imgGone\" names no image\n");
    EXPECT_EQ(r.err, "");
}

TEST(CheckCli, DamagedProjectExitsOneNamingFileAndLine)
{
    TempFolder folder;
    const std::string path = folder.file("game.dvb");
    std::string bytes = project("imgButtons", "Korrin Quest");
    bytes.replace(bytes.find(",640,"), 5, ",6x0,"); // line 12
    writeBytes(path, bytes);
    const CliRun r = run({"check", path});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(r.err.rfind("vorlane-cli: " + path + ":12: ", 0), 0u) << r.err;
}

TEST(CheckCli, MissingOrEmptyFileExitsOne)
{
    TempFolder folder;
    const std::string missing = folder.file("missing.dvb");
    CliRun r = run({"check", missing});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, "vorlane-cli: " + missing + ": No such file or directory\n");

    const std::string empty = folder.file("empty.dvb");
    writeBytes(empty, "");
    r = run({"check", empty});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(r.err, "vorlane-cli: " + empty + ": the file is empty\n");
}

TEST(CheckCli, WrongNumberOfArgumentsIsAUsageError)
{
    const std::string usage =
        "vorlane-cli: check needs one argument, PROJECT.dvb; see vorlane-cli --help\n";
    CliRun r = run({"check"});
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.err, usage);
    r = run({"check", "a.dvb", "b.dvb"});
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.err, usage);
}

TEST(CheckCli, HelpDescribesCheck)
{
    const CliRun r = run({"--help"});
    EXPECT_EQ(r.code, 0);
    EXPECT_NE(r.out.find("  check PROJECT.dvb\n"), std::string::npos);
}

int exitCodeOfBinary(const std::string &arguments)
{
    const std::string command =
        std::string(VORLANE_CLI_PATH) + " " + arguments + " >/dev/null 2>&1";
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(CheckCli, BinaryExitCodes)
{
    TempFolder folder;
    const std::string clean = folder.file("clean.dvb");
    const std::string broken = folder.file("broken.dvb");
    writeBytes(clean, project("imgButtons", "Korrin Quest"));
    writeBytes(broken, project("imgGone", "Korrin Quest"));
    EXPECT_EQ(exitCodeOfBinary("check '" + clean + "'"), 0);
    EXPECT_EQ(exitCodeOfBinary("check '" + broken + "'"), 1);
    EXPECT_EQ(exitCodeOfBinary("check '" + folder.file("missing.dvb") + "'"), 1);
    EXPECT_EQ(exitCodeOfBinary("check"), 2);
}

TEST(CheckCli, ReportsTextsTheEngineCannotReadAndExitsOne)
{
    TempFolder folder;
    const std::string path = folder.file("game.dvb");
    writeBytes(path, "\xEF\xBB\xBF" + project("imgButtons", "Квест Пр"));
    writeButtonPicture(folder);
    const CliRun r = run({"check", path});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.out,
              path + ": application: windowCaption has characters the engine cannot read: К, в, е, "
                     "с, т, П, р\n");
    EXPECT_EQ(r.err, "");
}

TEST(CheckCli, AFileSavedWithMoreCustomFiltersThanTheReaderTakesIsReported)
{
    // 51 filters made as the custom filter window makes them, saved as Save writes them.
    auto doc = makeDocument();
    doc->ProjectInfo.projectName = "Game";
    ObjectList list;
    for (int i = 0; i < 51; ++i)
        createCustomFilter(*doc, list, "Filter " + std::to_string(i));
    doc->AppSettings.customFilterCount = static_cast<int16_t>(list.lines.size());
    const std::string bytes = projectFileBytes(*doc);

    TempFolder folder;
    const std::string path = folder.file("game.dvb");
    writeBytes(path, std::string(bytes.data(), bytes.size()));
    const CliRun r = run({"check", path});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(r.err, "vorlane-cli: " + path + ":33: customFilterCount must lie between 0 and 50\n");
}

} // namespace
} // namespace vorlane
