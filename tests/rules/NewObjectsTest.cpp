#include "rules/NewObjects.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(NewObjects, RemovesOnlyLinesOfNewSlotsAndKeepsFlags)
{
    auto doc = makeDocument();
    auto &list = doc->list(Kind::Image);
    for (int16_t slot = 0; slot < 5; ++slot) {
        list.lines.push_back({"img" + std::to_string(slot), slot});
        doc->Images[static_cast<size_t>(slot)].inUse = -1;
    }
    // Two consecutive new lines: the second must be examined after the first moved up.
    for (size_t slot : {1u, 2u, 4u}) {
        doc->Images[slot].inUse = 0;
        doc->Images[slot].isNew = -1;
    }
    doc->ObjectCounts[kindIndex(Kind::Image)] = 5;
    list.selected = 3;

    removeNewObjects(*doc);

    ASSERT_EQ(list.lines.size(), 2u);
    EXPECT_EQ(list.lines[0].text, "img0");
    EXPECT_EQ(list.lines[1].text, "img3");
    EXPECT_EQ(list.lines[1].slot, 3);
    EXPECT_EQ(list.selected, 1);
    EXPECT_EQ(doc->Images[1].isNew, -1);
    EXPECT_EQ(doc->ObjectCounts[kindIndex(Kind::Image)], 5);

    removeNewObjects(*doc); // nothing left to remove the second time
    EXPECT_EQ(list.lines.size(), 2u);
}

} // namespace
} // namespace vorlane
