#pragma once

#include "AnimationClock.h"
#include "rules/AnimationTimeline.h"
#include "rules/PictureSpec.h"

#include <QSize>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <vector>

class QLabel;
class QPushButton;
class QTimer;

namespace vorlane {

class CellView;

// Plays a frame sequence from the cells of a picture: Play / Stop, at the frame delay (in
// milliseconds), forward or in reverse, once or over and over. While stopped it shows the
// still cell its owner chooses (the selected row of a sequence). It only reads what it is
// given.
class AnimationPlayer : public QWidget
{
    Q_OBJECT
public:
    // Plays by `clock` (the system's steady clock when none is given).
    explicit AnimationPlayer(QWidget *parent = nullptr,
                             std::unique_ptr<AnimationClock> clock = nullptr);
    ~AnimationPlayer() override;

    // Plays by `clock` from now on (a player made by a form is given a test's clock so).
    void setClock(std::unique_ptr<AnimationClock> clock);

    void setPicture(const PictureSpec &spec);
    // The cells in the order they play (animationCells) and how they play (timingOf).
    void setSequence(std::vector<int16_t> cells, const AnimationTiming &timing);
    // Shown while stopped; 0 or less shows nothing.
    void setStillCell(int cell);

    void play();
    void stop();
    bool isPlaying() const { return m_playing; }
    // Shows the frame of the time now; the player's own timer calls it while playing.
    void tick();

    // The position in the sequence shown while playing (-1 when stopped or empty).
    int shownIndex() const { return m_index; }
    int shownCell() const;
    QImage shownImage() const;
    CellView *cellView() const { return m_view; }
    QPushButton *playButton() const { return m_play; }
    QString delayCaption() const;

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

private:
    // The smallest side of the player, and the widest number its texts show.
    static constexpr int SmallestSide = 200;
    static constexpr int WidestDelay = -32768;

    void showStill();
    void reserveRoomForTexts();

    std::unique_ptr<AnimationClock> m_clock;
    std::vector<int16_t> m_cells;
    AnimationTiming m_timing;
    int m_stillCell = 0;
    bool m_playing = false;
    int64_t m_start = 0;
    int m_index = -1;
    CellView *m_view = nullptr;
    QPushButton *m_play = nullptr;
    QLabel *m_delay = nullptr;
    QTimer *m_timer = nullptr;
    QSize m_smallest;
};

} // namespace vorlane
