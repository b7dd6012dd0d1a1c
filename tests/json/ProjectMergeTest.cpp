#include "json/ProjectMerge.h"

#include "../project/ProjectTestSupport.h"
#include "json/ProjectDiff.h"
#include "project/ProjectReader.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using namespace testsupport;

using Lines = std::vector<std::string>;

Json smallJson()
{
    auto doc = makeDocument();
    EXPECT_EQ(readProjectForJson(crlf(smallProjectLines()), *doc).status,
              ProjectReadResult::Status::Read);
    return projectToJson(*doc);
}

TEST(ProjectMerge, ChangesToDifferentObjectsAndFieldsAllApply)
{
    const Json base = smallJson();
    Json ours = base;
    Json theirs = base;
    ours["buttons"][0]["x"] = 280;
    theirs["buttons"][0]["y"] = 300;
    ours["images"][0]["red"] = 9;
    theirs["fonts"][0]["path"] = "g.ttf";
    theirs["settings"]["fps"] = 30;
    ours["log"]["logTypeFilters"][0] = 0;
    theirs["log"]["logTypeFilters"][5] = 1;
    const MergeResult result = mergeProjects(base, ours, theirs);
    EXPECT_EQ(result.conflicts, Lines{});
    EXPECT_EQ(diffProjects(base, result.merged),
              (Lines{"settings: fps 60 -> 30",
                     "button \"btn\": x 10 -> 280",
                     "button \"btn\": y 20 -> 300",
                     "image \"img\": red 1 -> 9",
                     "font \"fnt\": path \"f.ttf\" -> \"g.ttf\"",
                     "log: logTypeFilters[0] 1 -> 0",
                     "log: logTypeFilters[5] 0 -> 1"}));
}

TEST(ProjectMerge, AFieldChangedBothWaysIsAConflictThatKeepsOurs)
{
    const Json base = smallJson();
    Json ours = base;
    Json theirs = base;
    ours["buttons"][0]["x"] = 280;
    theirs["buttons"][0]["x"] = 300;
    ours["texts"][0]["content"] = "same";
    theirs["texts"][0]["content"] = "same";
    const MergeResult result = mergeProjects(base, ours, theirs);
    EXPECT_EQ(result.conflicts,
              Lines{"button \"btn\": x: ours 280, theirs 300 (base 10); ours kept"});
    EXPECT_EQ(diffProjects(ours, result.merged), Lines{});
}

TEST(ProjectMerge, AddedAndRemovedObjectsFollowTheSideThatChangedThem)
{
    const Json base = smallJson();
    Json ours = base;
    Json theirs = base;
    Json font = base["fonts"][0];
    font["id"] = "fntOurs";
    ours["fonts"].push_back(font);
    font["id"] = "fntTheirs";
    theirs["fonts"].insert(theirs["fonts"].begin(), font);
    theirs["cursors"] = Json::array(); // removed, unchanged by ours
    theirs["music"][0]["defaultPan"] = 9;
    ours["music"] = Json::array(); // removed by ours, changed by theirs
    ours["sound"
         "Effects"][0]["path"] = "t.wav";
    theirs["soundEffects"] = Json::array(); // changed by ours, removed by theirs
    const MergeResult result = mergeProjects(base, ours, theirs);
    EXPECT_EQ(result.conflicts,
              (Lines{"music \"mus\": removed in ours, changed in theirs; the removal kept",
                     "sound effect \"sfx\": changed in ours, removed in theirs; ours kept"}));
    EXPECT_EQ(diffProjects(base, result.merged),
              (Lines{"cursor \"cur\": removed",
                     "font \"fntTheirs\": added",
                     "font \"fntOurs\": added",
                     "music \"mus\": removed",
                     "sound effect \"sfx\": path \"s.wav\" -> \"t.wav\""}));
}

TEST(ProjectMerge, AnimationsMergeByIdAndFramesAsOneValue)
{
    const Json base = smallJson();
    Json ours = base;
    Json theirs = base;
    Json &oursWalk = ours["sprites"][0]["animations"][0];
    Json &theirsWalk = theirs["sprites"][0]["animations"][0];
    oursWalk["frameDelay"] = 5;
    theirsWalk["animDelay"] = 6;
    oursWalk["frames"].push_back(1);
    theirsWalk["frames"].push_back(2);
    Json run = theirsWalk;
    run["id"] = "run";
    theirs["sprites"][0]["animations"].push_back(run);
    const MergeResult result = mergeProjects(base, ours, theirs);
    EXPECT_EQ(result.conflicts,
              Lines{"sprite \"spr\": animation \"walk\" frames: ours [3,4,1], theirs [3,4,2] "
                    "(base [3,4]); ours kept"});
    EXPECT_EQ(diffProjects(base, result.merged),
              (Lines{"sprite \"spr\": animation \"walk\" frame 3 added",
                     "sprite \"spr\": animation \"walk\" frameDelay 100 -> 5",
                     "sprite \"spr\": animation \"walk\" animDelay 200 -> 6",
                     "sprite \"spr\": animation \"run\" added"}));
}

TEST(ProjectMerge, AMoveOnOneSideIsKept)
{
    Json base = smallJson();
    Json second = base["images"][0];
    second["id"] = "img2";
    base["images"].push_back(second);
    Json ours = base;
    Json theirs = base;
    std::swap(theirs["images"][0], theirs["images"][1]);
    ours["images"][0]["alpha"] = 1;
    const MergeResult result = mergeProjects(base, ours, theirs);
    EXPECT_EQ(result.conflicts, Lines{});
    EXPECT_EQ(
        diffProjects(base, result.merged),
        (Lines{"image \"img2\": moved from position 2 to 1", "image \"img\": alpha 10 -> 1"}));
}

TEST(ProjectMerge, WithoutABaseEveryDifferenceIsAConflict)
{
    const Json ours = smallJson();
    Json theirs = ours;
    theirs["fonts"][0]["path"] = "g.ttf";
    const MergeResult result = mergeProjects(Json::object(), ours, theirs);
    EXPECT_EQ(
        result.conflicts,
        Lines{"font \"fnt\": path: ours \"f.ttf\", theirs \"g.ttf\" (base (none)); ours kept"});
    EXPECT_EQ(result.merged, ours);
}

} // namespace
} // namespace vorlane
