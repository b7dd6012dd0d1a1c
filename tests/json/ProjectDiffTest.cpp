#include "json/ProjectDiff.h"

#include "../project/ProjectTestSupport.h"
#include "project/ProjectReader.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using namespace testsupport;

using Lines = std::vector<std::string>;

// The JSON form of the small project of the project file tests.
Json smallJson()
{
    auto doc = makeDocument();
    EXPECT_EQ(readProjectForJson(crlf(smallProjectLines()), *doc).status,
              ProjectReadResult::Status::Read);
    return projectToJson(*doc);
}

TEST(ProjectDiff, EqualProjectsGiveNoLine)
{
    EXPECT_EQ(diffProjects(smallJson(), smallJson()), Lines{});
}

TEST(ProjectDiff, AFieldChangeIsOneLineWithBothValues)
{
    const Json a = smallJson();
    Json b = a;
    b["buttons"][0]["x"] = 280;
    b["buttons"][0]["templateId"] = "imgMenu";
    b["texts"][0]["content"] = "Bye";
    EXPECT_EQ(diffProjects(a, b),
              (Lines{"button \"btn\": x 10 -> 280",
                     "button \"btn\": templateId \"tpl\" -> \"imgMenu\"",
                     "text \"txt\": content \"Hi, there\" -> \"Bye\""}));
}

TEST(ProjectDiff, ObjectsAddedAndRemovedAreNamedByKindAndId)
{
    const Json a = smallJson();
    Json b = a;
    b["images"].push_back(a["images"][0]);
    b["images"][1]["id"] = "imgHero";
    b["fonts"] = Json::array();
    EXPECT_EQ(diffProjects(a, b), (Lines{"image \"imgHero\": added", "font \"fnt\": removed"}));
    EXPECT_EQ(diffProjects(b, a), (Lines{"image \"imgHero\": removed", "font \"fnt\": added"}));
}

TEST(ProjectDiff, LayersFramesAndAnimationsAreComparedInside)
{
    const Json a = smallJson();
    Json b = a;
    Json &scene = b["scenes"][0];
    scene["layers"].push_back({{"objectId", "spr"}, {"objectKind", 2}});
    scene["layers"].push_back({{"objectId", "btn"}, {"objectKind", 4}});
    scene["layers"][0]["objectKind"] = 1;
    Json &anim = b["sprites"][0]["animations"][0];
    anim["frames"][1] = 9;
    anim["frames"].push_back(5);
    anim["play"] = 0;
    Json idle = anim;
    idle["id"] = "idle";
    b["sprites"][0]["animations"].push_back(idle);
    EXPECT_EQ(diffProjects(a, b),
              (Lines{"sprite \"spr\": animation \"walk\" frame 2 cell 4 -> 9",
                     "sprite \"spr\": animation \"walk\" frame 3 added",
                     "sprite \"spr\": animation \"walk\" play 1 -> 0",
                     "sprite \"spr\": animation \"idle\" added",
                     "scene \"scn\": layer 1 objectKind 3 -> 1",
                     "scene \"scn\": layer 2 added",
                     "scene \"scn\": layer 3 added"}));
    EXPECT_EQ(diffProjects(b, a),
              (Lines{"sprite \"spr\": animation \"idle\" removed",
                     "sprite \"spr\": animation \"walk\" frame 2 cell 9 -> 4",
                     "sprite \"spr\": animation \"walk\" frame 3 removed",
                     "sprite \"spr\": animation \"walk\" play 0 -> 1",
                     "scene \"scn\": layer 1 objectKind 1 -> 3",
                     "scene \"scn\": layer 2 removed",
                     "scene \"scn\": layer 3 removed"}));
}

TEST(ProjectDiff, ALayerTakenOutOfTheMiddleIsNamedAsRemoved)
{
    Json a = smallJson();
    Json &layers = a["scenes"][0]["layers"];
    for (const char *id : {"btn", "img", "spr", "txt", "cur"})
        layers.push_back({{"objectId", id}, {"objectKind", 4}});
    Json b = a;
    b["scenes"][0]["layers"].erase(2); // the third layer
    EXPECT_EQ(diffProjects(a, b), (Lines{"scene \"scn\": layer 3 removed"}));
    EXPECT_EQ(diffProjects(b, a), (Lines{"scene \"scn\": layer 3 added"}));

    Json c = a;
    c["scenes"][0]["layers"][3]["objectKind"] = 1;
    EXPECT_EQ(diffProjects(a, c), (Lines{"scene \"scn\": layer 4 objectKind 4 -> 1"}));
}

TEST(ProjectDiff, SettingsProjectAndLogHaveLinesOfTheirOwn)
{
    const Json a = smallJson();
    Json b = a;
    b["project"]["projectName"] = "Large";
    b["settings"]["splashEnabled"] = 0;
    for (const char *key : {"splashWidth",
                            "splashHeight",
                            "splashBpp",
                            "splashImagePath",
                            "splashTimer",
                            "splashRed",
                            "splashGreen"})
        b["settings"].erase(key);
    b["log"]["logFileFilters"][10] = 1;
    b["log"]["customFilters"][1] = "third";
    b["log"]["customFilters"].push_back("fourth");
    EXPECT_EQ(diffProjects(a, b),
              (Lines{"project: projectName \"Small\" -> \"Large\"",
                     "settings: splashEnabled 1 -> 0",
                     "settings: splashWidth 640 -> (none)",
                     "settings: splashHeight 480 -> (none)",
                     "settings: splashBpp 16 -> (none)",
                     "settings: splashImagePath \"splash.bmp\" -> (none)",
                     "settings: splashTimer 3 -> (none)",
                     "settings: splashRed 4 -> (none)",
                     "settings: splashGreen 5 -> (none)",
                     "log: logFileFilters[10] 0 -> 1",
                     "log: custom filter 2 \"second\" -> \"third\"",
                     "log: custom filter 3 added"}));
}

TEST(ProjectDiff, ObjectsOfOneIdAreMatchedByPositionAndMovesAreNamed)
{
    Json a = smallJson();
    a["cursors"].push_back(a["cursors"][0]);
    a["cursors"][1]["orientation"] = 5;
    a["cursors"].push_back(a["cursors"][0]);
    a["cursors"][2]["id"] = "other";
    Json b = a;
    b["cursors"] = Json::array({a["cursors"][2], a["cursors"][0], a["cursors"][1]});
    b["cursors"][2]["orientation"] = 6;
    EXPECT_EQ(diffProjects(a, b),
              (Lines{"cursor \"other\": moved from position 3 to 1",
                     "cursor \"cur\" (2): orientation 5 -> 6"}));
    // The second "cur" gone: the first keeps its place, the second is removed.
    Json c = a;
    c["cursors"].erase(1);
    EXPECT_EQ(diffProjects(a, c), (Lines{"cursor \"cur\" (2): removed"}));
}

} // namespace
} // namespace vorlane
