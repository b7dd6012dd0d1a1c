#pragma once

#include <QElapsedTimer>

#include <cstdint>

namespace vorlane {

// The time an animation preview plays by, in milliseconds. The program uses the steady clock
// of the system; tests put a clock in its place that they move on by hand.
class AnimationClock
{
public:
    AnimationClock() { m_timer.start(); }
    virtual ~AnimationClock() = default;

    virtual int64_t nowMs() const { return m_timer.elapsed(); }

private:
    QElapsedTimer m_timer;
};

} // namespace vorlane
