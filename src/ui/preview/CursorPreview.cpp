#include "CursorPreview.h"

#include "PreviewPainting.h"
#include "rules/CellGrid.h"

#include <QPainter>

#include <algorithm>

namespace vorlane {

CursorPreview::CursorPreview(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("picCursorPreview"));
    setMinimumSize(128, 128);
    setFocusPolicy(Qt::NoFocus);
    setPicture(PictureSpec{});
}

QSize CursorPreview::sizeHint() const
{
    return QSize(160, 160);
}

void CursorPreview::setPicture(const PictureSpec &spec)
{
    if (!m_loaded || spec.file != m_spec.file || m_picture.isNull())
        m_picture = PreviewPicture::load(spec);
    else if (!(spec == m_spec))
        m_picture = m_picture.rekeyed(spec);
    m_loaded = true;
    m_spec = spec;
    const QImage &whole = m_picture.image();
    const std::optional<CellRect> first =
        whole.isNull()
            ? std::nullopt
            : cellRect(gridOfCells(whole.width(), whole.height(), spec.cellWidth, spec.cellHeight),
                       FirstCell);
    m_cursor = first ? whole.copy(first->x, first->y, first->width, first->height) : QImage();
    update();
}

void CursorPreview::setOrientation(int code)
{
    m_code = code;
    update();
}

HotPoint CursorPreview::hotPoint() const
{
    return cursorHotPoint(m_code, m_cursor.width(), m_cursor.height());
}

QString CursorPreview::message() const
{
    return m_picture.isNull() ? m_picture.problem() : QString();
}

QRect CursorPreview::pictureArea() const
{
    if (m_cursor.isNull())
        return QRect();
    // Whole-number enlargement keeps the pixels square, so the hot pixel is a square too.
    const int scale = std::max(
        1, std::min((width() - 16) / m_cursor.width(), (height() - 16) / m_cursor.height()));
    const QSize size = m_cursor.size() * scale;
    return QRect(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
}

QRect CursorPreview::hotPointRect() const
{
    const QRect area = pictureArea();
    if (area.isEmpty())
        return QRect();
    const int scale = area.width() / m_cursor.width();
    const HotPoint hot = hotPoint();
    return QRect(area.left() + hot.x * scale, area.top() + hot.y * scale, scale, scale);
}

void CursorPreview::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    const QRect area = pictureArea();
    if (area.isEmpty()) {
        painter.setPen(QColor(150, 150, 150));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.drawText(rect().adjusted(4, 4, -4, -4),
                         Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                         message());
        return;
    }
    paintCheckerboard(painter, area);
    painter.drawImage(area, m_cursor);
    // The hot pixel framed, with lines through it across the picture.
    const QRect hot = hotPointRect();
    const QPoint centre = hot.center();
    painter.setPen(QPen(QColor(255, 0, 0), 1, Qt::DashLine));
    painter.drawLine(area.left() - 6, centre.y(), area.right() + 6, centre.y());
    painter.drawLine(centre.x(), area.top() - 6, centre.x(), area.bottom() + 6);
    painter.setPen(QPen(QColor(255, 0, 0), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(hot.adjusted(-2, -2, 1, 1));
}

} // namespace vorlane
