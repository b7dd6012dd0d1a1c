#include "generate/GeneratePaths.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

GeneratePaths paths(std::string_view chosen, std::string_view root)
{
    const auto result = computeGeneratePaths(chosen, root);
    EXPECT_TRUE(result.has_value()) << chosen << " / " << root;
    return result.value_or(GeneratePaths{});
}

TEST(GeneratePaths, FolderBelowTheRootIsRelativeWithItsSeparator)
{
    const auto p = paths("C:\\game\\data\\x.dat", "C:\\game");
    EXPECT_EQ(p.generatePath, "C:\\game\\data\\");
    EXPECT_EQ(p.dataFolderRel, "data\\");
}

TEST(GeneratePaths, EmptyRootGivesNull)
{
    const auto p = paths("C:\\game\\data\\x.dat", "");
    EXPECT_EQ(p.generatePath, "C:\\game\\data\\");
    EXPECT_EQ(p.dataFolderRel, "null");
}

TEST(GeneratePaths, DeeperFoldersKeepEveryLevel)
{
    EXPECT_EQ(paths("C:\\game\\data\\level1\\[no filename needed]", "C:\\game").dataFolderRel,
              "data\\level1\\");
}

TEST(GeneratePaths, ForwardSlashesWork)
{
    const auto p = paths("/home/ann/quest/data/[no filename needed]", "/home/ann/quest");
    EXPECT_EQ(p.generatePath, "/home/ann/quest/data/");
    EXPECT_EQ(p.dataFolderRel, "data/");
}

TEST(GeneratePaths, MixedSeparatorsCutAfterTheLastOfEither)
{
    const auto p = paths("C:\\game/data\\sub/x.dat", "C:\\game");
    EXPECT_EQ(p.generatePath, "C:\\game/data\\sub/");
    EXPECT_EQ(p.dataFolderRel, "data\\sub/");
    EXPECT_EQ(paths("C:/game\\data/x.dat", "C:/game").dataFolderRel, "data/");
}

TEST(GeneratePaths, LastOccurrenceOfTheRootCounts)
{
    const auto p = paths("C:\\game\\game\\data\\x.dat", "game");
    EXPECT_EQ(p.generatePath, "C:\\game\\game\\data\\");
    EXPECT_EQ(p.dataFolderRel, "data\\");
    // An occurrence inside a later folder name counts too, and the character after it goes.
    EXPECT_EQ(paths("/srv/game/games/levels/x.dat", "game").dataFolderRel, "/levels/");
    EXPECT_EQ(paths("/g/a/g/b/x.dat", "g").dataFolderRel, "b/");
}

TEST(GeneratePaths, RootAtTheStartOfARelativePath)
{
    const auto p = paths("game/data/x.dat", "game");
    EXPECT_EQ(p.generatePath, "game/data/");
    EXPECT_EQ(p.dataFolderRel, "data/");
}

TEST(GeneratePaths, ChosenPathDirectlyInTheRootGivesAnEmptyRelativeFolder)
{
    const auto p = paths("C:\\game\\x.dat", "C:\\game");
    EXPECT_EQ(p.generatePath, "C:\\game\\");
    EXPECT_EQ(p.dataFolderRel, "");
}

TEST(GeneratePaths, RootWithItsOwnSeparatorLosesTheNextCharacter)
{
    // The character after the root is always skipped as its separator.
    EXPECT_EQ(paths("C:\\game\\data\\x.dat", "C:\\game\\").dataFolderRel, "ata\\");
}

TEST(GeneratePaths, RootComparisonIsCaseSensitive)
{
    EXPECT_FALSE(computeGeneratePaths("C:\\Game\\data\\x.dat", "C:\\game").has_value());
}

TEST(GeneratePaths, PathOutsideTheRootIsRefused)
{
    EXPECT_FALSE(computeGeneratePaths("D:\\other\\data\\x.dat", "C:\\game").has_value());
    EXPECT_FALSE(computeGeneratePaths("C:\\ga", "C:\\game").has_value());
    EXPECT_FALSE(computeGeneratePaths("", "C:\\game").has_value());
}

TEST(GeneratePaths, RootAtTheVeryEndLeavesNothingRelative)
{
    const auto p = paths("/data/game", "game");
    EXPECT_EQ(p.generatePath, "/data/");
    EXPECT_EQ(p.dataFolderRel, "");
}

TEST(GeneratePaths, PathWithoutSeparatorHasAnEmptyFolder)
{
    const auto p = paths("x.dat", "");
    EXPECT_EQ(p.generatePath, "");
    EXPECT_EQ(p.dataFolderRel, "null");
}

TEST(GeneratePaths, ASiblingWhoseNameBeginsWithTheRootPassesTheTextRuleOnly)
{
    // The editor's rule takes it, with a data folder the engine will not find.
    EXPECT_EQ(paths("/games/quest2/x.dat", "/games/quest").dataFolderRel, "/");
    EXPECT_EQ(paths("/games/quest2/data/x.dat", "/games/quest").dataFolderRel, "/data/");
    EXPECT_FALSE(rootEndsAtSeparator("/games/quest2/x.dat", "/games/quest"));
    EXPECT_FALSE(rootEndsAtSeparator("C:\\games\\quest2\\x.dat", "C:\\games\\quest"));
    EXPECT_TRUE(rootEndsAtSeparator("/games/quest/x.dat", "/games/quest"));
    EXPECT_TRUE(rootEndsAtSeparator("/games/quest/data/x.dat", "/games/quest"));
    EXPECT_TRUE(rootEndsAtSeparator("C:\\games\\quest\\data\\x.dat", "C:\\games\\quest"));
    EXPECT_TRUE(rootEndsAtSeparator("/anything/x.dat", ""));
    EXPECT_FALSE(rootEndsAtSeparator("/elsewhere/x.dat", "/games/quest"));
}

TEST(GeneratePaths, TrailingSeparatorsComeOffAFolder)
{
    EXPECT_EQ(withoutTrailingSeparators("mygame/"), "mygame");
    EXPECT_EQ(withoutTrailingSeparators("C:\\Games\\Quest\\"), "C:\\Games\\Quest");
    EXPECT_EQ(withoutTrailingSeparators("/games/quest//"), "/games/quest");
    EXPECT_EQ(withoutTrailingSeparators("/games/quest"), "/games/quest");
    EXPECT_EQ(withoutTrailingSeparators("/"), "/");
    EXPECT_EQ(withoutTrailingSeparators(""), "");
    EXPECT_TRUE(endsInSeparator("out\\"));
    EXPECT_TRUE(endsInSeparator("out/"));
    EXPECT_FALSE(endsInSeparator("out"));
    EXPECT_FALSE(endsInSeparator(""));
}

} // namespace
} // namespace vorlane
