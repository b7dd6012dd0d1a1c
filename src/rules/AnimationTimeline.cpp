#include "rules/AnimationTimeline.h"

#include <algorithm>

namespace vorlane {

std::vector<int16_t> animationCells(const AnimRec &anim)
{
    std::vector<int16_t> cells;
    for (const FrameRec &frame : anim.frames) {
        if (frame.inUse == -1)
            cells.push_back(frame.cell);
    }
    return cells;
}

AnimationTiming timingOf(const AnimRec &anim, int frameCount)
{
    return AnimationTiming{
        frameCount, anim.frameDelay, anim.animDelay, anim.direction != 1, anim.repeat == 1};
}

FrameAt frameAt(const AnimationTiming &timing, int64_t elapsedMs)
{
    const int64_t count = timing.frameCount;
    if (count <= 0)
        return FrameAt{};
    const int64_t delay = std::max(timing.frameDelay, 1);
    const int64_t round = count * delay;
    const int64_t elapsed = std::max<int64_t>(elapsedMs, 0);
    int64_t step = 0;
    bool finished = false;
    if (timing.repeat) {
        const int64_t period = round + std::max(timing.animDelay, 0);
        const int64_t into = elapsed % period;
        // During the pause after a round the last frame stays.
        step = into < round ? into / delay : count - 1;
    } else if (elapsed >= round) {
        step = count - 1;
        finished = true;
    } else {
        step = elapsed / delay;
    }
    const int64_t index = timing.reverse ? count - 1 - step : step;
    return FrameAt{static_cast<int>(index), finished};
}

} // namespace vorlane
