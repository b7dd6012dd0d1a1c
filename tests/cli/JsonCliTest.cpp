#include "cli/Cli.h"

#include "../project/ProjectTestSupport.h"

#include <gtest/gtest.h>

#include <sstream>

namespace vorlane {
namespace {

using namespace testsupport;

struct CliRun
{
    int code;
    std::string out;
    std::string err;
};

CliRun cli(const std::vector<std::string> &args)
{
    std::ostringstream out, err;
    const int code = runCli(args, out, err);
    return {code, out.str(), err.str()};
}

std::string replaced(std::string text, const std::string &from, const std::string &to)
{
    const size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    if (at != std::string::npos)
        text.replace(at, from.size(), to);
    return text;
}

class JsonCli : public ::testing::Test
{
protected:
    TempFolder folder;
    std::string project = folder.file("game.dvb");
    std::string small = crlf(smallProjectLines());

    void SetUp() override { writeBytes(project, small); }
};

TEST_F(JsonCli, ExportWritesTheSameJsonToStandardOutputAndToAFile)
{
    const CliRun toOut = cli({"export", project});
    EXPECT_EQ(toOut.code, 0);
    EXPECT_EQ(toOut.err, "");
    EXPECT_EQ(toOut.out.substr(0, 30), "{\n  \"format\": \"vorlane-project");
    const CliRun toFile = cli({"export", project, folder.file("game.json")});
    EXPECT_EQ(toFile.code, 0);
    EXPECT_EQ(toFile.out, "");
    EXPECT_EQ(readBytes(folder.file("game.json")), toOut.out);
}

TEST_F(JsonCli, ImportGivesBackTheProjectFileByteForByte)
{
    ASSERT_EQ(cli({"export", project, folder.file("game.json")}).code, 0);
    const CliRun r = cli({"import", folder.file("game.json"), folder.file("back.dvb")});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out + r.err, "");
    EXPECT_EQ(readBytes(folder.file("back.dvb")), small);
}

TEST_F(JsonCli, BadJsonIsRefusedWithItsPlaceAndNothingIsWritten)
{
    const std::string json = cli({"export", project}).out;
    const std::string bad = replaced(json, "\"x\": 10,", "\"x\": 40000,");
    // "x" of the first button: line 36, its value from column 12.
    ASSERT_EQ(bad.substr(0, bad.find("40000")).rfind("\n      \"x\": "), bad.find("40000") - 12);
    writeBytes(folder.file("game.json"), bad);
    writeBytes(folder.file("out.dvb"), "before");
    const CliRun r = cli({"import", folder.file("game.json"), folder.file("out.dvb")});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.out, "");
    int line = 1;
    for (char c : bad.substr(0, bad.find("40000")))
        line += c == '\n';
    EXPECT_EQ(r.err,
              "vorlane-cli: " + folder.file("game.json") + ":" + std::to_string(line) +
                  ":12: /buttons/0/x: a whole number from -32768 to 32767 was expected\n");
    EXPECT_EQ(readBytes(folder.file("out.dvb")), "before");
    EXPECT_EQ(folder.entries(), (std::vector<std::string>{"game.dvb", "game.json", "out.dvb"}));
}

TEST_F(JsonCli, WrongArgumentsAreUsageErrors)
{
    EXPECT_EQ(cli({"export"}).code, 2);
    EXPECT_EQ(cli({"export", "a", "b", "c"}).err,
              "vorlane-cli: export needs PROJECT.dvb and may take OUT.json; see vorlane-cli "
              "--help\n");
    EXPECT_EQ(cli({"import", "a.json"}).err,
              "vorlane-cli: import needs two arguments, IN.json and OUT.dvb; see vorlane-cli "
              "--help\n");
    EXPECT_EQ(cli({"diff", "a.dvb"}).code, 2);
    const CliRun merge = cli({"merge", "a", "b", "c"});
    EXPECT_EQ(merge.code, 2);
    EXPECT_EQ(merge.err,
              "vorlane-cli: merge needs BASE.dvb, OURS.dvb, THEIRS.dvb and -o OUT.dvb; see "
              "vorlane-cli --help\n");
}

TEST_F(JsonCli, ExportOfAMissingOrDamagedFileFails)
{
    const CliRun missing = cli({"export", folder.file("none.dvb")});
    EXPECT_EQ(missing.code, 1);
    EXPECT_EQ(missing.err,
              "vorlane-cli: " + folder.file("none.dvb") + ": No such file or directory\n");
    writeBytes(folder.file("bad.dvb"), "\"name\"\r\n\"p\",\"g\"\r\nx\r\n");
    EXPECT_EQ(cli({"export", folder.file("bad.dvb")}).err,
              "vorlane-cli: " + folder.file("bad.dvb") +
                  ":3: a number was expected for button count\n");
}

TEST_F(JsonCli, DiffExitsAsDiffDoes)
{
    const CliRun same = cli({"diff", project, project});
    EXPECT_EQ(same.code, 0);
    EXPECT_EQ(same.out, "");
    std::vector<std::string> lines = smallProjectLines();
    lines[14] = "\"btn\",11,20,\"cur\",1,4,1,3,2,\"tpl\",5,6,\"icon\",\"cap\",1,0,1,\"su\",\"sd\","
                "\"so\",\"sx\"";
    writeBytes(folder.file("b.dvb"), crlf(lines));
    const CliRun differ = cli({"diff", project, folder.file("b.dvb")});
    EXPECT_EQ(differ.code, 1);
    EXPECT_EQ(differ.out, "button \"btn\": x 10 -> 11\n");
    const CliRun trouble = cli({"diff", project, folder.file("none.dvb")});
    EXPECT_EQ(trouble.code, 2);
    EXPECT_EQ(trouble.out, "");
}

TEST_F(JsonCli, MergeWritesTheMergedProjectAndListsConflicts)
{
    std::vector<std::string> ours = smallProjectLines();
    std::vector<std::string> theirs = smallProjectLines();
    ours[14] = "\"btn\",11,20,\"cur\",1,4,1,3,2,\"tpl\",5,6,\"icon\",\"cap\",1,0,1,\"su\",\"sd\","
               "\"so\",\"sx\"";
    theirs[14] = "\"btn\",10,21,\"cur\",1,4,1,3,2,\"tpl\",5,6,\"icon\",\"cap\",1,0,1,\"su\",\"sd\","
                 "\"so\",\"sx\"";
    writeBytes(folder.file("ours.dvb"), crlf(ours));
    writeBytes(folder.file("theirs.dvb"), crlf(theirs));
    const CliRun clean = cli({"merge",
                              project,
                              folder.file("ours.dvb"),
                              folder.file("theirs.dvb"),
                              "-o",
                              folder.file("out.dvb")});
    EXPECT_EQ(clean.code, 0);
    EXPECT_EQ(clean.out + clean.err, "");
    std::vector<std::string> merged = smallProjectLines();
    merged[14] = "\"btn\",11,21,\"cur\",1,4,1,3,2,\"tpl\",5,6,\"icon\",\"cap\",1,0,1,\"su\",\"sd\","
                 "\"so\",\"sx\"";
    EXPECT_EQ(readBytes(folder.file("out.dvb")), crlf(merged));

    // As git calls a merge driver: the result replaces ours, and no backup is left beside it.
    theirs[14] = "\"btn\",12,20,\"cur\",1,4,1,3,2,\"tpl\",5,6,\"icon\",\"cap\",1,0,1,\"su\",\"sd\","
                 "\"so\",\"sx\"";
    writeBytes(folder.file("theirs.dvb"), crlf(theirs));
    const CliRun conflict = cli({"merge",
                                 project,
                                 folder.file("ours.dvb"),
                                 folder.file("theirs.dvb"),
                                 "-o",
                                 folder.file("ours.dvb")});
    EXPECT_EQ(conflict.code, 1);
    EXPECT_EQ(conflict.out,
              "conflict: button \"btn\": x: ours 11, theirs 12 (base 10); ours kept\n");
    EXPECT_EQ(readBytes(folder.file("ours.dvb")), crlf(ours));
    EXPECT_EQ(folder.entries(),
              (std::vector<std::string>{"game.dvb", "ours.dvb", "out.dvb", "theirs.dvb"}));
}

TEST_F(JsonCli, MergeWithAnEmptyBaseTakesWhatBothSidesAgreeOn)
{
    writeBytes(folder.file("base.dvb"), "");
    const CliRun r =
        cli({"merge", folder.file("base.dvb"), project, project, "-o", folder.file("out.dvb")});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(readBytes(folder.file("out.dvb")), small);
}

} // namespace
} // namespace vorlane
