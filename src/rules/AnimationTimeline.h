#pragma once

#include "model/modGlobal.h"

#include <cstdint>
#include <vector>

namespace vorlane {

// The cells of an animation's frame sequence: its used frame slots in slot order, as the
// engine reads them.
std::vector<int16_t> animationCells(const AnimRec &anim);

// How an animation plays. Delays are in milliseconds; a frame delay below 1 is played as 1.
struct AnimationTiming
{
    int frameCount = 0;
    int frameDelay = 0; // how long each frame shows
    int animDelay = 0;  // the pause after each round before a repeated animation starts again
    bool reverse = false;
    bool repeat = false;
};

// The timing of `anim` over `frameCount` frames: reverse unless direction is 1, as the
// editor shows it; repeat when the flag is 1.
AnimationTiming timingOf(const AnimRec &anim, int frameCount);

// Which frame shows after `elapsedMs` of playing: the position in the sequence (-1 when it is
// empty) and whether a non-repeating animation has come to its end, where it stays.
struct FrameAt
{
    int index = -1;
    bool finished = false;

    bool operator==(const FrameAt &) const = default;
};
FrameAt frameAt(const AnimationTiming &timing, int64_t elapsedMs);

} // namespace vorlane
