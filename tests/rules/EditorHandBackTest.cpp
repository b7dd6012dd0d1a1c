#include "rules/EditorHandBack.h"

#include <gtest/gtest.h>

#include <memory>

namespace vorlane {
namespace {

class EditorHandBack : public ::testing::Test
{
protected:
    std::unique_ptr<Document> doc = makeDocument();
    ObjectList &buttons = doc->list(Kind::Button);

    void SetUp() override
    {
        buttons.lines = {{"New_Object0", 0}, {"New_Object1", 4}, {"New_Object2", 2}};
        buttons.selected = 1;
    }
};

TEST_F(EditorHandBack, ReplacesTheSelectedLineKeepingItsPlaceAndSlot)
{
    EXPECT_TRUE(handBackToList(*doc, Kind::Button, "Play_Button"));
    ASSERT_EQ(buttons.lines.size(), 3u);
    EXPECT_EQ(buttons.lines[0].text, "New_Object0");
    EXPECT_EQ(buttons.lines[1].text, "Play_Button");
    EXPECT_EQ(buttons.lines[1].slot, 4);
    EXPECT_EQ(buttons.lines[2].text, "New_Object2");
    EXPECT_EQ(buttons.selected, 1);
}

TEST_F(EditorHandBack, LeavesOtherKindsAlone)
{
    doc->list(Kind::Image).lines = {{"tiles", 0}};
    doc->list(Kind::Image).selected = 0;
    EXPECT_TRUE(handBackToList(*doc, Kind::Image, "Enter_ID"));
    EXPECT_EQ(doc->list(Kind::Image).lines[0].text, "Enter_ID");
    EXPECT_EQ(buttons.lines[1].text, "New_Object1");
}

TEST_F(EditorHandBack, WithoutASelectedLineNothingChanges)
{
    buttons.selected = -1;
    EXPECT_FALSE(handBackToList(*doc, Kind::Button, "Play_Button"));
    buttons.selected = 3;
    EXPECT_FALSE(handBackToList(*doc, Kind::Button, "Play_Button"));
    EXPECT_EQ(buttons.lines[0].text, "New_Object0");
    EXPECT_EQ(buttons.lines[1].text, "New_Object1");
    EXPECT_EQ(buttons.lines[2].text, "New_Object2");
}

} // namespace
} // namespace vorlane
