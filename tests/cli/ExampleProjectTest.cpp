#include "cli/Cli.h"

#include "CheckWarnings.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace vorlane {
namespace {

namespace fs = std::filesystem;

std::string fileBytes(const fs::path &path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The example project that ships with Vorlane (made in the editor) stays readable and
// generates the engine files the headless demo shows.
TEST(ExampleProject, GeneratesItsEngineFiles)
{
    const fs::path root = fs::temp_directory_path() / "vorlane-example-test";
    fs::remove_all(root);
    const fs::path out = root / "data";
    std::ostringstream stdOut, stdErr;
    const int code = runCli({"generate",
                             std::string(VORLANE_EXAMPLES) + "/demo.dvb",
                             out.string(),
                             "--root",
                             root.string()},
                            stdOut,
                            stdErr);
    ASSERT_EQ(code, 0) << stdErr.str();
    // The example's menu buttons name their sounds before those sound effects exist: generate
    // warns as check would.
    const std::string demo = std::string(VORLANE_EXAMPLES) + "/demo.dvb";
    EXPECT_EQ(stdErr.str(), testsupport::checkAsWarnings(demo, demo));
    EXPECT_NE(stdErr.str().find("vorlane-cli: warning: " + demo +
                                ": button \"btnPlay\": soundUp \"sfxClick\" names no "
                                "sound effect\n"),
              std::string::npos);
    EXPECT_EQ(fileBytes(out / "app.cfg"),
              "data/* QTA Application* null*  0  0  0  1  0  0\r\n"
              " 0  0  0  0 null*\r\n");
    EXPECT_EQ(fileBytes(out / "button.dat"),
              " 3\r\n"
              "btnPlay  272  200 null  1  0  1  2  3 imgMenuButtons  2  2 null txtPlay  1  1  1 "
              "sfxClick null sfxHover null\r\n"
              "btnQuit  272  260 null  1  0  1  2  3 imgMenuButtons  2  2 null txtQuit  1  1  1 "
              "sfxClick null null null\r\n"
              "_secretZone  600  20 null  1  64  32\r\n");
    EXPECT_EQ(fileBytes(out / "scene.dat"),
              " 1\r\n"
              "scnTitle  1  0  5\r\n"
              "imgBackground  3\r\n"
              "sprHero  2\r\n"
              "btnPlay  4\r\n"
              "btnQuit  4\r\n"
              "_secretZone  4\r\n");
    EXPECT_EQ(fileBytes(out / "log.cfg"), " 0\r\n 0\r\n");
    fs::remove_all(root);
}

} // namespace
} // namespace vorlane
