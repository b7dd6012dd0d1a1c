#include "cli/Cli.h"
#include "cli/Unattended.h"
#include "rules/ObjectFilePath.h"
#include "rules/ProgressSink.h"

#include "CheckWarnings.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <sys/wait.h>

namespace vorlane {
namespace {

namespace fs = std::filesystem;

const std::string Example = std::string(VORLANE_EXAMPLES) + "/demo.dvb";

std::string fileBytes(const fs::path &path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// Runs the test from another working folder, and goes back where it was when it ends.
class ElsewhereFolder
{
public:
    explicit ElsewhereFolder(const std::string &name)
        : m_before(fs::current_path())
        , m_folder(fs::temp_directory_path() / name)
    {
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
        fs::current_path(m_folder);
    }
    ~ElsewhereFolder()
    {
        fs::current_path(m_before);
        fs::remove_all(m_folder);
    }
    const fs::path &path() const { return m_folder; }

private:
    fs::path m_before;
    fs::path m_folder;
};

// Every file the opened example names, as the previews and the problems check find it.
std::vector<std::string> namedFiles(const Document &doc)
{
    std::vector<std::string> stored{doc.AppSettings.windowIcon, doc.AppSettings.splashImagePath};
    for (const ListLine &line : doc.list(Kind::Image).lines)
        stored.push_back(doc.Images[static_cast<size_t>(line.slot)].path);
    for (const ListLine &line : doc.list(Kind::Font).lines)
        stored.push_back(doc.Fonts[static_cast<size_t>(line.slot)].path);
    for (const ListLine &line : doc.list(Kind::Music).lines)
        stored.push_back(doc.MusicTracks[static_cast<size_t>(line.slot)].path);
    for (const ListLine &line : doc.list(Kind::SFX).lines)
        stored.push_back(doc.SoundEffects[static_cast<size_t>(line.slot)].path);
    return stored;
}

// The example project that ships with Vorlane stays readable and generates the engine files
// the headless demo shows: a windowed game with a splash screen, sound, a log with filters of
// each kind and objects of all nine kinds.
TEST(ExampleProject, GeneratesItsEngineFiles)
{
    const fs::path root = fs::temp_directory_path() / "vorlane-example-test";
    fs::remove_all(root);
    const fs::path out = root / "data";
    std::ostringstream stdOut, stdErr;
    const int code =
        runCli({"generate", Example, out.string(), "--root", root.string()}, stdOut, stdErr);
    ASSERT_EQ(code, 0) << stdErr.str();
    // Every object the example names is there: check has nothing to say.
    EXPECT_EQ(stdErr.str(), "");
    EXPECT_EQ(fileBytes(out / "app.cfg"),
              "data/* Demo Game* art/icon.png*  640  480  32  2  60  1\r\n"
              " 320  240  32 art/splash.png  2000  255  0  255\r\n"
              " 22050  8  0  1 demo.log*\r\n");
    EXPECT_EQ(fileBytes(out / "button.dat"),
              " 3\r\n"
              "btnPlay  272  200 curArrow  1  0  1  2  3 imgMenuButtons  2  2 null txtPlay  1  1 "
              " 1 sfxClick null sfxHover null\r\n"
              "btnQuit  272  260 curArrow  1  0  1  2  3 imgMenuButtons  2  2 null txtQuit  1  1 "
              " 1 sfxClick null sfxHover null\r\n"
              "_secretZone  600  20 null  1  64  32\r\n");
    EXPECT_EQ(fileBytes(out / "cursor.dat"), " 1\r\ncurArrow imgCursor  5\r\n");
    EXPECT_EQ(fileBytes(out / "font.dat"), " 1\r\nfntTitle fonts/DejaVuSerif-Bold.ttf\r\n");
    EXPECT_EQ(fileBytes(out / "music.dat"),
              " 1\r\nmusTitle music/title-theme.wav  200  1  128\r\n");
    EXPECT_EQ(fileBytes(out / "sfx.dat"),
              " 2\r\n"
              "sfxClick sound/click.wav  255  2  128\r\n"
              "sfxHover sound/hover.wav  160  2  128\r\n");
    EXPECT_EQ(fileBytes(out / "sprite.dat"),
              " 1\r\n"
              "sprHero imgHero walk  120  380  1  2\r\n"
              "walk  4\r\n 1\r\n 2\r\n 3\r\n 4\r\n"
              " 120  0  1  1  1 -1\r\n"
              "stand  1\r\n 1\r\n"
              " 0  0  0  1  1  0\r\n");
    EXPECT_EQ(fileBytes(out / "scene.dat"),
              " 1\r\n"
              "scnTitle  1  0  7\r\n"
              "imgBackground  3\r\n"
              "txtTitle  1\r\n"
              "sprHero  2\r\n"
              "btnPlay  4\r\n"
              "btnQuit  4\r\n"
              "_secretZone  4\r\n"
              "musTitle  5\r\n");
    EXPECT_EQ(fileBytes(out / "log.cfg"),
              " 2\r\n"
              "Application: *\r\n"
              "!DEBUG!: *\r\n"
              " 3\r\n"
              "capp.cpp*\r\n"
              "CSceneMngr.cpp*\r\n"
              "Loading*\r\n");
    fs::remove_all(root);
}

// The example's root folder is a folder beside the project file: generating into a folder
// under it needs no --root.
TEST(ExampleProject, GeneratesUnderItsOwnRootFolder)
{
    const fs::path out = fs::temp_directory_path() / "vorlane-example-root" / "demo" / "data";
    fs::remove_all(out.parent_path().parent_path());
    std::ostringstream stdOut, stdErr;
    ASSERT_EQ(runCli({"generate", Example, out.string()}, stdOut, stdErr), 0) << stdErr.str();
    EXPECT_EQ(fileBytes(out / "app.cfg").substr(0, 18), "data/* Demo Game* ");
    fs::remove_all(out.parent_path().parent_path());
}

TEST(ExampleProject, CheckFindsNoProblemFromAnotherFolder)
{
    const ElsewhereFolder elsewhere("vorlane-example-elsewhere");
    for (const std::string &path : {Example, fs::relative(Example).string()}) {
        std::ostringstream out, err;
        EXPECT_EQ(runCli({"check", path}, out, err), 0) << path;
        EXPECT_EQ(out.str(), "") << path;
        EXPECT_EQ(err.str(), "") << path;
    }
    // The program itself, started in that folder.
    const int status = std::system(
        (std::string(VORLANE_CLI_PATH) + " check '" + Example + "' >out.txt 2>&1").c_str());
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(fileBytes(elsewhere.path() / "out.txt"), "");
}

// The pictures, font and sounds the example names lie under examples/ and are found from any
// working folder, whether the project was opened by a full or a relative path.
TEST(ExampleProject, EveryFileItNamesIsFoundFromAnotherFolder)
{
    const ElsewhereFolder elsewhere("vorlane-example-files");
    for (const std::string &path : {Example, fs::relative(Example).string()}) {
        Unattended ui;
        ProgressSink quiet;
        std::ostringstream err;
        const auto doc = openForCommand(path, ui, quiet, err);
        ASSERT_TRUE(doc) << err.str();
        const std::vector<std::string> stored = namedFiles(*doc);
        EXPECT_EQ(stored.size(), 10u);
        for (const std::string &name : stored) {
            ASSERT_NE(name, "null");
            const std::optional<std::string> file = resolveObjectPath(*doc, name);
            ASSERT_TRUE(file) << name;
            EXPECT_EQ(fs::canonical(*file).string().rfind(
                          fs::canonical(VORLANE_EXAMPLES).string() + "/demo/", 0),
                      0u)
                << name << " -> " << *file;
            EXPECT_TRUE(fs::is_regular_file(*file)) << name << " -> " << *file;
        }
    }
    // The font comes with its licence.
    EXPECT_TRUE(fs::is_regular_file(fs::path(VORLANE_EXAMPLES) / "demo/fonts/DejaVu-LICENSE.txt"));
}

} // namespace
} // namespace vorlane
