#include "cli/Cli.h"

#include "Version.h"

#include <gtest/gtest.h>

#include <sstream>

namespace vorlane {
namespace {

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

TEST(Cli, VersionAnswers)
{
    auto r = run({"--version"});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out, std::string("vorlane-cli ") + VersionText + "\n");
}

TEST(Cli, HelpDocumentsTheExitCodes)
{
    auto r = run({"--help"});
    EXPECT_EQ(r.code, 0);
    EXPECT_NE(r.out.find("  0  success"), std::string::npos);
    EXPECT_NE(r.out.find("  1  the work failed"), std::string::npos);
    EXPECT_NE(r.out.find("  2  usage error"), std::string::npos);
}

TEST(Cli, UnknownCommandIsAUsageError)
{
    auto r = run({"frobnicate"});
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.err, "vorlane-cli: unknown command \"frobnicate\"; see vorlane-cli --help\n");
    EXPECT_EQ(run({}).code, 2);
}

TEST(Cli, BinaryAnswersVersion)
{
    const std::string command = std::string(VORLANE_CLI_PATH) + " --version";
    FILE *pipe = popen(command.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    char buffer[128] = {};
    const size_t n = fread(buffer, 1, sizeof buffer - 1, pipe);
    EXPECT_EQ(pclose(pipe), 0);
    EXPECT_EQ(std::string(buffer, n), std::string("vorlane-cli ") + VersionText + "\n");
}

} // namespace
} // namespace vorlane
