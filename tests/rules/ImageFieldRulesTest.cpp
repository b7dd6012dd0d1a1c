#include "rules/ImageFieldRules.h"

#include "rules/FieldRules.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(ImageFieldRules, NewImageDefaults)
{
    ImageRec image;
    image.isNew = -1;
    image.id = "New_Object4";
    image.path = "left over.png";
    image.red = 7;
    image.bound = 1;
    image.visible = 0;
    ASSERT_TRUE(applyNewRecordDefaults(image, setImageDefaults));
    EXPECT_EQ(image.id, "Enter_ID");
    EXPECT_EQ(image.path, "null");
    EXPECT_EQ(image.red, 0);
    EXPECT_EQ(image.green, 0);
    EXPECT_EQ(image.blue, 0);
    EXPECT_EQ(image.alpha, 255);
    EXPECT_EQ(image.cellWidth, 0);
    EXPECT_EQ(image.cellHeight, 0);
    EXPECT_EQ(image.positionX, 0);
    EXPECT_EQ(image.positionY, 0);
    EXPECT_EQ(image.bound, 0);
    EXPECT_EQ(image.visible, 1);
    EXPECT_EQ(image.isNew, 0);
    EXPECT_EQ(image.inUse, -1);
}

TEST(ImageFieldRules, TransparencyBoxesCapAt255AndKeepNegatives)
{
    EXPECT_EQ(numberRule("256", byteField()), (NumberOutcome{256, "255"}));
    EXPECT_EQ(numberRule("255", byteField()), (NumberOutcome{255, std::nullopt}));
    EXPECT_EQ(numberRule("-1", byteField()), (NumberOutcome{-1, std::nullopt}));
    EXPECT_EQ(numberRule("", byteField()), (NumberOutcome{0, "0"}));
}

} // namespace
} // namespace vorlane
