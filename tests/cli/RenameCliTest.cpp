#include "cli/Cli.h"
#include "cli/Unattended.h"

#include "io/SystemFileOps.h"
#include "model/Kinds.h"
#include "project/ProjectTestSupport.h"
#include "project/Save.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace vorlane {
namespace {

using testsupport::listObject;
using testsupport::readBytes;
using testsupport::TempFolder;

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

// Saves a project whose button, cursor and scene use the image "imgHero" and whose sprite is
// called "sprHero", as the editor's Save writes it.
std::string saveGame(const TempFolder &folder)
{
    auto doc = makeDocument();
    doc->ProjectInfo.projectName = "Game";
    doc->ProjectInfo.projectFilePath = folder.file("game.dvb");
    doc->AppSettings.windowIcon = doc->AppSettings.splashImagePath = "null";
    doc->AppSettings.logPath = "null";
    listObject(*doc, Kind::Image, 0, "imgHero");
    doc->Images[0].path = "null";
    listObject(*doc, Kind::Image, 1, "imgSky");
    doc->Images[1].path = "null";
    listObject(*doc, Kind::Cursor, 0, "curArrow");
    doc->Cursors[0].imageId = "imgHero";
    listObject(*doc, Kind::Button, 0, "btnPlay");
    ButtonRec &b = doc->Buttons[0];
    b.cursorId = "curArrow";
    b.templateId = "imgHero";
    b.iconId = b.captionTextId = b.soundUp = b.soundDown = b.soundOver = b.soundDisabled = "null";
    listObject(*doc, Kind::Sprite, 0, "sprHero");
    doc->Sprites[0].imageId = "imgSky";
    doc->Sprites[0].currentAnimId = "null";
    listObject(*doc, Kind::Scene, 0, "scnTitle");
    doc->Scenes[0].layerCount = 2;
    doc->Scenes[0].layers[0] = {-1, 3, "imgHero"};
    doc->Scenes[0].layers[1] = {-1, 2, "sprHero"};
    Unattended ui;
    ProgressSink quiet;
    EXPECT_TRUE(saveProject(*doc, ui, quiet, systemFileOps()).written());
    return folder.file("game.dvb");
}

std::unique_ptr<Document> openGame(const std::string &path)
{
    Unattended ui;
    ProgressSink quiet;
    std::ostringstream err;
    auto doc = openForCommand(path, ui, quiet, err);
    EXPECT_EQ(err.str(), "");
    return doc;
}

TEST(RenameCli, RenamesTheObjectAndItsReferencesIntoOut)
{
    TempFolder folder;
    const std::string path = saveGame(folder);
    const std::string before = readBytes(path);
    const std::string out = folder.file("renamed.dvb");
    const CliRun r = run({"rename", path, "image", "imgHero", "imgPlayer", out});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(r.err, "");
    EXPECT_EQ(readBytes(path), before);
    const auto doc = openGame(out);
    ASSERT_TRUE(doc);
    EXPECT_EQ(doc->Images[0].id, "imgPlayer");
    EXPECT_EQ(doc->list(Kind::Image).lines[0].text, "imgPlayer");
    EXPECT_EQ(doc->Buttons[0].templateId, "imgPlayer");
    EXPECT_EQ(doc->Cursors[0].imageId, "imgPlayer");
    EXPECT_EQ(doc->Scenes[0].layers[0].objectId, "imgPlayer");
    EXPECT_EQ(doc->Sprites[0].imageId, "imgSky");
}

TEST(RenameCli, WithoutOutRewritesTheProjectKeepingABackup)
{
    TempFolder folder;
    const std::string path = saveGame(folder);
    const std::string before = readBytes(path);
    const CliRun r = run({"rename", path, "sprite", "sprHero", "sprPlayer"});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.err, "");
    EXPECT_EQ(readBytes(path + ".bak1"), before);
    const auto doc = openGame(path);
    ASSERT_TRUE(doc);
    EXPECT_EQ(doc->Sprites[0].id, "sprPlayer");
    EXPECT_EQ(doc->Scenes[0].layers[1].objectId, "sprPlayer");
}

TEST(RenameCli, KindsAsCheckPrintsThem)
{
    TempFolder folder;
    const std::string path = saveGame(folder);
    EXPECT_EQ(run({"rename", path, "cursor", "curArrow", "curHand"}).code, 0);
    const auto doc = openGame(path);
    ASSERT_TRUE(doc);
    EXPECT_EQ(doc->Buttons[0].cursorId, "curHand");
}

TEST(RenameCli, UnknownOldNameExitsOneWritingNothing)
{
    TempFolder folder;
    const std::string path = saveGame(folder);
    const std::string before = readBytes(path);
    const CliRun r = run({"rename", path, "image", "imgNone", "imgPlayer"});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err,
              "vorlane-cli: " + path + ": no image is called \"imgNone\"; nothing was written\n");
    EXPECT_EQ(readBytes(path), before);
    // A name of another kind is no object of this one.
    EXPECT_EQ(run({"rename", path, "button", "imgHero", "x"}).code, 1);
}

TEST(RenameCli, RefusedNewNameExitsOneSayingWhy)
{
    TempFolder folder;
    const std::string path = saveGame(folder);
    const std::string before = readBytes(path);
    CliRun r = run({"rename", path, "image", "imgHero", "imgSky"});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err,
              "vorlane-cli: " + path +
                  ": image \"imgHero\" cannot be renamed to \"imgSky\": Another image is already "
                  "called \"imgSky\". Nothing was written.\n");
    r = run({"rename", path, "image", "imgHero", ""});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err,
              "vorlane-cli: " + path +
                  ": image \"imgHero\" cannot be renamed to \"\": The identifier is empty. "
                  "Nothing was written.\n");
    r = run({"rename", path, "image", "imgHero", "img\"Hero"});
    EXPECT_EQ(r.code, 1);
    EXPECT_NE(r.err.find("The identifier holds a double quote, which the project file cannot "
                         "hold. Nothing was written.\n"),
              std::string::npos);
    EXPECT_EQ(readBytes(path), before);
}

TEST(RenameCli, UsageErrorsExitTwo)
{
    CliRun r = run({"rename", "game.dvb", "image", "imgHero"});
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.err,
              "vorlane-cli: rename needs PROJECT.dvb KIND OLD NEW and optionally OUT.dvb; see "
              "vorlane-cli --help\n");
    EXPECT_EQ(run({"rename", "a", "image", "b", "c", "d", "e"}).code, 2);
    r = run({"rename", "game.dvb", "picture", "a", "b"});
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.err,
              "vorlane-cli: unknown kind \"picture\"; KIND is one of button, cursor, image, text, "
              "font, music, sfx, sprite, scene\n");
}

TEST(RenameCli, HelpDescribesRename)
{
    const CliRun r = run({"--help"});
    EXPECT_NE(r.out.find("  rename PROJECT.dvb KIND OLD NEW [OUT.dvb]\n"), std::string::npos);
}

} // namespace
} // namespace vorlane
