#include "rules/CursorFieldRules.h"

#include "rules/FieldRules.h"

#include <gtest/gtest.h>

#include <string_view>
#include <utility>
#include <vector>

namespace vorlane {
namespace {

TEST(CursorFieldRules, OrientationCodesAreFixedAndNotInScreenOrder)
{
    const std::vector<std::pair<std::string_view, int16_t>> expected{{"Center", 1},
                                                                     {"Lower-left", 2},
                                                                     {"Lower-right", 3},
                                                                     {"Upper-right", 4},
                                                                     {"Upper-left", 5}};
    ASSERT_EQ(CursorOrientations.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(CursorOrientations[i].caption, expected[i].first);
        EXPECT_EQ(CursorOrientations[i].code, expected[i].second);
    }
}

TEST(CursorFieldRules, HotPointIsTheCentreOrTheCornerPixel)
{
    EXPECT_EQ(cursorHotPoint(1, 32, 20), (HotPoint{16, 10}));
    EXPECT_EQ(cursorHotPoint(2, 32, 20), (HotPoint{0, 19}));
    EXPECT_EQ(cursorHotPoint(3, 32, 20), (HotPoint{31, 19}));
    EXPECT_EQ(cursorHotPoint(4, 32, 20), (HotPoint{31, 0}));
    EXPECT_EQ(cursorHotPoint(5, 32, 20), (HotPoint{0, 0}));
    EXPECT_EQ(cursorHotPoint(0, 32, 20), (HotPoint{16, 10}));
    EXPECT_EQ(cursorHotPoint(3, 0, 0), (HotPoint{0, 0}));
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
