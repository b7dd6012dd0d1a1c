#include "rules/CursorFieldRules.h"

#include "rules/FieldRules.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(CursorFieldRules, OrientationCodesAreFixedAndNotInScreenOrder)
{
    EXPECT_EQ(cursorOrientationCode("Center"), int16_t(1));
    EXPECT_EQ(cursorOrientationCode("Lower-left"), int16_t(2));
    EXPECT_EQ(cursorOrientationCode("Lower-right"), int16_t(3));
    EXPECT_EQ(cursorOrientationCode("Upper-right"), int16_t(4));
    EXPECT_EQ(cursorOrientationCode("Upper-left"), int16_t(5));
    EXPECT_EQ(cursorOrientationCode("center"), std::nullopt);
    EXPECT_EQ(cursorOrientationCode(""), std::nullopt);
    for (const CursorOrientation &orientation : CursorOrientations)
        EXPECT_NE(orientation.code, 0) << orientation.caption;
}

TEST(CursorFieldRules, NewCursorDefaults)
{
    CursorRec cursor;
    cursor.isNew = -1;
    cursor.imageId = "left over";
    cursor.orientation = 4;
    ASSERT_TRUE(applyNewRecordDefaults(cursor, setCursorDefaults));
    EXPECT_EQ(cursor.id, "Enter_ID");
    EXPECT_EQ(cursor.imageId, "");
    EXPECT_EQ(cursor.orientation, 1);
    EXPECT_EQ(cursor.isNew, 0);
    EXPECT_EQ(cursor.inUse, -1);
}

} // namespace
} // namespace vorlane
