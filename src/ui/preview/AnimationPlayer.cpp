#include "AnimationPlayer.h"

#include "CellView.h"
#include "model/modGlobal.h"
#include "rules/PreviewTexts.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace vorlane {

AnimationPlayer::AnimationPlayer(QWidget *parent, std::unique_ptr<AnimationClock> clock)
    : QWidget(parent)
    , m_clock(clock ? std::move(clock) : std::make_unique<AnimationClock>())
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_view = new CellView(this);
    layout->addWidget(m_view, 1);
    auto *row = new QHBoxLayout;
    m_play = new QPushButton(tr("Play"), this);
    m_play->setObjectName(QStringLiteral("cmdPreviewPlay"));
    m_play->setFocusPolicy(Qt::NoFocus);
    m_delay = new QLabel(this);
    m_delay->setObjectName(QStringLiteral("lblPreviewDelay"));
    row->addWidget(m_play);
    row->addWidget(m_delay, 1);
    layout->addLayout(row);
    reserveRoomForTexts();
    m_timer = new QTimer(this);
    m_timer->setInterval(15);
    connect(m_timer, &QTimer::timeout, this, &AnimationPlayer::tick);
    connect(m_play, &QPushButton::clicked, this, [this]() {
        if (m_playing)
            stop();
        else
            play();
    });
    setSequence({}, AnimationTiming{});
}

AnimationPlayer::~AnimationPlayer() = default;

void AnimationPlayer::setClock(std::unique_ptr<AnimationClock> clock)
{
    stop();
    m_clock = clock ? std::move(clock) : std::make_unique<AnimationClock>();
}

void AnimationPlayer::setPicture(const PictureSpec &spec)
{
    m_view->setPicture(spec);
}

void AnimationPlayer::setSequence(std::vector<int16_t> cells, const AnimationTiming &timing)
{
    m_cells = std::move(cells);
    m_timing = timing;
    m_timing.frameCount = static_cast<int>(m_cells.size());
    m_delay->setText(QString::fromStdString(delayText(m_timing.frameDelay)));
    m_play->setEnabled(!m_cells.empty() || m_playing);
    if (m_playing)
        tick();
}

void AnimationPlayer::setStillCell(int cell)
{
    m_stillCell = cell;
    if (!m_playing)
        showStill();
}

void AnimationPlayer::play()
{
    if (m_cells.empty())
        return;
    m_playing = true;
    m_start = m_clock->nowMs();
    m_play->setText(tr("Stop"));
    m_timer->start();
    tick();
}

void AnimationPlayer::stop()
{
    m_playing = false;
    m_timer->stop();
    m_play->setText(tr("Play"));
    m_play->setEnabled(!m_cells.empty());
    showStill();
}

void AnimationPlayer::tick()
{
    if (!m_playing)
        return;
    const FrameAt at = frameAt(m_timing, m_clock->nowMs() - m_start);
    m_index = at.index;
    if (m_index < 0) {
        stop();
        return;
    }
    m_view->setCell(m_cells[static_cast<size_t>(m_index)],
                    tr("Frame %1 of %2").arg(m_index + 1).arg(m_cells.size()));
    // A sequence played once stays on its last frame, and the button offers to play again.
    if (at.finished) {
        m_playing = false;
        m_timer->stop();
        m_play->setText(tr("Play"));
    }
}

void AnimationPlayer::reserveRoomForTexts()
{
    // The widest text each line can show, so that none is cut and the player keeps its width
    // while the texts change frame after frame.
    int playWidth = 0;
    for (const QString &caption : {tr("Stop"), tr("Play")}) {
        m_play->setText(caption);
        playWidth = std::max(playWidth, m_play->sizeHint().width());
    }
    m_play->setFixedWidth(playWidth);
    const QFontMetrics delayMetrics(m_delay->font());
    const int delayWidth =
        delayMetrics.horizontalAdvance(QString::fromStdString(delayText(WidestDelay))) +
        2 * m_delay->margin() + 2 * m_delay->frameWidth();
    m_delay->setMinimumWidth(delayWidth);
    const QFontMetrics captionMetrics(font());
    int captionWidth = 0;
    for (const QString &caption : {tr("Frame %1 of %2").arg(SubSlotCount).arg(SubSlotCount) +
                                       QStringLiteral(": ") + tr("cell %1").arg(WidestDelay),
                                   tr("Stopped: no frame chosen")})
        captionWidth = std::max(captionWidth, captionMetrics.horizontalAdvance(caption) + 2);
    const int spacing = std::max(0, layout()->spacing());
    const int width = std::max({SmallestSide, playWidth + spacing + delayWidth, captionWidth});
    m_smallest = QSize(width, SmallestSide);
}

QSize AnimationPlayer::minimumSizeHint() const
{
    return m_smallest.expandedTo(QWidget::minimumSizeHint());
}

QSize AnimationPlayer::sizeHint() const
{
    // The same whatever the texts say: the column holding the player never jumps.
    return minimumSizeHint();
}

int AnimationPlayer::shownCell() const
{
    return m_view->cellImage().isNull() ? 0 : m_view->cell();
}

QImage AnimationPlayer::shownImage() const
{
    return m_view->cellImage();
}

QString AnimationPlayer::delayCaption() const
{
    return m_delay->text();
}

void AnimationPlayer::showStill()
{
    m_index = -1;
    if (m_stillCell > 0)
        m_view->setCell(m_stillCell, tr("Stopped"));
    else
        m_view->showNote(tr("Stopped: no frame chosen"));
}

} // namespace vorlane
