#include "rules/AnimationTimeline.h"

#include <gtest/gtest.h>

#include <vector>

namespace vorlane {
namespace {

std::vector<int> indexesAt(const AnimationTiming &timing, const std::vector<int64_t> &times)
{
    std::vector<int> indexes;
    for (int64_t t : times)
        indexes.push_back(frameAt(timing, t).index);
    return indexes;
}

TEST(AnimationTimeline, CellsAreTheUsedFramesInSlotOrder)
{
    AnimRec anim;
    anim.frames[7] = FrameRec{-1, 9};
    anim.frames[3] = FrameRec{-1, 4};
    anim.frames[5] = FrameRec{0, 6}; // deleted: its cell stays but it is not played
    EXPECT_EQ(animationCells(anim), (std::vector<int16_t>{4, 9}));
}

TEST(AnimationTimeline, ForwardShowsEachFrameForTheFrameDelay)
{
    const AnimationTiming timing{3, 100, 0, false, false};
    EXPECT_EQ(indexesAt(timing, {0, 99, 100, 199, 200, 299}), (std::vector<int>{0, 0, 1, 1, 2, 2}));
}

TEST(AnimationTimeline, WithoutRepeatTheLastFrameStays)
{
    const AnimationTiming timing{3, 100, 0, false, false};
    EXPECT_EQ(frameAt(timing, 299), (FrameAt{2, false}));
    EXPECT_EQ(frameAt(timing, 300), (FrameAt{2, true}));
    EXPECT_EQ(frameAt(timing, 5000), (FrameAt{2, true}));
}

TEST(AnimationTimeline, RepeatStartsOverAfterTheLastFrame)
{
    const AnimationTiming timing{3, 100, 0, false, true};
    EXPECT_EQ(indexesAt(timing, {250, 300, 420, 650}), (std::vector<int>{2, 0, 1, 0}));
    EXPECT_FALSE(frameAt(timing, 100000).finished);
}

TEST(AnimationTimeline, ReverseRunsFromTheLastFrame)
{
    const AnimationTiming timing{3, 100, 0, true, false};
    EXPECT_EQ(indexesAt(timing, {0, 100, 200, 300, 900}), (std::vector<int>{2, 1, 0, 0, 0}));
    EXPECT_TRUE(frameAt(timing, 300).finished);
}

TEST(AnimationTimeline, ReverseRepeatStartsOverAtTheLastFrame)
{
    const AnimationTiming timing{3, 100, 0, true, true};
    EXPECT_EQ(indexesAt(timing, {0, 100, 200, 300, 400}), (std::vector<int>{2, 1, 0, 2, 1}));
}

TEST(AnimationTimeline, AnimationDelayPausesBetweenRounds)
{
    const AnimationTiming timing{2, 100, 50, false, true};
    EXPECT_EQ(indexesAt(timing, {150, 200, 249, 250, 350}), (std::vector<int>{1, 1, 1, 0, 1}));
}

TEST(AnimationTimeline, FrameDelayBelowOneIsOne)
{
    const AnimationTiming timing{3, 0, 0, false, false};
    EXPECT_EQ(indexesAt(timing, {0, 1, 2, 3}), (std::vector<int>{0, 1, 2, 2}));
    EXPECT_EQ(frameAt(AnimationTiming{3, -40, 0, false, false}, 1).index, 1);
}

TEST(AnimationTimeline, EmptySequenceShowsNothing)
{
    EXPECT_EQ(frameAt(AnimationTiming{0, 100, 0, false, true}, 50), (FrameAt{-1, false}));
}

TEST(AnimationTimeline, TimingFollowsTheRecord)
{
    AnimRec anim;
    anim.frameDelay = 120;
    anim.animDelay = 30;
    anim.direction = -1;
    anim.repeat = 1;
    const AnimationTiming timing = timingOf(anim, 4);
    EXPECT_EQ(timing.frameCount, 4);
    EXPECT_EQ(timing.frameDelay, 120);
    EXPECT_EQ(timing.animDelay, 30);
    EXPECT_TRUE(timing.reverse);
    EXPECT_TRUE(timing.repeat);
    anim.direction = 1;
    anim.repeat = 0;
    EXPECT_FALSE(timingOf(anim, 4).reverse);
    EXPECT_FALSE(timingOf(anim, 4).repeat);
}

} // namespace
} // namespace vorlane
