#include "cli/Cli.h"

#include "../project/ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <sstream>
#include <sys/wait.h>

namespace vorlane {
namespace {

using namespace testsupport;

struct ConvertRun
{
    int code;
    std::string out;
    std::string err;
};

ConvertRun convert(std::vector<std::string> args)
{
    args.insert(args.begin(), "convert");
    std::ostringstream out, err;
    const int code = runCli(args, out, err);
    return {code, out.str(), err.str()};
}

std::string goldenPath()
{
    return std::string(VORLANE_TEST_DATA) + "/project/golden.dvb";
}

TEST(Convert, WritesTheProjectUnderItsNewPath)
{
    TempFolder folder;
    const std::string out = folder.file("converted.dvb");
    const ConvertRun r = convert({goldenPath(), out});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(r.err, "");

    // The golden project, now recording the new file; its hot spot lost its cursor on reading.
    std::vector<std::string> expected = splitCrlf(readBytes(goldenPath()));
    ASSERT_EQ(expected[1], "\"C:\\Games\\Golden\\golden.dvb\",\"C:\\Games\\Golden\\Data\"");
    expected[1] = "\"" + out + "\",\"C:\\Games\\Golden\\Data\"";
    ASSERT_EQ(expected[15], "\"_hotDoor\",-20,35,\"curHand\",1,64,128");
    expected[15] = "\"_hotDoor\",-20,35,\"null\",1,64,128";
    EXPECT_EQ(readBytes(out), crlf(expected));
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"converted.dvb"});
}

TEST(Convert, RecordsTheOutputPathAsGiven)
{
    TempFolder folder;
    const std::string in = folder.file("in.dvb");
    std::vector<std::string> lines = smallProjectLines();
    lines[15] = "\"_hot\",-1,-2,\"null\",7,30,40";
    writeBytes(in, crlf(lines));
    const std::string out = folder.path() + "/./out.dvb";
    ASSERT_EQ(convert({in, out}).code, 0);
    lines[1] = "\"" + out + "\",\"/p/out\"";
    EXPECT_EQ(readBytes(folder.file("out.dvb")), crlf(lines));
}

TEST(Convert, DamagedInputFailsWithItsLineAndLeavesTheOutputAlone)
{
    TempFolder folder;
    const std::string in = folder.file("in.dvb");
    std::vector<std::string> lines = smallProjectLines();
    lines[11] = "\"root\",\"caption\",\"icon\",32768,600,32,2,60,1";
    writeBytes(in, crlf(lines));

    const ConvertRun r = convert({in, folder.file("out.dvb")});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, "vorlane-cli: " + in + ":12: screenWidth must lie between -32768 and 32767\n");
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"in.dvb"});

    writeBytes(folder.file("out.dvb"), "kept");
    EXPECT_EQ(convert({in, folder.file("out.dvb")}).code, 1);
    EXPECT_EQ(readBytes(folder.file("out.dvb")), "kept");
    EXPECT_EQ(folder.entries(), (std::vector<std::string>{"in.dvb", "out.dvb"}));
}

TEST(Convert, EmptyOrUnreadableInputFails)
{
    TempFolder folder;
    writeBytes(folder.file("empty.dvb"), "");
    ConvertRun r = convert({folder.file("empty.dvb"), folder.file("out.dvb")});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, "vorlane-cli: " + folder.file("empty.dvb") + ": the file is empty\n");

    r = convert({folder.file("missing.dvb"), folder.file("out.dvb")});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err,
              "vorlane-cli: " + folder.file("missing.dvb") + ": No such file or directory\n");
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"empty.dvb"});
}

TEST(Convert, UnwritableOutputFails)
{
    TempFolder folder;
    const std::string out = folder.file("missing/out.dvb");
    const ConvertRun r = convert({goldenPath(), out});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, "vorlane-cli: " + out + ": No such file or directory\n");
    EXPECT_TRUE(folder.entries().empty());
}

TEST(Convert, WrongNumberOfArgumentsIsAUsageError)
{
    const std::string usage =
        "vorlane-cli: convert needs two arguments, IN.dvb and OUT.dvb; see vorlane-cli --help\n";
    for (const auto &args : {std::vector<std::string>{},
                             std::vector<std::string>{"in.dvb"},
                             std::vector<std::string>{"in.dvb", "out.dvb", "extra"}}) {
        const ConvertRun r = convert(args);
        EXPECT_EQ(r.code, 2);
        EXPECT_EQ(r.err, usage);
    }
}

TEST(Convert, HelpNamesTheCommand)
{
    std::ostringstream out, err;
    ASSERT_EQ(runCli({"--help"}, out, err), 0);
    EXPECT_NE(out.str().find("\n  convert IN.dvb OUT.dvb\n"), std::string::npos);
}

TEST(Convert, BinaryReportsDamageOnStandardErrorAndExitsWithOne)
{
    TempFolder folder;
    const std::string in = folder.file("in.dvb");
    writeBytes(in, "\"name\"\r\n\"path\",");
    const std::string command = std::string(VORLANE_CLI_PATH) + " convert '" + in + "' '" +
                                folder.file("out.dvb") + "' 2>'" + folder.file("err.txt") + "'";
    const int status = std::system(command.c_str());
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_EQ(readBytes(folder.file("err.txt")),
              "vorlane-cli: " + in +
                  ":2: the file ends where text in double quotes was expected for "
                  "generatePath\n");
    EXPECT_EQ(folder.entries(), (std::vector<std::string>{"err.txt", "in.dvb"}));
}

TEST(Convert, BinaryConvertsAndExitsWithZero)
{
    TempFolder folder;
    const std::string command = std::string(VORLANE_CLI_PATH) + " convert '" + goldenPath() +
                                "' '" + folder.file("out.dvb") + "'";
    const int status = std::system(command.c_str());
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(splitCrlf(readBytes(folder.file("out.dvb"))).size(), 59u);
}

} // namespace
} // namespace vorlane
